// Elephant, hippo and rhino.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static Quadruped ElephantShape()
{
	Quadruped q;
	q.length = 25, q.shoulderHeight = 24, q.hipHeight = 23;
	q.chest = 13, q.hip = 12.5f, q.belly = 13.5f, q.spread = 6;
	q.thigh = 5.2f, q.shin = 4.8f, q.paw = 5, q.pawStretch = 1;
	q.neckForward = 5, q.neckUp = 5, q.neckRadius = 10;
	q.tail = TailKind::Rope, q.tailLength = 12, q.tailRadius = 1.2f, q.maneColour = 0x5a6074;
	q.coat.base = 0xa2acc2, q.coat.belly = 0x8c96ae, q.legs = 0x98a2ba, q.feet = 0xd8d4d8;

	Head& h  = q.head;
	h.radius = 11.6f, h.trunk = true, h.tusk = 6, h.ear = EarKind::Fan, h.blush = .35f;
	h.eye      = {3.2f, .78f, .25f, .48f, .62f};
	h.innerEar = 0xe4b0ba, h.horns = 0xfff8e8;
	return q;
}

// Eyes on bulges on top of the skull, clear of the huge muzzle.
static Quadruped HippoShape()
{
	Quadruped q;
	q.length = 25, q.shoulderHeight = q.hipHeight = 18;
	q.chest = 12, q.hip = 12, q.belly = 12.6f, q.spread = 6;
	q.thigh = 4.4f, q.shin = 4, q.paw = 4.2f, q.pawStretch = 1;
	q.neckForward = 7.5f, q.neckUp = 4.5f, q.neckRadius = 9, q.tailRadius = 1.5f;
	q.coat.base = 0x7c6a9c, q.coat.belly = 0xc48a9c, q.coat.gloss = .30f, q.legs = 0x6a5a88;

	Head& h  = q.head;
	h.radius = 9.6f, h.shape = {1.0f, .92f, 1}, h.cheeks = 0;
	h.muzzleLength = 5.6f, h.muzzleRoot = 4.8f, h.muzzleTip = 5.4f, h.muzzleWide = 3.2f;
	h.muzzleDrop = -4.6f, h.nose = 1.3f, h.earRadius = 2.4f, h.earUp = .95f, h.earAside = .62f;
	h.eye    = {3.2f, .62f, .66f, .50f, .62f, 0, .40f};
	h.teeth  = 3.4f;
	h.muzzle = 0xb888a8, h.noseColour = 0x3a2840, h.innerEar = 0xe0a8b0;
	return q;
}

static Quadruped RhinoShape()
{
	Quadruped q = HippoShape();
	q.armour = true, q.length = 26, q.shoulderHeight = 19, q.shoulderHump = 2;
	q.neckForward = 10, q.neckUp = 1, q.headPitch = -8;
	q.coat.base = 0x969ca8, q.coat.belly = 0x7c828e, q.coat.gloss = .12f, q.legs = 0x868c98;
	q.tail = TailKind::Rope, q.tailLength = 8, q.tailRadius = 1, q.maneColour = 0x4a4c54;

	Head& h  = q.head;
	h.radius = 8.8f, h.shape = {1.12f, .95f, .95f}, h.muzzleWide = 0, h.nose = 0;
	h.muzzleLength = 7, h.muzzleRoot = 4.6f, h.muzzleTip = 4.4f, h.muzzleDrop = -3.4f;
	h.horn = HornKind::Rhino, h.hornLength = 14, h.horns = 0xfaf0dc;
	h.ear = EarKind::Tube, h.earRadius = 2, h.earLength = 3.2f;
	h.eye    = {2.9f, .62f, .42f, .66f, .62f};
	h.muzzle = 0xacb0b8;
	return q;
}

// Drawn up, or the largest bubble would be too small.
static void BuildElephant(Model& model, const View& view, const Pose& pose)
{
	Quadruped q = ElephantShape();
	q.length -= 4.5f * pose.tuck;
	AddQuadruped(model, q, view, pose);
}

Species Elephant()
{
	Species s = BeastSpecies("elephant", 90, ElephantShape);
	s.build   = BuildElephant;
	return s;
}

Species Hippo()
{
	return BeastSpecies("hippo", 70, HippoShape);
}

Species Rhino()
{
	return BeastSpecies("rhino", 76, RhinoShape);
}

void AddGiants(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Elephant, {{"trumpet", Trumpet()}, {"ears", FlapEars()}});
	AddBeast(catalogue, __FILE__, Hippo, {{"openmouth", Yawn()}, {"lowerhead", Doze()}});
	AddBeast(catalogue, __FILE__, Rhino, {{"stunned", TossHorn()}, {"lowerhead", LowerHorn()}});
}
