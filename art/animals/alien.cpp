// Body, face and ray gun of the alien.
#include "art/animals/alien.h"

#include "art/animals/eyes.h"
#include "art/animals/limbs.h"

static const uint32_t SKIN = 0xdcf562, SKIN_DARK = 0xa8c840, SUIT = 0x6d4fd6, BREAST = 0x9d86f2;
static const uint32_t BOOT = 0xf0a23c, KNOB = 0xff6aa6, BRASS = 0xffd84a, GULLET = 0x6a1834,
                      TONGUE = 0xf27f8c;
static const float HIP = 6.6f, LOWEST_HIP = 3.0f, TORSO = 5.4f, NECK = 7.7f; // heights
static const float HIP_RADIUS = 4.3f, CHEST_RADIUS = 3.5f;
static const float ARM = 9.0f, LEG = 7.6f;                  // reach
static const Vec3 HEAD         = {8.2f, 8.0f, 9.6f};        // half sizes
static const float BARREL_DOWN = .55f, BARREL_ASIDE = .85f; // angles of the gun
static const int STARS = 3;

namespace
{
class AlienBuilder
{
public:
	AlienBuilder(Model& newModel, const View& newView, const Pose& newPose, bool newSeated);
	void Build();

private:
	void PlaceTrunk();
	void AddTrunk();
	void AddLeg(int s);
	Vec3 HandAt(int s) const;
	void AddArm(int s);
	void AddHead();
	void AddMouth(const HeadFrame& frame);
	void AddFeelers(const HeadFrame& frame);
	void AddGun();
	void AddStars(Vec3 middle);
	Vec3 ShoulderOf(int s) const { return chest + Vec3{0, .6f, s * 3.3f}; }
	// Higher when it has to look over the rim of the saucer.
	Vec3 GunAt() const
	{
		return chest + Vec3{5.6f, (seated ? 2.2f : -.4f) + .9f * pose.kick, 2.4f};
	}

