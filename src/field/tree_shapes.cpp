// What the pieces of each kind of tree are, and where they belong.
#include "field/tree_shapes.h"

#include "field/tree.h"

#include <algorithm>
#include <cstring>

// clang-format off
static const TrunkShape PALMS[] = {
	// picture          shift      outline                                    trunk's end
	{"trunkpalmA.png",  16, 188, {{2, 188}, {16, 189}, {30, 188}, {16, 187}},   48, 6, 0},
	{"trunkpalmB.png",  68, 175, {{52, 175}, {67, 176}, {83, 175}, {68, 174}},  14, 6, 0},
	{"trunkpalmC.png",  26, 182, {{15, 182}, {26, 183}, {37, 182}, {26, 181}},  11, 6, 0},
	{"trunkpalmD.png",  16, 164, {{2, 164}, {17, 165}, {32, 164}, {17, 163}},   76, 6, 0},
	{"trunkpalmE.png",  17, 155, {{7, 155}, {17, 156}, {28, 155}, {18, 154}},   37, 5, 0},
	{"trunkpalmF.png",  33, 147, {{20, 147}, {30, 148}, {41, 147}, {31, 146}},  16, 5, 0},
	{"trunkpalmG.png",  15, 125, {{8, 125}, {16, 126}, {24, 124}, {16, 125}},   12, 5, 0},
};
static const TrunkShape PINE_BIG =
	{"treetrunkpinebig.png",      10, 46, {{1, 46}, {10, 47}, {18, 46}, {9, 45}}, 10, 0, 0};
static const TrunkShape PINE_REGULAR =
	{"treetrunkpine.png",          8, 35, {{1, 35}, {7, 36}, {14, 35}, {8, 34}},   8, 0, 0};
static const TrunkShape PINE_SMALL =
	{"treetrunkpinesmall.png",     6, 26, {{1, 24}, {5, 25}, {10, 24}, {6, 23}},   6, 0, 0};
static const TrunkShape PINE_SMALLEST =
	{"treetrunkpinesmallest.png",  5, 21, {{1, 20}, {5, 21}, {9, 20}, {5, 19}},    5, 0, 0};

static const TrunkShape BROAD_BIG[] = {
	// picture             shift     outline                                 crown      index
	{"treetrunkbigA.png",   52, 95, {{38, 95}, {42, 96}, {65, 95}, {42, 94}}, 42, 10, 3},
	{"treetrunkbigB.png",   66, 95, {{52, 93}, {67, 94}, {79, 93}, {67, 92}}, 66, 8,  0},
	{"treetrunkbigC.png",   70, 97, {{56, 97}, {70, 98}, {84, 97}, {70, 96}}, 70, 10, 1},
};
static const TrunkShape BROAD_THIN[] = {
	{"treetrunkthinA.png",  13, 80, {{9, 79}, {14, 80}, {18, 79}, {13, 78}},  9, 14,  0},
	{"treetrunkthinB.png",  13, 80, {{8, 81}, {13, 82}, {18, 81}, {13, 80}},  9, 14,  0},
};
static const TrunkShape BROAD_SMALL[] = {
	{"treetrunksmallA.png", 43, 68, {{36, 68}, {45, 69}, {55, 68}, {44, 67}}, 44, 8,  0},
	{"treetrunksmallB.png", 45, 69, {{37, 70}, {47, 71}, {57, 70}, {47, 69}}, 41, 8,  0},
};

static const FruitZone ZONE_BROAD_BIG_A   = {-12, 40,   8, 25, -85, 65, -30, 10, 80};
static const FruitZone ZONE_BROAD_BIG     = {-12, 40,   8, 25, -75, 75, -20, 20, 80};
static const FruitZone ZONE_BROAD_SMALL_A = { -7, 25,   4, 14, -50, 50, -20, 20, 80};
static const FruitZone ZONE_BROAD_SMALL   = { -7, 25,   4, 14, -55, 45, -25, 15, 80};
static const FruitZone ZONE_BROAD_THIN    = { -2, 30,  10, 20, -45, 35, -25, 15, 50};
static const FruitZone ZONE_PINE_BIG      = {-32, 20, -12,  5, -43, 37, -23, 17, 70};
static const FruitZone ZONE_PINE_REGULAR  = {-32, 20, -12,  5, -37, 27, -25, 15, 70};
static const FruitZone ZONE_PINE_SMALL    = {-28, 15, -12,  5, -29, 19, -25, 15, 60};
static const FruitZone ZONE_PINE_SMALLEST = {-23, 10, -17,  0, -24, 14, -20, 10, 50};

