// What the game relies on in the pictures of scenery: feet, edges that meet, widths that cover.
#include "art/core/encode.h"
#include "art/families.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
const int FIELD_WIDTH = 693;

using Pictures = std::map<std::string, Image>;

// The pictures of the groups whose names begin with `prefix`, read back from their files.
Pictures Drawn(void (*family)(Catalogue&), const std::string& prefix)
{
	Catalogue catalogue;
	family(catalogue);
	Pictures pictures;
	for (const Group& group : catalogue.groups) {
		if (group.name.rfind(prefix, 0) != 0)
			continue;
		Sink sink;
		group.draw(sink);
		for (const Picture& picture : sink.pictures) {
			bool jpeg              = picture.name.find(".jpg") != std::string::npos;
			bool tga               = picture.name.find(".tga") != std::string::npos;
			pictures[picture.name] = jpeg  ? DecodeJpeg(picture.bytes)
			                         : tga ? DecodeTga(picture.bytes)
			                               : DecodePng(picture.bytes);
		}
	}
	return pictures;
}

float AlphaAt(const Image& image, int x, int y)
{
	return image.At(x, y)[3];
}

float MeanLuma(const Image& image, int top, int rows)
{
	float sum = 0;
	for (int y = top; y < top + rows; y++)
		for (int x = 0; x < image.width; x++) {
			const float* p = image.At(x, y);
			sum += Luma({p[0], p[1], p[2]});
		}
	return sum / (rows * image.width);
}
} // namespace

// The game lays a tree's outline round a fixed pixel: the wood has to stand there.
TEST(Scenery, TrunksStandOnTheirFootPixel)
{
	const struct {
		const char* name;
		int x, y;
	} FEET[]          = {{"treetrunkbigA.png", 52, 95},   {"treetrunkbigB.png", 66, 95},
	                     {"treetrunkbigC.png", 70, 97},   {"treetrunkthinA.png", 13, 80},
	                     {"treetrunkthinB.png", 13, 80},  {"treetrunksmallA.png", 43, 68},
	                     {"treetrunksmallB.png", 45, 69}, {"treetrunkpinebig.png", 10, 46},
	                     {"treetrunkpine.png", 8, 35},    {"treetrunkpinesmall.png", 6, 25},
	                     {"trunkpalmA.png", 16, 188},     {"trunkpalmB.png", 68, 175},
	                     {"trunkpalmC.png", 26, 182},     {"trunkpalmD.png", 16, 164},
	                     {"trunkpalmE.png", 17, 155},     {"trunkpalmF.png", 33, 147},
	                     {"trunkpalmG.png", 15, 125},     {"treetrunkpinesmallest.png", 5, 20}};
	Pictures pictures = Drawn(AddTrees, "");
	pictures.merge(Drawn(AddPalms, "trunkpalm"));
	for (const auto& foot : FEET) {
		const Image& image = pictures[foot.name];
		ASSERT_TRUE(image.Holds(foot.x, foot.y)) << foot.name;
		EXPECT_GT(AlphaAt(image, foot.x, foot.y - 1), .98f) << foot.name;
		EXPECT_LT(AlphaAt(image, foot.x, image.height - 1), .98f) << foot.name << " is cut off";
	}
}

TEST(Scenery, EveryGroundReachesTheLargestShiftAndJoinsItsTop)
{
	const int LARGEST_SHIFT = 2462;
	for (const char* word : {"grass", "snow"}) { // the others are painted by the same code
		std::string stem  = std::string("background_") + word;
		Pictures pictures = Drawn(AddGrounds, stem);
		Image &top = pictures[stem + "_top.png"], &bottom = pictures[stem + "_bottom.jpg"];
		ASSERT_GE(bottom.width, LARGEST_SHIFT + FIELD_WIDTH) << word;
		ASSERT_EQ(top.width, bottom.width) << word;
		EXPECT_EQ(AlphaAt(top, 100, 0), 0) << word;
		EXPECT_EQ(AlphaAt(top, 100, top.height - 1), 1) << word;
		EXPECT_NEAR(MeanLuma(top, top.height - 2, 2), MeanLuma(bottom, 0, 2), .01f) << word;
	}
}

TEST(Scenery, CrestsCoverTheFieldAtFullSwingAndEndInOpaqueWater)
{
	const struct {
		const char* word;
		int x, swing;
	} BANDS[]         = {{"back", -40, 6}, {"middle", -50, 8}, {"front", -70, 10}};
	Pictures pictures = Drawn(AddSea, "background_waves");
	for (const auto& band : BANDS) {
		const Image& crest = pictures[std::string("background_waves") + band.word + ".png"];
		EXPECT_GE(band.x - band.swing + crest.width, FIELD_WIDTH) << band.word;
		EXPECT_EQ(OpaqueBounds(Cropped(crest, 0, crest.height - 1, crest.width, 1), .99f).Width(),
		          crest.width)
		    << band.word;
		EXPECT_GE(pictures[std::string("background_wavesbase") + band.word + ".png"].width,
		          FIELD_WIDTH);
	}
}

// Stones must reach down to the line that balls bounce off, and none may be cut at the top.
TEST(Scenery, WallsStandAcrossTheLineOfTheirBoundary)
{
	const struct {
		char variant;
		int x, y;
	} POINTS[] = {{'A', 0, 26}, {'A', 185, 24}, {'A', 485, 37}, {'A', 692, 29},
	              {'B', 0, 29}, {'B', 200, 38}, {'B', 500, 24}, {'B', 692, 27}};
	for (const char* word : {"stone", "ice"}) { // sandstone has the courses of stone
		Pictures pictures = Drawn(AddGrounds, std::string("background_fence") + word);
		for (const auto& point : POINTS) {
			Image& wall = pictures[std::string("background_fence") + word + point.variant + ".png"];
			ASSERT_EQ(wall.width, FIELD_WIDTH) << word;
			EXPECT_GT(AlphaAt(wall, point.x, point.y), .98f) << word << point.variant << point.x;
			EXPECT_TRUE(OpaqueBounds(Cropped(wall, 0, 0, wall.width, 1), .9f).Empty()) << word;
		}
	}
}

// A struck cactus sways by some pixels about a foot that stays.
TEST(Scenery, CactusFramesShareOneFootAndAreNotCut)
{
	Pictures pictures = Drawn(AddCacti, "cactus");
	ASSERT_EQ(pictures.size(), 5u * 7 + 3 * 7 + 2 * 11);
	for (const auto& [name, image] : pictures) {
		Bounds solid = OpaqueBounds(image, .95f);
		EXPECT_GE(solid.left, 1) << name;
		EXPECT_GE(solid.top, 1) << name;
		EXPECT_LT(solid.right, image.width - 1) << name;
		EXPECT_LT(solid.bottom, image.height - 1) << name;
		if (name.find("round") == std::string::npos) {
			EXPECT_GT(AlphaAt(image, image.width / 2, image.height - 12), .98f) << name;
		}
	}
}

TEST(Scenery, RainbowGrowsWithEveryFrame)
{
	Pictures pictures = Drawn(AddSkies, "background_rainbow");
	ASSERT_EQ(pictures.size(), 10u);
	float before = 0;
	for (const auto& [name, image] : pictures) {
		float coverage = 0;
		for (size_t i = 3; i < image.data.size(); i += 4)
			coverage += image.data[i];
		EXPECT_GT(coverage, before) << name;
		before = coverage;
	}
}
