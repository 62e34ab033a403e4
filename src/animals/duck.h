// Duck: leads her ducklings about.
#pragma once

#include "animals/animal.h"

// Her dependants are her ducklings. Whoever takes her first and then all of them wins the family
// trophy.
class CDuck : public CElementAnimal
{
public:
	CDuck(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override; // quacks in one of two ways
	const char* ClassName() const override { return "CDuck"; }

	bool tookDuckFirst = false; // caught while no duckling was
	bool familyChecked;         // the family trophy is held, or was just won

private:
	void CheckFamily();

	CSound* quacks[2];
};
