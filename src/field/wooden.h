// What is made of wood: the hits that crates and fence sections take, and how they fall apart.
#pragma once

#include "field/breakable.h"

// A small ball breaks it with three hits, a medium one with two, a large one at once; the
// bulldozer goes through without being deflected. Owns the sprites and sounds named here.
class CElementWooden : public CElementBreakable
{
public:
	~CElementWooden() override;

	bool OnBallHit() override;
	void Break(bool byShot, int, int) override;
	virtual void BreakDown(bool silent) = 0; // silent: without a score; nothing the second time

	int hits                 = 0; // 0 to HITS_WHEN_BROKEN
	bool broken              = false;
	CElementAnimal* occupant = nullptr; // what perches on it; not owned

	// currentSprite is one of the first three, or one of the class's own
	CSprite* base      = nullptr;
	CSprite* light     = nullptr;
	CSprite* heavy     = nullptr;
	CSprite* explosion = nullptr;

protected:
	void LoadSounds();
	void FallApart(); // what all wood does when it breaks

	CSound* damageSounds[3]  = {};
	CSound* destroySounds[3] = {};
};
