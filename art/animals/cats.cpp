// Cat, tiger, snow tiger and lion.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped CatShape()
{
	Quadruped q;
	q.length = 11.5f, q.shoulderHeight = 13, q.hipHeight = 12.8f;
	q.chest = 5.4f, q.hip = 5.2f, q.belly = 5.3f, q.spread = 3.1f;
	q.thigh = 2.5f, q.shin = 2.0f, q.paw = 2.4f;
	q.neckForward = 3.2f, q.neckUp = 5, q.neckRadius = 4.2f;
	q.tail = TailKind::Thick, q.tailLength = 10, q.tailRadius = 1.5f, q.maneColour = 0xb8641c;
	q.coat          = {CoatKind::Stripes, 0xf4a440, 0xfff0d8, 0xb8641c, 1.15f, .25f, 2.2f, 12};
	q.patternedLegs = true, q.feet = 0xfff0d8;

	Head& h  = q.head;
	h.radius = 8, h.shape = {.95f, .92f, 1.12f};
	h.muzzleLength = 1, h.muzzleRoot = 2.7f, h.muzzleTip = 2.2f, h.muzzleDrop = -2.4f;
	h.nose = 1, h.noseColour = 0xe07a80;
	h.ear = EarKind::Point, h.earRadius = 2.7f, h.earLength = 4, h.innerEar = 0xf8c8b0;
	h.mark = FaceMark::Bars, h.markColour = 0xb8641c, h.muzzle = 0xfff6e6;
	h.eye = {2.6f, .74f, .28f, .46f, .46f, 0x6ac83a};
	return q;
}

static Quadruped TigerShape()
{
	const uint32_t CREAM = 0xfff3dd, DARK = 0x3d241c;
	Quadruped q;
	q.length = 24, q.shoulderHeight = q.hipHeight = 19;
	q.chest = 8.8f, q.hip = 8.2f, q.belly = 8.6f;
	q.thigh = 4, q.shin = 3.5f, q.paw = 4.1f, q.step = 7.9f, q.stance = .5f;
	q.neckForward = 5, q.neckUp = 6, q.neckRadius = 7.2f;
	q.tail = TailKind::Thick, q.tailLength = 15, q.tailRadius = 2, q.maneColour = DARK;
	q.coat          = {CoatKind::Stripes, 0xf79a2e, 0xfff0d8, DARK, .95f, .28f, 2.2f, 15};
	q.patternedLegs = true, q.feet = 0xffe6c0;

	Head& h  = q.head;
	h.radius = 11, h.shape = {.95f, .94f, 1.10f};
	h.muzzleLength = 2.4f, h.muzzleRoot = 4.4f, h.muzzleTip = 3.7f, h.muzzleDrop = -3.2f;
	h.earRadius = 3.5f, h.nose = 1.9f, h.noseColour = 0xd8615c;
	h.eye    = {3.0f, .72f, .30f, .44f, .62f};
	h.muzzle = CREAM, h.innerEar = 0xffe6c8, h.mark = FaceMark::Bars, h.markColour = DARK;
	h.ruff = 2.8f, h.ruffColour = CREAM;
	return q;
}

static Quadruped SnowTigerShape()
{
	const uint32_t WHITE = 0xffffff, DARK = 0x4a4658;
	Quadruped q = TigerShape();
	q.coat.base = 0xf8f8fc, q.coat.belly = WHITE, q.coat.mark = DARK;
	q.feet = WHITE, q.maneColour = DARK;

	Head& h  = q.head;
	h.muzzle = WHITE, h.innerEar = 0xe8c8cc, h.noseColour = 0xe8848c;
	h.markColour = DARK, h.ruffColour = WHITE;
	h.eye.iris = 0x3a9ae8, h.eye.pupil = .48f;
	return q;
}

static Quadruped LionShape()
{
	Quadruped q     = TigerShape();
	q.patternedLegs = false, q.coat = {}, q.step = 7.2f, q.stance = .53f;
	q.coat.base = 0xf4bc52, q.coat.belly = 0xf8dc9c, q.legs = 0xe8ae48, q.feet = 0xf4c870;
	q.mane = ManeKind::Ring, q.maneColour = 0xa85a1e;
	q.tail = TailKind::Rope, q.tailLength = 14, q.tailRadius = 1.5f;
	q.head.mark = FaceMark::None, q.head.ruff = 0;
	return q;
}

Species Cat()
{
	return BeastSpecies("cat", 32, CatShape);
}

Species Tiger()
{
	return BeastSpecies("tiger", 76, TigerShape);
}

Species SnowTiger()
{
	return BeastSpecies("snowtiger", 76, SnowTigerShape);
}

Species Lion()
{
	return BeastSpecies("lion", 76, LionShape);
}

void AddCats(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Cat,
	         {{"pawair", PawTheAir()}, {"run", Gallop(6)}, {"purr", Purr()}});
	const std::vector<Sequence> snow = {{"roar", Roar()}, {"walk", Walk(12)}};
	std::vector<Sequence> big        = snow;
	big.push_back({"lowerhead", Stalk()});
	AddBeast(catalogue, __FILE__, Tiger, big);
	AddBeast(catalogue, __FILE__, SnowTiger, snow);
	AddBeast(catalogue, __FILE__, Lion, big);
}
