// The monkey: sits, gallops, climbs, falls and throws fits.
#include "art/animals/monkey.h"

#include "art/animals/actions.h"
#include "art/families.h"

static const float SIDE_TURN     = 38;  // degrees; a sitting figure shows its face
static const float RUN_TURN_AWAY = 14;  // runs in a truer side view
static const float FLAIL_TURN    = -28; // to the viewer, so that both arms show
static const int FIT_FRAMES      = 14;
static const int CLIMB_FRAMES = 8, CLIMB_START_FRAMES = 3;
static const float BACK_AWAY = SIDE_TURN + 90; // degrees from sitting to its back

// Where the game puts the pictures, from the corner of the sitting one.
static const Shift AT_SIT   = {0, 0, 0, true};
static const Shift AT_RUN   = {-11, -4, -2, true};
static const Shift AT_FIT   = {-5, -5, -17, true};
static const Shift AT_FALL  = {-6, -9, -8, true};
static const Shift AT_CLIMB = {-5, -11, -14, true};
static const Shift AT_POPUP = {-1, -3, -9, true};

static Biped MonkeyShape()
{
	Biped b;
	b.coat = 0xb06a36, b.belly = 0xf0c898, b.skin = 0xf8d4a8;
	b.torso = 5.8f, b.hip = 4.9f, b.chest = 4.3f, b.headUp = .86f, b.hipHeight = 3.6f;
	b.restTurn = 20, b.headForward = .5f;
	b.arm = 12, b.armRadius = 1.75f, b.leg = 8, b.legRadius = 2.1f, b.hand = 2, b.foot = 2.2f;
	b.tail = BipedTail::Monkey, b.tailSize = .85f;

	Head& h  = b.head;
	h.radius = 8, h.shape = {.95f, .97f, 1}, h.cheeks = 0, h.facePlate = true;
	h.muzzleRoot = 4.4f, h.muzzle = 0xf8d4a4, h.noseColour = 0x4a2a1c;
	h.ear = EarKind::Side, h.earRadius = 2.4f, h.innerEar = 0xf2b48c;
	h.eye  = {2.6f, .86f, .22f, .38f, .60f, 0, 0, .1f};
	h.tuft = 1.5f;
	return b;
}

static void BuildMonkey(Model& model, const View& view, const Pose& pose)
{
	AddBiped(model, MonkeyShape(), view, pose);
}

Species Monkey()
{
	Species s;
	s.prefix   = "monkey";
	s.build    = BuildMonkey;
	s.height   = 27.5f;
	s.canvas   = {-12, -25, 22, 30};
	s.sideTurn = SIDE_TURN;
	s.shadow   = .40f;
	return s;
}

static Poses Running()
{
	Poses list = Walk(8);
	for (Pose& pose : list)
		pose.turnAway = RUN_TURN_AWAY;
	return list;
}

// Two jumps a round: arms and feet in turn, screaming, eyes shut at the landings.
static Poses Fit()
{
	Poses list(FIT_FRAMES);
	for (int i = 0; i < FIT_FRAMES; i++) {
		float t     = (i + 1) / (float)FIT_FRAMES; // the first picture is number 1
		float up    = std::fabs(std::sin(t * 2 * PI));
		Pose& p     = list[i];
		p.turnAway  = FLAIL_TURN;
		p.fit       = t;
		p.rise      = 8 * up;
		p.squash    = up < .35f ? 2.2f * (1 - up / .35f) : -2.2f * up;
		p.mouth     = .55f + .45f * up;
		p.lid       = up < .3f ? 1 : 0;
		p.headTip   = .22f * up;
		p.frown     = 1;
		p.tailSwing = std::sin(t * 4 * PI);
	}
	return list;
}

// Lets go, flails, then 10 to 15: a splash on its seat, a small bounce, sits dazed.
static Poses Falling()
{
	Poses list(16);
	for (int i = 0; i < 10; i++) {
		Pose& p     = list[i];
		p.turnAway  = FLAIL_TURN * Ease((i + 1) / 3.f);
		p.limbsUp   = Ease((i + 1) / 3.f);
		p.fit       = i / 5.f + .01f;
		p.wideEyes  = .4f;
		p.mouth     = .9f;
		p.rise      = 3;
		p.pitch     = .14f * std::sin(i * 2 * PI / 5);
		p.tailRaise = 1;
		p.shadow    = false;
	}
	const float PRESS[]  = {2.5f, 4.6f, 3.4f, .2f, -.6f, .8f};
	const float BOUNCE[] = {0, 0, 0, 2.2f, 1.6f, 0};
	for (int i = 0; i < 6; i++) {
		Pose& p    = list[10 + i];
		p.turnAway = FLAIL_TURN;
		p.limbsUp  = i == 0 ? .7f : i == 1 ? .25f : 0;
		p.squash   = PRESS[i];
		p.rise     = BOUNCE[i];
		p.lid      = i == 1 || i == 2 ? 1 : 0;
		p.wideEyes = i > 2 ? .3f : 0;
		p.mouth    = i < 2 ? .8f : i < 5 ? .3f : .6f;
		p.frown    = i == 5 ? .7f : 0;
	}
	return list;
}

