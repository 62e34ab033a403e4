// Which landmarks stand where.
#pragma once

#include "art/screens/map/isles.h"
#include "art/screens/map/landmarks.h"

struct MarkAt {
	Mark mark;
	float x, y; // foot, in pixels of a close-up
	int seed = 0;
};
// What stands on an archipelago and in its waters, set by hand.
const std::vector<MarkAt>& MarksOf(const Archipelago& group);
// What swims on the overview, in its own pixels.
const std::vector<MarkAt>& MarksOfOverview();
