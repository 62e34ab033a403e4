// The lizard: a spine that winds through every step, four spread legs, a fiery head.
#include "art/animals/actions.h"
#include "art/animals/crawlers.h"
#include "art/animals/eyes.h"
#include "art/animals/gait.h"
#include "art/animals/limbs.h"
#include "art/families.h"

// Deeper than it stands: going up or down the field, tail and feet come lower.
static const Window CANVAS    = {-22, -15, 50, 27};
static const int SPINE_PIECES = 20, WALK_FRAMES = 12, STUNNED_FRAMES = 7, CREST = 6;
static const float TAIL_TIP = -23, NECK = 7;      // ends of the spine in x
static const float ELEVATION = 30;                // degrees: a flat creature shows from above
static const float STAND     = 4.6f;              // height of the spine
static const float REST_BEND = .10f;              // phase in which it stands
static const float HIPS = .54f, SHOULDERS = .93f; // places along the spine, 0..1
static const float STRIDE = 3.2f, STRIDE_UP = 2.0f;
static const float LEG = 8.6f; // reach

static const uint32_t BODY = 0x3c8cd2, DEEP = 0x275fa8, PALE = 0xa6e2f0, BELLY = 0xf6e6b4;
static const uint32_t FIRE = 0xf77c34, FIRE_PALE = 0xffc86a, LINE = 0x5a2414;

namespace
{
class LizardBuilder
{
public:
	LizardBuilder(Model& newModel, const View& newView, const Pose& newPose);
	void Build();

private:
	Vec3 SpineAt(float t) const;
	Vec3 AsideAt(float t) const;
	float ThicknessAt(float t) const;
	void AddBody();
	void AddCrest();
	void AddLeg(int fore, int s);
	void AddHead();
	void AddMouth(const HeadFrame& frame);

