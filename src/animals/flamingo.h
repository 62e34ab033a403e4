// Flamingo: stands on one leg, and changes it now and then.
#pragma once

#include "animals/animal.h"

// Each change of the foot swaps the pictures of standing, looking and being bumped for those of the
// other stance, and afterwards those of the change itself, which then runs backward.
class CFlamingo : public CElementAnimal
{
public:
	CFlamingo(int centreX, int centreY, bool left);

	void Update() override;
	const char* ClassName() const override { return "CFlamingo"; }

	// The pictures of the other stance: standing, looking, looking back, bumped, changing.
	enum Spare { STAND, LOOK, LOOK_BACK, BUMP, CHANGE, PICTURES };

	bool onTwoLegs = false;

private:
	void ChangeStance(); // as the change starts
	void Swap(CSprite*& left, CSprite*& right, Spare spare);

	AnimalAction* change;
	AnimalAction* lastAction = nullptr; // of the frame before
	CSprite* spares[PICTURES][2];       // right, left; owned as all sprites of an animal
};