	Model& model;
	View view;
	const Pose& pose;
	bool seated, running;
	float phase;
	Vec3 hip, chest;
	int skin, suit, boot;
};

AlienBuilder::AlienBuilder(Model& newModel, const View& newView, const Pose& newPose,
                           bool newSeated)
    : model(newModel), view(newView), pose(newPose), seated(newSeated),
      running(newPose.stride >= 0), phase(newPose.stride * 2 * PI)
{
	skin = model.Painted(
	    [](const SurfacePoint& at) {
		    return Mix(HexColour(SKIN_DARK), HexColour(SKIN), Smoothstep(-.75f, -.1f, at.normal.y));
	    },
	    .55f);
	suit = model.Plain(SUIT, .45f);
	boot = model.Plain(BOOT, .5f);
	PlaceTrunk();
}

void AlienBuilder::PlaceTrunk()
{
	float low = std::max(HIP - pose.squash * .72f, LOWEST_HIP);
	hip       = {-2.6f * pose.lie, Mix(low, 3.7f, pose.lie) + pose.rise, 0};
	chest     = hip + Vec3{.4f - 1.2f * pose.lie, TORSO - pose.squash * .14f, 0};
	if (running) {
		hip.y += std::fabs(std::sin(phase)) * 1.5f - .5f;
		chest = hip + Vec3{1.9f, TORSO - .2f, 0};
	}
}

// A suit with a pale breast, a belt with a buckle and a collar.
void AlienBuilder::AddTrunk()
{
	int cloth = model.Painted(
	    [at = hip](const SurfacePoint& s) {
		    Vec3 p      = s.position - at;
		    float front = Smoothstep(1.6f, 2.4f, p.x - std::fabs(p.z) * .45f);
		    return Mix(HexColour(SUIT), HexColour(BREAST), front * Smoothstep(.9f, 1.4f, p.y));
	    },
	    .45f);
	float swell = .7f * pose.breath;
	model.RoundCone(hip, chest, HIP_RADIUS + swell, CHEST_RADIUS, cloth, 0);
	int belt = model.Plain(BOOT, .6f), brass = model.Plain(BRASS, .8f);
	model.Ring(hip + Vec3{0, .7f, 0}, HIP_RADIUS + swell - .1f, .75f, Mat3(), belt, .1f);
	model.Ball(hip + Vec3{HIP_RADIUS + swell + .3f, .7f, 0}, 1.2f, brass, 0);
	model.Ring(chest + Vec3{.2f, 2.3f, 0}, 2.7f, .9f, Mat3(), brass, .2f);
}

void AlienBuilder::AddLeg(int s)
{
	Vec3 joint = hip + Vec3{.3f, -1.2f, s * 2.4f};
	Vec3 foot  = {.6f, 1.5f + pose.rise, s * (3.1f + .12f * pose.squash)};
	if (running) {
		float a = phase + (s > 0 ? PI : 0);
		foot    = {hip.x + .4f + std::cos(a) * 4.6f, 1.5f + std::max(0.f, std::sin(a)) * 3.6f,
		           s * 2.7f};
	}
	foot      = Mix(foot, {hip.x + 7.6f, 1.8f + pose.rise, s * 3.6f}, pose.lie);
	foot      = Mix(foot, joint + Vec3{3.8f, -1.4f, s * 1.2f}, pose.tuck);
	Vec3 knee = KneeOf(joint, foot, LEG, {1, .2f, s * .5f});
	model.RoundCone(joint, knee, 1.9f, 1.7f, suit, .9f);
	model.RoundCone(knee, foot, 1.7f, 1.5f, suit, .4f);
	float up = std::max(pose.lie, pose.tuck) * .9f;
	model.Ellipsoid(foot + Vec3{1.1f - .6f * up, up * .9f, 0}, {2.7f, 1.6f, 2.0f}, TurnZ(up), boot,
	                .3f);
}

Vec3 AlienBuilder::HandAt(int s) const
{
	Vec3 shoulder = ShoulderOf(s);
	Vec3 hand     = shoulder + Vec3{1.8f, -5.6f, s * 3.2f};
	if (running)
		hand = shoulder + Vec3{std::cos(phase + (s > 0 ? 0 : PI)) * 4.6f, -2.6f, s * 3.0f};
	Vec3 belly = hip + Vec3{HIP_RADIUS + .9f + .7f * pose.breath, 1.6f, s * 2.2f};
	hand       = Mix(hand, belly, Clamp01(pose.breath * 2));
	hand       = Mix(hand, shoulder + Vec3{2.0f, 6.6f, s * 4.6f}, pose.armsUp);
	hand       = Mix(hand, shoulder + Vec3{1.0f, 1.6f, s * 7.6f}, pose.limbsUp);
	return Mix(hand, GunAt() + Vec3{-1.2f, -.9f, s * 1.1f}, pose.raisePaw);
}

void AlienBuilder::AddArm(int s)
{
	Vec3 shoulder = ShoulderOf(s), hand = HandAt(s);
	Vec3 way   = hand - shoulder;
	hand       = shoulder + Normalize(way) * std::min(Length(way), ARM * .99f);
	Vec3 bend  = {-.3f, pose.armsUp > .5f ? 0 : -.6f, s * 1.f};
	Vec3 elbow = KneeOf(shoulder, hand, ARM, bend);
	model.RoundCone(shoulder, elbow, 1.55f, 1.35f, suit, .6f);
	model.RoundCone(elbow, hand, 1.35f, 1.2f, suit, .4f);
	model.Ball(hand, 1.75f, skin, .2f);
}

// A red ray gun with silver rings; it flashes at the tip.
void AlienBuilder::AddGun()
{
	Mat3 axes = TurnY(-BARREL_ASIDE) * TurnZ(-BARREL_DOWN);
	Vec3 at   = Mix(hip + Vec3{3, 1, 4.2f}, GunAt(), pose.raisePaw);
	int red = model.Plain(0xf0444au, .8f), steel = model.Plain(0xd4deeau, .9f);
	auto along = [&](float x, float y) { return at + axes * Vec3{x, y, 0}; };
	model.RoundCone(along(-1.0f, .8f), along(2.8f, .8f), 2.8f, 2.3f, red, 0);
	model.RoundCone(along(-.6f, -.6f), along(-1.4f, -2.6f), 1.2f, 1.1f, red, .3f);
	model.RoundCone(along(2.8f, .8f), along(8.4f, .8f), 1.4f, 1.1f, steel, .2f);
	for (int i = 0; i < 2; i++)
		model.Ring(along(4.9f + 2.0f * i, .8f), 1.9f - .25f * i, .6f, axes * TurnZ(PI / 2), steel,
		           0);
	float flash = pose.kick;
	int tip     = model.Glowing(flash > 0 ? 0xfff8c0 : 0x5ae8ff, .9f);
	model.Ball(along(9.2f, .8f), 1.8f + 2.0f * flash, tip, 0);
	if (flash <= 0)
		return;
	int ray = model.Glowing(0x8af4ff, .95f);
	for (int i = 0; i < 5; i++) {
		float a  = i * 2 * PI / 5 + .3f;
		Vec3 out = axes * Vec3{1.6f, std::cos(a) * 3, std::sin(a) * 3};
		model.RoundCone(along(9.2f, .8f) + out * .5f, along(9.2f, .8f) + out * (.7f + .7f * flash),
		                .8f, .25f, ray, 0);
	}
}

void AlienBuilder::AddMouth(const HeadFrame& frame)
{
	int line = model.Plain(0x35601cu);
	if (pose.mouth > 0) {
		float open = pose.mouth;
		model.Ellipsoid(frame.Point(6.3f, -4.4f - .7f * open, 0), {1.9f, .7f + 2.5f * open, 4.2f},
		                frame.axes, model.Plain(GULLET), 0);
		model.Ellipsoid(frame.Point(7.2f, -5.4f - 2.0f * open, 0), {1.1f, .5f + .8f * open, 2.6f},
		                frame.axes, model.Plain(TONGUE, .3f), 0);
		for (int s : {-1, 1})
			model.Box(frame.Point(7.6f, -3.7f + .5f * open, s * 1.0f), {.5f, .8f, .7f}, frame.axes,
			          .3f, model.Plain(0xfffbecu, .3f), 0);
		return;
	}
	Vec3 last;
	float bend = pose.frown > 0 ? -.10f : .12f;
	for (int i = -2; i <= 2; i++) {
		float z = i * 1.5f, flat = z / HEAD.z;
		Vec3 at = frame.Point(7.0f * std::sqrt(1 - flat * flat) + .1f, -4.9f + bend * z * z, z);
		if (i > -2)
			model.RoundCone(last, at, .46f, .46f, line, 0);
		last = at;
	}
}

void AlienBuilder::AddFeelers(const HeadFrame& frame)
{
	int knob = model.Plain(KNOB, .7f);
	for (int s : {-1, 1}) {
		float droop = pose.earSwing;
		Vec3 root   = frame.Point(0, 6.4f, s * 3.6f);
		Vec3 bend   = root + frame.Along(.4f, 3.6f - 1.4f * droop, s * 1.0f);
		Vec3 tip    = bend + frame.Along(.8f + droop, 2.0f - 2.6f * droop, s * (1.9f + droop));
		model.RoundCone(root, bend, .95f, .75f, skin, .6f);
		model.RoundCone(bend, tip, .75f, .65f, skin, .3f);
		model.Ball(tip, 1.9f, knob, 0);
	}
}

// Sparkles on an oval round the crown.
void AlienBuilder::AddStars(Vec3 middle)
{
	int gold = model.Glowing(0xffe04a, .55f);
	for (int i = 0; i < STARS; i++) {
		float a = 2 * PI * (pose.fit + i / (float)STARS);
		Vec3 at = middle + Vec3{std::cos(a) * 10.5f, 0, std::sin(a) * 10.5f};
		for (int k = 0; k < 5; k++) {
			float b  = PI / 2 + k * 2 * PI / 5;
			Vec3 ray = Transpose(TurnY(view.yaw)) * Vec3{std::cos(b), std::sin(b), 0};
			model.RoundCone(at, at + ray * 2.5f, 1.15f, .35f, gold, 0);
		}
	}
}

void AlienBuilder::AddHead()
{
	float r   = 8;
	Vec3 at   = chest + Vec3{.7f + pose.headDown * 1.2f,
                           NECK - pose.squash * .10f - pose.headDown * 2.6f + pose.neckReach, 0};
	Mat3 axes = TurnY(Radians(pose.look * 48) * view.TowardViewer()) *
	            TurnZ(pose.headTip - pose.headDown * .3f) * TurnX(pose.headRoll);
	HeadFrame frame{at, axes};
	model.Ellipsoid(at + axes * Vec3{0, .5f, 0}, HEAD, axes, skin, 1.2f);
	model.Ellipsoid(frame.Point(.8f, -3.2f, 0), {6.4f, 5.0f, 6.6f}, axes, skin, 2.5f);
	Eye eye{4.9f, .60f, .14f, 0, .62f, 0xe8483c, 0, 0};
	eye.up = .16f;
	AddEyes(model, frame, {r, r, r}, eye, HexColour(SKIN), skin, view, pose);
	AddMouth(frame);
	AddFeelers(frame);
	if (pose.fit > 0)
		AddStars(frame.Point(-.5f, 8.6f, 0));
}

void AlienBuilder::Build()
{
	AddTrunk();
	for (int s : {-1, 1}) {
		if (!seated)
			AddLeg(s);
		AddArm(s);
	}
	AddHead();
	if (pose.raisePaw > 0)
		AddGun();
}
} // namespace

void AddAlien(Model& model, const View& view, const Pose& pose, bool seated)
{
	AlienBuilder(model, view, pose, seated).Build();
}
