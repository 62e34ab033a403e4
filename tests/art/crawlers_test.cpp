// What the game relies on in the pictures of creepers, seals, robot, alien and saucer.
#include "art/families.h"
#include "art/objects/saucer.h"
#include "tests/art/drawn.h"

#include <gtest/gtest.h>

namespace
{
// All of their pictures, drawn once for all tests.
const Pictures& Drawn()
{
	static const Pictures pictures =
	    DrawFamilies({AddTurtles, AddSnake, AddLizard, AddSeals, AddBot, AddAlien, AddAlienPilot,
	                  AddSaucer, AddSaucerAntenna, AddSaucerFire});
	return pictures;
}

const Image& Named(const std::string& name)
{
	return PictureNamed(Drawn(), name);
}

bool StartsWith(const std::string& text, const char* start)
{
	return text.rfind(start, 0) == 0;
}

// Pixels whose alpha or colour differs plainly.
int DifferingPixels(const Image& a, const Image& b)
{
	int differing = 0;
	for (size_t i = 0; i < a.data.size() && i < b.data.size(); i += 4) {
		float most = 0;
		for (int c = 0; c < 4; c++)
			most = std::max(most, std::fabs(a.data[i + c] - b.data[i + c]));
		differing += most > .12f;
	}
	return differing;
}

float SumOfLight(const Image& image)
{
	float sum = 0;
	for (size_t i = 0; i < image.data.size(); i += 4)
		sum += Luma({image.data[i], image.data[i + 1], image.data[i + 2]});
	return sum;
}

struct Kind {
	const char* prefix;
	int width;          // of the standing figure, twice the radius of its body or nearly
	const char* bubble; // in the ball
	int stage;          // of the smallest ball that carries it
};
const Kind KINDS[] = {
    {"turtle", 24, "turtlecapturedA.png", 5}, {"tortoise", 52, "tortoisebubbleleft.png", 15},
    {"snake", 34, "snakebubbleleft.png", 7},  {"lizard", 48, "lizardbubbleright.png", 10},
    {"seal", 48, "sealbubbleleft.png", 11},   {"walrus", 66, "walrusbubbleright.png", 15},
    {"bot", 42, "botbubbleleft.png", 11},     {"alien", 0, "alienbubble.png", 10}};
} // namespace

TEST(Crawlers, HaveTheirTrueSizeAndFitTheirBubble)
{
	for (const Kind& kind : KINDS) {
		if (kind.width > 0) {
			Bounds seen = OpaqueBounds(Named(std::string(kind.prefix) + "standleft.png"), .6f);
			EXPECT_NEAR(seen.Width(), kind.width, 3) << kind.prefix;
		}
		const Image& inside = Named(kind.bubble);
		EXPECT_LE(std::max(inside.width, inside.height), 28 + 4 * kind.stage - 8) << kind.prefix;
	}
}

TEST(Crawlers, WalksCloseWithoutAPop)
{
	const struct {
		const char* stem;
		int frames;
	} LOOPS[] = {{"turtlewalkleft", 13},      {"tortoisewalkright", 13}, {"lizardwalkupleft", 12},
	             {"lizardwalkdownright", 12}, {"sealmoveleft", 12},      {"walrusmoveright", 12},
	             {"bottrundleleft", 8},       {"alienrunupleft", 9},     {"alienrundownright", 9},
	             {"snakerattleleft", 8},      {"botwriteright", 8},      {"ufoshot", 4}};
	for (auto& loop : LOOPS) {
		auto frame  = [&](int i) { return Named(loop.stem + std::to_string(i) + ".png"); };
		int largest = 0;
		for (int i = 0; i + 1 < loop.frames; i++)
			largest = std::max(largest, DifferingPixels(frame(i), frame(i + 1)));
		EXPECT_GT(largest, 8) << loop.stem << " doesn't move";
		EXPECT_LE(DifferingPixels(frame(loop.frames - 1), frame(0)), largest * 5 / 4) << loop.stem;
	}
}

