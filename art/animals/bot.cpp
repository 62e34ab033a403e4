// The robot: tracks on six wheels, a drum for a body, a screen for a face, a note pad at its side.
#include "art/animals/actions.h"
#include "art/animals/crawlers.h"
#include "art/animals/eyes.h"
#include "art/animals/limbs.h"
#include "art/core/palette.h"
#include "art/families.h"

static const int TRUNDLE_FRAMES = 8, STUNNED_FRAMES = 7, WRITE_FRAMES = 8;
static const float WHEEL = 3.5f, WHEEL_GAP = 6.3f, TRACK = 7.8f;
static const float ARM = 9.5f, PENCIL = 12;
static const Mat3 AXLE = TurnX(PI / 2);

namespace
{
struct Finish {
	int steel, dark, rubber, orange, cream, glass, brass, lamp, alarm, paper;
};

// pose.raisePaw lifts the pad, pose.chew guides the pencil over it; pose.fit flickers the face.
class BotBuilder
{
public:
	BotBuilder(Model& newModel, const View& newView, const Pose& newPose);
	void Build();

private:
	void AddTracks();
	void AddBody();
	void AddHead();
	void AddEye(const HeadFrame& frame, int s);
	void AddMouth(const HeadFrame& frame);
	void AddAerial(const HeadFrame& frame);
	Vec3 AddArm(int s, Vec3 hand);
	void AddArms();
	void AddPad(Vec3 hand, const Mat3& axes);
	void AddPencil(Vec3 hand, Vec3 tip);

