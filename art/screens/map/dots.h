// The dots of the map's levels, for the map itself and for its key.
#pragma once

#include "art/core/image.h"

enum class DotKind { Regular, Bonus, Alien, Side, Star };
enum class DotFace { Completed, Incomplete, Locked, Ghosted, Selected };

// 25x25 pixels, stars 29x27; the middle is that of the picture. `lit` is how far the pointer or the
// pulse lights it, 0..1.
Image DrawDot(DotKind kind, DotFace face, float lit);
