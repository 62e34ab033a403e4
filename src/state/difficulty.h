// The arithmetic of difficulty, apart from whose numbers go into it.
#pragma once

#include "field/powerup.h"

// rating 0 to 20000, seconds of the level, breakables standing, lives left.
struct FieldSituation {
	int rating, seconds, standing, lives;
};

const int POWERUP_KINDS = POWERUP_FANS + 1; // kind 0 is none

// How likely each kind is to fall next; at least one weight is above 0.
void PowerupWeights(const FieldSituation& now, int (&weights)[POWERUP_KINDS]);

// One chance in this many frames for what a tree may drop; at least 8.
int SpawnIntervalOf(const FieldSituation& now);
