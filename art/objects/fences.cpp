// White posts and rails in every state of damage.
#include "art/core/renderer.h"
#include "art/core/palette.h"
#include "art/families.h"

static const float ELEVATION  = 17;                  // degrees
static const float LOWER_RAIL = 10, UPPER_RAIL = 19; // height of their middle, pixels
static const float RAIL_HALF = 2.1f;

enum class RailStyle { Level, FallingRight, RisingRight };

// Painted wood is kept bright on the side that looks to the viewer.
static ShadeStyle FenceStyle()
{
	ShadeStyle style;
	style.shadowFrom = .16f;
	style.shadowTo   = .50f;
	return style;
}

static int AddPaint(Model& m, Colour white, Vec3 grain)
{
	return m.Painted(
	    [=](const SurfacePoint& at) {
		    float wear = LayeredNoise(at.position * grain, 3);
		    Colour c   = white * (.90f + .14f * wear);
		    return Mix(c, HexColour(0xb09a7c),
		               Smoothstep(.70f, .80f, wear) * .7f); // paint flaked off
	    },
	    .08f);
}

static int AddBrokenWood(Model& m)
{
	return m.Plain(0xc89a62, .05f);
}

// state: 0 whole, 1 nicked, 2 leaning with a split cap, 3 cap off, 4 snapped.
static Image FencePost(int state)
{
	Model m;
	int white = AddPaint(m, PAINT_FENCE[1], {.8f, .15f, .8f});
	int wood  = AddBrokenWood(m);
	Mat3 lean = TurnZ(state >= 2 ? -.025f : state == 1 ? .015f : 0);
	float top = state == 4 ? 15.f : state == 3 ? 23.f : 26.f;
	m.Box(lean * Vec3{0, top * .5f, 0}, {3, top * .5f, 3}, lean, .7f, white, 0);
	m.Box({0, 1.2f, 0}, {3.5f, 1.6f, 3.5f}, Mat3(), .5f, white, 0);
	if (state < 3) {
		Mat3 cap = state == 2 ? lean * TurnZ(.18f) : lean;
		m.Box(lean * Vec3{0, 27, 0}, {3.7f, 1.3f, 3.7f}, cap, .6f, white, 0);
		if (state < 2)
			m.Ellipsoid(lean * Vec3{0, 29, 0}, {2.7f, 2.4f, 2.7f}, Mat3(), white, .8f);
	} else {
		for (int i = 0; i < 4; i++) {
			float x = -2.2f + 1.5f * i, tall = 1.2f + 2.6f * Hash01(i, state, 3);
			Vec3 foot = lean * Vec3{x, top - 1.5f, (i & 1) * 2.f - 1};
			m.RoundCone(foot, foot + Vec3{0, tall + 1, 0}, 1.1f, .3f, wood, .2f);
		}
	}
	if (state >= 1) // the nick
		m.Ellipsoid(lean * Vec3{2.6f, state == 4 ? 9.f : 17.f, 2.6f}, {.9f, 2.2f, 1.1f}, Mat3(),
		            wood, 0);
	Image out(13, 36);
	DrawFootShadow(out, 7.5f, 33, 4.6f, PAINT_SHADOW);
	Compose(out, RenderModel(m, ViewFrom(13, 36, 6.5f, 32.7f, 26, ELEVATION), FenceStyle()), 0, 0);
	return out;
}

namespace
{
// A section between two posts; t runs along it from -1 to 1.
struct RailSection {
	RailStyle style;
	Model model;
	int white, wood;
	Vec3 along; // half of the section, on the ground
	Mat3 axes;

