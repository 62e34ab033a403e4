// Goose and swan.
#include "art/animals/bird_pictures.h"
#include "art/animals/fowl.h"
#include "art/animals/fowl_actions.h"
#include "art/families.h"

static const float GOOSE_SWAY = .12f, SWAN_SWAY = .09f; // radians of a waddle

static Bird SwanShape()
{
	Bird b;
	b.bodyLength = 12.5f, b.bodyRadius = 7.4f, b.tilt = .06f, b.headRadius = 4.7f;
	b.longNeck = true, b.neckForward = 3.4f, b.neckUp = 18, b.neckRadius = 1.9f, b.neckCurve = 9.5f;
	b.legLength = 2.6f, b.legRadius = 1.1f, b.webbed = true;
	b.beakKind = BeakKind::Flat, b.beakLength = 4.2f, b.beakRadius = 1.9f;
	b.tailLength = 6, b.tailUp = 3.6f, b.tailWidth = 2.2f, b.tailThick = .3f;
	b.wingLength = 12, b.wingWidth = 5.6f, b.span = 10.5f, b.chord = 6.4f;
	b.eye  = {1.9f, .62f, .30f, .60f, .55f, 0, 0, .5f};
	b.body = b.head = b.neck = 0xffffff, b.belly = 0xe8ecf6, b.wing = 0xfbfcff;
	b.wingTip = 0xdde4f0, b.tail = 0xf0f4fa;
	b.beak = 0xf28a2a, b.leg = 0x4c4a54, b.knob = 1.25f, b.knobColour = 0x3a3440;
	return b;
}

// A long black neck with a white chin, on a brown body.
static Bird GooseShape()
{
	Bird b       = SwanShape();
	b.bodyLength = 11.6f, b.bodyRadius = 7.4f;
	b.tilt = .16f, b.headRadius = 4.8f, b.eye.radius = 2.05f, b.tailUp = 2.6f, b.legLength = 3.2f;
	b.neckCurve = 1.4f, b.neckForward = 3.4f, b.neckUp = 13, b.neckRadius = 2.3f;
	b.body = 0xb0967a, b.belly = 0xf0e4d0, b.bellyLine = .42f;
	b.wing = 0x8e7458, b.wingTip = 0x5c4838, b.tail = 0x4a3c38;
	b.head = b.neck = 0x3a3844, b.face = 0xfaf6ee, b.faceBack = .38f;
	b.beak = 0x6e6670, b.beakLength = 4.8f, b.beakRadius = 2.1f, b.leg = 0x5e5862;
	b.knob = 0;
	return b;
}

static void BuildSwan(Model& model, const View& view, const Pose& pose)
{
	AddBird(model, SwanShape(), view, pose);
}

static void BuildGoose(Model& model, const View& view, const Pose& pose)
{
	AddBird(model, GooseShape(), view, pose);
}

Species Swan()
{
	Species s;
	s.prefix   = "swan";
	s.build    = BuildSwan;
	s.width    = 40;
	s.sideTurn = 26;
	return s;
}

Species Goose()
{
	Species s;
	s.prefix   = "goose";
	s.build    = BuildGoose;
	s.width    = 37;
	s.sideTurn = 26;
	return s;
}

void AddGeese(Catalogue& catalogue)
{
	AddBirdPictures(catalogue, __FILE__, Goose,
	                {{"look", Look(5)},
	                 {"honkflap", HonkAndFlap(8, .45f)},
	                 {"walk", Waddle(8, Heading::Side, GOOSE_SWAY)},
	                 {"adjustwings", AdjustWings(8, .62f)},
	                 {"headbob", MoveHead(4, 1.6f)}});
	AddBirdPictures(catalogue, __FILE__, Swan,
	                {{"look", Look(5)},
	                 {"honkflap", HonkAndFlap(8, .1f)},
	                 {"walk", Waddle(8, Heading::Side, SWAN_SWAY)},
	                 {"adjustwings", AdjustWings(8, .62f)},
	                 {"headbob", MoveHead(4, 1.6f)}});
}
