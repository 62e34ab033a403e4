// The islands of the campaign as the map paints them: which levels stand on which, in what country.
#pragma once

#include "art/core/outlines.h"

#include <vector>

// The kinds of country. Each has its own ground, growth and shore.
enum class Land {
	Meadow,
	Bamboo,
	Cove,
	Farm,
	Woods,
	Snow,
	HighWoods,
	Dry,
	Sand,
	Lakes,
	Heights,
	Savanna,
	Salt,
	Jungle,
	Polar,
	Dunes,
	Dream,
	Count
};

// A pond or lake, in the pixels of a close-up.
struct Pond {
	float x, y, rx, ry;
};

struct Isle {
	int first, last; // levels, both included
	int seed;        // of its coast
};

// One group of islands as the player sees them together.
struct Archipelago {
	std::vector<Isle> isles;
	std::vector<Pond> ponds;
};

// The way through a run of levels. Side ways are overgrown.
struct Way {
	std::vector<int> levels;
	bool side;
};

// Rows of the western and the eastern close-up above this one are a picture that both share.
constexpr int MAP_SEAM = 194;

const Archipelago& WesternIsles();
const Archipelago& SouthernIsles();
const Archipelago& EasternIsles();

// The middle of a level's dot, in pixels of the close-up. Levels run from 1.
At DotMiddle(int level);
Land LandOfLevel(int level);
// Main way and side ways of one isle.
std::vector<Way> WaysOn(const Isle& isle);

// Where an archipelago lies in a picture, and the rectangle of it that its land keeps within.
struct MapView {
	float scale = 1, left = 0, top = 0;
	float west = 4, north = 4, east = 796, south = 520; // pixels of the picture

	At ToPicture(At world) const { return {world.x * scale + left, world.y * scale + top}; }
	At ToWorld(float x, float y) const { return {(x - left) / scale, (y - top) / scale}; }
};
// The close-up of a group: pixels of the isles are those of the picture.
MapView CloseUpView(const Archipelago& group);

struct Placed {
	const Archipelago* group;
	MapView view;
};
