// Snake: flicks its tongue; rattles when the ball is too small.
#pragma once

#include "animals/animal.h"

// Rattles in one of two ways, by whether it was looking about when the ball came. The rattle is a
// loop that fades in with the reaction and out after it.
class CSnake : public CElementAnimal
{
public:
	CSnake(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CSnake"; }

private:
	bool Rattling() const { return currentAction == fromRest || currentAction == fromLook; }

	AnimalAction* fromRest;
	AnimalAction* fromLook;
	CSound* rattle; // owned as all sounds of an animal
};
