// What a country is known by. The foot stands in the middle, 3 px above the lower edge.
#pragma once

#include "art/core/image.h"

Image DrawCastle(float scale);
Image DrawTemple(float scale);
Image DrawPyramid(float scale);
Image DrawIgloo(float scale);
Image DrawRainbow(float scale);
Image DrawPawn(float scale, int seed); // white or black
Image DrawMoonGate(float scale);
