// What the game relies on in the pictures of four-footed animals.
#include "art/families.h"
#include "tests/art/drawn.h"

#include <gtest/gtest.h>

namespace
{
// Standing, blinking and bubble views of every four-footed species, drawn once for all tests.
const Pictures& Drawn()
{
	static const Pictures pictures = DrawFamilies({AddCow, AddPigs, AddBears, AddHorses, AddGoats,
	                                               AddDogs, AddCats, AddGiants, AddDeer, AddRovers},
	                                              {" stand", " bubble"});
	return pictures;
}

const Image& Named(const std::string& name)
{
	return PictureNamed(Drawn(), name);
}

struct Beast {
	const char* prefix;
	int radius, stage; // of the body; of the smallest bubble that carries it
	int width = 0;     // pixels, where its neighbours ask for another than twice the radius
};

// clang-format off
const Beast BEASTS[] = {
	{"pig", 23, 12},      {"cow", 35, 15},       {"horse", 30, 14},    {"dog", 15, 9},
	{"coyote", 25, 10, 56}, {"moose", 33, 16},     {"bear", 25, 15},     {"wolf", 30, 11},
	{"polarbear", 31, 16},{"hippo", 35, 18},     {"rhino", 38, 18},    {"deer", 25, 10},
	{"cat", 15, 7},       {"donkey", 26, 11},    {"camel", 32, 16},    {"goat", 24, 9},
	{"skunk", 21, 8},     {"fox", 19, 10},       {"warthog", 29, 12},  {"mouse", 12, 4},
	{"raccoon", 21, 10},  {"zebra", 30, 14},     {"bighorn", 26, 11},  {"hyena", 22, 11, 50},
	{"tiger", 38, 15},    {"snowtiger", 38, 15}, {"lion", 38, 15},     {"panda", 23, 12},
	{"elephant", 39, 18, 89}, {"unicorn", 35, 16},
};
// clang-format on
} // namespace

// The game measures a species by its standing picture.
TEST(Beasts, StandAboutTwiceTheBodyRadiusWide)
{
	for (const Beast& beast : BEASTS)
		for (const char* side : {"left.png", "right.png"}) {
			Bounds seen = OpaqueBounds(Named(std::string(beast.prefix) + "stand" + side), .6f);
			int width   = beast.width ? beast.width : 2 * beast.radius;
			EXPECT_NEAR(seen.Width(), width, 6) << beast.prefix << side;
		}
}

TEST(Beasts, FitIntoTheSmallestBubbleThatCarriesThem)
{
	for (const Beast& beast : BEASTS)
		for (const char* side : {"left.png", "right.png"}) {
			const Image& image = Named(std::string(beast.prefix) + "bubble" + side);
			int inside         = 28 + 4 * beast.stage - 8;
			EXPECT_LE(std::max(image.width, image.height), inside) << beast.prefix << side;
		}
}

// A blink is drawn over the standing picture's place.
TEST(Beasts, BlinksDifferFromOpenEyesOnlyInTheFace)
{
	for (const auto& [name, shut] : Drawn()) {
		size_t blink = name.find("blink");
		if (blink == std::string::npos)
			continue;
		const Image& open = Named(name.substr(0, blink) + ".png");
		ASSERT_EQ(open.width, shut.width) << name;
		ASSERT_EQ(open.height, shut.height) << name;
		int changed = 0;
		for (int y = 0; y < open.height; y++)
			for (int x = 0; x < open.width; x++)
				changed += std::fabs(open.At(x, y)[1] - shut.At(x, y)[1]) > .05f;
		EXPECT_GT(changed, 8) << name;
		EXPECT_LT(changed, open.width * open.height / 8) << name;
	}
}

TEST(Beasts, AreNotCutByTheirCanvas)
{
	for (const auto& [name, image] : Drawn())
		for (int y = 0; y < image.height; y++)
			for (int x = 0; x < image.width; x++)
				if (x == 0 || y == 0 || x == image.width - 1 || y == image.height - 1) {
					EXPECT_LT(image.At(x, y)[3], .6f) << name;
				}
}
