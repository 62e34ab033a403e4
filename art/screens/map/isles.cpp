// Places of the level dots, and the country of each level.
#include "art/screens/map/isles.h"

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
// As the game places them (level/campaign_map.cpp), by level - 1.
static const At s_dots[] = {
	{153, 427}, {168, 438}, {186, 438}, {201, 429}, {194, 412}, {192, 396}, {180, 384},
	{167, 373}, {163, 357}, {151, 345}, {133, 341}, {114, 343}, {99, 356}, {86, 370},
	{70, 379}, {53, 382}, {36, 379}, {107, 327}, {278, 290}, {297, 291}, {309, 303},
	{327, 304}, {342, 296}, {347, 281}, {353, 266}, {368, 255}, {386, 257}, {404, 254},
	{406, 239}, {392, 230}, {377, 223}, {360, 220}, {343, 220}, {327, 223}, {419, 229},
	{435, 225}, {453, 223}, {473, 227}, {492, 232}, {511, 233}, {620, 345}, {607, 355},
	{589, 360}, {571, 362}, {561, 376}, {568, 392}, {587, 390}, {603, 398}, {614, 414},
	{611, 434}, {595, 448}, {572, 408}, {562, 423}, {543, 427}, {523, 428}, {503, 427},
	{482, 430}, {464, 440}, {451, 455}, {433, 463}, {413, 466}, {120, 290}, {136, 289},
	{152, 294}, {161, 307}, {156, 321}, {145, 334}, {158, 342}, {173, 346}, {189, 348},
	{205, 346}, {219, 338}, {232, 327}, {242, 315}, {136, 348}, {138, 364}, {145, 378},
	{162, 382}, {179, 382}, {196, 384}, {214, 387}, {231, 386}, {247, 383}, {264, 383},
	{278, 390}, {288, 403}, {286, 419}, {274, 431}, {273, 447}, {286, 459}, {612, 388},
	{617, 373}, {612, 356}, {595, 352}, {579, 359}, {565, 369}, {549, 363}, {549, 347},
	{559, 333}, {572, 320}, {570, 304}, {555, 296}, {538, 298}, {522, 294}, {513, 281},
	{515, 265}, {498, 265}, {482, 270}, {477, 284}, {488, 295}, {488, 311}, {473, 319},
	{456, 318}, {440, 324}, {526, 252}, {543, 247}, {560, 250}, {153, 398}, {168, 385},
	{175, 368}, {166, 353}, {149, 346}, {140, 331}, {126, 322}, {109, 318}, {105, 302},
	{119, 290}, {138, 286}, {152, 273}, {167, 263}, {185, 261}, {152, 317}, {171, 311},
	{190, 307}, {205, 295}, {226, 290}, {245, 290}, {265, 292}, {286, 287}, {292, 271},
	{279, 259}, {260, 259}, {245, 253}, {248, 237}, {264, 228}, {284, 227}, {528, 307},
	{512, 311}, {504, 326}, {518, 336}, {535, 343}, {539, 360}, {558, 351}, {578, 352},
	{595, 360}, {604, 374}, {601, 391}, {585, 399}, {567, 396}, {559, 381}, {527, 374},
	{508, 378}, {489, 375}, {470, 370}, {450, 368}, {431, 369}, {413, 374}, {397, 383},
	{385, 395}, {376, 410}, {379, 427}, {392, 439}, {411, 441}, {432, 439}, {452, 438},
	{473, 445}, {494, 447}, {514, 445}, {535, 449}, {553, 457}, {571, 450}, {571, 433},
};

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
	At corner = s_dots[level - 1];
	return {corner.x + DOT_MIDDLE, corner.y + DOT_MIDDLE};
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
