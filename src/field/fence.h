// Fence sections and the posts between them.
#pragma once

#include "field/breakable.h"

class CFencePost;
class CSound;

enum FenceDirection { FENCE_RIGHT = 0, FENCE_LEFT = 1 };

// One run of rails between two posts; takes damage as a crate does.
class CFence : public CElementBreakable
{
public:
	// Starts at a post and goes left or right. Style 0 level, 1 falling to the right, 2 rising to
	// the right. makeEndPost makes a new post at the far end.
	CFence(CFencePost* start, int direction, int newStyle, bool makeEndPost);
	~CFence() override;

	void Place() override {}
	void Update() override;
	bool OnBallHit() override;
	void Break(bool byShot, int, int) override;
	void OnBlast(int atX, int radius) override;
	const char* ClassName() const override { return "CFence"; }

	void BreakDown(bool silent);
	Perch PerchPlace() const;
	CFencePost* FarPost(int direction) const; // the next section's start

	static int CountStanding(int offset, bool freeOnly);
	static CFence* NthFree(int n, int offset);
	static std::vector<CFence*> FenceList; // in order of creation

	int hits = 0; // 0 to 3
	int style;
	bool broken              = false;
	CFencePost* leftPost     = nullptr; // not owned
	CFencePost* rightPost    = nullptr; // not owned
	CElementAnimal* occupant = nullptr; // not owned

	// sprites, owned; currentSprite is one of the first three
	CSprite* base;
	CSprite* light;
	CSprite* heavy;
	CSprite* explosion;
	CSound* damageSounds[3];  // owned
	CSound* destroySounds[3]; // owned

private:
	friend void CloseFence(CFence* last, CFencePost* post);
	void LoadSprites();
	void LayRails();
	void TieTo(CFencePost* post, bool left);
	bool IsFree(int offset) const;
	int CentreX() const; // of the picture
};

// Ties the last section of a chain to a post that stands already.
void CloseFence(CFence* last, CFencePost* post);
