// The energy shield across the bottom of the field.
#pragma once

#include "field/element.h"

class CBall;
class CSound;

// While up it is a solid floor. In regular play the first touch of the ball takes it down; in kids
// mode with its option on it stays. One a level, made by the level runner.
class CBarrier : public CElementNoMove
{
public:
	explicit CBarrier(CBall* newBall);
	~CBarrier() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CBarrier"; }

	void Raise(int atX); // the pulse starts at this x
	void Lower();        // only when up
	bool IsUp() const { return up; }

	bool up = false, rising = false;
	int risingFrames = 0;
	float pulseX     = 346; // pixels
	float pulseSpeed = 7;   // pixels per frame, 7 or -7 between the ends
	int bumpOffset = 0, bumpStep = -1;
	CBall* ball; // not owned

	// sprites, owned
	CSprite* mainSprite;
	CSprite* topSprite;
	CSprite* pulseLeft;
	CSprite* pulseRight;
	// sounds, owned
	CSound* appearSound;
	CSound* disappearSound;

private:
	int FloorLine() const;
	void RunPulse();
	void AdvanceBump();
	void PlaceSprites();
	void GoneDown();

	bool lowering = false;
};

extern CBarrier* g_barrier; // null outside a level