	Model& model;
	View view;
	const Pose& pose;
	float side, down, up, roll;
	Finish f;
};

BotBuilder::BotBuilder(Model& newModel, const View& newView, const Pose& newPose)
    : model(newModel), view(newView), pose(newPose), side(newView.NearSide())
{
	bool rolling = pose.stride >= 0;
	roll         = rolling ? pose.stride : 0;
	down         = pose.squash;
	up           = pose.rise + (rolling ? .5f * std::sin(pose.stride * 4 * PI) : 0);
	f.steel      = model.Plain(0xb4c4d6u, .85f);
	f.dark       = model.Plain(0x56627au, .5f);
	f.rubber     = model.Plain(PAINT_TYRE, .35f);
	f.orange     = model.Plain(0xf58c2cu, .65f);
	f.cream      = model.Plain(PAINT_MACHINE_CREAM, .5f);
	f.glass      = model.Plain(0x1e3350u, .9f);
	f.brass      = model.Plain(PAINT_MACHINE_BRASS, .85f);
	f.lamp       = model.Glowing(0x6af0ff, .9f);
	f.alarm      = model.Glowing(0xff5a48, .9f);
	f.paper      = model.Plain(0xfffbeau, .1f);
}

// Three wheels a side in a band with treads, all of which turn.
void BotBuilder::AddTracks()
{
	for (int s : {-1, 1}) {
		float z = s * TRACK;
		for (int i = -1; i <= 1; i++) {
			Vec3 hub = {i * WHEEL_GAP, WHEEL + pose.rise, z};
			model.Cylinder(hub, WHEEL, 2.2f, AXLE, 1.0f, f.rubber, i == -1 ? 0 : .3f);
			model.Cylinder(hub + Vec3{0, 0, s * 1.9f}, 2.0f, .7f, AXLE, .4f, f.cream, 0);
			for (int k = 0; k < 2; k++)
				model.Box(hub + Vec3{0, 0, s * 2.5f}, {1.7f, .42f, .25f},
				          TurnZ(-roll * 2 * PI + k * PI / 2), .1f, f.dark, 0);
		}
		model.Box({0, WHEEL + pose.rise, z}, {WHEEL_GAP, WHEEL, 1.9f}, Mat3(), .6f, f.rubber, .3f);
		for (int i = 0; i < 7; i++) { // treads on the upper run, which go forward
			float x = (i - 3 + std::fmod(roll * 3, 1.f)) * 2.7f;
			model.Box({x, 2 * WHEEL + pose.rise, z}, {.55f, .55f, 2.2f}, Mat3(), .3f, f.dark, 0);
		}
	}
}

void BotBuilder::AddBody()
{
	float y = 12.4f - down * .4f + up;
	model.Box({0, 7.4f + up, 0}, {7.5f, 1.6f, 6.0f}, Mat3(), .8f, f.dark, 0);
	model.Cylinder({0, y, 0}, 8.6f, 5.0f, Mat3(), 2.2f, f.orange, 0).bulge = .7f;
	model.Ring({0, y + 3.7f, 0}, 7.5f, .8f, Mat3(), f.cream, .2f);
	model.Ring({0, y - 3.7f, 0}, 7.7f, .8f, Mat3(), f.cream, .2f);
	// a plate on the breast with a dial and two lamps
	Mat3 ahead = TurnY(view.TowardViewer() * .45f);
	Vec3 front = ahead * Vec3{8.6f, 0, 0} + Vec3{0, y, 0};
	model.Box(front, {1.0f, 2.9f, 3.8f}, ahead, .7f, f.cream, .2f);
	model.Cylinder(front + ahead * Vec3{.9f, .5f, -1.4f}, 1.5f, .4f, ahead * TurnZ(PI / 2), .2f,
	               f.glass, 0);
	bool alarmed = pose.fit > 0;
	model.Ball(front + ahead * Vec3{.9f, 1.0f, 1.7f}, .85f, alarmed ? f.alarm : f.lamp, 0);
	model.Ball(front + ahead * Vec3{.9f, -1.1f, 1.7f}, .85f, f.brass, 0);
	model.Cylinder({.4f, 18.2f - down * .6f + up, 0}, 2.3f, 1.8f, Mat3(), .3f, f.dark, 0);
	model.Ring({.4f, 18.2f - down * .6f + up, 0}, 2.4f, .6f, Mat3(), f.steel, .1f);
}

// Round lamps that squint when they are shut, and turn to crosses when it is dazed.
void BotBuilder::AddEye(const HeadFrame& frame, int s)
{
	Vec3 at = frame.Point(7.3f, .9f, s * 2.7f);
	if (pose.fit > 0) {
		for (int k : {-1, 1})
			model.RoundCone(at + frame.Along(0, 1.6f * k, -1.5f),
			                at + frame.Along(0, -1.6f * k, 1.5f), .55f, .55f, f.alarm, 0);
		return;
	}
	float open = pose.lid > .5f ? .42f : 2.2f + pose.wideEyes;
	model.Ellipsoid(at, {.8f, open, 1.9f}, frame.axes, f.lamp, 0);
	if (pose.lid <= .5f)
		model.Ellipsoid(at + frame.Along(.55f, -.2f, -view.NearSide() * .3f), {.5f, 1.05f, .9f},
		                frame.axes, f.glass, 0);
	if (pose.lid <= .5f)
		model.Ball(at + frame.Along(1.0f, .5f, view.NearSide() * .2f), .42f, f.cream, 0);
}

void BotBuilder::AddMouth(const HeadFrame& frame)
{
	float bend = pose.fit > 0 ? -.5f : .55f;
	Vec3 last;
	for (int i = -2; i <= 2; i++) {
		Vec3 at = frame.Point(7.3f, -2.9f + bend * (i * i * .35f - .4f), i * 1.05f);
		if (i > -2)
			model.RoundCone(last, at, .45f, .45f, pose.fit > 0 ? f.alarm : f.lamp, 0);
		last = at;
	}
}

void BotBuilder::AddAerial(const HeadFrame& frame)
{
	Vec3 root = frame.Point(-1.5f, 5.2f, 0);
	Vec3 tip  = root + frame.Along(-1.8f - pose.earSwing * 2.5f, 5.0f, side * pose.earSwing * 2.4f);
	model.RoundCone(root, tip, .75f, .55f, f.dark, .2f);
	model.Ball(tip, 1.7f, pose.fit > 0 ? f.alarm : f.lamp, 0);
	for (int s : {-1, 1}) {
		model.Cylinder(frame.Point(-.4f, .2f, s * 8.0f), 2.5f, .9f, frame.axes * AXLE, .5f,
		               f.orange, .1f);
		model.Ball(frame.Point(-.4f, .2f, s * 8.9f), 1.1f, f.cream, 0);
	}
}

void BotBuilder::AddHead()
{
	Vec3 at   = {.9f, 24.6f - down + up - pose.headDown * 2.2f, 0};
	at        = at + Vec3{pose.headDown * 1.2f + pose.neckReach * 2, pose.neckReach * 3, 0};
	Mat3 axes = TurnY(Radians(18 + pose.look * 50) * view.TowardViewer()) *
	            TurnZ(pose.headTip - pose.headDown * .35f) * TurnX(side * pose.earSwing * .18f);
	HeadFrame frame{at, axes};
	model.Cylinder(at - Vec3{0, 5, 0}, 1.7f, 2.6f, Mat3(), .3f, f.dark, 0);
	model.Box(at, {6.9f, 5.7f, 7.6f}, axes, 3.0f, f.steel, 0);
	model.Box(frame.Point(5.6f, -.2f, 0), {1.5f, 4.4f, 6.2f}, axes, 1.4f, f.glass, .1f);
	for (int s : {-1, 1})
		AddEye(frame, s);
	AddMouth(frame);
	AddAerial(frame);
}

Vec3 BotBuilder::AddArm(int s, Vec3 hand)
{
	Vec3 shoulder = {.6f, 14.6f - down * .4f + up, s * 8.8f};
	Vec3 elbow    = KneeOf(shoulder, hand, ARM, {-.4f, -.8f, s * .7f});
	model.Ball(shoulder, 2.3f, f.steel, .1f);
	model.RoundCone(shoulder, elbow, 1.35f, 1.2f, f.dark, .2f);
	model.Ball(elbow, 1.6f, f.steel, .1f);
	model.RoundCone(elbow, hand, 1.2f, 1.1f, f.dark, .1f);
	model.Ball(hand, 1.8f, f.orange, .1f);
	for (int k : {-1, 1})
		model.RoundCone(hand, hand + Vec3{2.4f, k * 1.2f, -s * .8f}, .95f, .6f, f.orange, .2f);
	return shoulder;
}

// A sheet on a board with a clip and lines of writing, which grow as it writes.
void BotBuilder::AddPad(Vec3 hand, const Mat3& axes)
{
	auto at = [&](float x, float y, float z) { return hand + axes * Vec3{x, y, z}; };
	model.Box(at(0, 0, 0), {.5f, 4.4f, 3.6f}, axes, .4f, f.brass, 0);
	model.Box(at(-.45f, -.3f, 0), {.3f, 3.7f, 3.0f}, axes, .2f, f.paper, 0);
	model.Box(at(-.6f, 3.9f, 0), {.6f, .8f, 1.5f}, axes, .3f, f.steel, 0);
	int ink = model.Plain(0x3a5a9au, 0);
	for (int i = 0; i < 3; i++)
		model.Box(at(-.8f, 1.9f - 1.6f * i, 0), {.12f, .34f, 2.2f - .5f * (i == 2)}, axes, .1f, ink,
		          0);
}

void BotBuilder::AddPencil(Vec3 hand, Vec3 tip)
{
	Vec3 way = Normalize(tip - hand), end = tip - way * PENCIL;
	model.RoundCone(end, tip - way * 2.2f, 1.3f, 1.3f, model.Plain(0x2a62d0u, .4f), 0);
	model.RoundCone(tip - way * 2.4f, tip, 1.25f, .3f, f.cream, 0);
	model.RoundCone(end - way * 1.2f, end, 1.45f, 1.45f, model.Plain(0xff6a86u, .3f), 0);
}

// At rest the arms hang before it. When it writes the far hand holds the pad up, back to the
// viewer's left or right, and the near one moves the pencil over it.
void BotBuilder::AddArms()
{
	float lift = pose.raisePaw, waves = pose.armsUp;
	float tall = down * .4f - up;
	Vec3 resting[2];
	for (int i = 0; i < 2; i++) {
		float s    = i == 0 ? -side : side;
		resting[i] = {6.2f, 11.2f - tall + 9.5f * waves, s * (10.4f + 2.2f * waves)};
	}
	Vec3 padAt = {12.4f, 15.0f - tall, -side * 2.4f};
	Vec3 holds = Mix(resting[0], padAt + Vec3{-.4f, -3.6f, 0}, lift);
	Vec3 point =
	    padAt + Vec3{-1.2f, 1.2f - .8f * std::fabs(pose.chew), side * (.4f + pose.chew * 2)};
	Vec3 writes = Mix(resting[1], point + Vec3{-1.2f, -.4f, side * 4.4f}, lift);
	AddArm((int)-side, holds);
	AddArm((int)side, writes);
	if (lift < .3f)
		return;
	Mat3 axes = TurnY(view.TowardViewer() * -1.1f) * TurnZ(-.40f);
	AddPad(Mix(holds, padAt, lift), axes);
	AddPencil(writes, Mix(writes + Vec3{2, 3, 0}, point, lift));
}

void BotBuilder::Build()
{
	AddTracks();
	AddBody();
	AddHead();
	AddArms();
}
} // namespace

