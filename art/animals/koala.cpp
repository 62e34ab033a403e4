// The koala: sits, plods on all fours, clings to trunks and drops out of trees.
#include "art/animals/actions.h"
#include "art/animals/beast.h"
#include "art/animals/biped.h"
#include "art/animals/hoppers.h"
#include "art/families.h"

static const uint32_t GREY = 0xa6acba, PALE = 0xf8f8fa, DARK = 0x5e6272;
static const float FLAIL_TURN = -20; // to the viewer, so that both arms show
static const int FALL_FRAMES = 2, LAND_FRAMES = 4;

// A broad head with a spoon of a nose between shaggy ears.
static Head KoalaHead()
{
	Head h;
	h.radius = 9.2f, h.shape = {.92f, .90f, 1.12f}, h.cheeks = .50f;
	h.muzzleLength = .2f, h.muzzleRoot = 3.2f, h.muzzleTip = 2.4f, h.muzzleDrop = -2.6f;
	h.muzzle = 0xe4e4e8, h.nose = 2.5f, h.noseColour = 0x34303a;
	h.ear = EarKind::Round, h.earRadius = 5.2f, h.earUp = .58f, h.earAside = 1.16f;
	h.innerEar = 0xf8e6e6, h.earColour = 0xc4c8d4, h.eye = {3.1f, .80f, .26f, .48f, .66f};
	return h;
}

static Biped SittingShape()
{
	Biped b;
	b.torso = 6.2f, b.hip = 6.4f, b.chest = 5, b.headUp = .74f, b.restTurn = 14;
	b.arm = 10, b.armRadius = 2.3f, b.leg = 7, b.legRadius = 2.9f;
	b.hand = 2.2f, b.foot = 2.5f, b.handForward = 6.6f, b.handHeight = 2.6f;
	b.climbHand = {1.5f, 2.6f, 7.6f}, b.climbFoot = {2.2f, -3.2f, 5.6f};
	b.coat = GREY, b.belly = PALE, b.rump = 0xd4d6de, b.skin = DARK, b.head = KoalaHead();
	return b;
}

static Quadruped WalkingShape()
{
	Quadruped q;
	q.length = 9, q.shoulderHeight = 12, q.hipHeight = 12.5f, q.chest = 5.6f, q.hip = 6.6f;
	q.belly = 6.6f, q.thigh = 3, q.shin = 2.4f, q.paw = 2.5f, q.spread = 3.6f;
	q.neckForward = 3, q.neckUp = 3.6f, q.neckRadius = 5, q.tail = TailKind::None;
	q.coat.base = GREY, q.coat.belly = PALE, q.feet = DARK, q.head = KoalaHead();
	return q;
}

static void BuildKoala(Model& model, const View& view, const Pose& pose)
{
	if (pose.stride >= 0)
		AddQuadruped(model, WalkingShape(), view, pose);
	else
		AddBiped(model, SittingShape(), view, pose);
}

Species Koala()
{
	Species s;
	s.prefix   = "koala";
	s.build    = BuildKoala;
	s.height   = 34;
	s.sideTurn = 34;
	s.shadow   = .40f;
	return s;
}

// Rolls back on its seat with its arms up, then rubs off the fright.
static Poses Reel()
{
	const float LEAN[] = {0, .20f, .34f, .24f, -.06f, -.04f, 0};
	Poses list         = Stagger(7);
	for (int i = 0; i < 7; i++) {
		list[i].pitch  = LEAN[i];
		list[i].armsUp = Clamp01(LEAN[i] * 3);
		list[i].mouth  = i > 0 && i < 4 ? .5f : 0;
		list[i].lid    = i == 4 || i == 5 ? 1 : 0;
	}
	return list;
}

// On its back through the air, then down on its seat.
static Poses Falling()
{
	const float PRESS[LAND_FRAMES] = {3, 4.6f, 2, 0};
	Poses list(FALL_FRAMES + LAND_FRAMES);
	for (int i = 0; i < FALL_FRAMES; i++) {
		Pose& p    = list[i];
		p.turnAway = FLAIL_TURN;
		p.limbsUp  = 1;
		p.fit      = .13f + .25f * i;
		p.wideEyes = .4f;
		p.mouth    = .9f;
		p.rise     = 4;
		p.pitch    = i ? .30f : .16f;
		p.shadow   = false;
	}
	for (int i = 0; i < LAND_FRAMES; i++) {
		Pose& p    = list[FALL_FRAMES + i];
		p.turnAway = FLAIL_TURN * (1 - Ease(Part(i, LAND_FRAMES)));
		p.limbsUp  = i == 0 ? .7f : i == 1 ? .3f : 0;
		p.squash   = PRESS[i];
		p.lid      = i == 1 || i == 2 ? 1 : 0;
		p.mouth    = i == 0 ? .8f : 0;
		p.wideEyes = i == 3 ? .25f : 0;
	}
	return list;
}

// Its back to the viewer, hugging the trunk, an arm and the other leg at a time.
static Poses Climbing()
{
	const int COUNT = 8;
	Poses list(COUNT);
	for (int i = 0; i < COUNT; i++) {
		list[i].heading = Heading::Back;
		list[i].climb   = i / (float)COUNT;
		list[i].look    = .3f;
		list[i].shadow  = false;
	}
	return list;
}

void AddKoala(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Koala,
	         {{"walk", Walk(8)}, {"stunned", Reel()}, {"fall", Falling()}, {"climb", Climbing()}});
}
