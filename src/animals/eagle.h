// Eagle: watches from its perch, and circles when it is disturbed.
#pragma once

#include "animals/element_bird.h"

// A small machine of its own: a quiet life at rest, flapping and gliding by turns in the air. The
// ball reaches it only on open ground.
class CEagle : public CElementBird
{
public:
	CEagle(int centreX, int centreY, bool left); // on open ground
	CEagle(CCrate* crate, bool left);
	CEagle(CFence* fence, bool left);

	void Update() override;
	bool OnBallHit() override;
	int OnBump() override;
	using CElementBird::RebuildBody;
	void RebuildBody(bool always) override;
	const char* ClassName() const override { return "CEagle"; }

	enum RestState { RUFFLE = -3, LOOK, BLINK, STAND, STUNNED };
	enum Pictures {
		STANDING,
		BLINKING,
		LOOKING,
		RUFFLING,
		BEING_STUNNED,
		FLAPPING_UP, // the four of the air in the order of their states
		FLAPPING_DOWN,
		GLIDING_UP,
		GLIDING_DOWN,
		PICTURES
	};

private:
	void Build(bool left);
	void Enter(int newState, Pictures pictures);
	void StandFrame();
	void LookFrame();
	void AirFrame();
	void RestFrame();

	bool lookingBack = false;      // the look now plays backward
	CSprite* sprites[PICTURES][2]; // by facing: right, left
};
