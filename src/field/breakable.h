// The base of what takes damage on the field: crates, fence sections, drums.
#pragma once

#include "field/element.h"

class CElementAnimal;
class CSound;

// Adds the reaction to a blast at the ground line and the list of all breakables.
class CElementBreakable : public CElementMove
{
public:
	CElementBreakable();
	~CElementBreakable() override;

	// A blast at x reaches what lies within radius of it.
	virtual void OnBlast(int atX, int radius) = 0;
	static void BlastAll(int atX, int radius);

	static std::vector<CElementBreakable*> BreakableList; // live instances
};

// What a bird can perch on: the place on top of a crate or a fence section.
struct Perch {
	int x = 0; // middle of its top
	int y = 0; // where feet stand, as if at ground level: z higher on the screen
	int z = 0; // height above the ground
};

const int HITS_WHEN_BROKEN = 3;
// Hits of the ball closer together than this are one hit.
const int FRAMES_BETWEEN_HITS = 3;

// Hides the current sprite and plays the next at its place.
void ShowInstead(CSprite*& current, CSprite* next);
void PlayOneOf(CSound* const* sounds, int count);
// The occupant of a perch flies up; on a dodgeball level that is an upset, once for each animal.
void StartleOccupant(CElementAnimal*& occupant);
