// Places of the level dots, and the country of each level.
#include "art/screens/map/isles.h"

#include "src/level/dot_places.h"

static const int DOT_MIDDLE = 12; // pixels from a dot's upper left corner

namespace
{
struct Country {
	int first, last; // levels
	Land land;
};
struct Branch {
	int from, first, last; // levels
};
} // namespace

// clang-format off
static const Country s_countries[] = {
	{ 1,   12,  Land::Meadow },    { 13,  14,  Land::Snow },    { 15,  16,  Land::Bamboo },
	{ 17,  17,  Land::Cove },      { 18,  18,  Land::Meadow },  { 19,  29,  Land::Farm },
	{ 30,  34,  Land::Snow },      { 35,  40,  Land::Woods },   { 41,  46,  Land::HighWoods },
	{ 47,  51,  Land::Sand },      { 52,  56,  Land::HighWoods }, { 57,  61,  Land::Dry },
	{ 62,  67,  Land::Lakes },     { 68,  74,  Land::Heights }, { 75,  90,  Land::Lakes },
	{ 91,  106, Land::Savanna },   { 107, 114, Land::Salt },    { 115, 117, Land::Savanna },
	{ 118, 123, Land::Jungle },    { 124, 131, Land::Polar },   { 132, 146, Land::Jungle },
	{ 147, 152, Land::Dunes },     { 153, 160, Land::Dream },   { 161, 168, Land::Dunes },
	{ 169, 173, Land::Savanna },   { 174, 182, Land::Dunes },
};

static const Branch s_branches[] = {
	{ 12, 13, 17 }, { 29, 30, 34 }, { 46, 47, 51 }, { 67, 68, 74 },
	{ 106, 107, 114 }, { 123, 124, 131 }, { 152, 153, 160 },
};
// clang-format on

const Archipelago& WesternIsles()
{
	static const Archipelago s_west = {{{1, 18, 14}, {19, 40, 25}, {41, 61, 36}},
	                                   {{130, 424, 26, 17}, {466, 292, 20, 11}}};
	return s_west;
}

const Archipelago& SouthernIsles()
{
	static const Archipelago s_south = {{{62, 90, 14}, {91, 117, 25}},
	                                    {{104, 346, 27, 20},
	                                     {212, 430, 36, 16},
	                                     {332, 424, 20, 22},
	                                     {206, 284, 22, 12},
	                                     {426, 312, 20, 12}}};
	return s_south;
}

const Archipelago& EasternIsles()
{
	static const Archipelago s_east = {{{118, 146, 14}, {147, 182, 25}},
	                                   {{262, 340, 20, 12}, {532, 428, 20, 9}}};
	return s_east;
}

MapView CloseUpView(const Archipelago& group)
{
	MapView view;
	view.north = &group == &SouthernIsles() ? 120 : MAP_SEAM + 2;
	view.south = 536; // its foot lies behind the shelf
	view.west  = -30; // the west may run out of the picture
	return view;
}

At DotMiddle(int level)
{
	const DotPlace& corner = DOT_PLACES[level - 1];
	return {static_cast<float>(corner.x + DOT_MIDDLE), static_cast<float>(corner.y + DOT_MIDDLE)};
}

Land LandOfLevel(int level)
{
	for (const Country& country : s_countries)
		if (level <= country.last)
			return country.land;
	return Land::Dunes;
}

static const Branch* BranchOf(int level)
{
	for (const Branch& branch : s_branches)
		if (level >= branch.first && level <= branch.last)
			return &branch;
	return nullptr;
}

std::vector<Way> WaysOn(const Isle& isle)
{
	std::vector<Way> ways;
	Way main = {{}, false};
	for (int level = isle.first; level <= isle.last; level++)
		if (!BranchOf(level))
			main.levels.push_back(level);
	for (const Branch& branch : s_branches) {
		if (branch.first < isle.first || branch.last > isle.last)
			continue;
		Way way = {{branch.from}, true};
		for (int level = branch.first; level <= branch.last; level++)
			way.levels.push_back(level);
		ways.push_back(way);
	}
	ways.push_back(main); // last, so that it lies on top
	return ways;
}
