// The professor's model: torso, head, hair, glasses, arms and the steering wheel.
#include "art/objects/professor.h"

#include "art/core/palette.h"

const PartWindow PROFESSOR_WINDOW = {19, 503, 38, 57};

static const float HEAD      = 8.7f; // radius
static const Vec3 WHEEL_HUB  = {0, 17.2f, 12};
static const float WHEEL     = 5.8f; // radius
static const float WHEEL_TIP = .5f;  // leaned back, radians

namespace
{
struct Figure {
	const ProfessorPose& pose;
	Model model;
	int skin, coat, hair, moustache, frame, tie, nose, glove, rim, mouth, cheek, shirt, button,
	    cuff;
	Vec3 chest, head;
	Mat3 headAxes;

	explicit Figure(const ProfessorPose& newPose);
	Vec3 OnHead(float x, float y, float z) const { return head + headAxes * Vec3{x, y, z}; }
	void AddTorso();
	void AddHead();
	void AddHair();
	void AddTuft(Vec3 root, Vec3 tip, float thick);
	void AddFace();
	void AddEye(int side);
	void AddTie();
	void AddArms();
};

Figure::Figure(const ProfessorPose& newPose) : pose(newPose)
{
	skin      = model.Plain(PAINT_SKIN, .3f);
	coat      = model.Plain(PAINT_COAT, .12f);
	hair      = model.Plain(0xf0f2f8, .15f);
	moustache = model.Plain(0xfbfbff, .12f);
	frame     = model.Plain(0x4a3424, .7f);
	tie       = model.Plain(PAINT_TIE, .4f);
	nose      = model.Plain(0xf09a80, .4f);
	glove     = model.Plain(PAINT_GLOVES, .35f);
	rim       = model.Plain(0x2c2c34, .7f);
	mouth     = model.Plain(0x8a2a34, .2f);
	cheek     = model.Plain(0xf8a890, .2f);
	shirt     = model.Plain(0xbfd8ee, .1f);
	button    = model.Plain(PAINT_MACHINE_BRASS, .8f);
	cuff      = model.Plain(PAINT_MACHINE, .3f);
	chest     = {pose.lean * .38f, 22.2f - pose.duck * .4f, 4};
	head      = chest + Vec3{pose.lean * .62f, 9.5f - pose.duck * .6f, 2.5f};
	headAxes  = TurnZ(-pose.tilt) * TurnY(pose.turn);
}

void Figure::AddTorso()
{
	Vec3 hip = {pose.lean * .15f, 18.5f, 4};
	model.Ellipsoid(hip, {11, 5.5f, 6}, Mat3(), coat, 0);
	model.RoundCone(hip + Vec3{0, .8f, 0}, chest, 7.8f, 5.8f, coat, 2);
	model.Ellipsoid(chest + Vec3{0, 1.5f, 4.4f}, {2.6f, 3.6f, 1.8f}, Mat3(), shirt, .3f);
}

void Figure::AddHead()
{
	const float r = HEAD;
	model.Ellipsoid(head, {r * .96f, r * 1.02f, r * .92f}, headAxes, skin, .4f);
	model.Ellipsoid(OnHead(0, -3.4f, .8f), {6.8f, 5, 6.2f}, headAxes, skin, 2);
	for (int s = -1; s <= 1; s += 2) {
		model.Ellipsoid(OnHead(s * 8.2f, -.6f, .6f), {1.6f, 2.3f, 1.5f}, headAxes, skin, .3f);
		model.Ball(OnHead(s * 5.6f, -2.4f, 5.4f), 1.9f, cheek, 1.2f);
	}
}

void Figure::AddTuft(Vec3 root, Vec3 tip, float thick)
{
	// The wind bends what flies free: tips follow it, roots stay.
	float wave = std::sin(pose.flutter + tip.y * .6f) * std::fabs(pose.wind);
	tip        = tip + Vec3{pose.wind * 5.2f, wave * 1.4f + std::fabs(pose.wind) * .8f, 0};
	Vec3 bend  = Mix(root, tip, .55f) + Vec3{0, 1.1f, 0};
	model.RoundCone(root, bend, thick, thick * .74f, hair, 1);
	model.RoundCone(bend, tip, thick * .74f, .55f, hair, .6f);
}

void Figure::AddHair()
{
	for (int s = -1; s <= 1; s += 2) {
		// The side that the wind blows on lies flat, the lee side streams out.
		float free = s * pose.wind >= 0 ? 1 : 1 - .75f * std::fabs(pose.wind);
		for (int i = 0; i < 5; i++) {
			float a = i * .5f;
			model.Ball(OnHead(s * (7.3f + 1.3f * std::sin(a * 1.6f)), 4.6f - i * 1.9f, -1.4f),
			           2.9f - .1f * i, hair, .8f);
		}
		AddTuft(OnHead(s * 7.6f, 4.6f, -.6f), OnHead(s * (8.5f + 3.5f * free), 7.6f, -1), 2.3f);
		AddTuft(OnHead(s * 8.3f, 1.4f, -.6f), OnHead(s * (9 + 4 * free), 2.4f, -1), 2.4f);
		AddTuft(OnHead(s * 8.f, -2.2f, -.6f), OnHead(s * (8.7f + 3.2f * free), -3.8f, -1), 2.1f);
	}
	AddTuft(OnHead(-1, HEAD * .95f, 0), OnHead(1.2f, HEAD * 1.27f, 0), 1.0f);
	AddTuft(OnHead(1.2f, HEAD * .93f, 0), OnHead(-1.8f, HEAD * 1.22f, 0), .9f);
}

void Figure::AddEye(int s)
{
	Vec3 centre = OnHead(s * 3.6f, 1.3f, 6.2f);
	Vec3 gaze   = Normalize({pose.turn * .7f + pose.lean * .02f, .12f, 1});
	float lid   = pose.lid > 0 ? Mix(.5f, .93f, pose.lid) : 0;
	float pupil = Mix(.72f, .86f, pose.alarm), size = 2.95f + .35f * pose.alarm;
	Material eye;
	eye.eye   = pose.lid < .5f;
	eye.paint = [=](const SurfacePoint& at) {
		Vec3 d = Normalize((at.position - centre) * Vec3{1, 1, 1.7f});
		if (d.y > 1 - 2 * lid)
			return d.y > 1.25f - 2 * lid ? PAINT_SKIN : InkOf(PAINT_SKIN);
		float seen = Dot(d, gaze);
		if (seen > pupil + .12f)
			return Colour{.10f, .06f, .08f};
		return seen > pupil ? HexColour(0x3a86c8) : Colour{1, 1, 1};
	};
	int white = model.Add(eye);
	model.Ellipsoid(centre, {size, size, 1.7f}, headAxes, white, 0);
	model.Ring(OnHead(s * 3.65f, 1.3f, 7.2f), 3.35f, .62f, headAxes * TurnX(PI / 2), frame, 0);
	float lift = pose.alarm * 1.2f;
	model.RoundCone(OnHead(s * 1.8f, 5.5f + lift, 7.2f), OnHead(s * 6.f, 5.9f + lift * .5f, 5.6f),
	                1.15f, .75f, moustache, .2f);
}

void Figure::AddFace()
{
	for (int s = -1; s <= 1; s += 2)
		AddEye(s);
	model.RoundCone(OnHead(-.6f, 1.6f, 8.1f), OnHead(.6f, 1.6f, 8.1f), .5f, .5f, frame, 0);
	model.Ellipsoid(OnHead(0, -1.6f, 8.7f), {2.4f, 2.1f, 2.2f}, headAxes, nose, .3f);
	float open = .8f + 1.6f * std::max(pose.alarm, pose.glee * .8f);
	model.Ellipsoid(OnHead(0, -6.2f - open * .3f, 6.2f), {2.2f, open, 1.2f}, headAxes, mouth, 0);
	for (int s = -1; s <= 1; s += 2) {
		Vec3 middle = OnHead(s * 3.2f, -4.3f, 7.2f);
		Vec3 tip    = OnHead(s * 7.4f, -3.0f + pose.alarm, 5.2f) + Vec3{pose.wind * 1.6f, 0, 0};
		model.RoundCone(OnHead(s * .7f, -3.7f, 8.f), middle, 1.6f, 1.8f, moustache, .5f);
		model.RoundCone(middle, tip, 1.7f, .6f, moustache, .5f);
	}
}

// Hangs down the shirt at rest; in the wind it streams over the shoulder.
void Figure::AddTie()
{
	Vec3 knot   = chest + Vec3{0, 3.2f, 7};
	float blown = std::fabs(pose.wind), wave = std::sin(pose.flutter) * blown;
	Vec3 middle =
	    Mix(knot + Vec3{0, -3, .8f}, knot + Vec3{pose.wind * 5.5f, .6f + wave, 1.5f}, blown);
	Vec3 end =
	    Mix(knot + Vec3{.3f, -6, 0}, knot + Vec3{pose.wind * 11.5f, 1.6f - 1.6f * wave, 1}, blown);
	model.RoundCone(knot, middle, 1.1f, 1.5f, tie, 0);
	model.RoundCone(middle, end, 1.5f, 1.9f, tie, .3f);
	model.Ball(knot + Vec3{0, .2f, .4f}, 1.5f, tie, .2f);
}

void Figure::AddArms()
{
	Vec3 hub = WHEEL_HUB + Vec3{pose.lean * .12f, 0, 0};
	model.Ring(hub, WHEEL, 1, TurnX(PI / 2 - WHEEL_TIP), rim, 0);
	for (int i = 0; i < 3; i++) {
		float a = -PI / 2 + i * 2 * PI / 3 + pose.steer;
		model.RoundCone(hub, hub + Vec3{std::cos(a) * 5, std::sin(a) * 4.4f, 0}, .8f, .7f, rim,
		                .2f);
	}
	model.Ball(hub + Vec3{0, 0, .6f}, 1.6f, button, 0);
	for (int s = -1; s <= 1; s += 2) {
		float a       = (s < 0 ? PI - .25f : .25f) + pose.steer;
		Vec3 hand     = hub + Vec3{std::cos(a) * WHEEL, std::sin(a) * WHEEL * .88f, .8f};
		Vec3 shoulder = chest + Vec3{s * 7.f, -2, 1};
		Vec3 elbow    = Vec3{s * 13.f + pose.lean * .3f, 17.2f - std::sin(a) * 1.5f * s, 7};
		if (s > 0 && pose.reach > 0) {
			hand  = Mix(hand, head + pose.hand, pose.reach);
			elbow = Mix(elbow, elbow + Vec3{3.5f, 1.5f, 0}, pose.reach);
		}
		Vec3 wrist = Mix(elbow, hand, .62f);
		model.RoundCone(shoulder, elbow, 3, 2.4f, coat, .8f);
		model.RoundCone(elbow, wrist, 2.4f, 2.1f, coat, .5f);
		model.RoundCone(wrist, Mix(elbow, hand, .8f), 2.4f, 2.3f, cuff, 0);
		model.Ball(hand, 2.5f, glove, .3f);
		for (int i = -1; i <= 2 && s > 0 && pose.reach > .5f; i++) // fingers of the free hand
			model.RoundCone(hand,
			                hand + Vec3{i * 1.5f - .8f, i == 2 ? .9f : 4.3f - .5f * i * i, .2f},
			                1.1f, .95f, glove, .35f);
	}
}
} // namespace

Image Professor(const ProfessorPose& pose, const PartWindow& window, float zoom)
{
	Figure figure(pose);
	figure.AddTorso();
	figure.AddHead();
	figure.AddHair();
	figure.AddFace();
	figure.AddTie();
	figure.AddArms();
	return RenderPart(figure.model, window, zoom);
}
