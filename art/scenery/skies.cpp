// What is over the sea: skies, suns, clouds, the rainbow, and the tints that lie over the field.
#include "art/scenery/skies.h"

#include "art/core/palette.h"
#include "art/families.h"

static const int HORIZON      = 95;  // rows until the ramp has reached the colour of the horizon
static const int STRIP_HEIGHT = 120; // the sea hides what lies lower
static const int SCREEN_WIDTH = 800, SCREEN_HEIGHT = 600, FIELD_WIDTH = 693;

namespace
{
struct SkyRamp {
	const char* name;
	uint32_t top, middle, horizon;
};
} // namespace

// clang-format off
static const SkyRamp s_strips[] = {
	{ "background_sky_blue.png",       0x3a8ae4, 0x86c6f8, 0xe4f6ff },
	{ "background_sky_light_blue.png", 0x62b4f2, 0xa6daf9, 0xf2fbff },
	{ "background_sky_deep_blue.png",  0x1c58b8, 0x4a94e0, 0xb8e0f8 },
	{ "background_sky_magenta.png",    0xb4509e, 0xe68abe, 0xffe2d8 },
	{ "background_sky_purple.png",     0x5644a6, 0x9680d6, 0xf2d6ea },
};
static const SkyRamp s_sunset = { "background_sky_sunset.jpg", 0xd8583a, 0xf8984a, 0xffe69a };
static const SkyRamp s_dusk   = { "background_sky_dusk.jpg",   0x242c68, 0x765090, 0xf2a272 };
static const SkyRamp s_night  = { "background_sky_night.jpg",  0x070c2c, 0x162256, 0x3c4e8e };
// clang-format on

static Colour RampColour(const SkyRamp& ramp, float y)
{
	const float MIDDLE = .6f;
	float t            = Clamp01(y / HORIZON);
	Colour middle      = HexColour(ramp.middle);
	return t < MIDDLE ? Mix(HexColour(ramp.top), middle, t / MIDDLE)
	                  : Mix(middle, HexColour(ramp.horizon), (t - MIDDLE) / (1 - MIDDLE));
}

// Flat bands of cloud that the sun lights from below.
static Colour CloudBands(Colour sky, float x, float y, Colour lit, Colour shaded, float slice)
{
	float low  = LayeredNoise(x * .0065f, y * .080f, 4, slice);
	float high = LayeredNoise(x * .0055f + 9, y * .100f - .25f, 4, slice + 3);
	float edge = LayeredNoise(x * .030f, y * .16f, 3, slice + 5) - .5f;
	Colour c   = Mix(sky, lit, .72f * Smoothstep(.53f, .67f, low + .10f * edge));
	c          = Mix(c, shaded, .58f * Smoothstep(.54f, .68f, high + .08f * edge));
	float rim  = Smoothstep(.51f, .54f, high) * Smoothstep(.60f, .55f, high);
	return Mix(c, Lighter(lit, .4f), .40f * rim);
}

static void AddStars(Image& sky, int count, int seed)
{
	const Colour STAR = HexColour(0xfff4d8);
	Random random(seed);
	for (int i = 0; i < count; i++) {
		int x = random.Below(sky.width), y = random.Below(66);
		float a = random.Range(.25f, 1) * (1 - y / 90.f);
		AddLight(sky, x, y, random.Below(4) ? STAR : HexColour(0xbcd4ff), a);
		for (int k = -1; k <= 1 && a > .72f; k += 2) {
			AddLight(sky, x + k, y, STAR, .35f);
			AddLight(sky, x, y + k, STAR, .35f);
		}
	}
}

static void AddMoon(Image& sky, float cx, float cy)
{
	for (int y = 0; y < SCREEN_HEIGHT && y < cy + 70; y++)
		for (int x = (int)cx - 70; x < cx + 70; x++) {
			float out = std::hypot(x - cx, y - cy), bite = std::hypot(x - cx - 8, y - cy + 5);
			float halo = Clamp01(1 - out / 66);
			AddLight(sky, x, y, HexColour(0x8aa0e0), .42f * halo * halo);
			float face    = Smoothstep(19, 17.5f, out) * Smoothstep(15.5f, 17, bite);
			float craters = LayeredNoise(x * .16f, y * .16f, 2, 4);
			Blend(sky, x, y,
			      Mix(HexColour(0xfff6d0), HexColour(0xe8d8a8), Smoothstep(.5f, .7f, craters)),
			      face);
		}
}

// Only the part above the sea is worked out; below it the horizon's colour stands.
static Image DrawCloudySky(const SkyRamp& ramp, Colour lit, Colour shaded, float slice)
{
	Image sky = Filled(SCREEN_WIDTH, SCREEN_HEIGHT, HexColour(ramp.horizon));
	for (int y = 0; y < STRIP_HEIGHT; y++)
		for (int x = 0; x < SCREEN_WIDTH; x++)
			Blend(sky, x, y, CloudBands(RampColour(ramp, y), x, y, lit, shaded, slice));
	return sky;
}

