// The birds that sit on crates and fences until their perch is hit.
#pragma once

#include "animals/bird_page.h"

// The ball reaches them only on open ground. Flight, perches and the outline that they have only
// there are the base's; a bird is a page of numbers and actions, in the file of its name.
class CPerchingBird : public CElementAnimal
{
public:
	void Update() override;

protected:
	CPerchingBird(const BirdPage& page, int centreX, int centreY, bool left); // on open ground
	CPerchingBird(const BirdPage& page, CCrate* crate, bool left);
	CPerchingBird(const BirdPage& page, CFence* fence, bool left);

private:
	void Build(const BirdPage& page);

	CSound* calls[2] = {nullptr, nullptr}; // owned as all sounds of an animal; of two-voiced birds
};

#define PERCHING_BIRD(className, page)                                                             \
	class className : public CPerchingBird                                                         \
	{                                                                                              \
	public:                                                                                        \
		className(int centreX, int centreY, bool left)                                             \
		    : CPerchingBird(page, centreX, centreY, left)                                          \
		{                                                                                          \
		}                                                                                          \
		className(CCrate* crate, bool left) : CPerchingBird(page, crate, left) {}                  \
		className(CFence* fence, bool left) : CPerchingBird(page, fence, left) {}                  \
		const char* ClassName() const override { return #className; }                              \
	}

PERCHING_BIRD(CBlueBird, BLUEBIRD_PAGE);
PERCHING_BIRD(CCrow, CROW_PAGE);
PERCHING_BIRD(COwl, OWL_PAGE);
PERCHING_BIRD(CPigeon, PIGEON_PAGE);
PERCHING_BIRD(CVulture, VULTURE_PAGE);

#undef PERCHING_BIRD

// Is placed on crates only, but lands on a fence as well.
class CSnowyOwl : public CPerchingBird
{
public:
	CSnowyOwl(int centreX, int centreY, bool left)
	    : CPerchingBird(SNOWY_OWL_PAGE, centreX, centreY, left)
	{
	}
	CSnowyOwl(CCrate* crate, bool left) : CPerchingBird(SNOWY_OWL_PAGE, crate, left) {}
	const char* ClassName() const override { return "CSnowyOwl"; }
};
