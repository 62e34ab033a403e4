// Land grown round the dots: heights, countries and lakes of a whole picture.
#pragma once

#include "art/core/canvas.h"
#include "art/screens/map/isles.h"

#include <cstdint>

// One sample for each pixel. Height 0 is the shore, 1 lies inland, the deep sea is below -1.
struct Terrain {
	int width, height;
	Field level; // height of the land
	Field lake;  // above 0 within a lake, 0.3 and more in its middle
	Field share; // of the second country, 0..0.5
	std::vector<uint8_t> first, second;

	Land FirstLand(int x, int y) const { return (Land)first[(size_t)y * width + x]; }
	Land SecondLand(int x, int y) const { return (Land)second[(size_t)y * width + x]; }
	// The height at a place; outside of the picture that of the nearest edge.
	float LevelAt(float x, float y) const { return level.Clamped((int)x, (int)y); }
	bool IsLand(float x, float y, float inland = 0) const;
};

Terrain Grow(const std::vector<Placed>& groups, int width, int height);
