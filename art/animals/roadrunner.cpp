// The roadrunner: runs with its head low and its tail straight.
#include "art/animals/actions.h"
#include "art/animals/beast.h"
#include "art/animals/flight.h"
#include "art/animals/fliers.h"
#include "art/families.h"

static Bird RoadrunnerShape()
{
	Bird b;
	b.bodyLength = 7.6f, b.bodyRadius = 4.8f, b.tilt = .20f, b.headRadius = 4.6f;
	b.longNeck = true, b.neckForward = 3.4f, b.neckUp = 6.5f, b.neckRadius = 2.2f;
	b.legLength = 7.8f, b.legRadius = .85f, b.thigh = 1.7f;
	b.beakLength = 5.6f, b.beakRadius = 1.3f;
	b.tailLength = 13, b.tailUp = 6.5f, b.tailWidth = 2.4f, b.tailThick = .42f;
	b.crest = 4.6f, b.spots = .54f;
	b.eye  = {1.9f, .60f, .26f, .62f, .55f, 0, 0, .5f};
	b.body = 0x86705c, b.belly = 0xf2e6d0, b.fleck = 0x4a3c34, b.wing = 0x6a5a4c;
	b.wingTip = 0x443a34, b.head = 0xdcc6a0, b.crestColour = 0x3a4058, b.neck = 0xe4d4b4,
	b.tail = 0x4a4656;
	b.beak = 0x6a6468, b.leg = 0x8a94a8;
	return b;
}

Species Roadrunner()
{
	Species s = BirdSpecies("roadrunner", 38, 0, RoadrunnerShape);
	s.shadow  = .36f; // always on the ground
	return s;
}

static Poses Dash(Heading heading)
{
	Poses list = Walk(8, heading, 1.6f);
	for (int i = 0; i < 8; i++) {
		list[i].neckReach = 1.5f;
		list[i].pitch     = -.20f;
		list[i].headTip   = .15f;
		list[i].squash    = .6f;
		list[i].rise      = .7f + .9f * std::fabs(std::sin(2 * PI * i / 8));
		list[i].tailRaise = -.45f;
	}
	return list;
}

// Stretches and flicks its tail up.
static Poses MovingHead()
{
	const float REACH[] = {-.4f, .3f, 1, 1.2f}, TAIL[] = {-.25f, .1f, .6f, .8f};
	Poses list(4);
	for (int i = 0; i < 4; i++) {
		list[i].neckReach = REACH[i];
		list[i].tailRaise = TAIL[i];
		list[i].headTip   = .10f * REACH[i];
	}
	return list;
}

void AddRoadrunner(Catalogue& catalogue)
{
	AddSequences(catalogue, __FILE__, Roadrunner,
	             {{"stand", {Pose()}, "", false},
	              {"look", Look(5)},
	              {"movehead", MovingHead()},
	              {"stunned", Startled(7)},
	              {"runup", Dash(Heading::Up)},
	              {"rundown", Dash(Heading::Down)},
	              {"peck", Peck(3)}});
	AddInBubble(catalogue, __FILE__, Roadrunner);
}
