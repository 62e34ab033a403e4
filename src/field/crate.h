// Crates and barrels, alone or in stacks, with what they hold.
#pragma once

#include "field/breakable.h"

class CBobber;
class CSound;

// A small ball breaks it with three hits, a medium one with two, a large one at once; the
// bulldozer goes through. What it holds comes out when it breaks, and what stands on it falls.
class CCrate : public CElementBreakable
{
public:
	// With an anchor, x and y are offsets from its position. newValue -1 asks the game data for a
	// number by skill. An order number above 0 shows a numeral over it.
	CCrate(int newX, int newY, int newLayer, int newContents, int newValue, bool newContainsPowerup,
	       bool newBarrel, bool newAppleCrate, CCrate* anchor, int newOrderNumber);
	~CCrate() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	void Break(bool byShot, int, int) override;
	void OnBlast(int atX, int radius) override;
	const char* ClassName() const override { return "CCrate"; }

	void BreakOpen(bool silent);
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
	int layer;       // 0 on the ground
	int hits    = 0; // 0 to 3
	bool broken = false;
	int layerHeight, depthOffset, explosionOffsetX, explosionOffsetY; // pixels
	int orderNumber;
	CCrate* upper            = nullptr; // stands on this one; not owned
	CElementAnimal* occupant = nullptr; // not owned

	// sprites, owned; currentSprite is one of the first four
	CSprite* base;
	CSprite* light;
	CSprite* heavy;
	CSprite* squash;
	CSprite* explosion;
	CSprite* orderSprite;     // null without a number
	CBobber* orderBobber;     // owned
	CSound* damageSounds[3];  // owned
	CSound* destroySounds[3]; // owned

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
