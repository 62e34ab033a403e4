// Seals: a sleek body that lies on its belly, a raised breast, flippers before and behind.
#pragma once

#include "art/animals/eyes.h"

// Lengths in model units, times `size`.
struct Flipper {
	float size = 1, bulk = 1; // bulk: girth of the body
	float tusks      = 0;     // length in head radii; 0 for none
	float pads       = .42f;  // whisker pads, in head radii
	float headRadius = 6.4f;
	bool creased     = false; // folds round the neck
	bool spots       = false;
	uint32_t coat = 0x8494ac, belly = 0xdfe6ee, fin = 0x66768e, pad = 0xe8ecf2;
	Eye eye;
};

// With a stride it heaves itself along. pose.earSwing is its smile, for it has no ears.
void AddFlipper(Model& model, const Flipper& seal, const View& view, const Pose& pose);
