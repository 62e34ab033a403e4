// The four grounds as colours of a place, and the fine strokes that lie on them.
#pragma once

#include "art/core/image.h"

enum class Turf { Grass, Sand, Snow, SnowyGrass };

// Colour of the bare ground at a place of the field, in pixels of the screen (x may go on to the
// right without end). Mid value and low contrast, so that animals stand out.
Colour GroundColour(Turf turf, float x, float y);

// Blades, pebbles, drift lines and sparkle over a painted ground whose first row is field row
// `top`. `margin` rows at the upper edge stay free of strokes.
void StrokeGround(Image& ground, Turf turf, int top, int margin);

// Long blades, drifted sand or snow along a line of `height(x)` pixels: hides a seam.
struct SeamLook {
	Turf turf;
	int fieldTop;    // field row of the picture's first row, for the colour
	float perPixel;  // strokes for each pixel of width
	float low, high; // length of the blades, pixels
	int seed;
};
void StrokeSeam(Image& image, const SeamLook& look, float (*height)(float x, int variant),
                int variant);
