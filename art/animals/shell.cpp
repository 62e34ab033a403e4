// Dome, plates, head and legs of turtles.
#include "art/animals/shell.h"

#include "art/animals/gait.h"

static const float SINK    = .34f; // part of the rim's height that a shut shell goes down
static const float SEAM    = .075f;
static const float TOP_ROW = .60f; // radians from the crown to the lower edge of the upper plates
static const float STEP = 2.3f, STEP_UP = 1.3f; // of a foot, in leg radii / 2.4
static const float SHUT_LEG = .6f;              // from here on a leg is inside
static const float HEAD_IN  = 1.40f;            // head radii that it goes in, beyond its neck

namespace
{
struct ShellBuilder {
	Model& model;
	const Shell& shell;
	const View& view;
	const Pose& pose;
	Vec3 middle; // of the rim's ellipse
	int skin = 0, belly = 0, plates = 0;

	void AddDome();
	void AddHead();
	void AddMouth(const HeadFrame& frame, float r);
	void AddLeg(int fore, int side);
	void AddTail();
};

// 0 in the middle of a plate, 1 at its seams.
float SeamNear(const Shell& shell, Vec3 p)
{
	float around = std::atan2(std::fabs(p.z) / shell.width, std::max(0.f, p.y) / shell.dome);
	float along  = p.x / shell.length;
	bool top     = around < TOP_ROW;
	float edge   = std::fabs(around - TOP_ROW);
	float at     = top ? std::fabs(std::fabs(along) - .34f)
	                   : std::min(std::fabs(along), std::fabs(std::fabs(along) - .62f));
	float seam   = std::min(edge, at);
	return Smoothstep(SEAM + .05f, SEAM - .015f, seam);
}

void ShellBuilder::AddDome()
{
	plates = model.Painted(
	    [s = shell, at = middle](const SurfacePoint& point) {
		    Vec3 p   = point.position - at;
		    Colour c = HexColour(s.shell);
		    if (p.y < .16f * s.dome) { // the rim, with a mark between its plates
			    float sector = std::atan2(p.z, p.x) * 7 / PI;
			    float gap    = std::fabs(sector - std::round(sector));
			    Colour edge  = HexColour(s.edge);
			    return Mix(Mix(edge, c, .65f), edge, Smoothstep(.06f, .16f, gap));
		    }
		    c = Mix(c, Lighter(c, .35f), Noise(p * (2.1f / s.length) + Vec3{5, 2, 9}));
		    return Mix(c, HexColour(s.seam), SeamNear(s, p));
	    },
	    .45f);
	model.Ellipsoid(middle, {shell.length, shell.dome, shell.width}, Mat3(), plates, 0).cutBelow =
	    middle.y - .9f;
	model.Ellipsoid(middle, {shell.length + 1.1f, shell.dome * .20f, shell.width + 1.1f}, Mat3(),
	                plates, .7f);
	if (shell.knobs)
		for (int row = -1; row <= 1; row++)
			for (int i = -1; i <= 1; i++) {
				float x = i * .56f + (row ? .28f : 0);
				if (x > .7f)
					continue;
				float a = row * .98f, flat = std::sqrt(std::max(0.f, 1 - x * x));
				Vec3 at = {x * shell.length, shell.dome * flat * std::cos(a),
				           shell.width * flat * std::sin(a)};
				model.Ball(middle + at * .90f, shell.dome * .24f, plates, shell.dome * .34f);
			}
	model.Ellipsoid(middle - Vec3{0, shell.dome * .2f, 0},
	                {shell.length * .88f, shell.dome * .26f, shell.width * .88f}, Mat3(), belly,
	                .3f);
}

void ShellBuilder::AddMouth(const HeadFrame& frame, float r)
{
	int line = model.Plain(InkOf(HexColour(shell.skin)));
	if (pose.mouth > 0)
		model.Ellipsoid(frame.Point(r * .74f, -r * .46f, 0),
		                {r * .34f, r * (.08f + .30f * pose.mouth), r * .46f}, frame.axes,
		                model.Plain(0x8c2c38u, .2f), .1f);
	for (int s : {-1, 1})
		model.RoundCone(frame.Point(r * .99f, -r * .30f, 0),
		                frame.Point(r * .66f, -r * .22f, s * r * .70f), .34f, .32f, line, 0);
	for (int s : {-1, 1})
		model.Ball(frame.Point(r * 1.0f, r * .06f, s * r * .15f), r * .07f, line, 0);
}

void ShellBuilder::AddHead()
{
	float r = shell.headRadius, in = std::max(0.f, -pose.neckReach);
	float out  = std::max(0.f, pose.neckReach);
	Vec3 root  = middle + Vec3{shell.length * .62f, shell.dome * .02f, 0};
	Vec3 front = middle + Vec3{shell.length, 0, 0};
	Vec3 head  = front + Vec3{(1 - in) * shell.neckForward + out * r * .5f - in * r * HEAD_IN,
                             shell.neckUp * (1 - in) - pose.headDown * r + out * r * .4f, 0};
	if (pose.stride >= 0)
		head = head + Vec3{std::sin(pose.stride * 4 * PI) * .5f, 0, 0};
	Mat3 axes = TurnY(Radians(16 + pose.look * 46) * view.TowardViewer()) * TurnZ(pose.headTip);
	model.RoundCone(root, head - Vec3{r * .25f, r * .25f, 0}, r * .62f, r * .60f, skin, .5f);
	HeadFrame frame{head, axes};
	model.Ellipsoid(head, {r * 1.02f, r * .90f, r * .96f}, axes, skin, 1.4f);
	AddMouth(frame, r);
	AddEyes(model, frame, {r, r * .92f, r * .96f}, shell.eye, HexColour(shell.skin), skin, view,
	        pose);
}

void ShellBuilder::AddLeg(int fore, int side)
{
	float r = shell.legRadius, in = pose.tuck;
	if (in > SHUT_LEG)
		return;
	Step step;
	if (pose.stride >= 0)
		step = StepAt(pose.stride + (fore * side > 0 ? 0 : .5f) + (fore > 0 ? .1f : 0));
	float k    = r / 2.4f * pose.strideSize;
	Vec3 joint = middle + Vec3{fore * shell.length * .60f, -shell.dome * .10f,
	                           side * shell.width * shell.legSpread * .84f};
	Vec3 foot  = {fore * shell.length * .76f + step.ahead * STEP * k,
	              r * .55f + step.lift * STEP_UP * k + pose.rise,
	              side * shell.width * shell.legSpread * 1.12f};
	foot       = Mix(foot, joint, in * 1.4f);
	if (shell.flippers) {
		float sweep = fore > 0 ? -.55f : .85f;
		Mat3 axes   = TurnY(side * (sweep - step.ahead * .5f)) * TurnX(side * .25f);
		model.RoundCone(joint, foot, r * .95f, r * .7f, skin, .4f);
		model.Ellipsoid(foot + axes * Vec3{0, 0, side * r * .7f},
		                {r * .85f, r * .42f, r * (fore > 0 ? 1.75f : 1.2f)}, axes, skin, .6f);
		return;
	}
	model.RoundCone(joint, foot, r, r * .92f, skin, .4f);
	int nail = model.Plain(Lighter(HexColour(shell.skin), .5f), .4f);
	for (int i = -1; i <= 1; i++)
		model.Ball(foot + Vec3{r * .82f, -r * .28f, i * r * .5f}, r * .2f, nail, .1f);
}

void ShellBuilder::AddTail()
{
	float in  = pose.tuck;
	Vec3 root = middle + Vec3{-shell.length * .9f, -shell.dome * .16f, 0};
	Vec3 tip  = root + Vec3{-shell.legRadius * 1.9f * (1 - in), -shell.legRadius * .5f,
                           pose.tailSwing * shell.legRadius};
	model.RoundCone(root, tip, shell.legRadius * .62f, shell.legRadius * .2f, skin, .3f);
}
} // namespace

void AddShell(Model& model, const Shell& shell, const View& view, const Pose& pose)
{
	float shut = Clamp01(std::min(pose.tuck, -pose.neckReach));
	float bob  = pose.stride >= 0 ? std::fabs(std::sin(pose.stride * 2 * PI)) * .4f : 0;
	ShellBuilder builder{model, shell, view, pose, {}};
	builder.middle = {0, shell.height * (1 - SINK * shut) - pose.squash * .5f + pose.rise + bob, 0};
	builder.skin   = model.Painted(
        [s = shell](const SurfacePoint& at) {
            Colour c = HexColour(s.skin);
            if (!s.freckle)
                return c;
            float blot = Noise(Vec3{at.position.x, at.position.y, std::fabs(at.position.z)} *
		                         (7.5f / s.length));
            return Mix(c, HexColour(s.freckle), Smoothstep(.60f, .70f, blot) * .8f);
        },
        .30f);
	builder.belly = model.Plain(shell.belly, .2f);
	builder.AddDome();
	builder.AddHead();
	builder.AddTail();
	for (int fore : {-1, 1})
		for (int side : {-1, 1})
			builder.AddLeg(fore, side);
}
