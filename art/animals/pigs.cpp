// Pig and warthog.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped PigShape()
{
	Quadruped q;
	q.length = 15, q.shoulderHeight = q.hipHeight = 14.5f;
	q.chest = q.hip = 8.3f, q.belly = 9.2f, q.spread = 4.4f;
	q.thigh = 3, q.shin = 2.5f, q.paw = 2.8f, q.hooved = true;
	q.neckForward = 4, q.neckUp = 4, q.neckRadius = 7;
	q.tail      = TailKind::Curl;
	q.coat.base = 0xf9aab2, q.coat.belly = 0xf0949c, q.coat.gloss = .2f;
	q.legs = 0xf09aa2, q.feet = 0x8a5050;

	Head& h  = q.head;
	h.radius = 9, h.cheeks = .50f, h.blush = .5f;
	h.muzzleLength = 2.4f, h.muzzleRoot = 3.7f, h.muzzleTip = 3.5f, h.muzzleDrop = -2.2f;
	h.disc = true;
	h.ear = EarKind::Point, h.earRadius = 2.7f, h.earLength = 3.6f;
	h.eye    = {2.75f, .74f, .34f, .50f, .62f};
	h.muzzle = 0xf5969e, h.innerEar = 0xe87a86, h.noseColour = 0x9c4850;
	return q;
}

static Quadruped WarthogShape()
{
	Quadruped q = PigShape();
	q.length = 19, q.shoulderHeight = 16.5f, q.hipHeight = 15;
	q.chest = 8.6f, q.hip = 7.4f, q.belly = 8.2f, q.neckForward = 6, q.neckUp = 2.2f;
	q.mane = ManeKind::Bristle, q.maneColour = 0x4a2c1c;
	q.tail = TailKind::Rope, q.tailLength = 8, q.tailRadius = .9f;
	q.coat.base = 0x9a7258, q.coat.belly = 0xb08a70, q.coat.gloss = .1f;
	q.legs = 0x7e5a46, q.feet = 0x3e2c24;

	Head& h  = q.head;
	h.radius = 8.6f, h.shape = {1.1f, .95f, 1}, h.blush = 0;
	h.muzzleLength = 5.4f, h.muzzleRoot = 4.4f, h.muzzleTip = 3.7f, h.muzzleDrop = -2.8f;
	h.tusk = 9, h.horns = 0xfffaf0, h.earLength = 4;
	h.eye    = {2.6f, .72f, .44f, .48f, .62f};
	h.muzzle = 0xa07c68, h.innerEar = 0xb88474, h.noseColour = 0x4a3028;
	return q;
}

Species Pig()
{
	return BeastSpecies("pig", 46, PigShape);
}

Species Warthog()
{
	return BeastSpecies("warthog", 58, WarthogShape);
}

void AddPigs(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Pig, {{"squeal", Squeal()}, {"walk", Walk(8)}});
	AddBeast(catalogue, __FILE__, Warthog, {{"squeal", Squeal()}, {"walk", Walk(12)}});
}
