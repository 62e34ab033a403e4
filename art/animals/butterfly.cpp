// The shape of butterflies and the paint of their wings.
#include "art/animals/butterfly.h"

static const float HEIGHT     = 9;    // of the body over the origin, model units
static const float REST_LIFT  = .25f; // radians that the wings are raised at flap 0
static const float FLAP_SWING = .95f; // radians more at flap 1
static const float WING_THICK = .55f;
static const float EDGE       = .10f; // softness of the pattern, in half wings
static const float GLOW       = .28f; // light that shines through the wings
static const int DOTS         = 7;    // round a wing, as far as they fall on its rim

namespace
{
// One wing as seen from above: an ellipse with a rim, dots on it and a spot.
struct WingPaint {
	Butterfly colours;
	Vec3 middle;
	Mat3 toLocal; // model to wing: x along, z out
	float halfX, halfZ, side;
	Vec3 spotAt; // in halves, x and z

	Colour operator()(const SurfacePoint& at) const;
};

Colour WingPaint::operator()(const SurfacePoint& at) const
{
	Vec3 l  = toLocal * (at.position - middle);
	float u = l.x / halfX, v = l.z * side / halfZ, d = std::sqrt(u * u + v * v);
	Colour c = Mix(HexColour(colours.wing), HexColour(colours.inner), Smoothstep(.25f, -.5f, v));
	float su = u - spotAt.x, sv = v - spotAt.z;
	c = Mix(HexColour(colours.spot), c,
	        Smoothstep(colours.spotSize - EDGE * .5f, colours.spotSize + EDGE * .5f,
	                   std::sqrt(su * su + sv * sv)));
	c = Mix(c, HexColour(colours.edge), Smoothstep(colours.rim, colours.rim + EDGE, d));
	for (int i = 0; i < DOTS; i++) {
		float a  = Radians(-65 + i * 130.f / (DOTS - 1));
		float du = u - std::sin(a) * .86f, dv = v - std::cos(a) * .86f;
		c = Mix(HexColour(colours.dot), c, Smoothstep(.06f, .11f, std::sqrt(du * du + dv * dv)));
	}
	return c;
}

struct ButterflyBuilder {
	Model& model;
	const Butterfly& butterfly;
	const Pose& pose;
	Vec3 centre;
	int dark;

	void AddBody();
	void AddWing(const Mat3& axes, Vec3 middle, Vec3 half, float side, Vec3 spotAt);
	void AddWings(int s);
	void AddFeeler(int s);
};

void ButterflyBuilder::AddBody()
{
	model.RoundCone(centre + Vec3{-5.5f, -.8f, 0}, centre + Vec3{2.5f, .6f, 0}, .8f, 1.7f, dark, 0);
	model.Ball(centre + Vec3{4.4f, 1.3f, 0}, 2.3f, dark, .4f);
	int white = model.Plain(0xffffff, .8f), pupil = model.Plain(0x1a0f14, .8f);
	for (int s : {-1, 1}) {
		model.Ball(centre + Vec3{5.3f, 2.5f, s * 1.35f}, 1.25f, white, 0);
		model.Ball(centre + Vec3{6.0f, 3.1f, s * 1.45f}, .62f, pupil, 0);
	}
}

void ButterflyBuilder::AddWing(const Mat3& axes, Vec3 middle, Vec3 half, float side, Vec3 spotAt)
{
	WingPaint paint{butterfly, middle, Transpose(axes), half.x, half.z, side, spotAt};
	Material scales;
	scales.paint = paint;
	scales.gloss = .15f;
	scales.glow  = GLOW;
	model.Ellipsoid(middle, half, axes, model.Add(scales), .25f);
}

void ButterflyBuilder::AddWings(int s)
{
	float lift = REST_LIFT + pose.flap * FLAP_SWING;
	Mat3 flap  = TurnX(s * -lift); // local z is the span
	AddWing(flap * TurnY(s * -.55f), centre + flap * Vec3{-3.8f, 0, s * 5.2f},
	        {4.7f, WING_THICK, 5.6f}, s, {.05f, 0, .1f});
	AddWing(flap * TurnY(s * .5f), centre + flap * Vec3{3.4f, .4f, s * 6.9f},
	        {4.9f, WING_THICK, 7.6f}, s, {-.05f, 0, .22f});
}

void ButterflyBuilder::AddFeeler(int s)
{
	Vec3 root = centre + Vec3{5.4f, 2.6f, s * .7f}, tip = root + Vec3{3.2f, 2.8f, s * 2.4f};
	model.RoundCone(root, tip, .45f, .4f, dark, .1f);
	model.Ball(tip, .85f, dark, .1f);
}
} // namespace

// The body sinks as the wings go up.
void AddButterfly(Model& model, const Butterfly& butterfly, const Pose& pose)
{
	Vec3 centre = {0, HEIGHT + pose.rise - pose.flap * .6f, 0};
	ButterflyBuilder builder{model, butterfly, pose, centre, model.Plain(butterfly.body, .3f)};
	builder.AddBody();
	for (int s : {-1, 1}) {
		builder.AddWings(s);
		builder.AddFeeler(s);
	}
}