// Turns to the trunk and reaches up, until it shows its back.
static Poses ClimbStart()
{
	Poses list(CLIMB_START_FRAMES);
	for (int i = 0; i < CLIMB_START_FRAMES; i++) {
		float t     = (i + 1) / (CLIMB_START_FRAMES + 1.f);
		Pose& p     = list[i];
		p.turnAway  = BACK_AWAY * Ease(t);
		p.armsUp    = i == 0 ? .5f : 0;
		p.squash    = i == 0 ? 1.5f : 0;
		p.climb     = i == 0 ? -1 : .0f;
		p.shadow    = i < 2;
		p.tailSwing = .5f;
	}
	return list;
}

static Poses Climbing()
{
	Poses list(CLIMB_FRAMES);
	for (int i = 0; i < CLIMB_FRAMES; i++) {
		list[i].heading   = Heading::Back;
		list[i].climb     = i / (float)CLIMB_FRAMES;
		list[i].tailSwing = .5f + .5f * std::sin(2 * PI * i / CLIMB_FRAMES);
		list[i].shadow    = false;
	}
	return list;
}

// Out of the leaves with a stretch, then it sits down.
static Poses PoppingUp()
{
	const float RISE[]  = {-15, -8, 1.5f, 2.5f, .5f, 0};
	const float PRESS[] = {2, 1, -1.6f, -1.2f, 1.2f, 0};
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		list[i].rise     = RISE[i];
		list[i].squash   = PRESS[i];
		list[i].armsUp   = i == 2 || i == 3 ? .55f : i == 1 ? .3f : 0;
		list[i].wideEyes = i < 4 ? .2f : 0;
		list[i].shadow   = false;
	}
	return list;
}

// The back view is one set of pictures for both sides, in the middle of the canvas that the
// climb's own pictures have.
static void DrawClimb(Sink& sink)
{
	Figure figure((Monkey()));
	Window window = figure.WindowOf({"", {}, "", true, 0, AT_CLIMB});
	window.left   = -window.width / 2;
	int number    = 0;
	for (const Pose& pose : Climbing())
		sink.Add("monkey_climbcommon" + std::to_string(number++) + ".png",
		         figure.Draw(pose, window));
}

// On each side of the body it looks to the left and to the right of the picture; what is right for
// one facing is left for the other.
static void DrawLooks(Sink& sink)
{
	const float TO_VIEWER = 1.55f, AWAY = -1.0f;
	Figure figure((Monkey()));
	Window window = figure.WindowOf({"", {}, "", true, 0, AT_SIT});
	for (bool left : {true, false})
		for (bool lookLeft : {true, false}) {
			std::string stem = std::string("monkey_look") + (left ? "left" : "right") +
			                   (lookLeft ? "left" : "right");
			int number = 0;
			for (Pose pose : Look(4, lookLeft == left ? AWAY : TO_VIEWER)) {
				pose.left = left;
				sink.Add(stem + std::to_string(number++) + ".png",
				         figure.Draw(pose, left ? window : Mirrored(window)));
			}
		}
}

static void DrawCaptured(Sink& sink)
{
	Figure figure((Monkey()));
	for (bool left : {true, false}) {
		Pose pose   = Captured();
		pose.left   = left;
		pose.look   = .2f;
		pose.armsUp = .45f;
		sink.Add(left ? "monkeycapturedleft.png" : "monkeycapturedright.png",
		         figure.DrawAlone(pose));
	}
}

void AddMonkey(Catalogue& catalogue)
{
	AddSequences(catalogue, __FILE__, Monkey,
	             {{"_sit", {Pose()}, "", false, 0, AT_SIT},
	              {"_sit", {Blinking()}, "blink", false, 0, AT_SIT},
	              {"_run", Running(), "", true, 0, AT_RUN},
	              {"_throwfit", Fit(), "", true, 1, AT_FIT},
	              {"_fall", Falling(), "", true, 0, AT_FALL},
	              {"_climb", ClimbStart(), "", true, 0, AT_CLIMB},
	              {"_popup", PoppingUp(), "", true, 0, AT_POPUP}});
	catalogue.Add("animals monkey look", __FILE__, DrawLooks);
	catalogue.Add("animals monkey climb common", __FILE__, DrawClimb);
	catalogue.Add("animals monkey captured", __FILE__, DrawCaptured);
}
