// The striped bumper of the machine and the outline that the ball rebounds from.
#pragma once

#include "art/objects/machine.h"

enum class BumperShape { Normal, Wide, Flat };

// How a bumper looks on its way between two shapes or skins.
struct BumperState {
	BumperShape from = BumperShape::Normal, to = BumperShape::Normal;
	float progress = 0; // 0: `from`, 1: `to`; beyond 1 it overshoots
	float slime    = 0; // 0: bare, 1: sticky all over
};

extern const PartWindow BUMPER_WINDOW;

Image MachineBumper(const BumperState& state, float zoom = 1);

// Points of a bumper's outline, pixels from the anchor and from the line y 514.
struct OutlinePoint {
	float x, y;
};
std::vector<OutlinePoint> BumperOutline(BumperShape shape);
