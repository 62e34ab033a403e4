// Butterflies: a slim body between two pairs of flat, patterned wings.
#pragma once

#include "art/animals/pose.h"
#include "art/core/model.h"

struct Butterfly {
	uint32_t wing = 0xf08a2a, inner = 0xf8b850; // the field, and its part near the body
	uint32_t edge = 0x2a2028, dot = 0xfff2d8;   // the rim, and the dots on it
	uint32_t spot = 0xfff2d8;                   // the large spot of each wing
	uint32_t body = 0x3a2c34;
	float rim = .66f, spotSize = .22f; // where the rim begins, half size of the spot; in half wings
};

void AddButterfly(Model& model, const Butterfly& butterfly, const Pose& pose);