	Model& model;
	View view;
	const Pose& pose;
	float side, phase, turn;
	int coat = 0, fire = 0, leg = 0;
};

Colour BodyColour(const SurfacePoint& at)
{
	Vec3 p     = at.position;
	Colour c   = Mix(HexColour(BODY), HexColour(DEEP), Smoothstep(.2f, .9f, std::sin(p.x * .82f)));
	float spot = Noise(Vec3{p.x, p.y, std::fabs(p.z)} * .40f);
	c          = Mix(c, HexColour(PALE),
	                 Smoothstep(.62f, .70f, spot) * .8f * Smoothstep(0, .3f, at.normal.y));
	c          = Mix(c, HexColour(FIRE), Smoothstep(4.0f, 7.5f, p.x));
	c          = Mix(c, HexColour(FIRE), Smoothstep(-17.5f, -20, p.x));
	return Mix(HexColour(BELLY), c, Smoothstep(-.5f, -.15f, at.normal.y));
}

LizardBuilder::LizardBuilder(Model& newModel, const View& newView, const Pose& newPose)
    : model(newModel), view(newView), pose(newPose), side(newView.NearSide())
{
	phase = pose.stride >= 0 ? pose.stride : REST_BEND;
	turn  = pose.stride >= 0 ? 1.25f : .75f;
	coat  = model.Painted(BodyColour, .35f);
	fire  = model.Plain(FIRE, .35f);
	leg   = model.Plain(DEEP, .3f);
}

// Waves run from the neck to the tail and grow on the way. What bends to the near side does so in
// both facings.
Vec3 LizardBuilder::SpineAt(float t) const
{
	float wave = std::sin(2 * PI * (phase + (1 - t) * 1.05f));
	float grow = Mix(5.2f, 1.1f, Smoothstep(0, .8f, t));
	float y    = Mix(1.5f, STAND, Smoothstep(.05f, .5f, t)) - pose.squash * .55f + pose.rise;
	y += pose.tailRaise * 9 * Smoothstep(.5f, 0, t) * Smoothstep(.5f, 0, t);
	float swing = pose.tailSwing * 4 * Smoothstep(.55f, 0, t);
	return {Mix(TAIL_TIP, NECK, t), y, side * (wave * grow * turn + swing)};
}

// To the near side, square to the spine.
Vec3 LizardBuilder::AsideAt(float t) const
{
	Vec3 way = Normalize(SpineAt(t + .03f) - SpineAt(t - .03f));
	return Normalize(Cross(way, {0, 1, 0})) * (side > 0 ? 1.f : -1.f);
}

float LizardBuilder::ThicknessAt(float t) const
{
	if (t < .5f)
		return Mix(.8f, 3.7f, std::pow(t / .5f, .8f));
	return 3.7f + .75f * std::sin((t - .5f) / .5f * PI) - .25f * Smoothstep(.85f, 1, t);
}

void LizardBuilder::AddBody()
{
	for (int i = 0; i < SPINE_PIECES; i++) {
		float t0 = i / (float)SPINE_PIECES, t1 = (i + 1) / (float)SPINE_PIECES;
		model.RoundCone(SpineAt(t0), SpineAt(t1), ThicknessAt(t0), ThicknessAt(t1), coat,
		                i ? .6f : 0);
	}
}

// Spikes along the back.
void LizardBuilder::AddCrest()
{
	for (int i = 0; i < CREST; i++) {
		float t = .50f + .085f * i, r = ThicknessAt(t);
		Vec3 at = SpineAt(t) + Vec3{0, r * .8f, 0};
		model.RoundCone(at, at + Vec3{-1.4f, 2.2f - .12f * i, 0}, 1.0f, .3f, fire, .4f);
	}
}

void LizardBuilder::AddLeg(int fore, int s)
{
	float at = fore > 0 ? SHOULDERS : HIPS;
	Vec3 out = AsideAt(at) * (float)s, joint = SpineAt(at) + out * 2.6f - Vec3{0, .6f, 0};
	bool first = fore * s > 0;
	Step step;
	if (pose.stride >= 0)
		step = StepAt(pose.stride + (first ? .15f : .65f));
	float ahead = fore > 0 ? 2.2f : -1.2f;
	Vec3 foot   = {joint.x + ahead + step.ahead * STRIDE, 1.0f + step.lift * STRIDE_UP + pose.rise,
	               joint.z + out.z * 6.4f};
	if (pose.tuck > 0)
		foot = Mix(foot, joint + Vec3{fore * 1.5f, -2.2f, out.z * 3.4f}, pose.tuck);
	if (pose.limbsUp > 0)
		foot = Mix(foot, joint + Vec3{fore * 3.f, 4.5f, out.z * 6.5f}, pose.limbsUp);
	Vec3 knee = KneeOf(joint, foot, LEG, {fore > 0 ? -.5f : .6f, .75f, out.z * .5f});
	model.RoundCone(joint, knee, 2.1f, 1.7f, leg, .8f);
	model.RoundCone(knee, foot, 1.7f, 1.3f, leg, .4f);
	int toe = model.Plain(FIRE, .3f);
	for (int i = -1; i <= 1; i++) {
		Vec3 way = {1, 0, i * .85f + (float)(s * side) * .25f};
		model.RoundCone(foot, foot + Normalize(way) * 2.7f - Vec3{0, .2f, 0}, 1.0f, .75f, toe, .2f);
	}
}

void LizardBuilder::AddMouth(const HeadFrame& frame)
{
	if (pose.mouth > 0) {
		Mat3 hinge = frame.axes * TurnZ(-.55f * pose.mouth);
		Vec3 jaw   = frame.Point(-1, -1.6f, 0);
		model.Ellipsoid(jaw + hinge * Vec3{3.6f, -.7f, 0}, {4.6f, 1.1f, 3.8f}, hinge,
		                model.Plain(FIRE_PALE, .3f), .3f);
		model.Ellipsoid(jaw + hinge * Vec3{3.4f, .2f, 0}, {4.0f, .8f, 3.2f}, hinge,
		                model.Plain(0x9c2c3cu, .2f), 0);
		model.Ellipsoid(jaw + hinge * Vec3{4.4f, .7f, 0}, {2.6f, .6f, 1.5f}, hinge,
		                model.Plain(0xf27f8cu, .3f), 0);
		return;
	}
	int line   = model.Plain(LINE);
	auto smile = [&](float z) {
		float flat = z / 4.7f;
		return frame.Point(6.3f * std::sqrt(std::max(0.f, 1 - flat * flat)) + .1f,
		                   -1.5f + flat * flat * 1.3f, z);
	};
	for (int i = -3; i < 3; i++)
		model.RoundCone(smile(i * 1.35f), smile((i + 1) * 1.35f), .38f, .38f, line, 0);
}

void LizardBuilder::AddHead()
{
	Vec3 neck = SpineAt(1), head = neck + Vec3{6.0f, 3.4f - pose.headDown * 3 + pose.neckReach, 0};
	Mat3 axes = TurnY(Radians(18 + pose.look * 44) * view.TowardViewer()) * TurnZ(pose.headTip);
	model.RoundCone(neck, head - Vec3{1.5f, .8f, 0}, 3.6f, 3.7f, coat, 1);
	HeadFrame frame{head, axes};
	int face = model.Painted(
	    [frame](const SurfacePoint& p) {
		    Vec3 l = Transpose(frame.axes) * (p.position - frame.centre);
		    return Mix(HexColour(FIRE_PALE), HexColour(FIRE), Smoothstep(-1.9f, -1.1f, l.y));
	    },
	    .35f);
	model.Ellipsoid(head, {5.4f, 4.1f, 5.0f}, axes, face, 1.2f);
	model.Ellipsoid(frame.Point(2.6f, -.9f, 0), {4.0f, 2.9f, 4.2f}, axes, face, 1.2f);
	for (int s : {-1, 1})
		model.Ball(frame.Point(6.2f, .3f, s * 1.2f), .42f, model.Plain(LINE), 0);
	AddMouth(frame);
	Eye eye{2.55f, .30f, .66f, .62f, .58f, 0, .62f, .34f};
	AddEyes(model, frame, {5.4f, 4.4f, 5.0f}, eye, HexColour(FIRE), face, view, pose);
}

void LizardBuilder::Build()
{
	AddBody();
	AddCrest();
	AddHead();
	for (int fore : {-1, 1})
		for (int s : {-1, 1})
			AddLeg(fore, s);
}
} // namespace

