// The cow.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped CowShape()
{
	Quadruped q;
	q.length = 24, q.shoulderHeight = q.hipHeight = 20.5f;
	q.chest = 10.5f, q.hip = 10, q.belly = 11, q.spread = 5;
	q.thigh = 3.8f, q.shin = 2.9f, q.paw = 3.6f, q.hooved = true;
	q.neckForward = 7, q.neckUp = 6.5f, q.neckRadius = 7;
	q.tail = TailKind::Rope, q.tailLength = 14, q.tailRadius = 1.3f;
	q.coat = {CoatKind::Patches, 0xf9f4ea, 0xf7e4d8, 0x453638, .085f, .50f, 2.2f};
	q.legs = 0xf7f1e6, q.feet = 0x54403a, q.maneColour = 0x4b3a3c;

	Head& h  = q.head;
	h.radius = 9.6f, h.cheeks = 0, h.blush = .4f;
	h.muzzleLength = 3.6f, h.muzzleRoot = 4.4f, h.muzzleTip = 4.3f, h.muzzleWide = 1.3f;
	h.muzzleDrop = -3.8f, h.nose = 1.0f;
	h.ear = EarKind::Flop, h.earRadius = 2.2f, h.earLength = 6;
	h.eye  = {3.1f, .76f, .34f, .46f, .62f};
	h.horn = HornKind::Cow, h.hornLength = 4.8f;
	h.muzzle = 0xf6b8aa, h.innerEar = 0xf2b4a4, h.noseColour = 0x8c4a4a;
	h.mark = FaceMark::EyeRings, h.markColour = 0x4b3a3c;
	return q;
}

Species Cow()
{
	return BeastSpecies("cow", 70, CowShape);
}

void AddCow(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Cow,
	         {{"stand", {EyesWide()}, "eyeswide", false},
	          {"chewcud", Chew()},
	          {"moo", Moo()},
	          {"lowerhead", HeadDown()},
	          {"graze", Graze(4)}});
}
