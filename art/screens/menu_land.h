// The land of the main menu's picture.
#pragma once

#include "art/core/image.h"

// All of it, see-through where the sky is: meadow, trees, board posts, beach, shallows and whatever
// stands still on them. As large as the screen.
Image MenuLand();

// Fronds of the palm that sway; the land is painted without them.
Image MenuPalmLeaves(int left, int top, int width, int height);
