// Camel: falls over when bumped and takes its time to get up.
#pragma once

#include "animals/animal.h"

// A touch while it is down does nothing, unless the ball has become big enough.
class CCamel : public CElementAnimal
{
public:
	CCamel(int centreX, int centreY, bool left);

	bool OnBallHit() override;
	const char* ClassName() const override { return "CCamel"; }
};
