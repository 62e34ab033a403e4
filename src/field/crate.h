// Crates and barrels, alone or in stacks, with what they hold.
#pragma once

#include "field/wooden.h"

class CBobber;

// What it holds comes out when it breaks, and what stands on it falls.
class CCrate : public CElementWooden
{
public:
	// With an anchor, x and y are offsets from its position. newValue -1 asks the game data for a
	// number by skill. An order number above 0 shows a numeral over it.
	CCrate(int newX, int newY, int newLayer, int newContents, int newValue, bool newContainsPowerup,
	       bool newBarrel, bool newAppleCrate, CCrate* anchor, int newOrderNumber);
	~CCrate() override;

	void Place() override {}
	void Update() override;
	void OnBlast(int atX, int radius) override;
	const char* ClassName() const override { return "CCrate"; }

	void BreakDown(bool silent) override;
	Perch PerchPlace() const;

	static int CountStanding(int offset, bool freeOnly);
	static CCrate* NthFree(int n, int offset); // null when there are fewer
	static bool AnyAt(int atX, int atY, int rx, int ry);
	static int OccupantDepth(const CElementAnimal* animal); // -1 when it sits on no crate
	static bool AnyHoldsCoinsOrApples();
	static std::vector<CCrate*> CrateList; // in order of creation

	bool containsPowerup, barrel, appleCrate;
	int contents; // point kind or power-up kind; 0 for none
	int value;
	bool falling = false;
	int layer;                                                        // 0 on the ground
	int layerHeight, depthOffset, explosionOffsetX, explosionOffsetY; // pixels
	int orderNumber;
	CCrate* upper = nullptr; // stands on this one; not owned

	// owned, beside what all wood has
	CSprite* squash;
	CSprite* orderSprite; // null without a number
	CBobber* orderBobber; // owned

private:
	friend void StackCrate(CCrate* lower, CCrate* upper);
	void LoadSprites();
	void LoadOrderNumber(int centreX);
	void LayFootprint();
	void Fall();
	void FallOneLayer();
	void SetStackDepth(int depth);
	void SpillContents();
	void PlaceSprites();
	bool IsFree(int offset) const;
	int CentreX() const; // of the picture
	int CentreY() const;
};

// Puts upper on lower: it falls when lower breaks.
void StackCrate(CCrate* lower, CCrate* upper);
