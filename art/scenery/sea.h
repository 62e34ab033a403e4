// Rows of water: a strip that stands still and a crest that rolls before it.
#pragma once

#include "art/core/image.h"

struct WaterLook {
	Colour light, deep;
	float amplitude, period, phase; // of the crest, pixels and radians
};

const int CREST_HEIGHT = 14; // its lower edge lies on the upper edge of its strip

Image WaterCrest(const WaterLook& look, int width);
Image WaterBase(const WaterLook& look, int width, int height); // opaque
