// One action of an animal: up to three phases, each with its pair of pictures.
#pragma once

class CSound;
class CSprite;

// What the behaviour machine does each frame of an action. Those without a word on them are
// labels for the species' own use, and nothing moves during them.
enum ActionKind {
	ACTION_IDLE      = 0,
	ACTION_LOOK      = 1, // entry, hold, and the entry's pictures backward
	ACTION_BLINK     = 2,
	ACTION_BUMP      = 3,
	ACTION_WALK      = 4, // along x
	ACTION_HOP_END   = 5,
	ACTION_CHEW      = 6,
	ACTION_STARE     = 7,
	ACTION_GRAZE     = 8, // head down, grazing, pecking, head up
	ACTION_EXTRA     = 9, // shake, purr, sniff and whatever else a species does
	ACTION_EXTRA2    = 10,
	ACTION_EXTRA3    = 11,
	ACTION_WAKE      = 12,
	ACTION_FALL      = 13, // z falls under gravity
	ACTION_LAND      = 14,
	ACTION_CLIMB     = 15, // rises, then sits in the crown
	ACTION_LAY       = 16, // an egg at the end of the first picture
	ACTION_WALK_BOTH = 17, // along x and y, toward followTarget if there is one
	ACTION_FLIGHT    = 18,
	ACTION_FLUTTER   = 19, // wanders in the air
};

enum ActionPhase { PHASE_ENTRY, PHASE_MIDDLE, PHASE_EXIT };

// A number of frames, fixed or drawn anew each time.
struct FrameSpan {
	int fixed   = -1; // -1: until the pictures have run out, or no such phase
	bool random = false;
	int min = 0, max = 0;

	static constexpr FrameSpan UntilEnd() { return {}; }
	static constexpr FrameSpan Exactly(int frames) { return {frames, false, 0, 0}; }
	static constexpr FrameSpan Between(int min, int max) { return {0, true, min, max}; }
	bool UntilPicturesEnd() const { return !random && fixed == -1; }
	int Draw() const; // calls Rand only when random
};

// A plain record, owned by its animal, as are the sprites it names.
struct AnimalAction {
	const char* name = ""; // of its row, for the driver and the overlay

	// entry phase; of actions that walk both ways, the pair used while facing up
	CSprite* spriteLeft      = nullptr;
	CSprite* spriteRight     = nullptr;
	CSprite* spriteDownLeft  = nullptr;
	CSprite* spriteDownRight = nullptr;
	CSprite* middleLeft      = nullptr;
	CSprite* middleRight     = nullptr;
	CSprite* exitLeft        = nullptr;
	CSprite* exitRight       = nullptr;
	FrameSpan entry, middle, exit;

	int weight          = 0; // in the random choice; 0: only as a follow-up
	int kind            = ACTION_IDLE;
	AnimalAction* next1 = nullptr; // follow-ups, equal chances; without any the choice is made
	AnimalAction* next2 = nullptr;
	AnimalAction* next3 = nullptr;
	int phase           = PHASE_ENTRY;
	bool notInTree      = true;
	bool notPerched     = true;

	FrameSpan repeats = FrameSpan::Exactly(1);
	int repeatsLeft   = -1; // -1: not under way

	CSound* sounds[4] = {nullptr, nullptr, nullptr, nullptr}; // one of them; null from the end on
	int soundDelay = -1, soundCountdown = -1;                 // frames
	CSound* extraSound  = nullptr;
	int extraSoundDelay = -1, extraSoundCountdown = -1;

	bool IsTwoWay() const { return kind >= ACTION_WALK_BOTH && kind <= ACTION_FLUTTER; }
	bool IsAirborne() const { return kind == ACTION_FLIGHT || kind == ACTION_FLUTTER; }
};
