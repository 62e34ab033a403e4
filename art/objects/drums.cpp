// Waste drums that dent, rust and spew, and the stinking cloud.
#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/families.h"

static const float RADIUS = 12, TALL = 16.5f; // half of the height
static const int WIDTH = 44, HEIGHT = 62;
static const int SPEW_FRAMES  = 10;
static const int CLOUD_FRAMES = 25;
static const int CLOUD_WIDTH = 54, CLOUD_HEIGHT = 60;
static const Colour WARNING_YELLOW = HexColour(0xffd83a), WARNING_DARK = HexColour(0x2a2018);

namespace
{
struct Drum {
	bool green;
	int damage; // 0 whole, 1 and 2 dented, 3 and 4 lid open
	int spew;   // frame of the spewing, -1 when it doesn't

	Model model;
	Colour body;
	int paint, rim, slime, dark;

	Image Draw();
	void SetUp();
	Colour ColourAt(Vec3 p) const;
	void AddOpenTop();
	void AddClosedTop();
};

// The triangle with the exclamation mark: true when it covers the place, u across, v up.
bool WarningSign(float u, float v, Colour& c)
{
	float edge = std::max(std::fabs(u) * 1.25f + (v - 1) * .62f - 3.2f, -(v + 4.4f));
	if (edge >= 1.4f)
		return false;
	bool bar = std::fabs(u) < .95f && (v > -1.6f ? v < 3.2f : v < -2.6f && v > -4.0f);
	c        = edge < 0 && !bar ? WARNING_YELLOW : WARNING_DARK;
	return true;
}

Colour Drum::ColourAt(Vec3 p) const
{
	float u = (std::atan2(p.z, p.x) - 1.25f) * RADIUS, v = p.y - TALL;
	Colour c = body * (.93f + .12f * LayeredNoise(p * .3f, 2));
	if (std::fabs(v - 10.2f) < 2.3f || std::fabs(v + 11.2f) < 1.8f) // painted bands
		c = Mix(c, HexColour(0xf2ead8), .82f);
	float rust = LayeredNoise(p * .16f + Vec3{4, green ? 9.f : 0.f, 1}, 3),
	      from = .60f - .05f * damage;
	c          = Mix(c, HexColour(0x7a4a28), Smoothstep(from, from + .08f, rust) * .8f);
	Colour sign;
	return WarningSign(u, v, sign) ? sign : c;
}

void Drum::SetUp()
{
	body  = HexColour(green ? 0x4f9a4a : 0xe0922a);
	paint = model.Painted([this](const SurfacePoint& at) { return ColourAt(at.position); }, .6f);
	rim   = model.Plain(body * .74f, .7f);
	slime = model.Plain(0x8ae82c, .95f);
	dark  = model.Plain(0x20281c, .2f);
}

void Drum::AddOpenTop()
{
	model.Cylinder({0, 2 * TALL + .1f, 0}, RADIUS - 1.6f, .3f, Mat3(), .1f, slime, 0);
	for (int i = 0; i < 5; i++) {
		float a = .5f + i * .5f, run = 4 + 3.2f * ((i * 7) % 4);
		Vec3 top = {std::cos(a) * (RADIUS + .2f), 2 * TALL, std::sin(a) * (RADIUS + .2f)};
		model.RoundCone(top, top - Vec3{0, run, 0}, 1.5f, 1.9f, slime, 1.2f);
	}
	bool spewing = spew >= 0;
	float lift   = spewing       ? 3 + 5 * std::sin(spew * PI / (SPEW_FRAMES - 1))
	               : damage == 4 ? 2.4f
	                             : 1.4f;
	float tip    = spewing       ? -.28f - .3f * std::sin(spew * PI / (SPEW_FRAMES - 1))
	               : damage == 4 ? -.3f
	                             : -.16f;
	model.Cylinder({3, 2 * TALL + lift, -2}, RADIUS - .6f, .9f, TurnZ(-tip), .5f, rim, 0);
	if (!spewing)
		return;
	float strength = std::sin((spew + .5f) * PI / SPEW_FRAMES);
	for (int i = 0; i < 8; i++) {
		float k = std::fmod(spew * .17f + i * .19f, 1.f), spread = 3 + 9 * k;
		Vec3 p = {std::sin(i * 2.4f) * spread, 2 * TALL + 2 + 13 * k * (2 - k) * strength,
		          std::cos(i * 2.4f) * 4};
		model.Ball(p, (3.4f - 1.7f * k) * (.5f + .5f * strength), slime, 1.4f);
	}
}

void Drum::AddClosedTop()
{
	model.Cylinder({0, 2 * TALL + .1f, 0}, RADIUS - 1.6f, .3f, Mat3(), .1f, dark, 0);
	model.Cylinder({0, 2 * TALL + .5f, 0}, RADIUS - 2.2f, .4f, Mat3(), .2f, rim, 0);
	model.Cylinder({-4, 2 * TALL + 1, 3}, 2.2f, .6f, Mat3(), .3f, dark, 0);
	if (damage)
		model.Ball({4, 2 * TALL + .6f, 5}, 1.8f + .5f * damage, slime, 0);
}

Image Drum::Draw()
{
	SetUp();
	Shape& can = model.Cylinder({0, TALL, 0}, RADIUS, TALL, Mat3(), 1.2f, paint, 0);
	if (damage) {
		can.bumps     = .7f * damage;
		can.bumpScale = .12f;
	}
	for (float y : {2.f, TALL - 5.5f, TALL + 5.5f, 2 * TALL - 1.f})
		model.Ring({0, y, 0}, RADIUS + .1f, .95f, Mat3(), rim, .4f);
	if (damage >= 3 || spew >= 0)
		AddOpenTop();
	else
		AddClosedTop();
	ShadeStyle style;
	style.innerLine = .4f;
	Image out(WIDTH, HEIGHT);
	DrawFootShadow(out, 24, 55.5f, 13, PAINT_SHADOW);
	Compose(out, RenderModel(model, ViewFrom(WIDTH, HEIGHT, 21, 55, 10, 19), style), 0, 0);
	return out;
}
} // namespace

