// What the game relies on in the pictures of animals: sizes, common corners, light and motion.
#include "art/animals/duck.h"
#include "art/animals/limbs.h"
#include "art/animals/monkey.h"
#include "art/animals/sheep.h"
#include "art/families.h"
#include "tests/art/drawn.h"

#include <gtest/gtest.h>

namespace
{
// Every picture of the animals by file name, drawn once for all tests.
const Pictures& Drawn()
{
	static const Pictures pictures =
	    DrawFamilies({AddSheep, AddMonkey, AddDuck, AddDuckling, AddButterflies, AddPortraits});
	return pictures;
}

const Image& Named(const std::string& name)
{
	return PictureNamed(Drawn(), name);
}

std::vector<Image> Frames(const std::string& stem, int first, int last)
{
	std::vector<Image> frames;
	for (int i = first; i <= last; i++)
		frames.push_back(Named(stem + std::to_string(i) + ".png"));
	return frames;
}

// The strongest alpha in the outermost row or column of a picture.
float BorderAlpha(const Image& image)
{
	float strongest = 0;
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++)
			if (x == 0 || y == 0 || x == image.width - 1 || y == image.height - 1)
				strongest = std::max(strongest, image.At(x, y)[3]);
	return strongest;
}

// The mean difference of two pictures of one size, over all channels.
float Difference(const Image& a, const Image& b)
{
	float sum = 0;
	for (size_t i = 0; i < a.data.size() && i < b.data.size(); i++)
		sum += std::fabs(a.data[i] - b.data[i]);
	return sum / a.data.size();
}

// Lowest row of the figure itself; shadows are fainter.
int FootRow(const Image& image)
{
	return OpaqueBounds(image, .6f).bottom;
}

bool StartsWith(const std::string& text, const std::string& start)
{
	return text.rfind(start, 0) == 0;
}

struct Size {
	const char* stem;
	int width, height;
};
} // namespace

// A figure that is cut by its canvas shows a straight edge. Portraits are meant to be cut, and a
// monkey that comes out of a crown is hidden by leaves.
TEST(Animals, NoFigureIsCutByItsCanvas)
{
	for (const auto& [name, image] : Drawn()) {
		if (StartsWith(name, "sidebar") || StartsWith(name, "monkey_popup"))
			continue;
		EXPECT_LT(BorderAlpha(image), .6f) << name;
	}
}

TEST(Animals, MonkeyPicturesFitTheCornersThatTheGameGivesThem)
{
	const Size SIZES[] = {{"monkey_run", 37, 32},   {"monkey_throwfit", 32, 47},
	                      {"monkey_fall", 37, 38},  {"monkey_climb", 38, 44},
	                      {"monkey_popup", 26, 39}, {"monkey_look", 22, 30},
	                      {"monkey_sit", 22, 30}};
	for (const Size& size : SIZES)
		for (const auto& [name, image] : Drawn())
			if (StartsWith(name, size.stem)) {
				EXPECT_EQ(image.width, size.width) << name;
				EXPECT_EQ(image.height, size.height) << name;
			}
}

// The game centres an action on the standing picture: whole pixels ask for widths of one parity,
// feet on one line for a common distance to the lower edge.
TEST(Animals, ActionsStandWhereTheStandingPictureStands)
{
	const struct {
		const char *prefix, *stand;
	} KINDS[] = {{"sheep", "sheepstand"}, {"duckling", "ducklingstand"}, {"duck", "duckstand"}};
	for (auto& kind : KINDS)
		for (const auto& [name, image] : Drawn()) {
			bool inBubble = name.find("captured") != std::string::npos ||
			                name.find("bubble") != std::string::npos;
			bool other = std::string(kind.prefix) == "duck" && StartsWith(name, "duckling");
			if (!StartsWith(name, kind.prefix) || inBubble || other)
				continue;
			bool left          = name.find("left") != std::string::npos;
			const Image& stand = Named(std::string(kind.stand) + (left ? "left.png" : "right.png"));
			EXPECT_EQ((image.width - stand.width) % 2, 0) << name;
			bool leapsOrBends =
			    name.find("quack") != std::string::npos || name.find("graze") != std::string::npos;
			if (!leapsOrBends) {
				EXPECT_NEAR(image.height - FootRow(image), stand.height - FootRow(stand), 2)
				    << name;
			}
		}
}

