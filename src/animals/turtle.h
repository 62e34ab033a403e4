// Turtle: walks slowly, and draws itself in when the ball is too small.
#pragma once

#include "animals/animal.h"
#include "animals/wait.h"

// A small machine of its own. In its shell it stays until it dares to come out again. Its outline
// is the same whichever way it faces.
class CTurtle : public CElementAnimal
{
public:
	CTurtle(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	int OnBump() override;
	const char* ClassName() const override { return "CTurtle"; }

	enum State { STAND, SHELL, EMERGE, WALK = 4 };
	enum Pictures { STANDING, HIDING, EMERGING, WALKING, PICTURES };

	State state = STAND;
	Wait wait; // of the state

private:
	void Enter(State newState, Pictures pictures);
	void StandFrame();
	void WalkFrame();

	CSound* appear;                // owned as all sounds of an animal
	CSprite* sprites[PICTURES][2]; // by facing: right, left
};