static Image DrawNight()
{
	Image sky = Filled(SCREEN_WIDTH, SCREEN_HEIGHT, HexColour(s_night.horizon));
	for (int y = 0; y < STRIP_HEIGHT; y++)
		for (int x = 0; x < SCREEN_WIDTH; x++) {
			// a faint milky way leans across
			float veil = LayeredNoise(x * .012f + y * .03f, y * .05f - x * .004f, 4, 6);
			Colour c   = Mix(RampColour(s_night, y), HexColour(0x5a6cb4),
			                 .30f * Smoothstep(.50f, .74f, veil) * Smoothstep(90, 30, y));
			Blend(sky, x, y, c);
		}
	AddStars(sky, 190, 5);
	AddMoon(sky, 148, 34);
	return sky;
}

static Image DrawSun(bool sunset)
{
	const int SIZE = 120;
	const float C  = SIZE * .5f;
	Colour glow    = HexColour(sunset ? 0xffb850 : 0xfff6c8),
	       face    = HexColour(sunset ? 0xff6a2a : 0xffec8e);
	Colour heart   = sunset ? HexColour(0xffc85a) : Colour{1, 1, .92f};
	float r        = sunset ? 27 : 22;
	Image sun(SIZE, SIZE);
	for (int y = 0; y < SIZE; y++)
		for (int x = 0; x < SIZE; x++) {
			float dx = x + .5f - C, dy = y + .5f - C, out = std::hypot(dx, dy);
			float ray  = .84f + .16f * std::sin(std::atan2(dy, dx) * 12);
			float halo = Clamp01(1 - (out - r * .5f) / (C - r * .5f));
			Blend(sun, x, y, glow, .85f * std::pow(halo, 1.9f) * ray);
			Colour disc = Mix(face, heart, Smoothstep(r, r * .3f, std::hypot(dx + 4, dy + 5)));
			Blend(sun, x, y, disc, Smoothstep(r + .8f, r - .8f, out));
		}
	return sun;
}

// Ten steps: the bow grows from its left foot to the right one while it gains colour.
static Image DrawRainbow(int step)
{
	static const uint32_t BANDS[] = {0xff5a4a, 0xffa03a, 0xfff05a, 0x6ee05a,
	                                 0x4ab8ff, 0x7a6af0, 0xc05ae0};
	const int W = 270, H = 68, STEPS = 9;
	const float BAND = 3.9f, CX = W * .5f, RADIUS = W * .5f - 2, FLATNESS = 1.96f, SOFT = .16f;
	float part = (step + .6f) / (STEPS + .2f), strength = .16f + .50f * step / STEPS;
	Image bow(W, H);
	for (int y = 0; y < H; y++)
		for (int x = 0; x < W; x++) {
			float dx = x + .5f - CX, dy = (H - y - .5f) * FLATNESS;
			float out = std::hypot(dx, dy), across = (RADIUS - out) / BAND;
			float along  = std::atan2(dy, -dx) / PI;
			float shown  = step == STEPS ? 1 : Smoothstep(part + SOFT * .4f, part - SOFT, along);
			float inside = Clamp01(across * .8f + .3f) * Clamp01((7.4f - across) * .6f);
			if (inside <= 0 || shown <= 0)
				continue;
			int band   = std::max(0, std::min(6, (int)across));
			Colour c   = Mix(HexColour(BANDS[band]), HexColour(BANDS[std::min(6, band + 1)]),
			                 Clamp01(across - band));
			float haze = Smoothstep(0, 16, H - y); // the feet fade into the sea's haze
			Blend(bow, x, y, c, strength * inside * shown * (.35f + .65f * haze));
		}
	return bow;
}

namespace
{
// A ball of vapour; clouds are lit like the smooth union of such balls.
struct Puff {
	float x, y, r;
};
} // namespace

// Two or three storeys of puffs over a flat foot, highest off the middle.
static std::vector<Puff> CloudPuffs(int w, int h, int seed)
{
	Random random(seed);
	std::vector<Puff> puffs;
	float peak = random.Range(-.30f, .30f), foot = h * .76f;
	int count = std::max(5, w / 14);
	for (int i = 0; i < count; i++) {
		float u = (i + .5f) / count * 2 - 1, away = std::fabs(u - peak) / (1 + std::fabs(peak));
		float hill = Clamp01(1 - away * away),
		      size = h * (.17f + .11f * hill) * random.Range(.85f, 1.2f);
		float x    = w * (.5f + u * .39f) + random.Range(-1.5f, 1.5f);
		size       = std::max(size, .62f * w / count); // neighbours always touch
		puffs.push_back({x, foot - size * .55f, size});
		for (float rise = size * 1.05f; rise < h * .36f * hill; rise += size * .9f)
			puffs.push_back({x + random.Range(-.5f, .5f) * size, foot - size * .4f - rise,
			                 size * random.Range(.75f, 1.05f)});
	}
	for (Puff& p : puffs) // none is cut by the picture
		p.y = std::max(p.y, p.r + 2);
	return puffs;
}

