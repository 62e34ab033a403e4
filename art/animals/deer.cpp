// Deer, moose and camel.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped DeerShape()
{
	Quadruped q;
	q.length = 16.5f, q.shoulderHeight = q.hipHeight = 22.5f;
	q.chest = 6.6f, q.hip = 6.8f, q.belly = 6.8f, q.spread = 4;
	q.thigh = 3, q.shin = 1.9f, q.paw = 2.4f, q.hooved = true, q.step = 9.2f, q.stance = .45f;
	q.neckForward = 5.6f, q.neckUp = 9.2f, q.neckRadius = 4, q.headPitch = -12;
	q.coat = {CoatKind::Patches, 0xcf8e4a, 0xf4e0c0, 0xf8e8cc, .36f, .64f, 5};
	q.legs = 0xb87a3e, q.feet = 0x4a3020;
	q.tail = TailKind::Stub, q.tailRadius = 2.6f, q.tailTip = 0xfff8ec;

	Head& h  = q.head;
	h.radius = 7.8f, h.shape = {1, .95f, .95f}, h.cheeks = .40f;
	h.muzzleLength = 4.2f, h.muzzleRoot = 3.6f, h.muzzleTip = 2.6f, h.muzzleDrop = -3.0f;
	h.ear = EarKind::Flop, h.earRadius = 2.1f, h.earLength = 5.4f;
	h.horn = HornKind::Antler, h.hornLength = 9, h.horns = 0xe8cfa4;
	h.muzzle = 0xf6e2c2, h.eye = {2.9f, .70f, .30f, .54f, .62f};
	return q;
}

static Quadruped MooseShape()
{
	Quadruped q;
	q.length = 22, q.shoulderHeight = 25, q.hipHeight = 23.5f, q.shoulderHump = 3.5f;
	q.chest = 10, q.hip = 8.2f, q.belly = 9.2f, q.spread = 4;
	q.thigh = 4, q.shin = 2.6f, q.paw = 3.1f, q.hooved = true;
	q.neckForward = 8, q.neckUp = 5, q.neckRadius = 6.4f, q.headPitch = -14;
	q.coat.base = 0x7a4e34, q.coat.belly = 0x66422e, q.legs = 0xb09272, q.feet = 0x3a2820;
	q.mane = ManeKind::Dewlap, q.maneColour = 0x5c3a28, q.tail = TailKind::Stub, q.tailRadius = 2;

	Head& h  = q.head;
	h.radius = 8, h.shape = {1, .95f, .92f}, h.cheeks = .40f;
	h.muzzleLength = 8, h.muzzleRoot = 4.3f, h.muzzleTip = 4.9f, h.muzzleDrop = -3.2f;
	h.nose = 1.2f, h.noseColour = 0x3c2418, h.muzzle = 0xb58660;
	h.ear = EarKind::Flop, h.earRadius = 1.8f, h.earLength = 4.5f;
	h.horn = HornKind::Palm, h.hornLength = 13, h.horns = 0xb08a56, h.hornGloss = .08f;
	h.eye = {2.8f, .70f, .34f, .56f, .62f};
	return q;
}

static Quadruped CamelShape()
{
	Quadruped q;
	q.length = 19, q.shoulderHeight = q.hipHeight = 24.5f;
	q.chest = 8, q.hip = 7.6f, q.belly = 8, q.spread = 4, q.backHump = 8.4f;
	q.thigh = 3.6f, q.shin = 2.4f, q.paw = 3.3f, q.pawStretch = 1.1f;
	q.neckForward = 10, q.neckUp = 10, q.neckRadius = 3.8f, q.neckDip = 6;
	q.coat.base = 0xe0ac60, q.coat.belly = 0xc48e4a, q.legs = 0xcf9a54, q.feet = 0xb07c40;
	q.tail = TailKind::Rope, q.tailLength = 10, q.tailRadius = 1.0f, q.maneColour = 0x8a5a2c;

	Head& h  = q.head;
	h.radius = 7.6f, h.shape = {1, .95f, .92f}, h.cheeks = .40f;
	h.muzzleLength = 4.8f, h.muzzleRoot = 3.7f, h.muzzleTip = 3.5f, h.muzzleDrop = -2.2f;
	h.nose = .9f, h.noseColour = 0x5a3020, h.muzzle = 0xf0d09c;
	h.ear = EarKind::Tube, h.earRadius = 1.5f, h.earLength = 2, h.forelock = 1.8f;
	h.hair = 0xa8763e, h.eye = {2.7f, .70f, .34f, .54f, .62f};
	return q;
}

Species Deer()
{
	return BeastSpecies("deer", 50, DeerShape);
}

Species Moose()
{
	return BeastSpecies("moose", 66, MooseShape);
}

Species Camel()
{
	return BeastSpecies("camel", 64, CamelShape);
}

void AddDeer(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Deer, {{"stunned", StartUp()}, {"walk", Walk(12)}});
	AddBeast(catalogue, __FILE__, Moose, {{"hit", TossAntlers()}, {"lowerhead", Browse()}});
	AddBeast(
	    catalogue, __FILE__, Camel,
	    {{"stunned", FallToItsKnees()}, {"chewcud", Chew()}, {"lowerhead", LookDownItsNose()}});
}