static const PalmFruitRange PALM_FRUIT[] = {
	{32, 52}, {-2, 18}, {-5, 15}, {60, 80}, {24, 40}, {3, 17}, {-1, 13},
};

// The first is the place of the crown sprite, in front of all others. Of the others the later ones
// lie over the earlier ones, so the lower clumps come first.
static const OutlinePoint CLUMPS_BIG_A[] = {
	{-6, 16}, {-34, 31}, {6, 38}, {34, 34}, {59, 18}, {-59, 12}, {30, 12}, {-36, 15},
	{52, -8}, {-49, -12}, {8, -4}, {-20, -8}, {36, -25}, {-36, -29}, {17, -36}, {-9, -33},
};
static const OutlinePoint CLUMPS_BIG_B[] = {
	{6, 17}, {-36, 32}, {32, 36}, {-4, 37}, {60, 18}, {-60, 19}, {36, 13}, {-30, 15},
	{52, -7}, {-55, -5}, {20, -9}, {-20, -6}, {34, -28}, {-38, -24}, {10, -36}, {-14, -33},
};
static const OutlinePoint CLUMPS_BIG_C[] = {
	{-8, 15}, {-42, 29}, {40, 32}, {0, 36}, {63, 14}, {-63, 10}, {34, 10}, {-36, 13},
	{54, -11}, {-52, -13}, {22, -8}, {-22, -11}, {40, -30}, {-36, -31}, {14, -27}, {-12, -36},
};
static const OutlinePoint CLUMPS_SMALL_A[] = {
	{-4, 13}, {21, 24}, {-22, 22}, {36, 9}, {-36, 6}, {15, 3}, {-18, 4}, {27, -13},
	{-25, -15}, {2, -21},
};
static const OutlinePoint CLUMPS_SMALL_B[] = {
	{3, 13}, {-24, 22}, {20, 25}, {-37, 5}, {36, 9}, {-14, 3}, {18, 4}, {-26, -12},
	{24, -16}, {-2, -22},
};
static const OutlinePoint CLUMPS_THIN_A[] = {
	{-3, 13}, {12, 22}, {-13, 21}, {19, 5}, {-19, 3}, {11, -13}, {-12, -15}, {1, -25},
};
static const OutlinePoint CLUMPS_THIN_B[] = {
	{1, 14}, {-11, 22}, {13, 20}, {-19, 6}, {19, 3}, {-12, -12}, {11, -16}, {-1, -26},
};
static const ClumpPlaces PLACES_BIG[]   = {{16, CLUMPS_BIG_A}, {16, CLUMPS_BIG_B}, {16, CLUMPS_BIG_C}};
static const ClumpPlaces PLACES_SMALL[] = {{10, CLUMPS_SMALL_A}, {10, CLUMPS_SMALL_B}};
static const ClumpPlaces PLACES_THIN[]  = {{8, CLUMPS_THIN_A}, {8, CLUMPS_THIN_B}};

static const PineShape TIERS_BIG      = {"pinetreebig",      {-95, -73, -53, -32, -11}};
static const PineShape TIERS_REGULAR  = {"pinetreeregular",  {-78, -61, -44, -28, -11}};
static const PineShape TIERS_SMALL    = {"pinetreesmall",    {-65, -51, -38, -25, -11}};
static const PineShape TIERS_SMALLEST = {"pinetreesmallest", {-52, -41, -30, -20, -10}};

static const char* const BIG_FRONDS   = "leafpalmbig";
static const char* const SMALL_FRONDS = "leafpalmsmall";

