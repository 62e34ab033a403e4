// The rattlesnake: two coils, a neck that rises out of them, and the rattle upright behind.
#include "art/animals/actions.h"
#include "art/animals/crawlers.h"
#include "art/animals/eyes.h"
#include "art/families.h"

static const int BODY_PIECES = 46, NECK_PIECES = 12, RINGS = 5;
static const int MARK_PERIOD = 5;              // pieces from one saddle to the next
static const float LOWER = 9.8f, UPPER = 5.6f; // radii of the coils
static const float FLATTENED   = .82f;         // the coils across
static const float ROUNDS      = 1.82f;        // turns from the tail to the neck
static const float THICK       = 3.1f;
static const float HEAD        = 4.9f; // half length of the head
static const float ELEVATION   = 24;   // degrees: the coils show from above
static const int RATTLE_FRAMES = 8;

static const uint32_t BACK = 0xf0c46c, SADDLE = 0x6e3a1e, BELLY = 0xfbeec2;
static const uint32_t RATTLE = 0xfff0b4, GROOVE = 0xb98f4c, TONGUE = 0xe8304a, GULLET = 0x9c2c3c;

namespace
{
class SnakeBuilder
{
public:
	SnakeBuilder(Model& newModel, const View& newView, const Pose& newPose)
	    : model(newModel), view(newView), pose(newPose), side(newView.NearSide())
	{
	}
	void Build();

private:
	Vec3 CoilAt(float t) const;
	Vec3 NeckAt(float t) const;
	int SkinOf(int piece);
	void AddCoils();
	void AddNeck();
	void AddRattle();
	void AddHead();
	void AddJaws(const HeadFrame& frame);
	void AddTongue(const HeadFrame& frame);

