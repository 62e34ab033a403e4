// What the game relies on in the pictures of fowl, waders and flightless birds.
#include "art/families.h"
#include "tests/art/drawn.h"

#include <gtest/gtest.h>

namespace
{
// All of their pictures, drawn once for all tests.
const Pictures& Drawn()
{
	static const Pictures pictures =
	    DrawFamilies({AddChicken, AddGeese, AddFlamingo, AddPenguin, AddOstrich});
	return pictures;
}

const Image& Named(const std::string& name)
{
	return PictureNamed(Drawn(), name);
}

// Pixels in which two pictures differ, laid with the middles of their lower edges on each other.
int DifferingPixels(const Image& a, const Image& b)
{
	int left = (a.width - b.width) / 2, top = a.height - b.height, differing = 0;
	for (int y = 0; y < a.height; y++)
		for (int x = 0; x < a.width; x++) {
			float other = b.Holds(x - left, y - top) ? b.At(x - left, y - top)[3] : 0;
			differing += (a.At(x, y)[3] > .6f) != (other > .6f);
		}
	return differing;
}

struct Kind {
	const char* prefix;
	int width, height; // of the standing picture's figure; 0: of no importance
	int stage;         // of the smallest bubble that carries it
};
const Kind KINDS[] = {{"chicken", 24, 0, 8},  {"goose", 38, 0, 9},    {"swan", 40, 0, 10},
                      {"flamingo", 0, 48, 8}, {"penguin", 0, 34, 10}, {"ostrich", 0, 64, 12}};
} // namespace

TEST(Fowl, StandInTheirTrueSize)
{
	for (const Kind& kind : KINDS)
		for (const char* side : {"left.png", "right.png"}) {
			Bounds seen = OpaqueBounds(Named(std::string(kind.prefix) + "stand" + side), .6f);
			if (kind.width) {
				EXPECT_NEAR(seen.Width(), kind.width, 3) << kind.prefix << side;
			}
			if (kind.height) {
				EXPECT_NEAR(seen.Height(), kind.height, 3) << kind.prefix << side;
			}
		}
}

TEST(Fowl, FitIntoTheSmallestBubbleThatCarriesThem)
{
	for (const Kind& kind : KINDS)
		for (const char* side : {"left.png", "right.png"}) {
			const Image& image = Named(std::string(kind.prefix) + "bubble" + side);
			EXPECT_LE(std::max(image.width, image.height), 28 + 4 * kind.stage - 8)
			    << kind.prefix << side;
		}
}

TEST(Fowl, AreNotCutByTheirCanvas)
{
	for (const auto& [name, image] : Drawn())
		for (int y = 0; y < image.height; y++)
			for (int x = 0; x < image.width; x++)
				if (x == 0 || y == 0 || x == image.width - 1 || y == image.height - 1) {
					EXPECT_LT(image.At(x, y)[3], .6f) << name;
				}
}

// The game plays the change one way or the other and swaps the sets around it.
TEST(Flamingo, ChangeOfFootJoinsTheTwoSets)
{
	for (const char* side : {"left", "right"}) {
		const Image& one   = Named(std::string("flamingostand") + side + ".png");
		const Image& two   = Named(std::string("flamingostandtwo") + side + ".png");
		const Image& first = Named(std::string("flamingochangefoot") + side + "0.png");
		const Image& last  = Named(std::string("flamingochangefoot") + side + "7.png");
		int apart          = DifferingPixels(first, last);
		EXPECT_GT(apart, 40) << side;
		EXPECT_LT(DifferingPixels(first, one), apart / 3) << side;
		EXPECT_LT(DifferingPixels(last, two), apart / 3) << side;
	}
}

// Its head is gone and nothing of it shows below the feet.
TEST(Ostrich, HidesItsHeadInTheGround)
{
	for (const char* side : {"left", "right"}) {
		std::string stem = std::string("ostrichstunned") + side;
		Bounds up        = OpaqueBounds(Named(stem + "1.png"), .6f);
		Bounds hidden    = OpaqueBounds(Named(stem + "6.png"), .6f);
		EXPECT_GT(hidden.top, up.top + 15) << side;
		EXPECT_LT(hidden.bottom, up.bottom + 8) << side;
		EXPECT_GT(DifferingPixels(Named(stem + "6.png"), Named(stem + "7.png")), 4)
		    << side << ": it lies dead still";
	}
}
