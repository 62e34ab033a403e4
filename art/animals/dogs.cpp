// Dog, fox, wolf, coyote and hyena.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped DogShape()
{
	Quadruped q;
	q.length = 12, q.shoulderHeight = 14, q.hipHeight = 13.5f;
	q.chest = 5.8f, q.hip = 5.4f, q.belly = 5.4f, q.spread = 3.2f;
	q.thigh = 2.6f, q.shin = 2.1f, q.paw = 2.5f;
	q.neckForward = 3.5f, q.neckUp = 5, q.neckRadius = 4.4f;
	q.tail = TailKind::Thick, q.tailLength = 7, q.tailRadius = 1.5f;
	q.coat = {CoatKind::Patches, 0xf8eacc, 0xfff6e6, 0xa8642c, .13f, .54f, 4};
	q.legs = 0xf6e6c8, q.maneColour = 0xf6e6c8;

	Head& h  = q.head;
	h.radius = 8, h.muzzleLength = 2.6f, h.muzzleRoot = 3.3f, h.muzzleTip = 2.8f;
	h.muzzleDrop = -2.3f, h.nose = 1.8f;
	h.ear = EarKind::Flop, h.earRadius = 2.9f, h.earLength = 3.8f;
	h.earColour = 0x8e4c20, h.innerEar = 0x7a3f1a, h.muzzle = 0xfff6e6;
	h.eye = {2.6f, .74f, .30f, .46f, .62f};
	return q;
}

static Quadruped FoxShape()
{
	const uint32_t CREAM = 0xfff4e6, DARK = 0x3c2018;
	Quadruped q = DogShape();
	q.coat      = {};
	q.coat.base = 0xee7428, q.coat.belly = 0xfff0dc, q.legs = 0x5a2c1c, q.feet = DARK;
	q.tail = TailKind::Bush, q.tailLength = 13, q.tailRadius = 3.4f, q.tailTip = CREAM;

	Head& h = q.head;
	h.ear = EarKind::Point, h.earColour = 0, h.earRadius = 2.7f, h.earLength = 5, h.earTip = DARK;
	h.muzzleLength = 4.2f, h.muzzleRoot = 3.1f, h.muzzleTip = 1.8f, h.nose = 1.4f;
	h.muzzle = CREAM, h.innerEar = DARK, h.mark = FaceMark::PaleCheeks, h.markColour = CREAM;
	h.ruff = 2.2f, h.ruffColour = CREAM;
	return q;
}

// Lean waist, deep chest, hanging tail, pale mask, yellow eyes.
static Quadruped WolfShape()
{
	Quadruped q = FoxShape();
	q.length = 18.5f, q.shoulderHeight = 19.5f, q.hipHeight = 18.5f;
	q.chest = 7.8f, q.hip = 5.8f, q.belly = 6.2f, q.spread = 3.8f;
	q.thigh = 3.3f, q.shin = 2.5f, q.paw = 3, q.step = 7.9f, q.stance = .5f;
	q.neckForward = 5, q.neckUp = 5, q.neckRadius = 5.8f;
	q.coat = {CoatKind::Saddle, 0x98a0ae, 0xeceef2, 0x5e6672}, q.coat.threshold = .30f;
	q.legs = 0xb4bac4, q.feet = 0xdde0e6;
	q.tail = TailKind::Hang, q.tailLength = 14, q.tailRadius = 2.7f, q.tailTip = 0x4a505a;

	Head& h  = q.head;
	h.radius = 8.6f, h.muzzleLength = 5, h.muzzleRoot = 3.5f, h.muzzleTip = 2.4f, h.nose = 1.7f;
	h.earRadius = 2.8f, h.earLength = 5.2f, h.earTip = 0x50545c, h.innerEar = 0xd0c4c0;
	h.muzzle = h.markColour = h.ruffColour = 0xf0f0f2, h.ruff = 3.6f;
	h.eye = {2.6f, .72f, .30f, .48f, .50f, 0xf2c22a};
	return q;
}

// Smaller than the wolf, sandy, thin legs, big ears.
static Quadruped CoyoteShape()
{
	const uint32_t SAND = 0xf6e8cc;
	Quadruped q         = WolfShape();
	q.length = 16.5f, q.chest = 6.4f, q.hip = 5.2f, q.belly = 5.2f;
	q.thigh = 2.8f, q.shin = 1.9f, q.paw = 2.4f, q.neckRadius = 4.6f;
	q.coat = {CoatKind::Saddle, 0xd8a868, SAND, 0x8a6a4c}, q.coat.threshold = .42f;
	q.legs = 0xc48e50, q.feet = 0xe6cfa4, q.tailTip = 0x3c2c24, q.tailRadius = 2.2f;

	Head& h  = q.head;
	h.radius = 7.8f, h.earLength = 6.8f, h.earRadius = 3, h.earTip = 0xb8804a, h.ruff = 2;
	h.muzzleLength = 5.4f, h.muzzleRoot = 3, h.muzzleTip = 1.9f;
	h.muzzle = h.markColour = h.ruffColour = SAND;
	return q;
}

