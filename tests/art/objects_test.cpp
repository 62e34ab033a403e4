// What the game relies on in the pictures of field objects: sizes, places and joints of motion.
#include "art/core/encode.h"
#include "art/families.h"
#include "art/objects/ball.h"
#include "art/objects/bumper.h"
#include "art/objects/crates.h"
#include "art/objects/explosion.h"
#include "art/objects/machine_effects.h"
#include "art/objects/points.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
// All pictures of the groups whose names begin with `prefix`, by file name.
std::map<std::string, Picture> Drawn(void (*family)(Catalogue&), const std::string& prefix)
{
	Catalogue catalogue;
	family(catalogue);
	std::map<std::string, Picture> pictures;
	for (const Group& group : catalogue.groups) {
		if (group.name.rfind(prefix, 0) != 0)
			continue;
		Sink sink;
		group.draw(sink);
		for (const Picture& picture : sink.pictures)
			pictures[picture.name] = picture;
	}
	return pictures;
}

float AlphaAt(const Image& image, float x, float y)
{
	return image.At((int)x, (int)y)[3];
}

// The largest difference of any channel where both pictures lie, b shifted by dx to the right.
float Difference(const Image& a, const Image& b, int dx)
{
	float largest = 0;
	for (int y = 0; y < std::min(a.height, b.height); y++)
		for (int x = 0; x < b.width; x++)
			for (int c = 0; c < 4 && a.Holds(x + dx, y); c++)
				largest = std::max(largest, std::fabs(a.At(x + dx, y)[c] - b.At(x, y)[c]));
	return largest;
}

const BubbleSkin SKINS[] = {BubbleSkin::Normal, BubbleSkin::Bulldozer, BubbleSkin::Gravity};
} // namespace

// The ball rebounds from the outline, so the drawn tube must reach it and not go beyond.
TEST(Bumper, TubeReachesItsOutlineInEveryShape)
{
	for (BumperShape shape : {BumperShape::Normal, BumperShape::Wide, BumperShape::Flat}) {
		BumperState state;
		state.to       = shape;
		state.progress = 1;
		Image image    = MachineBumper(state);
		for (const OutlinePoint& point : BumperOutline(shape)) {
			float x = point.x - BUMPER_WINDOW.left, y = point.y + 514 - BUMPER_WINDOW.top;
			EXPECT_GT(AlphaAt(image, x, y + 2), .9f) << "x offset " << point.x;
			EXPECT_LT(AlphaAt(image, x, y - 4), .1f) << "x offset " << point.x;
		}
	}
}

TEST(Bumper, OutlinesAreSymmetricalAndHighestInTheMiddle)
{
	for (BumperShape shape : {BumperShape::Normal, BumperShape::Wide, BumperShape::Flat}) {
		std::vector<OutlinePoint> points = BumperOutline(shape);
		float crest                      = 100;
		for (const OutlinePoint& point : points)
			crest = std::min(crest, point.y);
		for (size_t i = 0; i < points.size(); i++)
			EXPECT_NEAR(points[i].y, points[points.size() - 1 - i].y, .21f);
		EXPECT_FLOAT_EQ(std::min(points[points.size() / 2].y, points[points.size() / 2 - 1].y),
		                crest);
	}
}

// The width is the ball's radius, so it must not change with the skin.
TEST(Ball, EveryPictureOfAStageHasItsWidth)
{
	for (int stage : {0, 1, 12, 17, 18}) {
		auto pictures = Drawn(AddBall, "ball stage " + std::to_string(stage));
		for (auto& [name, picture] : pictures) {
			bool ownStage = name.find("shadow") == std::string::npos &&
			                (stage != 1 || name.rfind("bubbleP", 0) == 0);
			if (ownStage) {
				EXPECT_EQ(picture.width, 28 + 4 * stage) << name;
			}
		}
	}
}

TEST(Ball, NamesOfTheFirstAndLastStages)
{
	auto first = Drawn(AddBall, "ball stage 0"), last = Drawn(AddBall, "ball stage 18");
	EXPECT_TRUE(first.count("bubbleQ_b01.png") && first.count("bubbleQ_b12.png"));
	EXPECT_TRUE(first.count("bubbleQgrav.png") && first.count("bubbleQshadow.tga"));
	EXPECT_TRUE(last.count("bubbleAAA12.png") && last.count("bubbleAAAbulldozer.png"));
}

// What has been caught is drawn behind the glass.
TEST(Ball, MiddleOfEverySkinIsClear)
{
	for (BubbleSkin skin : SKINS) {
		Image image = Bubble(80, skin);
		for (float angle = 0; angle < 6; angle += .5f)
			EXPECT_LE(AlphaAt(image, 40 + 9 * std::cos(angle), 40 + 9 * std::sin(angle)), .255f);
		EXPECT_GT(AlphaAt(image, 40, 3), .5f); // but the rim is seen
	}
}

