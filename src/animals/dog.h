// Dog: sleeps until the ball comes, pants, runs and barks.
#pragma once

#include "animals/animal.h"

// Every dog starts asleep. A plain one wakes by itself after a while, a deep sleeper only when the
// ball touches it, which on a dodgeball level is an upset.
class CDog : public CElementAnimal
{
public:
	CDog(int centreX, int centreY, bool left, bool deepSleep = false);

	void Update() override;
	bool OnBallHit() override;
	const char* ClassName() const override { return "CDog"; }

private:
	void FallAsleep(bool deepSleep);

	AnimalAction* pant;
	AnimalAction* sleep;
	AnimalAction* wake;
	AnimalAction* bark;
	CSound* panting; // owned as all sounds of an animal
};