static void BuildBot(Model& model, const View& view, const Pose& pose)
{
	BotBuilder(model, view, pose).Build();
}

Species Bot()
{
	Species s;
	s.prefix = "bot";
	s.build  = BuildBot;
	s.width  = 41;
	return s;
}

// The head swings to the viewer in steps, as gears do, and stretches its neck.
static Poses TurnHead(float way, float stretch)
{
	const float TURN[] = {.25f, .35f, .8f, .9f, 1};
	Poses list(5);
	for (int i = 0; i < 5; i++) {
		list[i].look      = way * TURN[i];
		list[i].neckReach = stretch * TURN[i];
		list[i].earSwing  = (i % 2 ? -.25f : .35f) * (i < 4);
	}
	return list;
}

// Jolted: squeezed, thrown up with its arms, the head rattles, sparks of alarm, then it settles.
static Poses ShortCircuit()
{
	const float PRESS[] = {3.2f, -1, -1.6f, 0, .9f, .4f, 0},
	            ARMS[]  = {.1f, .8f, 1, .9f, 1, .5f, .1f};
	Poses list(STUNNED_FRAMES);
	for (int i = 0; i < STUNNED_FRAMES; i++) {
		Pose& p    = list[i];
		p.squash   = PRESS[i];
		p.armsUp   = ARMS[i];
		p.fit      = i > 0 && i < 6 ? 1.f : 0;
		p.earSwing = i > 0 && i < 6 ? (i % 2 ? 1.f : -1.f) : 0;
		p.look     = i > 0 && i < 6 ? .4f + (i % 2 ? .25f : -.25f) : 0;
		p.rise     = i == 2 ? 1.6f : i == 3 ? .8f : 0;
	}
	return list;
}

// Eyes on the pad, the pencil to and fro.
static Poses Writing()
{
	const float WAY[] = {-.6f, .3f, 1, -.2f, -1, .1f, .9f, -.2f};
	Poses list(WRITE_FRAMES);
	for (int i = 0; i < WRITE_FRAMES; i++) {
		Pose& p    = list[i];
		p.raisePaw = 1;
		p.chew     = WAY[i];
		p.headDown = .75f;
		p.headTip  = .05f * WAY[i];
		p.look     = .1f;
	}
	return list;
}

void AddBot(Catalogue& catalogue)
{
	Pose bubble   = Captured();
	bubble.armsUp = .8f;
	AddSequences(catalogue, __FILE__, Bot,
	             {{"stand", {Pose()}, "", false},
	              {"lookA", TurnHead(1, 0)},
	              {"lookB", TurnHead(-.55f, .8f)},
	              {"stunned", ShortCircuit()},
	              {"trundle", Walk(TRUNDLE_FRAMES)},
	              {"write", Writing()}});
	AddBubbleViews(catalogue, __FILE__, Bot, bubble);
}
