// What the paddle is made of: pictures, outline records, sounds. Only the paddle's own files use
// it.
#pragma once

#include "field/paddle.h"

#include <vector>

enum FlameSide { FLAME_LEFT, FLAME_RIGHT, FLAME_SIDES };
enum FlameSet { FLAMES_FAST, FLAMES_SLOW, FLAME_SETS };
enum FlamePhase { PHASE_START, PHASE_LOOP, FLAME_PHASES };

const int FLAME_PICTURES = 8; // sides times sets times phases

enum PaddlePart {
	PART_BODY,
	PART_LEFT_WHEEL,
	PART_RIGHT_WHEEL,
	PART_LEFT_FAN,
	PART_RIGHT_FAN,
	PART_LEFT_LIGHT,
	PART_RIGHT_LIGHT,
	PART_FLAMES,                                   // by side, set and phase: FlamePart
	PART_PROFESSOR = PART_FLAMES + FLAME_PICTURES, // at rest
	// his moves
	MOVE_LEFT_SLOW,
	MOVE_RIGHT_SLOW,
	MOVE_LEFT_FAST,
	MOVE_RIGHT_FAST,
	MOVE_LEFT_RECOIL,
	MOVE_RIGHT_RECOIL,
	MOVE_LEFT_RIGHT_SLOW,
	MOVE_LEFT_RIGHT_FAST,
	MOVE_RIGHT_LEFT_FAST,
	PART_SHORT_GLOW,
	PART_LONG_GLOW,
	PART_CRACKLE,
	PADDLE_PARTS,
};

constexpr int FlamePart(int side, int set, int phase)
{
	return PART_FLAMES + (side * FLAME_SETS + set) * FLAME_PHASES + phase;
}

// The seven pictures between two shapes.
enum Bumper {
	BUMPER_NORMAL_STICKY,
	BUMPER_NORMAL_WIDE,
	BUMPER_NORMAL_FLAT,
	BUMPER_WIDE_STICKY,
	BUMPER_FLAT_STICKY,
	BUMPER_STICKY_WIDE,
	BUMPER_STICKY_FLAT,
	BUMPERS,
};

// Waits, then blinks, until it is started again.
struct PaddlePrompt {
	static constexpr int WAIT      = 300; // frames
	static constexpr int SHOWN     = 24;
	static constexpr int HIDDEN    = 8;
	static constexpr int TIMER_ON  = -1;
	static constexpr int TIMER_OFF = -2;

	void Restart() { timer = WAIT; }
	void Run(); // one frame
	bool IsBlinking() const { return timer < 0; }

	CSprite* sprite = nullptr; // owned by the paddle's parts
	int timer       = WAIT;
	int blink       = SHOWN;
};

struct CPaddle::Parts {
	Parts();
	~Parts();

	CSprite* sprites[PADDLE_PARTS]; // owned, as all below
	CSprite* bumpers[BUMPERS];
	CSprite* ray;
	CSprite* sign; // destructo loaded
	PaddlePrompt launchPrompt, rayPrompt;
	CSound* fanSound;
	CSound* raySound;
	std::vector<ObstaclePoint*> outline; // of the present shape

	int flameTimer[FLAME_SIDES] = {}; // frames since that side last pushed
	int beamTop                 = 0;  // y where the ray ends
	int stunX = 0, stunY = 0;         // where the pointer is held while stunned
	bool fanSounds = false;
};

// Where a part hangs: dx from the anchor, y on the screen, both in pixels.
struct PaddlePlace {
	int part, dx, y;
};
PaddlePlace PlaceOfPart(int part);
