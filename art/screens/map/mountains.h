// The rendered heights of the map.
#pragma once

#include "art/core/image.h"

enum class MountainKind { Grey, Snowy, Violet };

// Sizes in pixels; the foot is about 0.16 of the width above the lower edge.
Image DrawMountain(MountainKind kind, float width, float height, int seed);
// Flat-topped red rock in layers.
Image DrawMesa(float width, float height, int seed);
