// Trunk, limbs and tail of sitting and upright figures.
#include "art/animals/biped.h"

#include "art/animals/limbs.h"

static const float GALLOP_ROCK    = 1.9f; // height by which hips and chest rise in turn
static const float CLIMB_STRETCH  = 1.2f; // arms show beside the head
static const float LOWEST_HIP     = .8f;  // radii over the ground, however hard it is pressed
static const float FIT_ARM_SPREAD = .95f; // part of the arm's length

namespace
{
// Where the limbs of one side end, and where their joints bend to.
struct Reach {
	Vec3 hand, foot, elbowBend, kneeBend;
};

class BipedBuilder
{
public:
	BipedBuilder(Model& newModel, const Biped& newFigure, const View& newView, const Pose& newPose)
	    : model(newModel), figure(newFigure), view(newView), pose(newPose)
	{
	}
	void Build();

private:
	void PlaceTrunk();
	int TrunkMaterial();
	void AddHeadOnTop();
	Reach Sitting(int s) const;
	Reach Upright(int s) const;
	Reach Galloping(int s) const;
	Reach Climbing(int s) const;
	Reach ReachOf(int s) const;
	void AddLimb(Vec3 joint, Vec3 end, float reach, float radius, Vec3 bend, int endSkin,
	             float endRadius);
	void AddLimbs(int s);
	void AddMonkeyTail();
	void AddSquirrelTail();
	Vec3 ShoulderOf(int s) const { return chest + Vec3{0, .6f, s * figure.chest * .9f}; }
	Vec3 HipOf(int s) const { return hip + Vec3{.5f, -.5f, s * figure.hip * .62f}; }
	bool OnAllFours() const { return running && !figure.standing; }

