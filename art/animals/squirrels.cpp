// Squirrel and chipmunk.
#include "art/animals/actions.h"
#include "art/animals/beast.h"
#include "art/animals/hoppers.h"
#include "art/families.h"

static const int FALL_FRAMES = 2, LAND_FRAMES = 4;

// Sits up, with the tail in an S behind its back.
static Hopper SquirrelShape()
{
	Hopper q;
	q.stand = {-2.2f, 5.6f, 58, 1, -4.5f, 0, 2.2f, 0, 5.2f, 9.4f, 0, 1, 0};
	q.gait = SCURRY, q.gaitWide = .82f, q.gaitHigh = .85f;
	q.torso = 7.2f, q.hipRadius = 4.9f, q.chestRadius = 3.7f, q.arch = .3f;
	q.thigh = 3.2f, q.shank = 1.6f, q.leg = 9, q.hindSpread = 3.2f;
	q.footRadius = 1.25f, q.armRadius = 1.2f, q.arm = 7, q.foreSpread = 2;
	q.headForward = 2.4f, q.headUp = 5.2f, q.neckRadius = 2.8f;
	q.tail = HopperTail::Bush, q.tailLength = 15, q.tailRadius = 3.7f, q.tailTip = 0xf0a868;
	q.coat = 0xc8622a, q.belly = 0xfdf2e0, q.feet = 0x9a4a22;

	Head& h  = q.head;
	h.radius = 5.3f, h.cheeks = .50f;
	h.muzzleLength = 1.5f, h.muzzleRoot = 2.3f, h.muzzleTip = 1.5f, h.muzzleDrop = -1.2f;
	h.muzzle = 0xfaead0, h.nose = 1.05f, h.mouthLine = false;
	h.ear = EarKind::Point, h.earRadius = 1.6f, h.earLength = 3.4f, h.innerEar = 0xf0b890;
	h.eye = {2.1f, .72f, .28f, .50f, .58f};
	return q;
}

// Low on all fours, cheeks full, striped from nose to tail.
static Hopper ChipmunkShape()
{
	Hopper q   = SquirrelShape();
	q.stand    = {-3.6f, 5.4f, 16, 1, -5.5f, 0, .5f, 0, 4.8f, 0, 0, .6f, 0};
	q.gaitWide = .72f, q.gaitHigh = .72f;
	q.torso = 7, q.hipRadius = 4.7f, q.chestRadius = 3.9f, q.arch = .8f, q.arm = 5.5f;
	q.thigh = 2.7f, q.leg = 8, q.headForward = 3.6f, q.headUp = 4.2f, q.neckRadius = 3.2f;
	q.tailLength = 9, q.tailRadius = 1.9f, q.tailTip = 0x6a3c1e, q.tailColour = 0xa06a34;
	q.flankStripes = true, q.coat = 0xcf9048, q.belly = 0xfdf2e0, q.feet = 0x8e5a2e;

	Head& h  = q.head;
	h.radius = 5.6f, h.cheeks = .64f, h.mark = FaceMark::CheekStripe, h.markColour = 0xfdf2e0;
	h.ear = EarKind::Round, h.earRadius = 1.9f, h.earUp = .82f, h.earAside = .62f;
	h.noseColour = 0x5a2c1c;
	return q;
}

Species Squirrel()
{
	Species s  = HopperSpecies("squirrel", 27, SquirrelShape);
	s.sideTurn = 30;
	return s;
}

Species Chipmunk()
{
	return HopperSpecies("chipmunk", 29, ChipmunkShape);
}

// Straight up with its tail on end, and down again.
static Poses Startled(int count)
{
	Poses list(count);
	for (int i = 0; i < count; i++) {
		float t = Part(i, count), a = std::sin(t * PI);
		Pose& p     = list[i];
		p.squash    = i == 0 ? 2.6f : i == count - 1 ? 1.4f : -.6f * a;
		p.rise      = i ? 7 * a : 0;
		p.limbsUp   = i ? .75f * a : 0;
		p.wideEyes  = i < count - 1 ? .3f : 0;
		p.mouth     = i && i < count - 1 ? .7f : 0;
		p.tailRaise = a;
		p.earSwing  = .5f * a;
	}
	return list;
}

