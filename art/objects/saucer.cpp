// The saucer's hull and what six blows make of it.
#include "art/objects/saucer.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/families.h"
#include "art/objects/saucer_parts.h"

static const float ELEVATION = 21;                      // degrees
static const float MIDDLE_X = 52, MIDDLE_Y = 25;        // of the saucer, in the hull's picture
static const float EDGE = 46, DECK = 31, MOUTH = 19.5f; // radii
static const int PLATES                      = 24;      // of the edge
static const float BLOWS[SAUCER_BLOW_FRAMES] = {1, -.6f, .3f, 0};

static const uint32_t SILVER = 0xc3cfe0, VIOLET = 0x7d5be0, DEEP = 0x4a379c, TEAL = 0x36c9c0;
static const uint32_t SOOT = 0x30292f, EMBER = 0xff7a26, GLOW = 0xffd65a;

Camera SaucerCamera(const PartPlace& place, float jolt)
{
	Camera camera   = ViewFrom(place.width, place.height, MIDDLE_X - place.left,
	                           MIDDLE_Y - place.top + .6f * std::fabs(jolt), 0, ELEVATION);
	camera.bodyTurn = TurnZ(.085f * jolt);
	return camera;
}

At SeenAt(Vec3 p, const PartPlace& place)
{
	Camera camera = SaucerCamera(place);
	return {camera.originX + p.x,
	        camera.originY - p.y * std::cos(camera.elevation) + p.z * std::sin(camera.elevation)};
}

float JoltOf(int frame)
{
	return BLOWS[frame];
}