	Model& model;
	View view;
	const Pose& pose;
	float side; // the near side in model z; what lies on it is the same in both facings
	int skins[MARK_PERIOD] = {};
};

// From the tail at the back, round over the near side: first the wide coil, then the one on it.
Vec3 SnakeBuilder::CoilAt(float t) const
{
	float upper  = Smoothstep(.50f, .72f, t);
	float radius = Mix(LOWER, UPPER, upper), angle = PI * (1.06f - 2 * ROUNDS * t);
	float y = THICK + 4.9f * upper - pose.squash * (.12f + .3f * upper) + pose.rise;
	return {radius * std::cos(angle), y, side * radius * FLATTENED * std::sin(angle)};
}

// Out of the upper coil, back and up, then forward to the head.
Vec3 SnakeBuilder::NeckAt(float t) const
{
	float drawn = pose.frown * 3 - pose.neckReach * 3;
	float low   = pose.squash + pose.headDown * 6;
	Vec3 p0 = CoilAt(1), p1 = p0 + Vec3{-4.5f, 3.0f, side * 1.5f};
	Vec3 p2 = {-5 - drawn, 14.5f - low + pose.rise, 0};
	Vec3 p3 = {5.5f - drawn * .9f, 18.6f - low + pose.frown * 1.5f + pose.rise, 0};
	float u = 1 - t;
	return p0 * (u * u * u) + p1 * (3 * u * u * t) + p2 * (3 * u * t * t) + p3 * (t * t * t);
}

// Skin of one piece of the body: the saddle is broad in the middle of its period and ends there.
int SnakeBuilder::SkinOf(int piece)
{
	int place = piece % MARK_PERIOD;
	if (skins[place])
		return skins[place] - 1;
	const float FROM[MARK_PERIOD] = {.62f, -.1f, -.1f, .62f, 2};
	int skin                      = model.Painted(
        [from = FROM[place]](const SurfacePoint& at) {
            float y  = at.normal.y;
            Colour c = Mix(HexColour(BELLY), HexColour(BACK), Smoothstep(-.62f, -.36f, y));
            return Mix(c, HexColour(SADDLE), Smoothstep(from - .06f, from + .1f, y));
        },
        .40f);
	skins[place] = skin + 1;
	return skin;
}

void SnakeBuilder::AddCoils()
{
	for (int i = 0; i < BODY_PIECES; i++) {
		float t0 = i / (float)BODY_PIECES, t1 = (i + 1) / (float)BODY_PIECES;
		float r0 = THICK * Mix(.62f, 1.f, Smoothstep(0, .22f, t0));
		float r1 = THICK * Mix(.62f, 1.f, Smoothstep(0, .22f, t1));
		model.RoundCone(CoilAt(t0), CoilAt(t1), r0, r1, SkinOf(i), i ? .25f : 0);
	}
}

void SnakeBuilder::AddNeck()
{
	for (int i = 0; i < NECK_PIECES; i++) {
		float t0 = i / (float)NECK_PIECES, t1 = (i + 1) / (float)NECK_PIECES;
		model.RoundCone(NeckAt(t0), NeckAt(t1), Mix(THICK, 2.2f, t0), Mix(THICK, 2.2f, t1),
		                SkinOf(BODY_PIECES + i), .25f);
	}
}

// Upright behind the coils; it swings fast when it sounds.
void SnakeBuilder::AddRattle()
{
	Vec3 root = CoilAt(0);
	float up = 7.0f + pose.tailRaise * 2.5f, shake = pose.tailSwing;
	Vec3 top = root + Vec3{-3.6f + shake * 1.1f, up, side};
	model.Tube(root, root + Vec3{-2.6f, .2f, 0}, root + Vec3{-4.2f, 2.0f, 0}, top, THICK * .62f,
	           1.45f, 6, SkinOf(MARK_PERIOD - 1), .25f, .25f);
	Vec3 way  = Normalize(Vec3{-.05f + shake * .42f, 1, 0});
	int light = model.Plain(RATTLE, .45f), dark = model.Plain(GROOVE, .2f);
	for (int i = 0; i < RINGS; i++) {
		float r = 2.4f - .26f * i;
		Vec3 at = top + way * (.6f + 1.95f * i);
		if (i)
			model.Ball(at - way * 1.0f, r * .72f, dark, 0);
		model.Ellipsoid(at, {r, 1.2f, r}, TurnZ(std::atan2(-way.x, way.y)), light, 0);
	}
	model.Ball(top + way * (.4f + 1.95f * RINGS), .9f, light, .3f);
}

void SnakeBuilder::AddJaws(const HeadFrame& frame)
{
	int throat = model.Plain(BELLY, .3f), line = model.Plain(0x4c2814u);
	float open = pose.mouth;
	if (open <= 0) {
		model.Ellipsoid(frame.Point(.9f, -1.5f, 0), {4.6f, 1.7f, 3.7f}, frame.axes, throat, .5f);
		for (int s : {-1, 1})
			model.RoundCone(frame.Point(5.3f, -1.0f, s * .3f), frame.Point(2.3f, -1.5f, s * 3.9f),
			                .36f, .34f, line, 0);
		return;
	}
	Mat3 hinge = frame.axes * TurnZ(-.75f * open);
	Vec3 jaw   = frame.Point(-1.6f, -1.5f, 0);
	model.Ellipsoid(jaw + hinge * Vec3{2.9f, -.5f, 0}, {4.2f, 1.15f, 3.3f}, hinge, throat, .4f);
	model.Ellipsoid(jaw + hinge * Vec3{2.9f, .35f, 0}, {3.7f, .75f, 2.8f}, hinge,
	                model.Plain(GULLET, .2f), 0);
	model.Ellipsoid(frame.Point(1.2f, -1.3f, 0), {3.6f, 1.2f, 2.9f}, frame.axes,
	                model.Plain(GULLET, .2f), .2f);
	int fang = model.Plain(0xfffaf0u, .6f);
	for (int s : {-1, 1})
		model.RoundCone(frame.Point(4.0f, -1.2f, s * 1.5f), frame.Point(4.1f, -3.6f, s * 1.6f),
		                .62f, .24f, fang, 0);
}

// Flicks: out by neckReach while the mouth is shut, out of it while it is open.
void SnakeBuilder::AddTongue(const HeadFrame& frame)
{
	float out = std::max(pose.neckReach, pose.mouth * .7f);
	if (out <= 0)
		return;
	int red   = model.Plain(TONGUE, .4f);
	float bow = pose.chew * 1.5f;
	Vec3 root = frame.Point(4.4f, -1.4f, 0), fork = frame.Point(4.6f + 5.2f * out, -1.7f + bow, 0);
	model.RoundCone(root, fork, .72f, .55f, red, 0);
	for (int s : {-1, 1})
		model.RoundCone(fork, fork + frame.Along(2.4f, .5f + bow * .7f, s * 1.5f), .52f, .36f, red,
		                0);
}

void SnakeBuilder::AddHead()
{
	Vec3 at   = NeckAt(1) + Vec3{1.4f, 1.0f, 0};
	Mat3 axes = TurnY(Radians(24 + pose.look * 44) * view.TowardViewer()) *
	            TurnZ(pose.headTip - .06f - pose.headDown * .4f);
	HeadFrame frame{at, axes};
	int skin = model.Painted(
	    [frame](const SurfacePoint& p) {
		    Vec3 l    = Transpose(frame.axes) * (p.position - frame.centre);
		    float bar = std::fabs(std::fabs(l.z) - (.9f + .34f * (2 - l.x))); // a V on the crown
		    Colour c  = Mix(HexColour(SADDLE), HexColour(BACK), Smoothstep(.35f, .8f, bar));
		    return l.y > 1.4f && l.x < 2.6f ? c : HexColour(BACK);
	    },
	    .40f);
	model.RoundCone(frame.Point(-1.8f, .2f, 0), frame.Point(HEAD * .62f, 0, 0), 3.7f, 2.6f, skin,
	                .6f);
	for (int s : {-1, 1}) {
		model.Ellipsoid(frame.Point(-1.8f, -.3f, s * 2.4f), {3.0f, 2.3f, 2.4f}, axes, skin, 1.2f);
		model.Ball(frame.Point(5.3f, .5f, s * .9f), .36f, model.Plain(0x4c2814u), 0);
	}
	AddJaws(frame);
	Eye eye{2.35f, .26f, .50f, .62f, .62f, 0, 0, .30f};
	AddEyes(model, frame, {HEAD, 4.2f, 4.6f}, eye, HexColour(BACK), skin, view, pose);
	AddTongue(frame);
}

void SnakeBuilder::Build()
{
	AddCoils();
	AddNeck();
	AddRattle();
	AddHead();
}
} // namespace