TEST(Animals, StandingPicturesHaveTheTrueSize)
{
	const Size SIZES[] = {{"sheepstand", 40, 36}, {"duckstand", 31, 29}, {"ducklingstand", 21, 21}};
	for (const Size& size : SIZES)
		for (const char* side : {"left.png", "right.png"}) {
			const Image& image = Named(std::string(size.stem) + side);
			EXPECT_NEAR(image.width, size.width, 3) << size.stem << side;
			EXPECT_NEAR(image.height, size.height, 3) << size.stem << side;
		}
}

TEST(Animals, FacingsAreMirrorImagesInShapeButNotInLight)
{
	for (const char* stem : {"sheepstand", "duckstand", "ducklingstand", "monkey_sit"}) {
		const Image& left = Named(std::string(stem) + "left.png");
		Image mirrored    = Named(std::string(stem) + "right.png");
		ASSERT_EQ(left.width, mirrored.width) << stem;
		int shape = 0, light = 0, inside = 0;
		for (int y = 0; y < left.height; y++)
			for (int x = 0; x < left.width; x++) {
				const float *a = left.At(x, y), *b = mirrored.At(left.width - 1 - x, y);
				shape += (a[3] > .6f) != (b[3] > .6f);
				inside += a[3] > .9f;
				light += a[3] > .9f && b[3] > .9f && std::fabs(a[1] - b[1]) > .06f;
			}
		EXPECT_LT(shape, inside / 20) << stem;
		EXPECT_GT(light, inside / 10) << stem;
	}
}

// A loop pops when its ends differ more than its neighbours do.
TEST(Animals, LoopsCloseWithoutAPop)
{
	const struct {
		const char* stem;
		int first, last;
	} LOOPS[] = {{"sheepwalkleft", 0, 7},       {"sheepgrazeright", 6, 9},
	             {"duckwalkupleft", 0, 7},      {"duckwalkdownright", 0, 7},
	             {"ducklingwalkupright", 0, 7}, {"monkey_runleft", 0, 7},
	             {"monkey_climbcommon", 0, 7},  {"monkey_throwfitright", 1, 14}};
	for (auto& loop : LOOPS) {
		std::vector<Image> frames = Frames(loop.stem, loop.first, loop.last);
		float largest             = 0;
		for (size_t i = 0; i + 1 < frames.size(); i++)
			largest = std::max(largest, Difference(frames[i], frames[i + 1]));
		EXPECT_GT(largest, 0) << loop.stem << " doesn't move";
		EXPECT_LT(Difference(frames.back(), frames.front()), largest * 1.25f) << loop.stem;
	}
}

TEST(Animals, ContentsFitIntoTheSmallestBubbleThatCarriesThem)
{
	const struct {
		const char* name;
		int stage;
	} CONTENTS[] = {{"sheepcapturedA.png", 11},    {"sheepcapturedD.png", 11},
	                {"monkeycapturedleft.png", 9}, {"duckbubbleright.png", 7},
	                {"ducklingbubbleleft.png", 3}, {"butterflyBupleft0.png", 3}};
	for (auto& content : CONTENTS) {
		const Image& image = Named(content.name);
		int inside         = 28 + 4 * content.stage - 10;
		EXPECT_LE(std::max(image.width, image.height), inside) << content.name;
	}
}

TEST(Portraits, LidsLieOnThePortraitAndLeaveTheRestFree)
{
	for (int number : {16, 17, 35, 50}) {
		std::string stem  = "sidebarportrait" + std::to_string(number);
		const Image &open = Named(stem + ".png"), &lids = Named(stem + "eyes.png");
		ASSERT_EQ(open.width, lids.width);
		ASSERT_EQ(open.height, lids.height);
		int covered = 0, astray = 0;
		for (int y = 0; y < lids.height; y++)
			for (int x = 0; x < lids.width; x++) {
				covered += lids.At(x, y)[3] > .5f;
				astray += lids.At(x, y)[3] > .5f && open.At(x, y)[3] < .5f;
			}
		EXPECT_GT(covered, 100) << number;
		EXPECT_LT(covered, 900) << number;
		EXPECT_LE(astray, 2) << number;
	}
}

TEST(Limbs, KneeKeepsBothBonesAsLongAsTheyAre)
{
	Vec3 hip, foot = {1, -6, 0}, knee = KneeOf(hip, foot, 8, {1, 0, 0});
	EXPECT_NEAR(Length(knee - hip), 4, .01f);
	EXPECT_NEAR(Length(foot - knee), 4, .01f);
	EXPECT_GT(knee.x, .5f);
	// Too far away: stretched toward the end, without a bend to speak of.
	Vec3 stretched = KneeOf(hip, {0, -20, 0}, 8, {1, 0, 0});
	EXPECT_NEAR(stretched.y, -4, .02f);
}