// Thrown up, lands flat, shakes its head and collects itself.
static Poses KnockedOver()
{
	const int JUMP = 7, REST = 7;
	const float PRESS[REST] = {3.4f, 2.4f, 1.2f, .6f, .3f, .1f, 0};
	Poses list              = Startled(JUMP);
	for (int i = 0; i < REST; i++) {
		Pose p;
		p.squash   = PRESS[i];
		p.lid      = i < 4 ? 1 : 0;
		p.look     = i < 5 ? .8f * std::sin(i * PI / 2 + .4f) : .2f;
		p.headTip  = i < 5 ? -.2f : 0;
		p.wideEyes = i > 4 ? .2f : 0;
		list.push_back(p);
	}
	return list;
}

// Spread like a leaf; then down on its feet.
static Poses Falling()
{
	const float PRESS[LAND_FRAMES] = {3.4f, 4, 1.6f, 0};
	Poses list(FALL_FRAMES + LAND_FRAMES);
	for (int i = 0; i < FALL_FRAMES; i++) {
		Pose& p     = list[i];
		p.limbsUp   = 1;
		p.fit       = .25f + .5f * i;
		p.rear      = -1.5f;
		p.turnAway  = -32;
		p.wideEyes  = .4f;
		p.mouth     = .8f;
		p.rise      = 6;
		p.tailRaise = 1;
		p.tailSwing = i ? 1 : -1;
		p.shadow    = false;
	}
	for (int i = 0; i < LAND_FRAMES; i++) {
		Pose& p    = list[FALL_FRAMES + i];
		p.limbsUp  = i == 0 ? .55f : 0;
		p.squash   = PRESS[i];
		p.lid      = i == 1 ? 1 : 0;
		p.wideEyes = i > 1 ? .25f : 0;
	}
	return list;
}

// Gathers itself in the first half and springs up in the second, in which the game moves it.
static Poses Climbing()
{
	const float PHASE[] = {.75f, .85f, .93f, 1, .14f, .30f, .45f, .60f};
	Poses list(8);
	for (int i = 0; i < 8; i++) {
		Pose& p     = list[i];
		p.heading   = Heading::Back;
		p.climb     = std::fmod(PHASE[i], 1.f);
		p.look      = 1.2f;
		p.rise      = 9;
		p.tailSwing = std::sin(i * PI / 4);
		p.shadow    = false;
	}
	return list;
}

// Here the side stands before up and down.
static void DrawChipmunkRuns(Sink& sink)
{
	Figure figure((Chipmunk()));
	for (Heading heading : {Heading::Up, Heading::Down}) {
		Poses running     = Hop(heading);
		Window window     = figure.WindowOf({"", running});
		std::string where = heading == Heading::Up ? "up" : "down";
		for (bool left : {true, false})
			for (int i = 0; i < (int)running.size(); i++) {
				Pose pose = running[i];
				pose.left = left;
				sink.Add((left ? "chipmunkrunleft" : "chipmunkrunright") + where +
				             std::to_string(i) + ".png",
				         figure.Draw(pose, left ? window : Mirrored(window)));
			}
	}
}

void AddSquirrels(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Squirrel,
	         {{"run", Hop()},
	          {"bubblehit", Startled(7)},
	          {"fall", Falling()},
	          {"climbtree", Climbing()}},
	         false);
	AddSequences(catalogue, __FILE__, Chipmunk,
	             {{"stand", {Pose()}, "", false}, {"look", Look(3)}, {"bubblehit", KnockedOver()}});
	catalogue.Add("animals chipmunk run", __FILE__, DrawChipmunkRuns);
	AddInBubble(catalogue, __FILE__, Chipmunk);
}
