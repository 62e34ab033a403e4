// Fence sections and the posts between them.
#pragma once

#include "field/wooden.h"

class CFencePost;

enum FenceDirection { FENCE_RIGHT = 0, FENCE_LEFT = 1 };

// One run of rails between two posts.
class CFence : public CElementWooden
{
public:
	// Starts at a post and goes left or right. Style 0 level, 1 falling to the right, 2 rising to
	// the right. makeEndPost makes a new post at the far end.
	CFence(CFencePost* start, int direction, int newStyle, bool makeEndPost);
	~CFence() override;

	void Place() override {}
	void Update() override;
	void OnBlast(int atX, int radius) override;
	const char* ClassName() const override { return "CFence"; }

	void BreakDown(bool silent) override;
	Perch PerchPlace() const;
	CFencePost* FarPost(int direction) const; // the next section's start

	static int CountStanding(int offset, bool freeOnly);
	static CFence* NthFree(int n, int offset);
	static std::vector<CFence*> FenceList; // in order of creation

	int style;
	CFencePost* leftPost  = nullptr; // not owned
	CFencePost* rightPost = nullptr; // not owned

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
