// The frog: flat body, bulging eyes, folded legs that unfold in a leap.
#include "art/animals/actions.h"
#include "art/animals/beast.h"
#include "art/animals/eyes.h"
#include "art/animals/hoppers.h"
#include "art/animals/limbs.h"
#include "art/families.h"

static const uint32_t SKIN = 0x58b83a, BELLY = 0xeef2b0, BLOT = 0x2f8a34, LIMB = 0x4aa534;
static const uint32_t MOUTH = 0x24601f, TOES = 0xb8d860;
static const float SKIN_GLOSS = .55f;
static const float LEG = 15.5f, ARM = 8; // reach
static const float FAR_SHADE = .40f;
static const float CURLED    = 22; // degrees that the body is tilted with its legs drawn up
static const Vec3 HEAD_HALF  = {6, 4.6f, 6.8f};

namespace
{
// One moment: the body's middle and tilt in degrees, one heel, toe and hand.
struct FrogKey {
	float x, y, tilt, stretch, heelX, heelY, toeX, toeY, handX, handY;
};

// clang-format off
const FrogKey SIT = { 0, 6.2f, 20, 1, -5.5f, 0, .5f, 0, 6.5f, 0 };
// Off at the first picture, down at the last: the game's sounds go with these.
const FrogKey LEAP[HOP_KEYS] = {
	{ -2,    7,    34, 1.04f,   -8,    1.5f,  -3.5f,0,     4.5f, 0    }, // pushes
	{  1,   13.5f, 34, 1.16f,  -11,    5,    -13,   0,    10,    7    }, // stretched, toes at the ground
	{  2,   19,    20, 1.20f,  -10.5f,15,    -16,  11,    11.5f,13    },
	{  2,   21.5f,  4, 1.16f,  -11,   20,    -16.5f,19,   11.5f,16    }, // highest
	{  2,   19.5f,-14, 1.10f,   -9,   20,    -14.5f,21,   11,   10    },
	{  2,   14,   -22, 1.04f,   -6,   14.5f, -10,  15,    10.5f, 3.5f },
	{  2,    8,    -8,  .96f,   -3,    5,     -1,   3.5f, 10,    0    }, // hands down
	{   .8f, 4.9f, 10,  .92f,   -5,    0,      1.2f,0,     8.5f, 0    }, // sits, pressed flat
};
// clang-format on

class FrogBuilder
{
public:
	FrogBuilder(Model& newModel, const View& newView, const Pose& newPose)
	    : model(newModel), view(newView), pose(newPose)
	{
	}
	void Build();

private:
	void AddBody();
	void AddHead();
	void AddSmile();
	void AddHindLeg(int s);
	void AddForeLeg(int s);
	bool IsFar(int s) const { return s != (int)view.NearSide(); }
	int LimbMaterial(int s);
	Vec3 AtHead(float x, float y, float z) const { return headFrame.Point(x, y, z); }

