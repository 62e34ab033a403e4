// Horse: grazes, whinnies, and rears when the ball is too small.
#pragma once

#include "animals/animal.h"

// Its hooves are heard when it has risen.
class CHorse : public CElementAnimal
{
public:
	CHorse(int centreX, int centreY, bool left);

	void Update() override;
	const char* ClassName() const override { return "CHorse"; }

private:
	CSound* hooves; // owned as all sounds of an animal
};
