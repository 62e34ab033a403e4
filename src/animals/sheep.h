// Sheep: stands, grazes, looks back, and takes fright when the bubble is too small for it.
#pragma once

#include "animals/animal.h"
#include "animals/wait.h"

// A small machine of its own in place of an action list: one state at a time, each with its
// pictures and its end.
class CSheep : public CElementAnimal
{
public:
	CSheep(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	int OnBump() override;
	const char* ClassName() const override { return "CSheep"; }

	enum State { STAND, WALK, GRAZE, LOOK_BACK, STUNNED = 5, EYES_WIDE = 7 };
	enum Pictures {
		STANDING,
		WALKING,
		LOWERING,
		CHEWING,
		RAISING,
		TURNING_HEAD,
		TURNING_BACK,
		BEING_STUNNED,
		STARING,
		PICTURES
	};

	State state = STAND;
	Wait wait;           // of the state
	bool baaDue = false; // the fright has begun and not been heard yet

private:
	void Enter(State newState, Pictures pictures);
	void Show(Pictures pictures);
	bool Showing(Pictures pictures) const;
	void StandFrame();
	void WalkFrame();
	void GrazeFrame();
	void LookBackFrame();
	void StunnedFrame();
	void TryToWalk();

	CSprite* sprites[PICTURES][2]; // by facing: right, left
	CSound* baas[3];
};