	Model& model;
	const Biped& figure;
	View view;
	const Pose& pose;
	bool running = false;
	float phase  = 0;
	Vec3 hip, chest;
	int coat = 0, skin = 0, limb = 0;
};

void BipedBuilder::Build()
{
	running = pose.stride >= 0;
	phase   = running ? pose.stride : 0;
	PlaceTrunk();
	coat = model.Plain(figure.coat, figure.gloss);
	skin = model.Plain(figure.skin, figure.gloss);
	limb = figure.suit ? model.Plain(figure.suit, .3f) : coat;
	model.RoundCone(hip, chest, figure.hip, figure.chest, TrunkMaterial(), 0);
	AddHeadOnTop();
	for (int s : {-1, 1})
		AddLimbs(s);
	if (figure.tail == BipedTail::Monkey)
		AddMonkeyTail();
	if (figure.tail == BipedTail::Squirrel)
		AddSquirrelTail();
}

void BipedBuilder::PlaceTrunk()
{
	float rest = figure.standing ? figure.leg * .92f : figure.hipHeight + 1.5f;
	float low  = figure.hip * LOWEST_HIP;
	hip        = {0, std::max(rest - pose.squash, std::min(low, rest)) + pose.rise, 0};
	chest      = hip + Vec3{figure.lean, figure.torso - pose.squash * .5f, 0};
	if (OnAllFours()) {
		float rock = std::sin(phase * 2 * PI) * GALLOP_ROCK;
		hip        = {-3, figure.hipHeight + 4.2f - rock + pose.rise, 0};
		chest = {-3 + figure.torso * 1.05f, figure.hipHeight + 6.0f + rock * .8f + pose.rise, 0};
	} else if (running) {
		hip.y += std::fabs(std::sin(phase * 2 * PI)) - .5f;
		chest = hip + Vec3{1.4f, figure.torso, 0};
	}
	if (pose.climb >= 0) {
		float pull = std::sin(pose.climb * 4 * PI);
		hip        = {0, figure.hipHeight + 5 + pull * .7f, std::sin(pose.climb * 2 * PI) * .9f};
		chest      = hip + Vec3{1.5f, figure.torso * 1.02f, -hip.z * 1.5f};
	}
}

// Coat with a pale belly: in front when it sits, below when it runs.
int BipedBuilder::TrunkMaterial()
{
	Colour outer = HexColour(figure.suit ? figure.suit : figure.coat);
	return model.Painted(
	    [b = figure, outer, at = hip, below = OnAllFours()](const SurfacePoint& s) {
		    const Colour DARK = HexColour(0x3c2418), PALE = HexColour(0xf8ead0);
		    Vec3 p      = s.position - at;
		    float r     = b.hip;
		    float ahead = p.x - p.y * .12f - .4f;
		    float front =
		        below ? Smoothstep(-.3f, -.7f, s.normal.y) : Smoothstep(r * .42f, r * .62f, ahead);
		    Colour c = Mix(outer, HexColour(b.belly), front);
		    if (b.rump)
			    c = Mix(c, HexColour(b.rump),
			            Smoothstep(-r * .45f, -r * .62f, p.x) * Smoothstep(r * .5f, r * .1f, p.y));
		    float z = std::fabs(p.z);
		    if (b.backStripes <= 0 || z < r * .45f || front > .3f)
			    return c;
		    float band = std::fabs(z - r * .72f);
		    c          = Mix(PALE, c, Smoothstep(.35f, .6f, band));
		    float edge = std::fabs(band - 1.0f);
		    return band > .6f ? Mix(DARK, c, Smoothstep(.45f, .7f, edge)) : c;
	    },
	    figure.gloss);
}

void BipedBuilder::AddHeadOnTop()
{
	float r     = figure.head.radius;
	Vec3 centre = chest + Vec3{figure.headForward, r * figure.headUp, 0};
	float turn  = figure.restTurn;
	if (OnAllFours())
		centre = chest + Vec3{r * .66f, r * .50f, 0};
	if (pose.climb >= 0) {
		centre = chest + Vec3{-.6f, r * .80f, -chest.z * .4f};
		turn   = 0;
	}
	centre     = centre + Vec3{pose.headDown * r * .5f, -pose.headDown * r * .45f, 0};
	float tilt = pose.fit > 0 ? .20f * std::sin(pose.fit * 4 * PI) : 0;
	Mat3 axes  = TurnY(Radians(pose.look * 48 + turn) * view.TowardViewer()) *
	            TurnZ(pose.headTip - pose.headDown * .5f) * TurnX(tilt);
	Head head = figure.head;
	if (!head.coat)
		head.coat = figure.coat;
	AddHead(model, head, {centre, axes}, view, pose, 2);
}

Reach BipedBuilder::Sitting(int s) const
{
	Vec3 hand = {hip.x + figure.handForward, hip.y + figure.handHeight, s * figure.chest * .82f};
	Vec3 foot = {hip.x + figure.hip * 1.12f, figure.foot * .75f + pose.rise,
	             s * figure.hip * 1.02f};
	return {hand, foot, {-.4f, -.4f, s * 1.f}, {.5f, 1, s * .5f}};
}

Reach BipedBuilder::Upright(int s) const
{
	Vec3 hand = ShoulderOf(s) + Vec3{2.2f, -figure.arm * .72f, s * 2.4f};
	Vec3 foot = {HipOf(s).x + .6f, figure.foot * .75f + pose.rise, s * figure.hip * .75f};
	if (running) {
		float a = phase * 2 * PI + (s > 0 ? PI : 0);
		hand    = hand + Vec3{-std::cos(a) * 3.2f, 1.2f, 0};
		foot    = foot + Vec3{std::cos(a) * 3.6f, std::max(0.f, std::sin(a)) * 2.6f, 0};
	}
	return {hand, foot, {-.4f, -.4f, s * 1.f}, {1, 0, s * .2f}};
}

// A bounding gallop: the hands land together, then the feet, the near one a little later.
Reach BipedBuilder::Galloping(int s) const
{
	float lag = s == (int)view.NearSide() ? .12f : 0;
	float a = std::fmod(phase + lag, 1.f) * 2 * PI, b = a + PI * .8f;
	float handY = figure.hand + pose.rise + std::max(0.f, std::sin(a)) * 3.6f;
	float footY = figure.foot * .75f + pose.rise + std::max(0.f, std::sin(b)) * 3.2f;
	Vec3 hand   = {ShoulderOf(s).x + 3 + std::cos(a) * 5.4f, handY, s * figure.chest * .8f};
	Vec3 foot   = {HipOf(s).x - .4f + std::cos(b) * 5.2f, footY, s * figure.hip * .75f};
	return {hand, foot, {-1, 0, 0}, {1, .2f, 0}};
}

// Arm over arm round a trunk that stands in front of it; the legs push in turn.
Reach BipedBuilder::Climbing(int s) const
{
	float up  = std::sin(pose.climb * 2 * PI + (s > 0 ? PI : 0));
	Vec3 hand = ShoulderOf(s) + figure.climbHand * Vec3{1, 1, (float)s} + Vec3{0, 5.5f * up, 0};
	Vec3 foot = HipOf(s) + figure.climbFoot * Vec3{1, 1, (float)s} - Vec3{0, 2.6f * up, 0};
	return {hand, foot, {-.8f, -.8f, s * 1.f}, {-.1f, .5f, s * 1.f}};
}

Reach BipedBuilder::ReachOf(int s) const
{
	Reach to  = figure.standing   ? Upright(s)
	            : running         ? Galloping(s)
	            : pose.climb >= 0 ? Climbing(s)
	                              : Sitting(s);
	float arm = figure.arm, leg = figure.leg;
	if (pose.fit > 0) { // arms pump, feet stamp
		float a      = pose.fit * 4 * PI + (s > 0 ? PI : 0);
		float up     = .42f + .52f * std::sin(a);
		float aside  = FIT_ARM_SPREAD * (1.1f - .45f * up);
		to.hand      = ShoulderOf(s) + Vec3{1.5f, arm * up, s * arm * aside};
		to.foot      = to.foot + Vec3{0, std::max(0.f, std::sin(a)) * 2, 0};
		to.elbowBend = {0, -1, s * 1.f};
	}
	if (pose.armsUp > 0) {
		to.hand = Mix(to.hand, ShoulderOf(s) + Vec3{1.5f, arm * .8f, s * arm * .45f}, pose.armsUp);
		to.elbowBend = {0, -1, s * 1.f};
	}
	if (pose.limbsUp > 0) {
		float wave   = std::sin(pose.fit * 4 * PI + (s > 0 ? 2.2f : 0)) * (pose.fit > 0 ? .25f : 0);
		Vec3 handUp  = Vec3{.5f, arm * (.58f + wave), s * arm * (.85f - wave)};
		Vec3 footUp  = Vec3{leg * .70f, leg * (.05f - wave), s * leg * .55f};
		to.hand      = Mix(to.hand, ShoulderOf(s) + handUp, pose.limbsUp);
		to.foot      = Mix(to.foot, HipOf(s) + footUp, pose.limbsUp);
		to.elbowBend = {0, -1, s * 1.f};
	}
	if (pose.tuck > 0)
		to.foot =
		    Mix(to.foot, HipOf(s) + Vec3{figure.hip, -figure.hip * .35f, s * 1.5f}, pose.tuck);
	return to;
}

void BipedBuilder::AddLimb(Vec3 joint, Vec3 end, float reach, float radius, Vec3 bend, int endSkin,
                           float endRadius)
{
	Vec3 middle = KneeOf(joint, end, reach, bend);
	model.RoundCone(joint, middle, radius * 1.12f, radius, limb, 1.0f);
	model.RoundCone(middle, end, radius, radius * .85f, limb, .5f);
	model.Ball(end, endRadius, endSkin, .5f);
}

static Vec3 Within(Vec3 joint, Vec3 end, float reach)
{
	Vec3 way = end - joint;
	return joint + Normalize(way) * std::min(Length(way), reach * .999f);
}

void BipedBuilder::AddLimbs(int s)
{
	float legReach = figure.leg * 1.15f;
	float armReach = figure.arm * (pose.climb >= 0 ? CLIMB_STRETCH : 1);
	Vec3 shoulder = ShoulderOf(s), hipJoint = HipOf(s);
	Reach to  = ReachOf(s);
	Vec3 hand = Within(shoulder, to.hand, armReach), foot = Within(hipJoint, to.foot, legReach);
	AddLimb(shoulder, hand, armReach, figure.armRadius, to.elbowBend, skin, figure.hand);
	AddLimb(hipJoint, foot, legReach, figure.legRadius, to.kneeBend, skin, figure.foot);
	float sole = figure.foot;
	model.Ellipsoid(foot + Vec3{sole * .55f, -sole * .1f, 0},
	                {sole * 1.05f, sole * .7f, sole * .85f}, Mat3(), skin, .5f);
}

// Sitting: along the ground, then up with a curl. Running: arched over the back. Climbing: hanging.
void BipedBuilder::AddMonkeyTail()
{
	const Vec3 SIT[]   = {{-5, -3.2f, 0},   {-9.5f, -2.4f, 0}, {-8.4f, 4.2f, 0},
	                      {-7.6f, 6.6f, 0}, {-5, 6.8f, 0},     {-5.2f, 4.6f, 0}};
	const Vec3 RUN[]   = {{-6, -.5f, 0},  {-10, 6, 0},    {-6.5f, 12, 0},
	                      {-5, 14.5f, 0}, {-1.8f, 13, 0}, {-3.4f, 11, 0}};
	const Vec3 CLIMB[] = {{-4, -1, 0},       {-3, -6, -3}, {-3, -8.5f, 1},
	                      {-3, -9.5f, 3.2f}, {-3, -7, 5},  {-3, -6, 2.6f}};
	const Vec3* p      = pose.climb >= 0 ? CLIMB : OnAllFours() ? RUN : SIT;
	float k = figure.tailSize, wave = (running ? phase * 2 * PI : 0) + pose.tailSwing * 2;
	float high = 1 + pose.tailRaise * .5f, sway = std::sin(wave);
	Vec3 root = hip + Vec3{-figure.hip * .7f, -.6f, 0};
	auto at   = [&](int i) {
        float far = (i + 1) / 4.f;
        float bob = running ? std::cos(wave) * .8f * far : 0;
        return root + (Vec3{p[i].x, p[i].y * high + bob, p[i].z + sway * far}) * k;
	};
	model.Tube(root, at(0), at(1), at(2), 1.35f, 1.2f, 8, coat, .8f, .5f);
	model.Tube(at(2), at(3), at(4), at(5), 1.2f, 1.05f, 5, coat, .4f, .3f);
}

// An S up behind the back, curling away at the tip.
void BipedBuilder::AddSquirrelTail()
{
	float k = figure.tailSize, lift = running ? .35f : 1;
	float wave = std::sin((running ? phase : 0) * 2 * PI);
	Vec3 root  = hip + Vec3{-figure.hip * .75f, -figure.hip * .35f, 0};
	Vec3 p1    = root + Vec3{-7.5f, -1.0f, 0} * k;
	Vec3 p2    = root + Vec3{-6.5f, 13 * lift, 0} * k;
	Vec3 p3    = root + Vec3{running ? -13.f : -8.5f, 15.5f * lift + wave, 0} * k;
	model.Tube(root, p1, p2, p3, 2.0f * k, 3.6f * k, 6, coat, 1, 1.0f);
	int tip = figure.tailTip ? model.Plain(figure.tailTip) : coat;
	model.RoundCone(p3, p3 + Vec3{-2.2f, -1.2f, 0} * k, 3.4f * k, 2.0f * k, tip, .8f);
}
} // namespace

void AddBiped(Model& model, const Biped& figure, const View& view, const Pose& pose)
{
	BipedBuilder(model, figure, view, pose).Build();
}
