// Panda: rolls over on its back when touched, and stays there a while.
#pragma once

#include "animals/animal.h"

// The first touch startles it: it rolls over, which changes its outline, and may lie looking about
// or pedalling before it gets up. While it lies there it is caught like any other, but a ball that
// is too small changes nothing.
class CPanda : public CElementAnimal
{
public:
	CPanda(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	void RebuildBody() override;
	const char* ClassName() const override { return "CPanda"; }

	bool startled = false;

private:
	bool Rolling() const; // in any part of its reaction
};
