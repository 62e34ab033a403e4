// What the game relies on in the pictures of hopping and climbing small animals.
#include "art/animals/hopper.h"
#include "art/families.h"
#include "tests/art/drawn.h"

#include <gtest/gtest.h>

namespace
{
// Single views of all of them and some of their moves, drawn once for all tests.
const Pictures& Drawn()
{
	static const Pictures pictures =
	    DrawFamilies({AddRabbits, AddKangaroos, AddFrog, AddSquirrels, AddKoala},
	                 {" stand", " bubble", "kangajoey emerge", "rabbit hop", "frog hop",
	                  "kangaroo hopdown", "squirrel climbtree", "koala climb"});
	return pictures;
}

const Image& Named(const std::string& name)
{
	return PictureNamed(Drawn(), name);
}

// Rows between the lowest thing drawn, shadows left out, and the picture's lower edge.
int Clearance(const std::string& name)
{
	const Image& image = Named(name);
	return image.height - OpaqueBounds(image, .6f).bottom;
}

struct Species {
	const char* prefix;
	int radius, stage; // of the body; of the smallest bubble that carries it
	int width = 0;     // pixels, where its neighbours ask for another than twice the radius
};

const Species SPECIES[] = {
    {"rabbit", 15, 7},    {"hare", 15, 7},      {"jackrabbit", 15, 8},
    {"kangaroo", 27, 12}, {"kangajoey", 13, 6}, {"frog", 19, 4, 26},
    {"squirrel", 11, 6},  {"chipmunk", 17, 5},  {"koala", 15, 8},
};
const char* const SIDES[] = {"left", "right"};
} // namespace

TEST(Hoppers, StandAboutTwiceTheBodyRadiusWide)
{
	for (const Species& species : SPECIES)
		for (const char* side : SIDES) {
			std::string name = species.prefix + std::string("stand") + side + ".png";
			int width        = species.width ? species.width : 2 * species.radius;
			EXPECT_NEAR(OpaqueBounds(Named(name), .6f).Width(), width, 6) << name;
		}
}

TEST(Hoppers, FitIntoTheSmallestBubbleThatCarriesThem)
{
	for (const Species& species : SPECIES)
		for (const char* side : SIDES) {
			std::string name   = species.prefix + std::string("bubble") + side + ".png";
			const Image& image = Named(name);
			EXPECT_LE(std::max(image.width, image.height), 28 + 4 * species.stage - 8) << name;
		}
}

// The joey on its way out passes behind its mother, cut where she hides it.
TEST(Hoppers, AreNotCutByTheirCanvas)
{
	for (const auto& [name, image] : Drawn()) {
		if (name.find("emerge") != std::string::npos)
			continue;
		float strongest = 0;
		for (int y = 0; y < image.height; y++)
			for (int x = 0; x < image.width; x++)
				if (x == 0 || y == 0 || x == image.width - 1 || y == image.height - 1)
					strongest = std::max(strongest, image.At(x, y)[3]);
		EXPECT_LT(strongest, .6f) << name;
	}
}

// The game moves a hopper on all the time; its feet must not slide while they carry it.
TEST(Hoppers, PlantedFeetGoBackByWhatTheGameMovesThemOn)
{
	const int PLANTED[] = {6, 7, 0};
	for (int i : PLANTED) {
		int next = (i + 1) % HOP_KEYS;
		EXPECT_NEAR(BOUND[i].toeX - BOUND[next].toeX, 4, 1.2f) << "bound " << i;
		EXPECT_NEAR(BOUNCE[i].toeX - BOUNCE[next].toeX, 6, 2.1f) << "bounce " << i;
		EXPECT_EQ(BOUND[i].toeY, 0);
		EXPECT_EQ(BOUNCE[i].toeY, 0);
	}
}

TEST(Hoppers, LeaveTheGroundAndComeDownAgain)
{
	for (const char* hop : {"rabbithopleft", "froghopright", "kangaroohopdownleft"}) {
		std::string stem = hop;
		EXPECT_GT(Clearance(stem + "3.png"), Clearance(stem + "0.png") + 4) << hop;
		EXPECT_NEAR(Clearance(stem + "7.png"), Clearance(stem + "0.png"), 1) << hop;
	}
}

// The game puts the joey's middle 5 pixels below that of the last picture of its emerging.
TEST(Hoppers, JoeyComesToStandWhereItsEmergingEnds)
{
	const int DROP = 5;
	for (const char* side : SIDES) {
		const Image& last  = Named(std::string("kangajoeyemerge") + side + "6.png");
		const Image& stand = Named(std::string("kangajoeystand") + side + ".png");
		int dx             = last.width / 2 - stand.width / 2;
		int dy             = last.height / 2 + DROP - stand.height / 2;
		int wrong          = 0;
		for (int y = 0; y < stand.height; y++)
			for (int x = 0; x < stand.width; x++)
				for (int c = 0; c < 4; c++)
					wrong += std::fabs(stand.At(x, y)[c] - last.At(x + dx, y + dy)[c]) > .02f;
		EXPECT_EQ(wrong, 0) << side;
	}
}

// A climber shows its back: nothing of the eyes' white but at the side it looks to.
TEST(Hoppers, ClimbWithTheirBackToTheViewer)
{
	for (int i = 0; i < 8; i++) {
		const Image& image = Named("koalaclimbleft" + std::to_string(i) + ".png");
		int white          = 0;
		for (int y = 0; y < image.height; y++)
			for (int x = 0; x < image.width; x++)
				white += image.At(x, y)[0] > .97f && image.At(x, y)[1] > .97f;
		EXPECT_LT(white, 4) << i;
	}
}