TEST(Ball, WobbleClosesWithoutAJump)
{
	Image begin = Bubble(60, BubbleSkin::Normal, 0), end = Bubble(60, BubbleSkin::Normal, 1);
	EXPECT_LT(Difference(begin, end, 0), .01f);
	EXPECT_GT(Difference(begin, Bubble(60, BubbleSkin::Normal, .5f), 0), .02f);
}

// The footprint's corners are fixed: x 4 to 46, and a layer is 26 high.
TEST(Crates, AllStatesStandOnTheSameGround)
{
	for (bool apples : {false, true})
		for (int damage = 0; damage <= 4; damage++) {
			Image image = CrateImage(CrateLook::Light, damage, 1, apples);
			Bounds box  = OpaqueBounds(image, .9f);
			EXPECT_EQ(image.width, 50);
			EXPECT_EQ(image.height, 40);
			EXPECT_LE(box.left, 4);
			EXPECT_GE(box.right, 45);
			EXPECT_NEAR(box.bottom, 38, 1);
			EXPECT_LE(box.top, apples ? 5 : 1);
		}
}

TEST(Crates, DamageAndSquashAreSeen)
{
	for (int damage = 1; damage <= 4; damage++) {
		EXPECT_GT(Difference(CrateImage(CrateLook::Dark, damage),
		                     CrateImage(CrateLook::Dark, damage - 1), 0),
		          .3f);
		EXPECT_GT(Difference(BarrelImage(0, damage), BarrelImage(0, damage - 1), 0), .3f);
	}
	EXPECT_GE(OpaqueBounds(CrateImage(CrateLook::Dark, 0, .74f)).top, 6);
}

TEST(Explosion, FadesAwayAtItsEnd)
{
	for (bool white : {false, true}) {
		float strongest = 0;
		Image last      = Explosion(EXPLOSION_FRAMES - 1, white);
		for (size_t i = 3; i < last.data.size(); i += 4)
			strongest = std::max(strongest, last.data[i]);
		EXPECT_LT(strongest, .35f);
		EXPECT_GT(OpaqueBounds(Explosion(0, white)).Width(), 40);
	}
}

// Flames begin at the nozzle's edge of their picture and never reach the other one.
TEST(Flames, BeginAtTheNozzle)
{
	for (bool fast : {false, true})
		for (int i = 0; i < 10; i++) {
			Image left = Flame(fast, false, 1, i * .1f), right = Flame(fast, true, 1, i * .1f);
			float reached = 0;
			for (int y = 0; y < left.height; y++)
				reached = std::max(reached, AlphaAt(left, 0, y));
			EXPECT_GT(AlphaAt(left, left.width - 1, 16), .9f);
			EXPECT_GT(AlphaAt(right, 0, 16), .9f);
			EXPECT_LT(reached, .75f);
		}
}

// The game goes from the last picture of a drive to the first of its recoil.
TEST(Professor, BrakingBeginsInTheDrivingPose)
{
	auto drive  = Drawn(AddProfessor, "professor goleftfast");
	Image last  = DecodePng(drive["prof_goleftfast11.png"].bytes);
	Image first = DecodePng(drive["prof_goleftfastrecoil0.png"].bytes);
	// their windows begin 20 and 13 pixels right of the anchor
	EXPECT_LT(Difference(first, last, 7), .35f);
	Image rest = DecodePng(drive["prof_goleftfastrecoil11.png"].bytes);
	EXPECT_GT(Difference(first, rest, 0), .5f);
}

TEST(Prizes, InflatingEndsWhereTheFlightBegins)
{
	auto pictures = Drawn(AddPrizes, "prize balloons");
	EXPECT_EQ(pictures["balloons57.png"].bytes, pictures["balloonsB17.png"].bytes);
	EXPECT_NE(pictures["balloonsB17.png"].bytes, pictures["balloonsB23.png"].bytes);
	EXPECT_EQ(pictures.size(), 18u + 23u + 3u);
}

// The game puts the lying egg at (27, 9) or (2, 9) of the laying pictures, which end at frame 9.
TEST(Eggs, RestWhereTheLyingEggIsPut)
{
	auto pictures = Drawn(AddPoints, "points eggs");
	const struct {
		const char* stem;
		int x;
	} sides[] = {{"chickeneggleft", 27}, {"chickeneggright", 2}};
	for (auto& side : sides) {
		Image laid = DecodeTga(pictures[std::string(side.stem) + "9.tga"].bytes);
		Image egg  = DecodeTga(pictures[std::string(side.stem) + "bubble.tga"].bytes);
		Bounds at = OpaqueBounds(laid, .9f), alone = OpaqueBounds(egg, .9f);
		EXPECT_EQ(at.left, alone.left + side.x) << side.stem;
		EXPECT_EQ(at.top, alone.top + 9) << side.stem;
		EXPECT_EQ(at.right, alone.right + side.x) << side.stem;
	}
}
