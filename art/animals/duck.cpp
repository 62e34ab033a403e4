// The duck and her ducklings.
#include "art/animals/duck.h"

#include "art/animals/beast.h"
#include "art/animals/fowl_actions.h"
#include "art/families.h"

static const float DUCK_SWAY = .15f, DUCKLING_SWAY = .20f; // radians of a waddle

static Bird DuckShape()
{
	Bird b;
	b.bodyLength = 9.4f, b.bodyRadius = 6.2f, b.tilt = .14f, b.headRadius = 5.5f;
	b.longNeck = true, b.neckForward = 2.0f, b.neckUp = 6.8f, b.neckRadius = 3, b.neckRing = 1.0f;
	b.legLength = 2.6f, b.legRadius = 1, b.webbed = true;
	b.beakKind = BeakKind::Flat, b.beakLength = 5.0f, b.beakRadius = 2.4f;
	b.tailLength = 4.6f, b.tailUp = 2.6f, b.tailCurl = 1.7f;
	b.wingLength = 8.8f, b.wingWidth = 4.2f, b.span = 7.4f, b.chord = 4.6f;
	b.eye  = {2.05f, .62f, .30f, .58f, .55f, 0, 0, .5f};
	b.body = 0xc4b6a6, b.belly = 0xe6dccd, b.breast = 0x8e4a30, b.breastLine = .46f;
	b.wing = 0x9c8a7a, b.wingTip = 0x5f5260, b.wingBar = 0x3f74d8;
	b.head = 0x2a9a50, b.neck = 0x8e4a30, b.collar = 0xffffff, b.tail = 0xf6f2ea;
	b.beak = 0xf6be30, b.leg = 0xf2902a;
	return b;
}

static Bird DucklingShape()
{
	Bird b;
	b.bodyLength = 6.8f, b.bodyRadius = 5.3f, b.tilt = .24f, b.headRadius = 5.4f;
	b.neckUp = 3.6f, b.neckForward = 1.6f, b.legLength = 1.9f, b.legRadius = .85f, b.webbed = true;
	b.beakKind = BeakKind::Flat, b.beakLength = 3.5f, b.beakRadius = 2.0f;
	b.tailLength = 2.6f, b.tailWidth = 2, b.tailUp = 1.9f, b.tuft = 1.9f, b.blush = .55f;
	b.wingLength = 4.6f, b.wingWidth = 2.8f, b.span = 3.2f, b.chord = 2.8f;
	b.eye  = {2.05f, .66f, .26f, .56f, .55f, 0, 0, .5f};
	b.body = 0xffd84a, b.belly = 0xffec9c, b.wing = 0xf8c834, b.wingTip = 0xe8ae28;
	b.tail = 0xf8c834, b.beak = 0xf58a2a, b.leg = 0xf08228;
	return b;
}

static void BuildDuck(Model& model, const View& view, const Pose& pose)
{
	AddBird(model, DuckShape(), view, pose);
}

static void BuildDuckling(Model& model, const View& view, const Pose& pose)
{
	AddBird(model, DucklingShape(), view, pose);
}

Species Duck()
{
	Species s;
	s.prefix   = "duck";
	s.build    = BuildDuck;
	s.width    = 30;
	s.sideTurn = 26;
	return s;
}

Species Duckling()
{
	Species s;
	s.prefix   = "duckling";
	s.build    = BuildDuckling;
	s.width    = 19;
	s.sideTurn = 26;
	return s;
}

static std::vector<Sequence> Common(float sway, float stride)
{
	return {{"stand", {Pose()}, "", false},
	        {"quack", Squawk(8)},
	        {"walkup", Waddle(8, Heading::Up, sway, stride)},
	        {"walkdown", Waddle(8, Heading::Down, sway, stride)}};
}

void AddDuck(Catalogue& catalogue)
{
	std::vector<Sequence> sequences = Common(DUCK_SWAY, 1);
	sequences.push_back({"look", Look(5, 1.2f)});
	sequences.push_back({"movehead", MoveHead(4)});
	sequences.push_back({"adjustwings", AdjustWings(8, .34f)});
	AddSequences(catalogue, __FILE__, Duck, sequences);
	AddInBubble(catalogue, __FILE__, Duck);
}

void AddDuckling(Catalogue& catalogue)
{
	AddSequences(catalogue, __FILE__, Duckling, Common(DUCKLING_SWAY, 1.15f));
	AddInBubble(catalogue, __FILE__, Duckling);
}
