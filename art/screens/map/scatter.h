// Everything that stands on the islands, and what swims between them.
#pragma once

#include "art/core/image.h"
#include "art/screens/map/terrain.h"

// Landmarks where they are told to stand, then trees in groves on free land, off the ways.
// `trees` is how many at most; nothing reaches above row `top`.
void PaintStanding(Image& image, const Terrain& terrain, const std::vector<Placed>& groups,
                   int trees, int top);
