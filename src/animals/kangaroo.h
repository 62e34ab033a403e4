// Kangaroo: hops about with a joey in its pouch.
#pragma once

#include "animals/animal.h"

class CSprite;

// Starts with its joey in the pouch. A touch that is refused lets the joey out, where there is room
// before it; from then on the joey is an animal of its own that has to be rescued too.
class CKangaroo : public CElementAnimal
{
public:
	CKangaroo(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CKangaroo"; }

	bool hasJoey  = true;
	int joeyTimer = -1; // frames until it shows, -1: it is not coming

private:
	void ReleaseJoey();
	bool ShowJoey(); // a frame of its emerging; true when it has come out

	CSprite* emerging[2]; // right, left; owned as all sprites of an animal
};