namespace
{
// A wound of the hull: where it is, from which stage on it shows, and how it grows.
struct Wound {
	float x, z, radius;
	int stage;  // of the dent
	int torn;   // stage from which it is a hole
	float tall; // height of the place, for the distance
};

// clang-format off
const Wound WOUNDS[] = {
	{ -25,  26, 11.0f, 1, 3, 3 },
	{  27,  21, 10.5f, 2, 4, 4 },
	{   6,  39,  8.5f, 3, 5, 1 },
	{ -38,   4,  9.0f, 3, 4, 2 },
	{  13,  29,  7.5f, 4, 5, 4 },
	{  39,  11,  9.0f, 5, 5, 2 },
	{ -10,  31,  8.0f, 5, 5, 4 },
};
// clang-format on

// Plates of the edge by what has become of them.
bool IsLost(int plate, int stage)
{
	const int LOST_FROM[PLATES] = {9, 9, 5, 4, 9, 9, 9, 9, 3, 4, 9, 9,
	                               5, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 5};
	return stage >= LOST_FROM[plate];
}

// How far a plate hangs down.
float SagOf(int plate, int stage)
{
	const int SAGS_FROM[PLATES] = {9, 4, 4, 2, 9, 9, 9, 5, 1, 3, 5, 9,
	                               4, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 4};
	return stage >= SAGS_FROM[plate] ? 1.6f + .5f * (stage - SAGS_FROM[plate]) : 0;
}

// Deck of violet enamel with a teal band, silver skirt with panel lines.
Colour Enamel(Vec3 p)
{
	float reach = std::hypot(p.x, p.z), angle = std::atan2(p.z, p.x);
	float sector = angle * 10 / PI, gap = std::fabs(sector - std::floor(sector) - .5f);
	if (p.y < 1.5f) {
		Colour skirt = Mix(HexColour(SILVER), HexColour(0x8f9cbc), Smoothstep(-2, -7, p.y));
		return Mix(skirt, HexColour(0x6c7898), Smoothstep(.46f, .49f, gap));
	}
	Colour c = Mix(HexColour(VIOLET), HexColour(SILVER), Smoothstep(37.5f, 38.5f, reach));
	if (reach > 34.5f && reach < 37.5f)
		c = HexColour(TEAL);
	if (reach < 34.5f)
		c = Mix(c, HexColour(DEEP), Smoothstep(.455f, .48f, gap));
	return c;
}

// Dents are shaded against the light; torn ones are dark holes with glowing lips.
Colour Wounded(Colour c, Vec3 p, int stage)
{
	for (const Wound& w : WOUNDS) {
		if (stage < w.stage)
			continue;
		float age = (float)(stage - w.stage), radius = w.radius * (1 + .12f * age);
		Vec3 off    = {p.x - w.x, (p.y - w.tall) * 1.3f, p.z - w.z};
		float rough = 1.6f * (LayeredNoise(p * .34f + Vec3{w.x, 0, w.z}, 2) - .5f);
		float d     = Length(off) / radius + rough * (stage >= w.torn ? .55f : .22f);
		float soot  = Smoothstep(1.75f + .12f * age, .8f, d) * (.40f + .12f * age);
		c           = Mix(c, HexColour(SOOT), std::min(.85f, soot));
		if (stage >= w.torn) {
			c = Mix(c, HexColour(EMBER), Smoothstep(.92f, .80f, d));
			c = Mix(c, HexColour(GLOW), Smoothstep(.80f, .72f, d));
			c = Mix(c, HexColour(0x1a1014), Smoothstep(.70f, .58f, d));
			continue;
		}
		float lit   = (off.x * .6f + off.z * .75f) / radius; // the far lip catches the light
		Colour bowl = Mix(HexColour(0x2c2444), HexColour(0xe4ecff), Smoothstep(-.1f, .75f, lit));
		c           = Mix(c, bowl, Smoothstep(1.02f, .88f, d));
	}
	return c;
}

int AddSkin(Model& model, int stage)
{
	return model.Painted(
	    [stage](const SurfacePoint& at) {
		    Vec3 p      = at.position;
		    Colour c    = Enamel(p);
		    float burnt = LayeredNoise(p * .09f + Vec3{3.1f, 0, 1.2f}, 3);
		    float from  = .80f - stage * .075f;
		    c           = Mix(c, HexColour(SOOT),
                    stage > 0 ? .72f * Smoothstep(from, from + .10f, burnt) : 0);
		    return Wounded(c, p, stage);
	    },
	    .95f);
}

// The cockpit: a well with a padded lip and a desk with lit dials.
void AddCockpit(Model& model)
{
	int dark = model.Plain(0x241a3eu, .3f), desk = model.Plain(0x5b4aa6u, .5f);
	model.Cylinder({0, 10.2f, 0}, MOUTH, 2.4f, Mat3(), .5f, dark, 0);
	model.Box({0, 12.2f, 11}, {10, 1.2f, 3}, TurnX(.5f), .8f, desk, 0);
	const uint32_t DIALS[] = {0x5af0ff, 0xff6aa6, 0xffe04a, 0x7dff8a};
	for (int i = 0; i < 4; i++)
		model.Ball({i * 4.6f - 6.9f, 13.4f, 10.6f}, .9f, model.Glowing(DIALS[i], .9f), 0);
}

// Bumper plates round the edge: silver, some of them torn off or hanging.
void AddEdge(Model& model, int stage)
{
	int silver = model.Plain(0xd8e2f0u, 1.f), burnt = model.Plain(0x5c5560u, .4f);
	for (int i = 0; i < PLATES; i++) {
		if (IsLost(i, stage))
			continue;
		float a0 = (i + .06f) * 2 * PI / PLATES, a1 = (i + .94f) * 2 * PI / PLATES;
		float sag = SagOf(i, stage), out = EDGE - 1 + .5f * sag;
		Vec3 from = {std::cos(a0) * out, .6f, std::sin(a0) * out};
		Vec3 to   = {std::cos(a1) * out, .6f - sag * 1.5f, std::sin(a1) * out};
		bool hurt = sag > 0 || (stage > 3 && Hash01(i, stage, 3) < .3f);
		model.RoundCone(from, to, 3.2f, 3.2f, hurt ? burnt : silver, .5f);
	}
}

// Torn cables that hang out of holes.
void AddCables(Model& model, int stage)
{
	const uint32_t CABLES[] = {0xff5a6a, 0xffd24a, 0x5ad8ff};
	for (const Wound& w : WOUNDS) {
		if (stage < w.torn)
			continue;
		for (int i = 0; i < 2; i++) {
			Vec3 root  = {w.x + (i ? 2.5f : -2.f), w.tall + 1.5f, w.z + 1.5f};
			Vec3 tip   = root + Vec3{i ? 3.4f : -3.2f, -3.6f - 2.f * i, 4.4f};
			int colour = model.Plain(CABLES[(int)(w.radius * 2 + i) % 3], .4f);
			model.Tube(root, root + Vec3{0, 3.5f, 2.5f}, tip + Vec3{0, 2.5f, 0}, tip, .75f, .6f, 6,
			           colour, 0, .2f);
		}
	}
}

// Lamps sit in these; the lights are a picture of their own.
void AddSockets(Model& model)
{
	int brass = model.Plain(PAINT_BRASS, .8f);
	for (int i = 0; i < SAUCER_LAMPS; i++)
		model.Ball(LampAt(i), 2.7f, brass, .2f);
}

void AddHullParts(Model& model, int stage)
{
	int skin      = AddSkin(model, stage);
	float crumple = .38f * std::max(0, stage - 1);
	auto dented   = [&](Shape& s) { s.bumps = crumple, s.bumpScale = .13f; };
	dented(model.Ellipsoid({0, 0, 0}, {EDGE - 1, 7.6f, EDGE - 1}, Mat3(), skin, 0));
	dented(model.Ellipsoid({0, 4, 0}, {DECK, 9.2f, DECK}, Mat3(), skin, 5));
	dented(model.Ellipsoid({0, -5, 0}, {24, 8.5f, 24}, Mat3(), skin, 4));
	AddEdge(model, stage);
	AddRimRing(model, stage, false);
	AddCockpit(model);
	AddSockets(model);
	AddCables(model, stage);
}
} // namespace

Image SaucerHull(int stage, int frame)
{
	Model model;
	AddHullParts(model, stage);
	Image hull = RenderModel(model, SaucerCamera(SAUCER_HULL, JoltOf(frame)), {});
	AddFlames(hull, stage, frame);
	return hull;
}

static std::string StageName(const char* stem, int stage, int frame)
{
	std::string name = stem + std::to_string(stage);
	return (stage > 0 ? name + "_" + std::to_string(frame) : name) + ".png";
}

// The whole one is a single picture; each blow is a short run that ends in the new state.
static void AddStage(Catalogue& catalogue, int stage)
{
	catalogue.Add("saucer stage " + std::to_string(stage), __FILE__, [stage](Sink& sink) {
		int first = stage > 0 ? 0 : SAUCER_BLOW_FRAMES - 1;
		for (int i = first; i < SAUCER_BLOW_FRAMES; i++) {
			sink.Add(StageName("flyingsaucermain", stage, i), SaucerHull(stage, i));
			sink.Add(StageName("flyingsaucerbubblerim", stage, i), SaucerRim(stage, i));
		}
	});
}

void AddSaucer(Catalogue& catalogue)
{
	for (int stage = 0; stage < SAUCER_STAGES; stage++)
		AddStage(catalogue, stage);
	AddSaucerParts(catalogue);
}
