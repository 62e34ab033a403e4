// What the game relies on in the pictures of birds that fly.
#include "art/animals/flight.h"
#include "art/families.h"
#include "tests/art/drawn.h"

#include <gtest/gtest.h>

namespace
{
// Perching, gliding and bubble views of every flier, drawn once for all tests.
const Pictures& Drawn()
{
	static const Pictures pictures = DrawFamilies({AddPerchingBirds, AddRaptors, AddOwls},
	                                              {" perch", " stand", " glide", " bubble"});
	return pictures;
}

const Image& Named(const std::string& name)
{
	return PictureNamed(Drawn(), name);
}

struct Flier {
	const char *prefix, *idle;
	int stage; // of the smallest bubble that carries it
};

const Flier FLIERS[] = {
    {"bluebird", "perch", 6}, {"pigeon", "stand", 6},  {"crow", "perch", 6},   {"owl", "perch", 6},
    {"snowyowl", "perch", 6}, {"vulture", "perch", 8}, {"eagle", "stand", 10},
};
} // namespace

TEST(Fliers, WingsSpreadWiderThanTheBirdSits)
{
	for (const Flier& f : FLIERS)
		for (const char* side : {"left", "right"})
			for (const char* word : {"glideup", "glidedown"}) {
				const Image& seat = Named(std::string(f.prefix) + f.idle + side + ".png");
				const Image& air  = Named(std::string(f.prefix) + word + side + "1.png");
				EXPECT_GT(OpaqueBounds(air).Width(), OpaqueBounds(seat).Width() + 3)
				    << f.prefix << word << side;
				EXPECT_EQ(seat.width % 2, air.width % 2) << f.prefix << " is centred on its seat";
			}
}

// The game lays the lower edge of each on that of the bird that sits.
TEST(Fliers, NothingHangsBelowTheSeatInAGlide)
{
	for (const Flier& f : FLIERS)
		for (const char* side : {"left", "right"})
			for (const char* word : {"glideup", "glidedown"})
				for (const char* number : {"0", "1", "2"}) {
					std::string name = std::string(f.prefix) + word + side + number + ".png";
					const Image& air = Named(name);
					EXPECT_LT(OpaqueBounds(air, .4f).bottom, air.height - 1) << name;
				}
}

TEST(Fliers, EachFitsIntoItsSmallestBubble)
{
	for (const Flier& f : FLIERS)
		for (const char* side : {"left", "right"}) {
			const Image& inside = Named(std::string(f.prefix) + "bubble" + side + ".png");
			EXPECT_LE(std::max(inside.width, inside.height), 28 + 4 * f.stage - 10) << f.prefix;
		}
}

TEST(Flap, PressesDownWithOpenWingsAndFoldsThemOnTheWayUp)
{
	FlightStyle style;
	style.beatFrames = 12;
	for (Heading heading : {Heading::Up, Heading::Down}) {
		Poses beat = Flap(style, heading);
		ASSERT_EQ(12u, beat.size());
		int down = 0;
		for (size_t i = 0; i < beat.size(); i++) {
			const Pose& next = beat[(i + 1) % beat.size()];
			bool falls       = next.flap < beat[i].flap;
			down += falls;
			EXPECT_LT(falls ? beat[i].fold : 0, .05f) << i;
			EXPECT_LT(std::fabs(next.flap - beat[i].flap), .6f) << "no jump after " << i;
		}
		EXPECT_GE(down, 6) << "the stroke that bears takes the longer time";
	}
}

TEST(Flap, AwayClimbsAndNearSinks)
{
	FlightStyle style;
	const Pose away = Glide(style, Heading::Up)[1], near = Glide(style, Heading::Down)[1];
	EXPECT_GT(away.pitch, 0);
	EXPECT_LT(near.pitch, 0);
	EXPECT_GT(away.turnAway, near.turnAway);
	EXPECT_FALSE(away.shadow || near.shadow);
}
