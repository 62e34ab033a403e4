// Trees, bushes and stones of the map, each about the size of a dot.
#pragma once

#include "art/core/image.h"

enum class Growth {
	Leafy,
	Autumn,
	Blossom,
	Pine,
	SnowPine,
	Palm,
	Bamboo,
	Cactus,
	Acacia,
	Giant,
	Bush,
	Reeds,
	Boulder,
	Spire,
	Crystal,
	Salt,
	Mushroom,
	Count
};

// The foot stands in the middle, 2 px above the lower edge.
Image DrawGrowth(Growth growth, int seed);
