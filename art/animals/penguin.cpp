// The penguin.
#include "art/animals/actions.h"
#include "art/animals/bird_pictures.h"
#include "art/animals/fowl.h"
#include "art/families.h"

static const float SWAY = .16f; // radians of a waddle

static Bird PenguinShape()
{
	Bird b;
	b.bodyLength = 10, b.bodyRadius = 8, b.tilt = 1.42f, b.headRadius = 6.7f;
	b.neckForward = .4f, b.neckUp = 3.8f, b.legLength = 1.4f, b.legRadius = 1.3f, b.webbed = true;
	b.beakLength = 4, b.beakRadius = 1.9f, b.tailLength = 2;
	b.flippers = true, b.wingLength = 9, b.wingWidth = 3.2f;
	b.eye  = {2.2f, .70f, .22f, .50f, .55f, 0, 0, .45f};
	b.body = b.wing = b.head = 0x3a4662, b.wingTip = 0x2c3550, b.belly = 0xfcfcf8;
	b.bellyLine = .30f, b.face = 0xfdf6ea, b.lid = 0x66779c, b.beak = b.leg = 0xf4a22c;
	return b;
}

// Water that flies off. phase: 0..1, from the feathers outward and down.
static void AddDrops(Model& model, float phase)
{
	const int DROPS = 10;
	int water       = model.Plain(0xc4e8ff, .9f);
	for (int i = 0; i < DROPS; i++) {
		float own = std::fmod(phase + Hash01(i, 4, 3), 1.f), a = i * 2.39996f;
		float out = 9 + 8 * own, y = 6 + 15 * Hash01(i, 6, 3) + 5 * own - 13 * own * own;
		Vec3 at = {std::cos(a) * out, std::max(y, 7.f), std::sin(a) * out};
		model.Ball(at, 1.15f - .45f * own, water, 0);
	}
}

static void BuildPenguin(Model& model, const View& view, const Pose& pose)
{
	const float REST = .17f; // flippers stand off a little
	Pose own         = pose;
	own.armsUp       = std::max(own.armsUp, REST);
	AddBird(model, PenguinShape(), view, own);
	if (pose.fit > 0)
		AddDrops(model, pose.fit);
}

Species Penguin()
{
	Species s;
	s.prefix   = "penguin";
	s.build    = BuildPenguin;
	s.height   = 34;
	s.sideTurn = 34;
	s.shadow   = .42f;
	return s;
}

// Flings its flippers up and totters.
static Poses Totter()
{
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		float t = Part(i, 6), a = std::sin(t * PI);
		Pose& p     = list[i];
		p.squash    = i == 0 ? .6f : 0;
		p.neckReach = i == 0 ? -.5f : 0;
		p.armsUp    = i ? a * (.8f + .2f * std::cos(i * PI)) : 0;
		p.mouth     = i > 0 && i < 4 ? .9f : 0;
		p.turnAway  = -24 * a; // both flippers show
		p.wideEyes  = .35f * a;
		p.rise      = 2.6f * a;
		p.sway      = .22f * std::sin(t * 3 * PI) * (1 - .6f * t);
		p.headTip   = .2f * a;
	}
	return list;
}

// Shakes the water off from head to tail.
static Poses ShakeOff()
{
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		float t = Part(i, 8), a = std::sin(t * PI), shake = i % 2 ? 1 : -1;
		Pose& p     = list[i];
		p.armsUp    = .45f * a;
		p.ruffle    = .4f * a;
		p.sway      = .13f * a * shake;
		p.look      = .55f * a * -shake;
		p.tailSwing = a * shake;
		p.squash    = .8f * a;
		p.lid       = i > 1 && i < 6 ? 1 : 0;
		p.fit       = i > 0 && i < 7 ? t : 0;
	}
	return list;
}

void AddPenguin(Catalogue& catalogue)
{
	AddBirdPictures(catalogue, __FILE__, Penguin,
	                {{"stand", {Blinking()}, "blink", false},
	                 {"look", Look(5)},
	                 {"stunned", Totter()},
	                 {"shake", ShakeOff()},
	                 {"walkup", Waddle(8, Heading::Up, SWAY)},
	                 {"walkdown", Waddle(8, Heading::Down, SWAY)}});
}
