// Wings of birds: folded, spread, or flippers.
#pragma once

#include "art/animals/bird.h"

struct WingPlace {
	Vec3 body;                 // centre of the egg
	Mat3 axes;                 // of the egg
	int wing, tip, bar, trail; // materials
	int side;                  // -1 or 1
};

void AddWing(Model& model, const Bird& bird, const Pose& pose, const WingPlace& place);
