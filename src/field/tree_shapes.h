// What the pieces of each kind of tree are, and where they belong.
#pragma once

#include "field/outline.h"

const int TREE_OUTLINE_POINTS = 4;

// A trunk: its picture, how far its foot lies from the picture's upper left corner, the flat
// outline round the foot, and what grows on it.
struct TrunkShape {
	const char* picture;
	int shiftX, shiftY; // pixels from the picture's corner to the place that the level gives
	OutlinePoint outline[TREE_OUTLINE_POINTS]; // relative to the corner
	int crownX, crownY; // broadleaf: middle of the crown; pine, palm: where the trunk ends
	int crownIndex;     // foliage sprite behind which climbers sit
};

// The shape for a kind, size and variant; a variant out of range is held to the last.
const TrunkShape& TrunkShapeOf(int kind, int size, int variant);
int TrunkVariants(int kind, int size); // how many there are

// Where the fruit of a tree appears; pixels from the middle of the trunk's picture. Inside the
// band the trunk and its shade are left out: there it comes from the left or the right side.
struct FruitZone {
	float top, bottom;
	float bandTop, bandBottom;
	float left, right;
	float leftSideEnd, rightSideStart;
	float mostAbove; // height over the place, at most
};
const FruitZone& FruitZoneOf(int kind, int size, int variant); // not for palms

// Range of a palm's fruit, pixels from the left edge of its trunk.
struct PalmFruitRange {
	float from, to;
};
const PalmFruitRange& PalmFruitRangeOf(int variant);

// Middles of the leaf clumps of a broadleaf crown, relative to the middle of the crown.
struct ClumpPlaces {
	int count;
	const OutlinePoint* places;
};
const ClumpPlaces& ClumpPlacesOf(int size, int variant);

// A pine's tiers, from the top one down.
const int PINE_TIERS = 5;
struct PineShape {
	const char* stem;
	int tierY[PINE_TIERS]; // upper edges, relative to the trunk's upper edge
};
const PineShape& PineShapeOf(int size);

// A palm's fronds: the stem of the pictures' names, their letters, and the coconuts' number.
struct PalmShape {
	int coconuts;
	const char* stem;
	const char* fronds;
};
const PalmShape& PalmShapeOf(int variant);
OutlinePoint CoconutPlace(int i);                      // middle, relative to the trunk's end
OutlinePoint FrondRoot(const char* stem, char letter); // pixel of the picture on the trunk's end
