// Mountains, houses and wonders that give the countries of the map their faces.
#pragma once

#include "art/core/image.h"

enum class Mark {
	Peak,
	SnowPeak,
	VioletPeak,
	Mesa,
	Barn,
	Mill,
	Field,
	Lodge,
	Castle,
	Cabin,
	Igloo,
	Huts,
	Temple,
	Pyramid,
	Rainbow,
	Pawn,
	Moon,
	Ship,
	Whale,
	Iceberg,
	Islet,
	Lighthouse,
	Compass
};

// The foot stands in the middle, 3 px above the lower edge. scale 1 is that of a close-up.
Image DrawMark(Mark mark, float scale, int seed);
// Whether it lies flat on the ground, beneath everything that stands.
bool IsFlat(Mark mark);
// Whether it floats: no shadow on land.
bool IsAfloat(Mark mark);
