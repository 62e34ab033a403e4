// What swims between the islands. The water line lies a few pixels above the lower edge.
#pragma once

#include "art/core/image.h"

Image DrawShip(float scale);
Image DrawWhale(float scale);
Image DrawIceberg(float scale, int seed);
// A rock in the shallows: with a lighthouse, else with a palm.
Image DrawRocklet(float scale, bool lighthouse);
Image DrawCompass(float scale);
