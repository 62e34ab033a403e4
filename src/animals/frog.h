// Frog: breathes, croaks, and hops along.
#pragma once

#include "animals/hoppers.h"

// Croaks when the ball is too small for it, and hops away.
class CFrog : public CHopper
{
public:
	CFrog(int centreX, int centreY, bool left);

	bool OnBallHit() override;
	int OnBump() override;
	const char* ClassName() const override { return "CFrog"; }

private:
	void Croak(); // unless it does already

	CSound* ribbit; // owned as all sounds of an animal
};