static void BuildSnake(Model& model, const View& view, const Pose& pose)
{
	SnakeBuilder(model, view, pose).Build();
}

Species Snake()
{
	Species s;
	s.prefix    = "snake";
	s.build     = BuildSnake;
	s.width     = 35;
	s.elevation = ELEVATION;
	s.shadow    = .40f;
	return s;
}

// The neck drawn back, the mouth open, the rattle a blur. The game plays it three times over.
static Poses Rattling(float look)
{
	Poses list(RATTLE_FRAMES);
	for (int i = 0; i < RATTLE_FRAMES; i++) {
		float threat = .72f + .28f * std::sin(2 * PI * i / RATTLE_FRAMES);
		Pose& p      = list[i];
		p.look       = look;
		p.squash     = i == 0 ? 1.5f : 0;
		p.frown      = threat;
		p.mouth      = .35f + .65f * threat;
		p.lid        = .22f;
		p.headTip    = .10f + .12f * threat;
		p.tailRaise  = 1;
		p.tailSwing  = i % 2 ? .9f : -.9f;
	}
	return list;
}

static Poses Flicking()
{
	const float OUT[] = {.35f, .9f, 1, 1, .8f, .3f}, WAVE[] = {0, .3f, 1, -.8f, .6f, 0};
	Poses list(6);
	for (int i = 0; i < 6; i++) {
		list[i].neckReach = OUT[i];
		list[i].chew      = WAVE[i];
		list[i].tailSwing = .15f * WAVE[i];
	}
	return list;
}

void AddSnake(Catalogue& catalogue)
{
	AddSequences(catalogue, __FILE__, Snake,
	             {{"stand", {Pose()}, "", false},
	              {"look", Look(5)},
	              {"tongue", Flicking()},
	              {"rattle", Rattling(0)},
	              {"lookrattle", Rattling(1)}});
	AddBubbleViews(catalogue, __FILE__, Snake, Captured());
}