static const PalmShape PALM_SHAPES[] = {
	{6, BIG_FRONDS,   "ABCDEF"}, {8, BIG_FRONDS,   "ABCDEF"}, {8, BIG_FRONDS,   "GHIJK"},
	{8, BIG_FRONDS,   "GHIJKL"}, {6, SMALL_FRONDS, "GHIJKL"}, {5, SMALL_FRONDS, "ABCDEF"},
	{5, SMALL_FRONDS, "GHIJKA"},
};
static const OutlinePoint COCONUTS[] = {
	{-7, 6}, {6, 6}, {0, 9}, {-10, 12}, {10, 12}, {-4, 15}, {5, 16}, {0, 3},
};

// By letter, A to L.
static const OutlinePoint ROOTS_BIG[] = {
	{37, 41}, {9, 40}, {71, 18}, {2, 17}, {65, 7}, {2, 7},
	{17, 45}, {4, 26}, {55, 27}, {2, 12}, {76, 12}, {2, 4},
};
static const OutlinePoint ROOTS_SMALL[] = {
	{30, 33}, {8, 32}, {57, 15}, {2, 14}, {52, 6}, {2, 5},
	{14, 36}, {4, 21}, {43, 22}, {2, 10}, {59, 9}, {2, 4},
};
// clang-format on

static const int PALM_VARIANTS = 7;
static const int LETTERS       = 12;

int TrunkVariants(int kind, int size)
{
	if (kind == TREE_PALM)
		return PALM_VARIANTS;
	return kind != TREE_PINE && size == 2 ? 3 : 2;
}

const TrunkShape& TrunkShapeOf(int kind, int size, int variant)
{
	int i = std::clamp(variant, 0, TrunkVariants(kind, size) - 1);
	if (kind == TREE_PALM)
		return PALMS[i];
	if (kind == TREE_PINE)
		return size == 2   ? PINE_BIG
		       : size == 3 ? PINE_REGULAR
		       : size == 0 ? PINE_SMALL
		                   : PINE_SMALLEST;
	return size == 2 ? BROAD_BIG[i] : size == 1 ? BROAD_THIN[i] : BROAD_SMALL[i];
}

const FruitZone& FruitZoneOf(int kind, int size, int variant)
{
	if (kind == TREE_PINE)
		return size == 2   ? ZONE_PINE_BIG
		       : size == 3 ? ZONE_PINE_REGULAR
		       : size == 0 ? ZONE_PINE_SMALL
		                   : ZONE_PINE_SMALLEST;
	if (size == 2)
		return variant == 0 ? ZONE_BROAD_BIG_A : ZONE_BROAD_BIG;
	if (size == 0)
		return variant == 0 ? ZONE_BROAD_SMALL_A : ZONE_BROAD_SMALL;
	return ZONE_BROAD_THIN;
}

const PalmFruitRange& PalmFruitRangeOf(int variant)
{
	return PALM_FRUIT[std::clamp(variant, 0, PALM_VARIANTS - 1)];
}

const ClumpPlaces& ClumpPlacesOf(int size, int variant)
{
	int i = std::clamp(variant, 0, TrunkVariants(TREE_GREEN, size) - 1);
	return size == 2 ? PLACES_BIG[i] : size == 1 ? PLACES_THIN[i] : PLACES_SMALL[i];
}

const PineShape& PineShapeOf(int size)
{
	return size == 2   ? TIERS_BIG
	       : size == 3 ? TIERS_REGULAR
	       : size == 0 ? TIERS_SMALL
	                   : TIERS_SMALLEST;
}

const PalmShape& PalmShapeOf(int variant)
{
	return PALM_SHAPES[std::clamp(variant, 0, PALM_VARIANTS - 1)];
}

OutlinePoint CoconutPlace(int i)
{
	return COCONUTS[i % std::size(COCONUTS)];
}

OutlinePoint FrondRoot(const char* stem, char letter)
{
	int i = std::clamp(letter - 'A', 0, LETTERS - 1);
	return std::strcmp(stem, BIG_FRONDS) == 0 ? ROOTS_BIG[i] : ROOTS_SMALL[i];
}