// Height of the cloud toward the viewer, 0 outside; `edge` gets how far inside the point is.
static float CloudHeight(const std::vector<Puff>& puffs, float x, float y, float& edge)
{
	float sum = 0, best = -9;
	for (const Puff& p : puffs) {
		float dx = x - p.x, dy = y - p.y, inside = p.r - std::sqrt(dx * dx + dy * dy);
		best = std::max(best, inside);
		if (inside > 0)
			sum +=
			    std::pow(p.r * p.r - dx * dx - dy * dy, 2.f); // fourth power of the ball's height
	}
	edge = best;
	return std::pow(sum, .25f);
}

Image LitCloud(int w, int h, int seed)
{
	const int FINE     = 2;
	const Colour SHADE = HexColour(0xa9c6ec), MIDDLE = HexColour(0xe3eefb);
	std::vector<Puff> puffs = CloudPuffs(w, h, seed);
	Image cloud(w * FINE, h * FINE);
	for (int y = 0; y < cloud.height; y++)
		for (int x = 0; x < cloud.width; x++) {
			float px = (x + .5f) / FINE, py = (y + .5f) / FINE, edge, ignored;
			float wisp   = 1.6f * (LayeredNoise(px * .16f, py * .20f, 2, seed) - .5f);
			float height = CloudHeight(puffs, px, py, edge);
			float foot   = Smoothstep(h * .90f, h * .66f, py + wisp * 2);
			float alpha  = Smoothstep(-.9f, 1.3f, edge + wisp) * foot;
			if (alpha <= 0)
				continue;
			float dx    = CloudHeight(puffs, px + .7f, py, ignored) - height,
			      dy    = CloudHeight(puffs, px, py + .7f, ignored) - height;
			Vec3 normal = Normalize({-dx, dy, 1.1f}); // up is positive
			float lit   = Dot(normal, Normalize({-.50f, .74f, .46f})) -
			            .30f * Smoothstep(h * .40f, h * .85f, py);
			Colour c = lit < .30f ? Mix(SHADE, MIDDLE, Smoothstep(-.55f, .30f, lit))
			                      : Mix(MIDDLE, PAINT_WHITE, Smoothstep(.30f, .62f, lit));
			Blend(cloud, x, y, c, alpha * .97f);
		}
	return BoxDownsample(cloud, FINE);
}

static void AddClouds(Catalogue& catalogue)
{
	const struct {
		const char* word;
		int width, height, count;
	} CLASSES[] = {{"big", 132, 46, 4}, {"medium", 92, 33, 3}, {"small", 58, 22, 5}};
	for (const auto& kind : CLASSES)
		catalogue.Add(std::string("background_cloud") + kind.word, __FILE__, [kind](Sink& sink) {
			for (int i = 0; i < kind.count; i++)
				sink.Add(
				    std::string("background_cloud") + kind.word + std::to_string(i) + ".png",
				    LitCloud(kind.width - i % 3 * 6, kind.height - i % 2 * 2, kind.width + i * 7));
		});
}

static void AddPaintedSkies(Catalogue& catalogue)
{
	catalogue.Add(s_sunset.name, __FILE__, [](Sink& sink) {
		sink.Add(s_sunset.name,
		         DrawCloudySky(s_sunset, HexColour(0xffd27a), HexColour(0xb84a48), 3));
	});
	catalogue.Add(s_dusk.name, __FILE__, [](Sink& sink) {
		Image sky = DrawCloudySky(s_dusk, HexColour(0xd8788a), HexColour(0x342c60), 6);
		AddStars(sky, 46, 5);
		sink.Add(s_dusk.name, sky);
	});
	catalogue.Add(s_night.name, __FILE__, [](Sink& sink) { sink.Add(s_night.name, DrawNight()); });
}

void AddSkies(Catalogue& catalogue)
{
	catalogue.Add("background_skies", __FILE__, [](Sink& sink) {
		for (const SkyRamp& ramp : s_strips) {
			Image strip(1, STRIP_HEIGHT);
			for (int y = 0; y < STRIP_HEIGHT; y++)
				Blend(strip, 0, y, RampColour(ramp, y));
			sink.Add(ramp.name, strip);
		}
		sink.Add("background_sun.png", DrawSun(false));
		sink.Add("background_sun_sunset.png", DrawSun(true));
	});
	catalogue.Add("background_overlays", __FILE__, [](Sink& sink) {
		Image field = Filled(FIELD_WIDTH, SCREEN_HEIGHT, {1, 1, 1}), tint = field;
		Tint(field, HexColour(0xff7a28), 1);
		sink.Add("background_overlay_sunset.png", Faded(field, .17f));
		Tint(tint, PAINT_NIGHT, 1);
		sink.Add("background_overlay_night.png", Faded(tint, .34f));
	});
	catalogue.Add("background_rainbow", __FILE__, [](Sink& sink) {
		for (int step = 0; step < 10; step++)
			sink.Add("background_rainbow" + std::to_string(step) + ".png", DrawRainbow(step));
	});
	AddPaintedSkies(catalogue);
	AddClouds(catalogue);
}
