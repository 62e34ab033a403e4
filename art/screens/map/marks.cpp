// What stands where on each group of islands: feet in pixels of the close-up.
#include "art/screens/map/marks.h"

// clang-format off
static const std::vector<MarkAt> s_west = {
	// meadows, with the snow hill, the lodge in the bamboo and the castle beside the way
	{ Mark::SnowPeak, 76, 358, 5 }, { Mark::Lodge, 100, 424 },    { Mark::Castle, 56, 440 },
	{ Mark::Field, 238, 410, 1 },   { Mark::Barn, 236, 384 },     { Mark::Mill, 242, 452 },
	{ Mark::Field, 176, 486, 2 },
	// farms, the ice stair, the forest
	{ Mark::Field, 330, 352, 0 },   { Mark::Barn, 290, 346 },     { Mark::Mill, 390, 330 },
	{ Mark::SnowPeak, 286, 270, 9 },{ Mark::Igloo, 322, 250 },    { Mark::Peak, 440, 296, 4 },
	{ Mark::Cabin, 484, 282 },
	// high woods, drier in the south
	{ Mark::Peak, 552, 346, 7 },    { Mark::Peak, 528, 398, 14 }, { Mark::Cabin, 664, 344 },
	{ Mark::Mesa, 668, 424, 3 },    { Mark::Mesa, 500, 490, 4 },
	{ Mark::Ship, 152, 262 },       { Mark::Whale, 316, 462 },    { Mark::Lighthouse, 744, 372 },
};
static const std::vector<MarkAt> s_south = {
	// lakes, and the enchanted heights
	{ Mark::Cabin, 104, 300 },      { Mark::VioletPeak, 246, 304, 6 }, { Mark::VioletPeak, 292, 330, 11 },
	{ Mark::Castle, 294, 370 },     { Mark::Peak, 128, 428, 4 },       { Mark::Cabin, 250, 476 },
	// sunland, and the salt desert
	{ Mark::Mesa, 644, 354, 3 },    { Mark::Huts, 606, 306 },       { Mark::Mesa, 650, 432, 5 },
	{ Mark::Huts, 600, 442 },      
	{ Mark::Ship, 410, 236 },       { Mark::Whale, 452, 502 },         { Mark::Lighthouse, 722, 368 },
	{ Mark::Islet, 44, 232 },       { Mark::Ship, 34, 396 },
};
static const std::vector<MarkAt> s_east = {
	// jungle, and the polar sea
	{ Mark::Temple, 226, 362 },     { Mark::Temple, 128, 446 },   { Mark::Igloo, 92, 310 },
	{ Mark::SnowPeak, 76, 352, 5 }, { Mark::SnowPeak, 168, 262, 8 }, { Mark::Peak, 338, 306, 7 },
	// the far desert, and the dream isles
	{ Mark::Pyramid, 474, 430 },    { Mark::Mesa, 462, 352, 4 },  { Mark::Mesa, 576, 316, 3 },
	{ Mark::Rainbow, 640, 364 },    { Mark::Pawn, 648, 412, 0 },  { Mark::Pawn, 668, 418, 1 },
	{ Mark::Moon, 630, 448 },       { Mark::Mesa, 364, 428, 6 },
	{ Mark::Iceberg, 34, 262, 1 },  { Mark::Iceberg, 36, 404, 2 },{ Mark::Ship, 290, 440 },
	{ Mark::Lighthouse, 430, 262 }, { Mark::Whale, 738, 372 },    { Mark::Islet, 744, 448 },
};
static const std::vector<MarkAt> s_overview = {
	{ Mark::Ship, 246, 196 },       { Mark::Lighthouse, 92, 172 },{ Mark::Islet, 690, 158 },
	{ Mark::Iceberg, 392, 222, 1 }, { Mark::Iceberg, 372, 180, 2 },{ Mark::Whale, 572, 150 },
	{ Mark::Ship, 636, 486 },       { Mark::Islet, 196, 530 },    { Mark::Compass, 730, 540 },
};
// clang-format on

const std::vector<MarkAt>& MarksOf(const Archipelago& group)
{
	if (&group == &WesternIsles())
		return s_west;
	return &group == &SouthernIsles() ? s_south : s_east;
}

const std::vector<MarkAt>& MarksOfOverview()
{
	return s_overview;
}
