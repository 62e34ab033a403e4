// The burst of a breaking crate, barrel or fence.
#pragma once

#include "art/core/image.h"

const int EXPLOSION_FRAMES = 21;

// frame 0..20. Of the picture's 96x100 pixels the burst's middle is (48, 62), or (48, 50) for the
// white one of fences, which is laid centred over the rails.
Image Explosion(int frame, bool white);
