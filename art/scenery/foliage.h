// Leaves of broadleaf trees, tiers of pines and fronds of palms, each as one stamp.
#pragma once

#include "art/core/image.h"

const int LEAF_CLUMP_WIDTH = 58, LEAF_CLUMP_HEIGHT = 46;

// A clump of leaves made of several lobes, dark below and bright at the upper left, with a ragged
// edge. Crowns are laid out of 8 to 16 of them.
Image LeafClump(int seed, Colour base);

// One skirt of needles that hangs from the middle of the upper edge; `w` at its foot.
Image PineTier(int w, int h, int seed, Colour base);

// Where a frond grows: from (rootX, rootY) it leaves at `angle` (radians, 0 right, up positive),
// runs `length` pixels and sinks by `sag` pixels at its tip.
struct FrondShape {
	float angle, length, sag, light; // light: 0 shadow, 1 sun
};
struct Frond {
	Image image;
	int rootX, rootY; // pixel of the picture that lies on the palm's top
};
Frond PalmFrond(const FrondShape& shape, float leaflet, int seed);
// The game's fronds by letter, 0 for A to 11 for L.
Frond NamedFrond(bool big, int letter);

// Trunk of the game's palm of this letter, 0 for A to 6 for G; the root is where its crown grows.
Frond NamedPalmTrunk(int letter);

// The shade of a crown on the ground, flatter than a foot shadow: it has to end within the trunk's
// picture. Lay it before the trunk.
void DrawGroundShade(Image& image, float cx, float cy, float rx, float ry);
