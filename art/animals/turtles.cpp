// The turtle and the tortoise.
#include "art/animals/actions.h"
#include "art/animals/crawlers.h"
#include "art/animals/shell.h"
#include "art/families.h"

static const int WALK_FRAMES = 13, HIDE_FRAMES = 9, EMERGE_FRAMES = 3;

static Shell TurtleShape()
{
	Shell s;
	s.length = 10.5f, s.width = 9, s.dome = 7.6f, s.height = 4.4f;
	s.headRadius = 5.6f, s.neckForward = 3.4f, s.neckUp = 3.6f;
	s.legRadius = 2.5f, s.legSpread = .86f, s.flippers = true;
	s.skin = 0xd6e070, s.shell = 0x2c9a74, s.seam = 0x17564e, s.edge = 0xf2e494;
	s.freckle = 0x7cae58;
	s.eye     = {2.05f, .66f, .34f, .52f, .58f, 0, 0, .3f};
	return s;
}

static Shell TortoiseShape()
{
	Shell s;
	s.length = 19, s.width = 16, s.dome = 17, s.height = 9, s.knobs = true;
	s.headRadius = 7.4f, s.neckForward = 5.5f, s.neckUp = 5.2f;
	s.legRadius = 5.2f, s.legSpread = .80f;
	s.skin = 0xb9ab78, s.shell = 0xb57c38, s.seam = 0x64401f, s.edge = 0xe2c078;
	s.belly = 0xe8d49a, s.freckle = 0x938456;
	s.eye = {2.5f, .66f, .34f, .54f, .60f, 0, 0, .3f};
	return s;
}

static void BuildTurtle(Model& model, const View& view, const Pose& pose)
{
	AddShell(model, TurtleShape(), view, pose);
}

static void BuildTortoise(Model& model, const View& view, const Pose& pose)
{
	AddShell(model, TortoiseShape(), view, pose);
}

Species Turtle()
{
	Species s;
	s.prefix = "turtle";
	s.build  = BuildTurtle;
	s.width  = 25;
	return s;
}

Species Tortoise()
{
	Species s;
	s.prefix = "tortoise";
	s.build  = BuildTortoise;
	s.width  = 54;
	return s;
}

static Pose Withdrawn(float head, float legs)
{
	Pose p;
	p.neckReach = -head;
	p.tuck      = legs;
	return p;
}

// Winces, pulls everything in, drops on its belly and rocks there; then, 9 to 11, a peek, the legs
// and the whole head come out again.
static Poses HideAndEmerge(float weight)
{
	const float HEAD[] = {.25f, .65f, 1, 1, 1, 1, 1, 1, 1};
	const float LEGS[] = {0, .25f, .6f, 1, 1, 1, 1, 1, 1};
	const float ROCK[] = {0, 0, 0, .10f, -.13f, .10f, -.07f, .03f, 0};
	Poses list;
	for (int i = 0; i < HIDE_FRAMES; i++) {
		Pose p     = Withdrawn(HEAD[i], LEGS[i]);
		p.squash   = (i == 0 ? 1.6f : i == 3 ? 2.2f : i == 4 ? .8f : 0) * weight;
		p.wideEyes = i < 2 ? .35f : 0;
		p.lid      = i == 2 ? 1 : 0;
		p.pitch    = ROCK[i] * .7f;
		p.sway     = ROCK[i];
		list.push_back(p);
	}
	const float OUT[] = {.62f, .3f, .08f}, FEET[] = {.9f, .5f, .15f};
	for (int i = 0; i < EMERGE_FRAMES; i++) {
		Pose p     = Withdrawn(OUT[i], FEET[i]);
		p.look     = i == 0 ? .5f : i == 1 ? .35f : .1f;
		p.wideEyes = i < 2 ? .2f : 0;
		list.push_back(p);
	}
	return list;
}

// Paddles in the air of the bubble.
static Pose Paddling(float phase)
{
	Pose p       = Captured();
	p.tuck       = 0;
	p.stride     = phase;
	p.strideSize = 1.3f;
	p.neckReach  = .3f;
	p.mouth      = .3f;
	return p;
}

static void DrawCapturedTurtle(Sink& sink)
{
	Figure figure((Turtle()));
	for (bool left : {true, false}) {
		Pose pose = Paddling(.62f);
		pose.left = left;
		sink.Add(left ? "turtlecapturedA.png" : "turtlecapturedB.png", figure.DrawAlone(pose));
	}
}

void AddTurtles(Catalogue& catalogue)
{
	AddSequences(catalogue, __FILE__, Turtle,
	             {{"stand", {Pose()}, "", false},
	              {"stunned", HideAndEmerge(1)},
	              {"walk", Walk(WALK_FRAMES)}});
	catalogue.Add("animals turtle captured", __FILE__, DrawCapturedTurtle);
	AddSequences(catalogue, __FILE__, Tortoise,
	             {{"stand", {Pose()}, "", false},
	              {"stand", {Blinking()}, "blink", false},
	              {"look", Look(5)},
	              {"stunned", HideAndEmerge(2)},
	              {"walk", Walk(WALK_FRAMES)}});
	AddBubbleViews(catalogue, __FILE__, Tortoise, Paddling(.62f));
}
