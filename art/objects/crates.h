// Crates and barrels in every state of damage.
#pragma once

#include "art/core/image.h"

enum class CrateLook { Light, Dark };

// damage: 0 whole; 1 a board knocked loose, 2 a board gone; 3 half of the boards gone, 4 a corner
// broken too. squash: height when it lands, 1 at rest.
Image CrateImage(CrateLook look, int damage = 0, float squash = 1, bool apples = false);

// look 0..2: the letters A, B and C.
Image BarrelImage(int look, int damage = 0, float squash = 1);

// A number on a little shield that hovers over its crate. 26x28 pixels.
Image OrderNumber(int number);
