// The ostrich.
#include "art/animals/actions.h"
#include "art/animals/bird_pictures.h"
#include "art/animals/fowl.h"
#include "art/families.h"

static const float RUN_STRIDE = 1.7f;
static const float BURIED     = 2.0f; // headDown with the head in the ground

static Bird OstrichShape()
{
	Bird b;
	b.bodyLength = 13, b.bodyRadius = 9.6f, b.tilt = .12f, b.headRadius = 5.8f;
	b.longNeck = true, b.neckForward = 5.5f, b.neckUp = 16.5f, b.neckRadius = 2.2f;
	b.neckCurve = 2, b.legLength = 17, b.legRadius = 1.5f, b.drumstick = 3.6f, b.legSlack = .12f;
	b.beakKind = BeakKind::Flat, b.beakLength = 4.4f, b.beakRadius = 2.1f;
	b.wingLength = 12, b.wingWidth = 6, b.span = 8, b.chord = 6;
	b.tailLength = 3, b.tailPlume = 5.6f, b.neckRing = 1.2f;
	b.tuft = 1.9f;
	b.eye  = {2.5f, .62f, .30f, .58f, .55f, 0, 0, .5f};
	b.body = 0x403c4a, b.belly = 0x322e3a, b.wing = 0x4a4656, b.wingTip = 0xf6f2ec;
	b.head = b.neck = 0xf0c2a8, b.leg = 0xe8b096, b.beak = 0xf0a552, b.tail = 0xfaf6f0;
	return b;
}

// Takes off what is in the ground.
static void CutAtGround(Model& model)
{
	const float SURFACE = -.3f;
	for (Shape& s : model.shapes)
		s.cutBelow = SURFACE;
}

// The earth that was thrown up where the head went in.
static void AddEarth(Model& model)
{
	const float HOLE_X = 17.4f;
	const int CLODS    = 16;
	int earth[] = {model.Plain(0x94693f, 0), model.Plain(0x75502e, 0), model.Plain(0xa87c50, 0)};
	for (int i = 0; i < CLODS; i++) {
		float a = i * 2.39996f, out = 3.2f + 2.6f * Hash01(i, 7, 5);
		float size = .8f + .8f * Hash01(i, 2, 5);
		model.Ball({HOLE_X + std::cos(a) * out, size * .6f, std::sin(a) * out}, size, earth[i % 3],
		           .2f);
	}
}

static void BuildOstrich(Model& model, const View& view, const Pose& pose)
{
	AddBird(model, OstrichShape(), view, pose);
	if (pose.headDown > 1)
		CutAtGround(model);
	if (pose.headDown >= BURIED)
		AddEarth(model);
}

Species Ostrich()
{
	Species s;
	s.prefix   = "ostrich";
	s.build    = BuildOstrich;
	s.height   = 64;
	s.sideTurn = 26;
	s.shadow   = .42f;
	return s;
}

static Poses Running()
{
	Poses list = Walk(10, Heading::Side, RUN_STRIDE);
	for (int i = 0; i < 10; i++) {
		float beat        = std::sin(4 * PI * i / 10);
		list[i].neckReach = .5f + .5f * beat;
		list[i].pitch     = -.05f + .02f * beat;
		list[i].rise      = .8f + .8f * beat;
		list[i].ruffle    = .35f;
		list[i].tailRaise = .2f * beat;
	}
	return list;
}

// A fright, then it puts its head into the ground.
static Poses HideHead()
{
	const float DOWN[] = {0, 0, .35f, .85f, 1.35f, BURIED, BURIED, BURIED};
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		Pose& p     = list[i];
		p.squash    = i == 0 ? 3 : 0;
		p.headDown  = DOWN[i];
		p.neckReach = i == 1 ? 1 : 0;
		p.wideEyes  = i < 4 ? .35f : 0;
		p.mouth     = i == 1 || i == 2 ? .9f : 0;
		p.rise      = i == 1 ? 2 : 0;
		p.ruffle    = i == 6 ? .9f : i ? .5f : 0;
		p.tailRaise = i > 3 ? .5f : 0;
		p.tailSwing = i == 6 ? 1.4f : i == 7 ? -1.4f : 0;
	}
	return list;
}

void AddOstrich(Catalogue& catalogue)
{
	AddBirdPictures(catalogue, __FILE__, Ostrich,
	                {{"stand", {Blinking()}, "blink", false},
	                 {"look", Look(5)},
	                 {"run", Running()},
	                 {"stunned", HideHead()}});
}