static Image DrumImage(bool green, int damage, int spew = -1)
{
	Drum drum{green, damage, spew, {}, {}, 0, 0, 0, 0};
	return drum.Draw();
}

namespace
{
struct Puffs {
	std::vector<PathFn> balls, gleams;
};

// Puffs leave the lower corner one after the other, swell, drift up and away, and shrink. t 0..1.
Puffs PuffsAt(float t, bool toRight)
{
	const int count = 13;
	Random random(7);
	Puffs puffs;
	for (int i = 0; i < count; i++) {
		float start = i * .040f, reach = random.Range(14, 35), rise = random.Range(10, 40);
		float size = random.Range(6, 10.5f), wave = random.Range(0, 2 * PI);
		float age = Clamp01((t - start) / (1 - start));
		if (age <= 0)
			continue;
		float go = 1 - (1 - age) * (1 - age);
		float r  = size * (.35f + .75f * go) * (1 - .5f * Smoothstep(.6f, 1, age));
		float x  = std::min(7 + reach * go + 1.5f * std::sin(wave + t * 7), CLOUD_WIDTH - r - 1.5f);
		float y  = 51 - rise * go * (.6f + .4f * age) + std::cos(wave + t * 6);
		x        = toRight ? x : CLOUD_WIDTH - x;
		y        = std::max(y, r + 1.5f);
		puffs.balls.push_back(Disc(x, y, r));
		puffs.gleams.push_back(Disc(x - r * .2f, y - r * .25f, r * .6f));
	}
	return puffs;
}

void DrawCurls(Canvas& canvas, float t, bool toRight, Colour c)
{
	for (int i = 0; i < 3; i++) {
		float across = 16 + 9.f * i, y = 46 - 9 * i - 8 * t;
		float x     = toRight ? across : CLOUD_WIDTH - across;
		PathFn curl = [=](cairo_t* cairo) {
			cairo_move_to(cairo, x - 4, y);
			cairo_curve_to(cairo, x - 2, y - 4, x + 1, y + 3, x + 4, y - 2);
		};
		canvas.Stroke(curl, c, 1.3f, .6f * Smoothstep(.3f, .5f, t));
	}
}

Image StinkCloud(int frame, bool toRight)
{
	const float t = frame / (CLOUD_FRAMES - 1.f);
	Canvas canvas(CLOUD_WIDTH, CLOUD_HEIGHT, 3);
	Colour pale = HexColour(0xf4f07a), deep = HexColour(0xb8b02c);
	Puffs puffs = PuffsAt(t, toRight);
	if (puffs.balls.empty())
		return canvas.Finish();
	PathFn cloud = Joined(puffs.balls);
	canvas.Fill(cloud, InkOf(deep), .62f, .9f);
	canvas.Relief(cloud, Downward(pale, deep, 8, 56), 3.4f, 2, 0);
	for (const PathFn& gleam : puffs.gleams)
		canvas.Fill(gleam, Lighter(pale, .4f), .30f);
	DrawCurls(canvas, t, toRight, Darker(deep, .6f));
	return Faded(canvas.Finish(), Smoothstep(1.02f, .62f, t) * .84f);
}
} // namespace

static void DrawDrum(Sink& sink, bool green)
{
	std::string stem = green ? "drumB" : "drumA";
	sink.Add(stem + "base.png", DrumImage(green, 0));
	for (int damage = 1; damage <= 4; damage++)
		sink.Add(stem + "break" + std::to_string(damage) + ".png", DrumImage(green, damage));
	for (int i = 0; i < SPEW_FRAMES; i++)
		sink.Add(stem + "spew" + std::to_string(i) + ".png", DrumImage(green, 4, i));
}

void AddDrums(Catalogue& catalogue)
{
	catalogue.Add("drum A", __FILE__, [](Sink& sink) { DrawDrum(sink, false); });
	catalogue.Add("drum B", __FILE__, [](Sink& sink) { DrawDrum(sink, true); });
	catalogue.Add("drum clouds", __FILE__, [](Sink& sink) {
		for (int i = 0; i < CLOUD_FRAMES; i++) {
			// A skunk that looks left sprays to the right.
			sink.Add("skunkspraycloudleft" + std::to_string(i) + ".png", StinkCloud(i, true));
			sink.Add("skunkspraycloud" + std::to_string(i) + ".png", StinkCloud(i, false));
		}
	});
}
