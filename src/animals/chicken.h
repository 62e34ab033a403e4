// Chicken: pecks, and lays an egg when the ball is too small.
#pragma once

#include "animals/animal.h"

// Each bump is an egg. Whoever takes her while all her eggs are whole wins a trophy.
class CChicken : public CElementAnimal
{
public:
	CChicken(int centreX, int centreY, bool left);

	void Update() override;
	const char* ClassName() const override { return "CChicken"; }

	bool familyChecked; // the trophy is held, or she has been caught

private:
	void CheckFamily();
};
