// The birds that sit on crates and fences until their perch is hit.
#pragma once

#include "animals/animal.h"

// The ball reaches them only on open ground. Flight, perches and the outline that they have only
// there are the base's; a bird gives its actions and where it sits on a perch.
#define PERCHING_BIRD(className)                                                                   \
	class className : public CElementAnimal                                                        \
	{                                                                                              \
	public:                                                                                        \
		className(int centreX, int centreY, bool left); /* on open ground */                       \
		className(CCrate* crate, bool left);                                                       \
		className(CFence* fence, bool left);                                                       \
		const char* ClassName() const override { return #className; }                              \
                                                                                                   \
	private:                                                                                       \
		void Build();                                                                              \
	}

PERCHING_BIRD(CBlueBird);
PERCHING_BIRD(COwl);
PERCHING_BIRD(CPigeon);
PERCHING_BIRD(CVulture);

#undef PERCHING_BIRD

// Sits on crates only, but lands on a fence as well.
class CSnowyOwl : public CElementAnimal
{
public:
	CSnowyOwl(int centreX, int centreY, bool left); // on open ground
	CSnowyOwl(CCrate* crate, bool left);
	const char* ClassName() const override { return "CSnowyOwl"; }

private:
	void Build();
};

// Has two caws: each frame a coin says which would be heard next.
class CCrow : public CElementAnimal
{
public:
	CCrow(int centreX, int centreY, bool left); // on open ground
	CCrow(CCrate* crate, bool left);
	CCrow(CFence* fence, bool left);
	void Update() override;
	const char* ClassName() const override { return "CCrow"; }

private:
	void Build();

	CSound* caws[2]; // owned as all sounds of an animal
};