// High shoulder, sloping back, round ears, spots.
static Quadruped HyenaShape()
{
	const uint32_t DARK = 0x5a4030;
	Quadruped q         = WolfShape();
	q.length = 15.5f, q.shoulderHeight = 20, q.hipHeight = 15, q.chest = 7.4f, q.hip = 5.6f;
	q.neckForward = 5, q.neckUp = 5.5f, q.neckRadius = 5.6f, q.step = 8.5f, q.stance = .40f;
	q.coat = {CoatKind::Patches, 0xd8b680, 0xe0c898, DARK, .30f, .58f, 1};
	q.legs = 0xb08c5c, q.feet = 0x4a3428, q.mane = ManeKind::Crest, q.maneColour = DARK;
	q.tailLength = 9, q.tailRadius = 1.6f, q.tailTip = 0x3c2a20;

	Head& h  = q.head;
	h.radius = 8.2f, h.ear = EarKind::Round, h.earRadius = 3.4f, h.earTip = 0, h.ruff = 0;
	h.muzzleLength = 3.2f, h.muzzleRoot = 3.7f, h.muzzleTip = 3, h.muzzle = 0x5f4a3c;
	h.mark = FaceMark::None, h.innerEar = 0x6a4c3c, h.noseColour = 0x1e1614;
	h.eye = {2.5f, .72f, .30f, .48f, .62f};
	return q;
}

// On the ground in a ring, its chin on its tail. curl: 0 stretched out to 1 closed.
static void AddCurledDog(Model& model, const View& view, const Pose& pose, float curl)
{
	const int LUMPS = 9;
	Quadruped q     = DogShape();
	int coat = AddCoat(model, q.coat), plain = model.Plain(q.coat.base);
	int paw = model.Plain(q.legs);
	float s = view.NearSide(), deep = Mix(1.5f, 5.0f, curl), wide = Mix(8.5f, 6.2f, curl);
	float breath = -pose.squash * .06f;
	for (int i = 0; i < LUMPS; i++) { // from the shoulder round the back to the hip
		float a = Radians(Mix(10.f, Mix(180.f, 225.f, curl), i / (LUMPS - 1.f)));
		float r = Mix(q.chest, q.hip, i / (LUMPS - 1.f)) * (.92f + breath);
		model.Ball({wide * std::cos(a) - 2, r * .95f, -s * deep * std::sin(a)}, r, coat, 3.5f);
	}
	model.Ellipsoid({-5.5f, 3.6f, s * deep * .75f}, {4.4f, 3.6f, 3}, Mat3(), plain, 2);
	model.Ellipsoid({-1, 1.5f, s * (deep + 2)}, {2.9f, 1.6f, 2}, Mat3(), paw, .9f);
	model.Ellipsoid({Mix(11.f, 6.f, curl), 1.5f, s * (deep + 1)}, {3.2f, 1.6f, 2}, Mat3(), paw,
	                .9f);
	model.Tube({-9, 3, s * deep * .6f}, {-9, 1.6f, s * (deep + 5)}, {-3, 1.4f, s * (deep + 6)},
	           {Mix(-6.f, 3.f, curl), 1.5f, s * (deep + 5)}, 1.9f, 1.3f, 6, plain, 1);
	Vec3 at = {Mix(9.f, 6.2f, curl), q.head.radius * .80f + breath * 4, s * Mix(2.5f, 4.5f, curl)};
	float turn = Radians(Mix(20.f, 46.f, curl)) * view.TowardViewer();
	Head head  = q.head;
	head.coat  = q.coat.base;
	AddHead(model, head, {at, TurnY(turn) * TurnZ(-.16f)}, view, pose, 2);
}

static void BuildDog(Model& model, const View& view, const Pose& pose)
{
	const float CURLS_FROM = .9f; // part of lying down
	if (pose.lie > CURLS_FROM)
		AddCurledDog(model, view, pose, (pose.lie - CURLS_FROM) / (1 - CURLS_FROM));
	else
		AddQuadruped(model, DogShape(), view, pose);
}

Species Dog()
{
	Species s = BeastSpecies("dog", 32, DogShape);
	s.build   = BuildDog;
	return s;
}

Species Fox()
{
	return BeastSpecies("fox", 40, FoxShape);
}

Species Wolf()
{
	return BeastSpecies("wolf", 60, WolfShape);
}

Species Coyote()
{
	return BeastSpecies("coyote", 57, CoyoteShape);
}

Species Hyena()
{
	return BeastSpecies("hyena", 51, HyenaShape);
}

void AddDogs(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Dog,
	         {{"pant", Pant()}, {"run", Gallop(8)}, {"bark", Bark()}, {"sleep", Sleep()}});
	AddBeast(catalogue, __FILE__, Fox,
	         {{"stunned", Stagger(7)},
	          {"walkup", Walk(8, Heading::Up)},
	          {"walkdown", Walk(8, Heading::Down)}});
	AddBeast(catalogue, __FILE__, Wolf, {{"walk", Walk(12)}, {"howl", Howl()}});
	AddBeast(catalogue, __FILE__, Coyote, {{"walk", Walk(12)}, {"howl", Howl()}});
	AddBeast(
	    catalogue, __FILE__, Hyena,
	    {{"stunned", Stagger(7)}, {"walk", Walk(12)}, {"laugh", Laugh()}, {"lowerhead", Slink()}});
}
