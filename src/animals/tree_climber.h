// The base of animals that sit in the crown of a tree until the ball shakes them out.
#pragma once

#include "animals/animal.h"

// Walks through the outlines of trees, which is how it reaches a trunk. Left alone on the ground
// it walks to a free tree and climbs it; shaken out, it falls and has to walk once before it can
// climb again. All this works for any species whose table has actions of the kinds fall, land and
// climb; such a species gives the numbers below, and PlaceAt or PlaceInCrown. It has an outline
// only on the ground, so the ball reaches it nowhere else.
class CElementTreeClimber : public CElementAnimal
{
public:
	CElementTreeClimber();

	void Update() override;
	bool OnBallHit() override;
	void OnLanded() override;
	void RebuildBody() override; // none off the ground
	virtual void ShakeOut();     // its tree was hit

	float toleranceX = 8, toleranceY = 8;          // pixels to the foot of a tree that it climbs
	int crownOffsetLeft = 0, crownOffsetRight = 0; // of its x in the crown, by facing
	int crownDrop   = 10; // pixels that it stands below the foot of the trunk, and above it in z
	int thudFromEnd = 3;  // pictures before the end of the landing
	CSound* thudSound;    // owned

protected:
	void PlaceInCrown(CTree* tree, bool left); // in place of PlaceAt
	bool OffTheGround() const { return currentTree || z > 0; }
	void TakeTree(CTree* tree); // from now on it is this animal's, and drawn before the trunk
	void PlayThud(bool landing);

private:
	void LookForTree();
};