	explicit RailSection(RailStyle newStyle);
	void AddPiece(float height, float from, float to, float dropFrom = 0, float dropTo = 0);
	void AddSplinters(float height, float t, float drop, int side);
	Image Draw();
};

RailSection::RailSection(RailStyle newStyle) : style(newStyle)
{
	bool level = style == RailStyle::Level;
	float dx = level ? 51 : 33, dy = level ? 0 : style == RailStyle::FallingRight ? 21.f : -21.f;
	Vec3 whole = {dx, 0, dy / std::sin(Radians(ELEVATION))};
	float half = Length(whole) * .5f - (level ? 3.2f : 5);
	along      = Normalize(whole) * half;
	axes       = TurnY(std::atan2(-whole.z, whole.x));
	white = AddPaint(model, PAINT_FENCE[0], level ? Vec3{.12f, .9f, .9f} : Vec3{.2f, .9f, .1f});
	wood  = AddBrokenWood(model);
}

// A stretch of rail; its ends hang by the two drops.
void RailSection::AddPiece(float height, float from, float to, float dropFrom, float dropTo)
{
	Vec3 a       = along * from + Vec3{0, height - dropFrom, 0},
	     b       = along * to + Vec3{0, height - dropTo, 0};
	float length = Length(b - a);
	float slope  = std::atan2(b.y - a.y, Length(along) * (to - from));
	model.Box((a + b) * .5f, {length * .5f, RAIL_HALF, 1.3f}, axes * TurnZ(slope), .5f, white, 0);
}

void RailSection::AddSplinters(float height, float t, float drop, int side)
{
	Vec3 p = along * t + Vec3{0, height - drop, 0}, out = Normalize(along) * (float)side;
	for (int i = -1; i <= 1; i++) {
		Vec3 root = p + Vec3{0, i * 1.2f, .4f};
		model.RoundCone(root - out, root + out * (2.2f + 1.3f * (i & 1)), 1.0f, .3f, wood, .2f);
	}
}

Image RailSection::Draw()
{
	bool level = style == RailStyle::Level;
	int w = level ? 48 : 36, h = level ? 26 : 46;
	float originY = level ? 27.5f : h * .5f + 13.5f;
	return RenderModel(model, ViewFrom(w, h, w * .5f, originY, 0, ELEVATION), FenceStyle());
}
} // namespace

// state: 0 whole, 1 upper rail knocked loose, 2 it is snapped, 3 the lower one too, 4 only stubs.
static Image FenceRails(RailStyle style, int state)
{
	RailSection s(style);
	switch (state) {
	case 0:
		s.AddPiece(LOWER_RAIL, -1, 1);
		s.AddPiece(UPPER_RAIL, -1, 1);
		break;
	case 1:
		s.AddPiece(LOWER_RAIL, -1, 1);
		s.AddPiece(UPPER_RAIL, -1, .08f, 0, 1.6f);
		s.AddPiece(UPPER_RAIL, .04f, 1, 1.6f, 0);
		break;
	case 2:
		s.AddPiece(LOWER_RAIL, -1, 1);
		s.AddPiece(UPPER_RAIL, -1, -.12f, 0, 2.6f);
		s.AddSplinters(UPPER_RAIL, -.12f, 2.6f, 1);
		s.AddPiece(UPPER_RAIL, .26f, 1, 1.4f, 0);
		s.AddSplinters(UPPER_RAIL, .26f, 1.4f, -1);
		break;
	case 3:
		s.AddPiece(LOWER_RAIL, -1, .10f, 0, 1.8f);
		s.AddPiece(LOWER_RAIL, .06f, 1, 1.8f, 0);
		s.AddPiece(UPPER_RAIL, -1, -.40f, 0, 3.2f);
		s.AddSplinters(UPPER_RAIL, -.40f, 3.2f, 1);
		s.AddPiece(UPPER_RAIL, .50f, 1, 1.6f, 0);
		s.AddSplinters(UPPER_RAIL, .50f, 1.6f, -1);
		break;
	default:
		s.AddPiece(LOWER_RAIL, -1, -.20f, 0, 3);
		s.AddSplinters(LOWER_RAIL, -.20f, 3, 1);
		s.AddPiece(LOWER_RAIL, .22f, 1, 2, 0);
		s.AddSplinters(LOWER_RAIL, .22f, 2, -1);
		s.AddPiece(UPPER_RAIL, -1, -.62f, 0, 1.2f);
		s.AddSplinters(UPPER_RAIL, -.62f, 1.2f, 1);
		s.AddPiece(UPPER_RAIL, .55f, 1, 6.5f, 0); // hangs by its nail
		s.AddSplinters(UPPER_RAIL, .55f, 6.5f, -1);
		break;
	}
	return s.Draw();
}

void AddFences(Catalogue& catalogue)
{
	catalogue.Add("fence posts", __FILE__, [](Sink& sink) {
		for (int i = 0; i < 5; i++)
			sink.Add("fencepost" + std::to_string(i) + ".png", FencePost(i));
	});
	const RailStyle styles[] = {RailStyle::Level, RailStyle::FallingRight, RailStyle::RisingRight};
	for (int k = 0; k < 3; k++) {
		std::string stem = std::string("fencerails") + (char)('A' + k);
		RailStyle style  = styles[k];
		catalogue.Add("fence " + stem, __FILE__, [=](Sink& sink) {
			for (int i = 0; i < 5; i++)
				sink.Add(stem + std::to_string(i) + ".png", FenceRails(style, i));
		});
	}
}
