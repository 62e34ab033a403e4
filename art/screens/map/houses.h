// Where the people of the map live. The foot stands in the middle, 3 px above the lower edge.
#pragma once

#include "art/core/image.h"

Image DrawBarn(float scale);
Image DrawMill(float scale);
// Strips of crops that lie flat; the seed orders them.
Image DrawAcre(float scale, int seed);
Image DrawLodge(float scale);
Image DrawCabin(float scale);
Image DrawHuts(float scale);
