// The fish of the main menu: out of the water in an arc, and back.
#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/families.h"

static const int WIDTH = 90, HEIGHT = 70, FRAMES = 14;
static const float APEX = 22, FROM_X = 70, TO_X = 20; // of the arc of one that leaps to the left
static const float SCALE = 1.12f;

namespace
{
struct FishLook {
	uint32_t back, belly, fin, stripe;
	float water; // row of the picture at which it breaks the surface
};
} // namespace

static const FishLook ORANGE = {0xf58a2c, 0xffe0a0, 0xf0602c, 0xfff4e0, 41};
static const FishLook VIOLET = {0x8a64e0, 0xe8d4ff, 0xf07cc0, 0xd8c4ff, 35};

// Swims to the left, centred on the origin; bend curls the tail, radians.
static Model FishModel(const FishLook& look, float bend)
{
	Model m;
	int skin = m.Painted(
	    [look](const SurfacePoint& at) {
		    Vec3 p     = at.position;
		    float band = std::fabs(std::fmod(p.x + 30, 9.f) - 4.5f);
		    Colour top = Mix(HexColour(look.back), HexColour(look.stripe),
		                     .8f * Smoothstep(1.4f, .8f, band) * Smoothstep(-3, 1, p.x));
		    return Mix(HexColour(look.belly), top, Smoothstep(-4.5f, -.5f, p.y));
	    },
	    .7f);
	int fin = m.Plain(look.fin, .4f);
	Material eye;
	eye.eye   = true;
	eye.paint = [](const SurfacePoint& at) {
		float q = std::hypot(at.position.x + 9.9f, at.position.y - 1.9f);
		return q < 1.45f ? Colour{.08f, .06f, .12f} : Colour{1, 1, 1};
	};
	int white = m.Add(eye);
	Vec3 root = {10, 0, 0}, tail = root + Vec3{std::cos(bend) * 5, std::sin(bend) * 5, 0};
	m.Ellipsoid({-2, 0, 0}, {12.5f, 7.2f, 4.6f}, Mat3(), skin, 0);
	m.RoundCone({6, 0, 0}, tail, 4.4f, 1.7f, skin, 3);
	for (int s = -1; s <= 1; s += 2)
		m.Ellipsoid(tail + TurnZ(bend) * Vec3{4, s * 3.4f, 0}, {4.8f, 2.3f, .9f},
		            TurnZ(bend + s * .75f), fin, .8f);
	m.Ellipsoid({0, 7.2f, 0}, {6.5f, 3.2f, .8f}, TurnZ(-.12f), fin, .6f);
	for (int s = -1; s <= 1; s += 2) {
		m.Ellipsoid({1.5f, -2.4f, s * 4.6f}, {3.8f, 1.9f, .8f}, TurnZ(.5f), fin, .3f);
		m.Ellipsoid({-9.2f, 1.8f, s * 3.1f}, {2.9f, 2.9f, 1.6f}, Mat3(), white, 0);
	}
	return m;
}

// Drops thrown up at x a while ago; age 0..1.
static void DrawSplash(Canvas& canvas, float x, float water, float age, int seed)
{
	if (age < 0 || age > 1)
		return;
	float fade = Smoothstep(1, .55f, age);
	for (float ring : {1.f, .6f})
		canvas.Stroke(Oval(x, water + 2, (5 + 14 * age) * ring, (1.4f + 2.2f * age) * ring),
		              PAINT_WHITE, 1.5f, .7f * fade);
	Random random(seed);
	for (int i = 0; i < 15; i++) {
		float way = random.Range(-1, 1), up = random.Range(13, 27), r = random.Range(1.1f, 2.6f);
		float y = water - up * (age - age * age * 1.25f) * 2.6f;
		if (y > water + 2)
			continue;
		PathFn drop = Disc(x + way * 19 * age, y, r * (1.1f - .5f * age));
		canvas.Fill(drop, HexColour(0x2a78c4), .7f * fade, .7f);
		canvas.Fill(drop, HexColour(0xe8f8ff), fade);
	}
}

// The part under water is drawn faint, as the surface hides it.
static Image Submerged(Image image, float water)
{
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++) {
			float seen = Smoothstep(water + 4, water, (float)y);
			for (int k = 0; k < 4; k++)
				image.At(x, y)[k] *= seen;
		}
	return image;
}

static Image FishFrame(const FishLook& look, bool left, int frame)
{
	const float IN = .10f, OUT = .86f; // when it is above the water
	const float DEEP = 18;             // below the surface at both ends, pixels
	float t = frame / (FRAMES - 1.f), u = Clamp01((t - IN) / (OUT - IN));
	float x = Mix(FROM_X, TO_X, u), rise = 4 * u * (1 - u);
	float high = look.water + DEEP - APEX, y = look.water + DEEP - high * rise;
	float slope = -high * 4 * (1 - 2 * u) / (TO_X - FROM_X); // of the path
	float angle = -std::atan(slope);
	if (!left)
		x = WIDTH - x, angle = -angle;
	Model model   = FishModel(look, .45f * std::sin(t * 22));
	Camera camera = ViewFrom(WIDTH, HEIGHT, x, y, left ? 0 : 180, 0, 4);
	// Seen from the other side, a turn of the model goes the other way round.
	camera.bodyTurn = TurnZ(left ? angle : -angle);
	camera.scale    = SCALE;
	Image image(WIDTH, HEIGHT);
	if (frame > 0 && frame < FRAMES - 1)
		image = Submerged(RenderModel(model, camera), look.water);
	Canvas drops(WIDTH, HEIGHT, 3);
	float first = left ? FROM_X - 8 : WIDTH - FROM_X + 8, last = left ? TO_X + 8 : WIDTH - TO_X - 8;
	DrawSplash(drops, first, look.water, (t - .16f) / .42f, 3);
	DrawSplash(drops, last, look.water, (t - .62f) / .40f, 8);
	Compose(image, drops.Finish(), 0, 0);
	return image;
}

void AddMenuFish(Catalogue& catalogue)
{
	for (bool left : {true, false})
		catalogue.Add(left ? "menu/fish left" : "menu/fish right", __FILE__, [left](Sink& sink) {
			std::vector<Image> frames;
			for (int i = 0; i < FRAMES; i++)
				frames.push_back(FishFrame(left ? ORANGE : VIOLET, left, i));
			sink.AddFrames(left ? "mainmenufishleft" : "mainmenufishright", frames);
		});
}
