// The flamingo, on one leg and on two.
#include "art/animals/actions.h"
#include "art/animals/bird_pictures.h"
#include "art/animals/fowl.h"
#include "art/families.h"

static Bird FlamingoShape()
{
	Bird b;
	b.bodyLength = 9, b.bodyRadius = 6.2f, b.tilt = .15f, b.headRadius = 4.8f;
	b.longNeck = true, b.neckForward = 4.5f, b.neckUp = 15.5f, b.neckRadius = 1.7f;
	b.neckCurve = 6.5f, b.legLength = 17, b.legRadius = 1.0f;
	b.beakKind = BeakKind::Bent, b.beakLength = 5.6f, b.beakRadius = 1.9f;
	b.tailLength = 3, b.wingLength = 8.4f, b.wingWidth = 4.4f;
	b.eye  = {2.0f, .62f, .30f, .60f, .55f, 0, 0, .5f};
	b.body = 0xfa94ac, b.belly = 0xfdb8c8, b.wing = 0xf26a8a, b.wingTip = 0xd84a6c;
	b.head = b.neck = 0xfca6ba, b.beak = 0xffd9b8, b.beakEnd = 0x3a3038, b.leg = 0xf2708c;
	b.tail = 0xf0708c;
	return b;
}

static void BuildFlamingo(Model& model, const View& view, const Pose& pose)
{
	Pose own = pose;
	if (view.left && own.stride >= 0) // the far foot is the one that stands before
		own.stride += .5f;
	AddBird(model, FlamingoShape(), view, own);
}

static Pose OnOneLeg(Pose pose = Pose())
{
	pose.raisePaw = 1;
	return pose;
}

static Pose OnTwoLegs(Pose pose = Pose())
{
	pose.stride     = .02f; // one foot a little before the other
	pose.strideSize = .5f;
	return pose;
}

Species Flamingo()
{
	Species s;
	s.prefix   = "flamingo";
	s.build    = BuildFlamingo;
	s.height   = 50;
	s.sideTurn = 26;
	s.shadow   = .3f;
	s.rest     = OnOneLeg();
	return s;
}

static Poses OnOneLeg(Poses list)
{
	for (Pose& p : list)
		p = OnOneLeg(p);
	return list;
}

static Poses OnTwoLegs(Poses list)
{
	for (Pose& p : list)
		p = OnTwoLegs(p);
	return list;
}

// Drops with bent knees, then jerks its neck up with its wings half open.
static Poses Startled()
{
	Poses list(7);
	for (int i = 0; i < 7; i++) {
		float t = Part(i, 7), a = std::sin(t * PI);
		Pose& p     = list[i];
		p.squash    = i == 0 ? 2.6f : 0;
		p.neckReach = i == 0 ? -.8f : 1.1f * a;
		p.armsUp    = i > 0 && i < 6 ? .68f + .3f * std::cos(i * PI) : 0;
		p.mouth     = i > 0 && i < 5 ? 1 : 0;
		p.wideEyes  = .35f * a;
		p.ruffle    = .4f * a;
		p.sway      = .04f * std::sin(t * 3 * PI) * (1 - t);
	}
	return list;
}

// Lets the drawn-up leg down, and leans over to share its weight.
static Poses ChangeOfFoot()
{
	Poses list = OnTwoLegs(Poses(8));
	for (int i = 0; i < 8; i++) {
		float t = Part(i, 8), a = std::sin(t * PI);
		Pose& p = list[i];
		p.strideSize *= t;
		p.raisePaw  = 1 - Ease(t);
		p.sway      = .05f * a;
		p.neckReach = -.5f * a;
		p.headTip   = -.25f * a;
		p.look      = .4f * a;
		p.tailSwing = std::sin(t * 4 * PI) * a;
	}
	return list;
}

void AddFlamingo(Catalogue& catalogue)
{
	AddBirdPictures(catalogue, __FILE__, Flamingo,
	                {{"look", OnOneLeg(Look(5))},
	                 {"stunned", OnOneLeg(Startled())},
	                 {"changefoot", ChangeOfFoot()},
	                 {"standtwo", {OnTwoLegs()}, "", false},
	                 {"looktwo", OnTwoLegs(Look(5))},
	                 {"stunnedtwo", OnTwoLegs(Startled())}});
}