static void BuildLizard(Model& model, const View& view, const Pose& pose)
{
	LizardBuilder(model, view, pose).Build();
}

Species Lizard()
{
	Species s;
	s.prefix    = "lizard";
	s.build     = BuildLizard;
	s.width     = 48;
	s.elevation = ELEVATION;
	s.canvas    = CANVAS;
	return s;
}

// Flattened, then up on its toes with the tail whipping and the mouth agape.
static Poses Startle()
{
	const float PRESS[] = {4.5f, 1, -2, -2.4f, -2, -.8f, 0},
	            SWING[] = {0, .5f, 1, -1, .9f, -.5f, 0};
	Poses list(STUNNED_FRAMES);
	for (int i = 0; i < STUNNED_FRAMES; i++) {
		float t     = Part(i, STUNNED_FRAMES);
		Pose& p     = list[i];
		p.squash    = PRESS[i];
		p.wideEyes  = .35f * std::sin(t * PI);
		p.mouth     = i > 0 && i < STUNNED_FRAMES - 1 ? .3f + .7f * std::sin(t * PI) : 0;
		p.headTip   = .28f * std::sin(t * PI);
		p.tailSwing = SWING[i];
		p.tailRaise = std::sin(t * PI);
		p.look      = .35f * std::sin(t * PI);
	}
	return list;
}

void AddLizard(Catalogue& catalogue)
{
	Pose bubble      = Captured();
	bubble.tailRaise = .5f;
	AddSequences(catalogue, __FILE__, Lizard,
	             {{"stand", {Pose()}, "", false},
	              {"look", Look(5)},
	              {"stunned", Startle()},
	              {"walkup", Walk(WALK_FRAMES, Heading::Up)},
	              {"walkdown", Walk(WALK_FRAMES, Heading::Down)}});
	AddBubbleViews(catalogue, __FILE__, Lizard, bubble);
}
