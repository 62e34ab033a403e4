// Clouds of the field's skies.
#pragma once

#include "art/core/image.h"

// Heaped over a flat foot and lit from the upper left; fills w x h.
Image LitCloud(int w, int h, int seed);
