// The sea and the bare land of the map, painted pixel by pixel.
#pragma once

#include "art/core/image.h"
#include "art/screens/map/terrain.h"

// How large the painter's details are: 1 in a close-up, about 0.6 on the overview.
void PaintSea(Image& image, const Terrain& terrain, float scale);
void PaintLand(Image& image, const Terrain& terrain, float scale);