	Model& model;
	View view;
	const Pose& pose;
	FrogKey key = {};
	Vec3 centre;
	Mat3 axes;
	HeadFrame headFrame;
	int body = 0, green = 0;
};

void FrogBuilder::Build()
{
	key     = pose.hop < 0 ? SIT : LEAP[(int)(pose.hop * HOP_KEYS) % HOP_KEYS];
	centre  = {key.x, key.y - pose.squash * .7f + pose.rise, 0};
	axes    = TurnZ(Radians(Mix(key.tilt, CURLED, pose.tuck)));
	green   = model.Plain(SKIN, SKIN_GLOSS);
	Vec3 at = centre;
	body    = model.Painted(
        [at, toLocal = Transpose(axes)](const SurfacePoint& s) {
            Vec3 l      = toLocal * (s.position - at);
            float blots = Noise(Vec3{l.x, std::fabs(l.z), 0} * .42f + Vec3{0, 2.4f, 0});
            Colour back = Mix(HexColour(SKIN), HexColour(BLOT), Smoothstep(.58f, .66f, blots));
            Colour side = Mix(HexColour(SKIN), back, Smoothstep(.2f, 1.4f, l.y));
            return Mix(side, HexColour(BELLY), Smoothstep(-.6f, -1.5f, l.y));
        },
        SKIN_GLOSS);
	AddBody();
	AddHead();
	for (int s : {-1, 1}) {
		AddHindLeg(s);
		AddForeLeg(s);
	}
}

void FrogBuilder::AddBody()
{
	float swell = 1 + .07f * pose.breath, thin = 2 - key.stretch;
	model.Ellipsoid(centre, {9.2f * key.stretch, 5.6f * swell * thin, 7.4f * swell * thin}, axes,
	                body, 0);
}

void FrogBuilder::AddHead()
{
	float turn  = Radians(12 + pose.look * 40) * view.TowardViewer();
	float level = Radians(key.tilt) * .35f;
	headFrame   = {centre + axes * Vec3{6.4f * key.stretch, 2.2f, 0},
	               TurnY(turn) * TurnZ(level + pose.headTip)};
	model.Ellipsoid(headFrame.centre, HEAD_HALF, headFrame.axes, body, 3);
	if (pose.breath > 0)
		model.Ellipsoid(AtHead(2.6f, -3.0f, 0), Vec3{3.6f, 3.0f, 4.4f} * (.5f + .6f * pose.breath),
		                headFrame.axes, model.Plain(BELLY, .5f), 1.2f);
	for (int s : {-1, 1})
		model.Ball(AtHead(5.8f, .9f, s * .9f), .38f, model.Plain(MOUTH), 0);
	Eye eye{2.7f, .30f, 1.02f, .56f, .56f};
	eye.bulge = .70f, eye.lookAside = .30f;
	AddEyes(model, headFrame, HEAD_HALF, eye, HexColour(SKIN), green, view, pose);
	AddSmile();
}

void FrogBuilder::AddSmile()
{
	int line  = model.Plain(MOUTH, .2f);
	auto lips = [&](int k) {
		float z = k * 1.45f, round = z / HEAD_HALF.z;
		float x = HEAD_HALF.x * std::sqrt(std::max(0.f, 1 - round * round)) * .985f;
		return AtHead(x, -1.1f + z * z * .055f, z);
	};
	for (int i = -4; i < 4; i++)
		model.RoundCone(lips(i), lips(i + 1), .42f, .42f, line, 0);
}

int FrogBuilder::LimbMaterial(int s)
{
	return model.Plain(Darker(HexColour(LIMB), IsFar(s) ? FAR_SHADE : 0), SKIN_GLOSS);
}

void FrogBuilder::AddHindLeg(int s)
{
	float side = (float)s;
	Vec3 hip   = centre + axes * Vec3{-5.4f * key.stretch, -.6f, side * 5};
	bool flies = key.heelY > 3;
	float out  = flies ? 1.5f : 7.6f;
	Vec3 heel  = {key.heelX, key.heelY + 1.2f + pose.rise, side * (flies ? 5 + out : out)};
	Vec3 toe   = {key.toeX, key.toeY + .9f + pose.rise, side * (flies ? 7.f : 9.4f)};
	if (pose.tuck > 0) {
		heel = Mix(heel, hip + Vec3{2.5f, -2.6f, side * 1.6f}, pose.tuck);
		toe  = Mix(toe, heel + Vec3{3.5f, 0, side * .6f}, pose.tuck);
	}
	Vec3 knee = KneeOf(hip, heel, LEG, {1, flies ? -.1f : .8f, side * .6f});
	int limb  = LimbMaterial(s),
	    web   = model.Plain(Darker(HexColour(TOES), IsFar(s) ? .35f : 0), .4f);
	model.RoundCone(hip, knee, 3.5f, 2.5f, limb, 1.5f);
	model.RoundCone(knee, heel, 2.2f, 1.4f, limb, .4f);
	model.RoundCone(heel, toe, 1.3f, 1.2f, limb, .5f);
	Vec3 way = Normalize(toe - heel);
	for (int i : {-1, 0, 1}) // webbed
		model.RoundCone(toe, toe + way * 2.6f + Vec3{0, -.1f, i * 1.7f}, 1.0f, .8f, web, .8f);
}

void FrogBuilder::AddForeLeg(int s)
{
	float side    = (float)s;
	Vec3 shoulder = centre + axes * Vec3{4.8f * key.stretch, -2.4f, side * 4.8f};
	Vec3 hand     = {key.handX, key.handY + .9f + pose.rise, side * (key.handY > 2 ? 4.f : 6.4f)};
	if (pose.tuck > 0)
		hand = Mix(hand, shoulder + Vec3{1.8f, -2.2f, side * .4f}, pose.tuck);
	Vec3 elbow = KneeOf(shoulder, hand, ARM, {-.6f, 0, side * 1.f});
	int limb   = LimbMaterial(s),
	    web    = model.Plain(Darker(HexColour(TOES), IsFar(s) ? .35f : 0), .4f);
	model.RoundCone(shoulder, elbow, 1.9f, 1.5f, limb, .8f);
	model.RoundCone(elbow, hand, 1.4f, 1.1f, limb, .4f);
	for (int i : {-1, 0, 1})
		model.RoundCone(hand, hand + Vec3{1.8f - .4f * std::abs(i), -.1f, i * 1.3f}, .9f, .7f, web,
		                .5f);
}
} // namespace

Species Frog()
{
	Species s;
	s.prefix = "frog";
	s.width  = 26;
	s.build  = [](Model& model, const View& view, const Pose& pose) {
        FrogBuilder(model, view, pose).Build();
	};
	return s;
}

// The throat fills and empties.
static Poses Breathing()
{
	const float FILL[] = {.35f, 1, .9f, .3f};
	Poses list(4);
	for (int i = 0; i < 4; i++) {
		list[i].breath = FILL[i];
		list[i].squash = -.5f * FILL[i];
	}
	return list;
}

void AddFrog(Catalogue& catalogue)
{
	AddBeast(catalogue, __FILE__, Frog, {{"breathe", Breathing()}, {"hop", Hop()}}, false);
}
