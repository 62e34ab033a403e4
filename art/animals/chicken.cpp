// The hen.
#include "art/animals/actions.h"
#include "art/animals/bird_pictures.h"
#include "art/animals/fowl.h"
#include "art/families.h"

static Bird ChickenShape()
{
	Bird b;
	b.bodyLength = 8.6f, b.bodyRadius = 7, b.tilt = .26f, b.headRadius = 5.2f;
	b.longNeck = true, b.neckForward = 2.6f, b.neckUp = 6.2f, b.neckRadius = 3.6f;
	b.legLength = 3.8f, b.legRadius = .95f;
	b.beakLength = 2.8f, b.beakRadius = 1.5f, b.comb = 1.9f, b.wattle = 1.3f;
	b.tailLength = 5, b.tailWidth = 4, b.tailUp = 6, b.tailThick = .5f;
	b.wingLength = 7.2f, b.wingWidth = 4.6f, b.span = 6.4f, b.chord = 4.6f;
	b.eye  = {2.1f, .64f, .26f, .58f, .55f, 0, 0, .5f};
	b.body = 0xfdf6e8, b.belly = 0xf2e2c6, b.head = 0xfff8ec, b.neck = 0xf6dcae;
	b.wing = 0xe8bf80, b.wingTip = 0xc08a4c, b.tail = 0xd09a58;
	b.beak = b.leg = 0xf2a52a;
	return b;
}

static void BuildChicken(Model& model, const View& view, const Pose& pose)
{
	AddBird(model, ChickenShape(), view, pose);
}

Species Chicken()
{
	Species s;
	s.prefix   = "chicken";
	s.build    = BuildChicken;
	s.width    = 25;
	s.sideTurn = 26;
	return s;
}

// Strikes at the ground and lifts the head a little; the game plays it back.
static Poses Pecking()
{
	const float DOWN[] = {.93f, 1, .86f};
	Poses list(3);
	for (int i = 0; i < 3; i++) {
		list[i].headDown  = DOWN[i];
		list[i].mouth     = i == 2 ? .5f : 0;
		list[i].tailRaise = i == 1 ? .25f : 0;
	}
	return list;
}

// Thrusts the head back and forth at each step.
static Poses Strutting()
{
	Poses list = Waddle(8, Heading::Side, .06f, .9f);
	for (int i = 0; i < 8; i++)
		list[i].neckReach = .45f * std::sin(4 * PI * i / 8);
	return list;
}

void AddChicken(Catalogue& catalogue)
{
	AddBirdPictures(catalogue, __FILE__, Chicken,
	                {{"look", Look(5)},
	                 {"walk", Strutting()},
	                 {"lowerhead", LowerHead(6)},
	                 {"peck", Pecking()},
	                 {"squawk", Squawk(8)}});
}
