// Goat and bighorn.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped GoatShape()
{
	Quadruped q;
	q.length = 14, q.shoulderHeight = q.hipHeight = 17.5f;
	q.chest = 6.6f, q.hip = 6.6f, q.belly = 7.2f, q.spread = 4.2f;
	q.thigh = 2.7f, q.shin = 2.2f, q.paw = 2.7f, q.hooved = true, q.step = 8.5f, q.stance = .40f;
	q.neckForward = 4.6f, q.neckUp = 6.3f, q.neckRadius = 4.5f;
	q.coat.base = 0xf8f3e8, q.coat.belly = 0xd8d0c0, q.legs = 0xe8dccc, q.feet = 0x6a4a3c;
	q.tail = TailKind::Thick, q.tailLength = 4.5f, q.tailRadius = 1.6f, q.maneColour = 0xf6f1e6;

	Head& h  = q.head;
	h.radius = 7.4f, h.shape = {1, 1, .95f}, h.cheeks = 0, h.blush = .4f;
	h.muzzleLength = 3.8f, h.muzzleRoot = 3.5f, h.muzzleTip = 2.8f, h.nose = 1.2f;
	h.horn = HornKind::Swept, h.hornLength = 8.5f, h.horns = 0xa08a6a;
	h.beard = 4.8f, h.hair = 0xd8cdb8;
	h.ear = EarKind::Flop, h.earLength = 5.5f, h.earRadius = 1.8f;
	h.eye  = {2.5f, .74f, .30f, .46f, .62f};
	h.coat = 0xf8f3e8, h.muzzle = 0xf4dccb, h.innerEar = 0xf0a890, h.noseColour = 0x7a4238;
	return q;
}

static Quadruped BighornShape()
{
	Quadruped q = GoatShape();
	q.length = 17, q.chest = 8.2f, q.hip = 7.4f, q.belly = 8.2f, q.thigh = 3.2f, q.shin = 2.5f;
	q.neckUp = 5, q.neckForward = 5, q.neckRadius = 6;
	q.coat.base = 0xa87c4c, q.coat.belly = 0xe8d8bc, q.legs = 0x8c6238;
	q.coat.rump = 0xfaf2e2, q.coat.rumpX = -11.5f;
	q.tail = TailKind::Stub, q.tailRadius = 1.7f, q.tailTip = 0x6a4828;

	Head& h  = q.head;
	h.radius = 7.6f, h.blush = 0, h.beard = 0, h.ear = EarKind::None;
	h.horn = HornKind::Curl, h.hornLength = 7.8f, h.horns = 0x74492a, h.hornGloss = .12f;
	h.coat = 0xa87c4c, h.muzzle = 0xf0e2c8, h.muzzleLength = 4.2f;
	h.eye = {2.5f, .82f, .32f, .38f, .62f};
	return q;
}

Species Goat()
{
	return BeastSpecies("goat", 46, GoatShape);
}

Species Bighorn()
{
	return BeastSpecies("bighorn", 52, BighornShape);
}

void AddGoats(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Goat, {{"stunned", Stagger(7)}, {"walk", Walk(12)}});
	AddBeast(catalogue, __FILE__, Bighorn,
	         {{"stunned", Stagger(7)}, {"walk", Walk(12)}, {"shake", ShakeHead()}});
}
