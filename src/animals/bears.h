// The species that rear up and growl: bear and polar bear.
#pragma once

#include "animals/animal.h"

// A touch that is refused starts a chain: it rears up, growls, stays up, and comes down. Touched
// again while it stays up, it growls once more; elsewhere in the chain nothing disturbs it.
class CRearingBear : public CElementAnimal
{
public:
	bool OnBallHit() override;
	int OnBump() override;

private:
	// The chain is bumpAction and these, each the follow-up of the one before.
	AnimalAction* Growl() const { return bumpAction->next1; }
	AnimalAction* Reared() const { return Growl()->next1; }
	AnimalAction* Sink() const { return Reared()->next1; }
	bool InChain() const;
};

class CBear : public CRearingBear
{
public:
	CBear(int centreX, int centreY, bool left);
	const char* ClassName() const override { return "CBear"; }
};

class CPolarBear : public CRearingBear
{
public:
	CPolarBear(int centreX, int centreY, bool left);
	const char* ClassName() const override { return "CPolarBear"; }
};