TEST(Crawlers, AShutShellIsSmallerThanItsTurtle)
{
	for (const char* prefix : {"turtle", "tortoise"}) {
		std::string stem = prefix;
		Bounds open      = OpaqueBounds(Named(stem + "standright.png"), .6f);
		Bounds shut      = OpaqueBounds(Named(stem + "stunnedright8.png"), .6f);
		Bounds peeking   = OpaqueBounds(Named(stem + "stunnedright11.png"), .6f);
		EXPECT_LT(shut.Width(), open.Width() * .85f) << prefix;
		EXPECT_GT(peeking.Width(), shut.Width()) << prefix;
	}
}

// The stars have gone on by one place when the last picture is over.
TEST(Crawlers, TheStarsOfTheStunnedAlienGoRoundWithoutAJump)
{
	auto frame = [](int i) { return Named("alienstunned" + std::to_string(i) + ".png"); };
	EXPECT_LE(DifferingPixels(frame(10), frame(5)), 2 * DifferingPixels(frame(9), frame(10)));
	EXPECT_GT(DifferingPixels(frame(9), frame(10)), 0);
}

TEST(Saucer, PartsHaveTheSizesThatTheirPlacesSay)
{
	const struct {
		const char* stem;
		PartPlace place;
	} PARTS[] = {{"flyingsaucermain", SAUCER_HULL},       {"flyingsaucerbubblerim", SAUCER_RIM},
	             {"flyingsaucerbubble.png", SAUCER_DOME}, {"flyingsaucerlights", SAUCER_LIGHTS},
	             {"flyingsaucerantenna", SAUCER_ANTENNA}, {"alienufo", SAUCER_PILOT}};
	for (auto& part : PARTS) {
		// the game centres every part on the hull
		EXPECT_EQ(2 * part.place.left + part.place.width, SAUCER_HULL.width) << part.stem;
		for (const auto& [name, image] : Drawn())
			if (StartsWith(name, part.stem)) {
				EXPECT_EQ(image.width, part.place.width) << name;
				EXPECT_EQ(image.height, part.place.height) << name;
			}
	}
}

TEST(Saucer, EveryBlowLeavesItsMark)
{
	const Image* before = &Named("flyingsaucermain0.png");
	for (int stage = 1; stage < SAUCER_STAGES; stage++) {
		std::string stem   = "flyingsaucermain" + std::to_string(stage) + "_";
		const Image& after = Named(stem + "3.png");
		EXPECT_GT(DifferingPixels(*before, after), 60) << stem;
		EXPECT_GT(DifferingPixels(Named(stem + "0.png"), after), 60) << stem;
		before = &after;
	}
	EXPECT_LT(SumOfLight(*before), SumOfLight(Named("flyingsaucermain0.png")) * .85f);
}

TEST(Saucer, TheAntennaBrightensUntilItFiresAndCoolsToRest)
{
	EXPECT_GT(SumOfLight(Named("flyingsaucerantennacharge7.png")),
	          SumOfLight(Named("flyingsaucerantennacharge0.png")) * 1.2f);
	EXPECT_GT(SumOfLight(Named("flyingsaucerantennafire0.png")),
	          SumOfLight(Named("flyingsaucerantennacharge7.png")));
	EXPECT_LT(DifferingPixels(Named("flyingsaucerantennafire5.png"),
	                          Named("flyingsaucerantennacharge0.png")),
	          4);
}

// A figure that is cut by its canvas shows a straight edge; the pilot stands behind the rim.
TEST(Saucer, NothingIsCutByItsCanvas)
{
	for (const auto& [name, image] : Drawn()) {
		bool pilot = StartsWith(name, "alienufo");
		for (int x = 0; x < image.width; x++) {
			EXPECT_LT(image.At(x, 0)[3], .6f) << name;
			if (!pilot) {
				EXPECT_LT(image.At(x, image.height - 1)[3], .6f) << name;
			}
		}
		for (int y = 0; y < image.height; y++) {
			EXPECT_LT(image.At(0, y)[3], .6f) << name;
			EXPECT_LT(image.At(image.width - 1, y)[3], .6f) << name;
		}
	}
}
