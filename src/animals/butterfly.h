// Butterfly: catchable decoration in three colours; nothing waits for it.
#pragma once

#include "animals/animal.h"

// Sits, beats its wings and flutters about. Any ball takes it; its species tells its colour.
class CButterfly : public CElementAnimal
{
public:
	CButterfly(int centreX, int centreY, bool left);

	void Place() override; // over everything while it flutters
	bool OnBallHit() override;
	const char* ClassName() const override { return "CButterfly"; }

	int colour; // 0 A, 1 B, 2 C
};
