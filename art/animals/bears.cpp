// Bear, polar bear and panda.
#include "art/animals/beast.h"
#include "art/animals/beast_actions.h"
#include "art/animals/beasts.h"
#include "art/families.h"

static const float LYING_PITCH = 2.7f; // radians that a panda is tipped over, nose up
static const float LYING_LIFT  = 2;    // length that keeps its back out of the ground

static Quadruped BearShape()
{
	Quadruped q;
	q.length = 17, q.shoulderHeight = 17.5f, q.hipHeight = 17;
	q.chest = 7.8f, q.hip = 7.4f, q.belly = 8.2f, q.spread = 4.2f, q.shoulderHump = 1.5f;
	q.thigh = 3.9f, q.shin = 3.3f, q.paw = 3.3f, q.step = 8.5f, q.stance = .40f;
	q.neckForward = 4.5f, q.neckUp = 4.5f, q.neckRadius = 6.4f;
	q.coat.base = 0xb8743e, q.coat.belly = 0xdca76e, q.legs = 0xa06232;

	Head& h  = q.head;
	h.radius = 9.2f, h.shape = {.96f, .95f, 1.08f};
	h.muzzleLength = 2.8f, h.muzzleRoot = 4.0f, h.muzzleTip = 3.2f, h.muzzleDrop = -2.9f;
	h.nose = 1.9f, h.earRadius = 3.2f;
	h.eye    = {2.6f, .72f, .30f, .45f, .64f};
	h.muzzle = 0xe2b680, h.innerEar = 0xe0ae84;
	return q;
}

// Long neck, small head and ears, high rump: the build tells it from the bear, not only the colour.
static Quadruped PolarBearShape()
{
	Quadruped q = BearShape();
	q.length = 21, q.shoulderHeight = 19.5f, q.hipHeight = 20, q.shoulderHump = 0;
	q.chest = 8.6f, q.hip = 9.6f, q.belly = 9.6f;
	q.thigh = 4.6f, q.shin = 3.9f, q.paw = 4.2f, q.step = 8.9f, q.stance = .42f;
	q.neckForward = 8, q.neckUp = 4.4f, q.neckRadius = 5.8f;
	q.coat.base = 0xfbf9f0, q.coat.belly = 0xdde2ee, q.legs = 0xf0eee4, q.feet = 0xe4e6ea;

	Head& h  = q.head;
	h.radius = 8.6f, h.shape = {1.05f, .92f, 1.0f};
	h.muzzleLength = 4.2f, h.muzzleRoot = 3.9f, h.muzzleTip = 2.9f, h.earRadius = 2.4f;
	h.muzzle = 0xf6f0e2, h.innerEar = 0xd8c0b8;
	return q;
}

static Quadruped PandaShape()
{
	const uint32_t BLACK = 0x2c2a34;
	Quadruped q          = BearShape();
	q.length = 15, q.shoulderHump = 0, q.belly = 8.8f, q.step = 7.9f, q.stance = .48f;
	q.coat = {CoatKind::Bands, 0xfaf8f2, 0xe0dcd8, BLACK}, q.coat.threshold = 3.2f;
	q.legs = q.feet = BLACK;

	Head& h  = q.head;
	h.radius = 9.8f, h.shape = {.95f, .95f, 1.12f}, h.coat = 0xfaf8f2;
	h.muzzleLength = 2.2f, h.muzzle = 0xf6f2ea, h.mark = FaceMark::PandaEyes;
	h.earColour = h.innerEar = BLACK, h.eye.radius = 2.4f;
	return q;
}

Species Bear()
{
	return BeastSpecies("bear", 50, BearShape);
}

Species PolarBear()
{
	return BeastSpecies("polarbear", 62, PolarBearShape);
}

Species Panda()
{
	return BeastSpecies("panda", 46, PandaShape);
}

static Pose RearedBlink()
{
	Pose p = RearUp().back();
	p.lid  = 1;
	return p;
}

static std::vector<Sequence> OfBears()
{
	return {{"walk", Walk(14)},
	        {"rearup", RearUp()},
	        {"rearup", {RearedBlink()}, "blink", false},
	        {"growl", Growl()}};
}

// On its back, legs in the air, chin on its chest.
static Pose OnItsBack()
{
	Pose p;
	p.pitch     = LYING_PITCH;
	p.headLevel = 1;
	p.headTip   = .45f;
	p.lift      = LYING_LIFT;
	p.look      = 1.0f;
	return p;
}

// Sits down, falls over backward and rocks until it lies.
static Poses RollOver()
{
	const float WAY[]   = {0, .08f, .24f, .44f, .66f, .88f, 1.04f, 1.08f, 1.05f, .96f, .95f, 1};
	const float FLING[] = {0, 0, .15f, .35f, .5f, .6f, .5f, .3f, .15f, 0, 0, 0};
	Poses list(12);
	for (int i = 0; i < 12; i++) {
		Pose& p           = list[i];
		const Pose onBack = OnItsBack();
		p.squash          = i == 0 ? 2.4f : 0;
		p.pitch           = onBack.pitch * WAY[i];
		p.headLevel       = Smoothstep(.1f, .7f, WAY[i]);
		p.headTip         = onBack.headTip * std::min(1.f, WAY[i]);
		p.lift     = onBack.lift * std::min(1.f, WAY[i] * 1.8f) + 24 * std::max(0.f, WAY[i] - 1);
		p.look     = onBack.look * WAY[i];
		p.limbsUp  = FLING[i];
		p.wideEyes = i > 0 && i < 8 ? .3f : 0;
		p.mouth    = i > 1 && i < 8 ? .5f : 0;
	}
	return list;
}

static Poses LookLying()
{
	Poses list = Look(5);
	for (Pose& p : list) {
		float look = p.look;
		p          = OnItsBack();
		p.look += .6f * look - .5f;
	}
	return list;
}

static Poses Pedal()
{
	const int COUNT = 8;
	Poses list(COUNT, OnItsBack());
	for (int i = 0; i < COUNT; i++) {
		float beat         = std::sin(2 * PI * i / COUNT);
		list[i].stride     = i / (float)COUNT;
		list[i].strideSize = .8f;
		list[i].pitch += .05f * beat;
		list[i].mouth = .35f;
	}
	return list;
}

void AddBears(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Bear, OfBears());
	AddBeast(catalogue, __FILE__, PolarBear, OfBears());
	AddBeast(catalogue, __FILE__, Panda,
	         {{"walk", Walk(12)},
	          {"roll", RollOver()},
	          {"rolllook", LookLying()},
	          {"rollpedal", Pedal()}});
}
