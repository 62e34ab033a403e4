// Chipmunk: runs in all directions, looks about, and squeaks when bumped.
#pragma once

#include "animals/animal.h"
#include "animals/wait.h"

// A small machine of its own. Its outline is the same whichever way it faces.
class CChipmunk : public CElementAnimal
{
public:
	CChipmunk(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	int OnBump() override;
	const char* ClassName() const override { return "CChipmunk"; }

	enum State { STAND, BUMPED, LOOK, LOOK_BACK, RUN };
	enum Pictures { STANDING, BEING_HIT, LOOKING, RUNNING_UP, RUNNING_DOWN, PICTURES };

	State state = STAND;
	Wait wait; // of the state

private:
	void Enter(State newState, Pictures pictures);
	void StandFrame();
	void LookFrame();
	void StartRun();
	void RunFrame();

	CSound* squeak;                // owned as all sounds of an animal
	CSprite* sprites[PICTURES][2]; // by facing: right, left
};
