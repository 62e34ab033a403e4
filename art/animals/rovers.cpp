// Mouse, raccoon and skunk.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped MouseShape()
{
	Quadruped q;
	q.length = 6, q.shoulderHeight = 6.6f, q.hipHeight = 7.2f;
	q.chest = 4.2f, q.hip = 5, q.belly = 5, q.spread = 2.6f;
	q.thigh = 1.6f, q.shin = 1.3f, q.paw = 1.6f;
	q.neckForward = 2.2f, q.neckUp = 2.4f, q.neckRadius = 3.5f;
	q.tail = TailKind::Whip, q.tailLength = 8, q.tailRadius = .9f, q.maneColour = 0xf0a8a8;
	q.coat.base = 0xb0aaae, q.coat.belly = 0xe8e0dc, q.feet = 0xf2b0b0;

	Head& h  = q.head;
	h.radius = 5.8f, h.blush = .5f;
	h.muzzleLength = 1.8f, h.muzzleRoot = 2.3f, h.muzzleTip = 1.5f, h.muzzleDrop = -1.2f;
	h.nose = 1.2f, h.mouthLine = false, h.earRadius = 4;
	h.eye    = {2.2f, .74f, .28f, .50f, .60f};
	h.muzzle = 0xdcd4d0, h.innerEar = 0xf6b4b6, h.noseColour = 0xe8808c;
	return q;
}

static Quadruped RaccoonShape()
{
	const uint32_t DARK = 0x34323a;
	Quadruped q;
	q.length = 12, q.shoulderHeight = 12, q.hipHeight = 13;
	q.chest = 5.8f, q.hip = 6.4f, q.belly = 6.4f, q.spread = 3.2f;
	q.thigh = 2.6f, q.shin = 2.1f, q.paw = 2.4f;
	q.neckForward = 3.5f, q.neckUp = 4.2f, q.neckRadius = 4.4f;
	q.coat.base = 0x96929a, q.coat.belly = 0xb8b2b0, q.legs = 0x5a565e, q.feet = DARK;
	q.tail = TailKind::Ringed, q.tailLength = 13, q.tailRadius = 3, q.maneColour = DARK;

	Head& h  = q.head;
	h.radius = 7.8f, h.shape = {.95f, .92f, 1.12f};
	h.ear = EarKind::Point, h.earLength = 3, h.earRadius = 2.5f, h.innerEar = 0xf0e8e0;
	h.muzzleLength = 3, h.muzzleRoot = 2.8f, h.muzzleTip = 1.9f, h.muzzleDrop = -2;
	h.nose = 1.4f, h.muzzle = 0xf4efe6, h.mark = FaceMark::Bandit;
	h.ruff = 2.6f, h.ruffColour = 0xf0ece4;
	h.eye = {2.4f, .74f, .30f, .46f, .62f};
	return q;
}

static Quadruped SkunkShape()
{
	const uint32_t WHITE = 0xfaf8f4, BLACK = 0x2c2a34;
	Quadruped q      = RaccoonShape();
	q.shoulderHeight = 11, q.hipHeight = 11.5f, q.belly = 6.2f, q.hip = 6.2f, q.neckUp = 3.7f;
	q.coat           = {CoatKind::BackStripe, 0x383642, BLACK, WHITE};
	q.coat.threshold = .52f, q.coat.gloss = .3f, q.legs = q.feet = BLACK;
	q.tail = TailKind::Plume, q.tailLength = 13, q.tailRadius = 3.8f, q.tailTip = WHITE;

	Head& h  = q.head;
	h.radius = 7.2f, h.shape = {1, 1, 1};
	h.ear = EarKind::Round, h.earRadius = 2.1f, h.innerEar = 0x8a7a84, h.ruff = 0;
	h.muzzleLength = 2.6f, h.muzzleRoot = 2.8f, h.muzzle = 0x565260;
	h.mark = FaceMark::SkunkStripe, h.markColour = WHITE, h.noseColour = 0xe0808a;
	return q;
}

Species Mouse()
{
	return BeastSpecies("mouse", 25, MouseShape);
}

// On a trunk its legs reach round both sides.
static void BuildRaccoon(Model& model, const View& view, const Pose& pose)
{
	Quadruped q = RaccoonShape();
	if (pose.climb >= 0) {
		q.spread = 7.4f, q.shin = 2.3f, q.paw = 2.7f;
		q.tailLength = 10, q.head.ruff = 0;
	}
	AddQuadruped(model, q, view, pose);
}

Species Raccoon()
{
	Species s = BeastSpecies("raccoon", 42, RaccoonShape);
	s.build   = BuildRaccoon;
	return s;
}

Species Skunk()
{
	return BeastSpecies("skunk", 42, SkunkShape);
}

// Lets go, then lands on its feet at the fourth picture.
static Poses Fall()
{
	const float PRESS[] = {1.2f, 3.6f, 2.2f, .8f, -.5f};
	const int FALLING = 2, LANDING = 5;
	Poses list(FALLING + LANDING);
	for (int i = 0; i < FALLING; i++) {
		list[i].limbsUp  = i ? 1 : .75f;
		list[i].wideEyes = .4f;
		list[i].mouth    = .8f;
		list[i].pitch    = i ? .12f : -.06f;
		list[i].rise     = 3;
		list[i].shadow   = false;
	}
	for (int i = 0; i < LANDING; i++) {
		Pose& p    = list[FALLING + i];
		p.limbsUp  = i == 0 ? .6f : 0;
		p.squash   = PRESS[i];
		p.lid      = i == 1 ? 1 : 0;
		p.wideEyes = i > 1 ? .3f : 0;
	}
	return list;
}

// Up the trunk with its belly to it and its back to the viewer, paw over paw.
static Poses Climb()
{
	const int COUNT = 8;
	Poses list      = Walk(COUNT, Heading::Back, 1.1f);
	for (int i = 0; i < COUNT; i++) {
		float step        = std::sin(2 * PI * i / COUNT);
		list[i].climb     = i / (float)COUNT;
		list[i].turnAway  = -22;
		list[i].pitch     = 1.25f;
		list[i].lift      = 8;
		list[i].headLevel = 1;
		list[i].headTip   = .3f;
		list[i].look      = 1.2f;
		list[i].tailSwing = step;
		list[i].shadow    = false;
	}
	return list;
}

void AddRovers(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Mouse,
	         {{"stunned", Stagger(7)},
	          {"runup", Gallop(8, Heading::Up)},
	          {"rundown", Gallop(8, Heading::Down)},
	          {"sniff", Sniff()}},
	         false);
	AddBeast(catalogue, __FILE__, Raccoon,
	         {{"stunned", Stagger(7)},
	          {"runup", Gallop(12, Heading::Up)},
	          {"rundown", Gallop(12, Heading::Down)},
	          {"fall", Fall()},
	          {"climb", Climb()}});
	AddBeast(catalogue, __FILE__, Skunk, {{"run", Gallop(12)}, {"spray", Spray()}}, false);
}
