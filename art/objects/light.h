// Light worked out pixel by pixel.
#pragma once

#include "art/core/image.h"

#include <functional>

// Gives a colour and returns an alpha, which may lie outside 0..1, for a place in pixels.
using LightAt = std::function<float(float x, float y, Colour& c)>;

// A picture of w by h pixels, of which every sample is asked for.
Image PaintLight(int w, int h, const LightAt& at);
// Adds a soft round glow to a picture; radius in pixels, strength 0..1 in its middle.
void AddHalo(Image& target, float x, float y, float radius, Colour c, float strength);
