// Paints the shore of the opening pictures and models the sheep that looks out of them.
#include "art/screens/island.h"

#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/core/stamps.h"
#include "art/objects/ball.h"
#include "art/screens/kit.h"

static const int WIDTH = 800, HEIGHT = 600;

// --- sky and land

static void PaintAir(Image& image, int horizon, int shore)
{
	for (int y = 0; y < HEIGHT; y++) {
		float t  = Clamp01(y / (float)horizon);
		Colour c = t < .6f ? Mix(HexColour(0x2f80e0), PAINT_SKY_MID, t / .6f)
		                   : Mix(PAINT_SKY_MID, HexColour(0xeaf8ff), (t - .6f) / .4f);
		if (y > shore) // shallows under the beach
			c = Mix(HexColour(0x9ae4ec), HexColour(0x58b0e8), Clamp01((y - shore - 8) / 34.f));
		for (int x = 0; x < WIDTH; x++)
			Blend(image, x, y, c);
	}
}

static void PaintSun(Image& image, float cx, float cy)
{
	const float R = 25, GLOW = 120;
	for (int y = (int)(cy - GLOW); y < cy + GLOW; y++)
		for (int x = (int)(cx - GLOW); x < cx + GLOW; x++) {
			float q    = std::hypot(x - cx, y - cy);
			float rays = .82f + .18f * std::sin(std::atan2(y - cy, x - cx) * 12);
			float glow = Clamp01(1 - q / GLOW);
			Blend(image, x, y, HexColour(0xfff6c8), .62f * glow * glow * rays);
			float heart = Smoothstep(R, R * .3f, std::hypot(x - cx + 4, y - cy + 5));
			Blend(image, x, y, Mix(HexColour(0xffec8a), HexColour(0xfffff0), heart),
			      Smoothstep(R + 1, R - 1, q));
		}
}

namespace
{
struct SeaBand {
	Colour crest, depth;
	float phase, swell, length;
};
} // namespace

static void PaintSea(Image& image, int top, int bottom, const SeaBand& band)
{
	for (int x = 0; x < image.width; x++) {
		float wave = std::sin(x * 2 * PI / band.length + band.phase) +
		             .5f * std::sin(x * 2 * PI / (band.length * .43f) + band.phase * 2.1f);
		float line = top + band.swell * wave;
		for (int y = top - 8; y < bottom; y++) {
			float t = y + .5f - line;
			if (t < -1)
				continue;
			Colour c = Mix(band.crest, band.depth, Clamp01(t / 30));
			if (t < 1.8f)
				c = Mix({1, 1, 1}, c, .22f);
			else if (t < 3.6f)
				c = Mix({1, 1, 1}, c, .70f);
			else if (LayeredNoise(x * .05f, y * .42f, 3, band.phase) > .60f)
				c = Mix(c, {1, 1, 1}, .24f);
			Blend(image, x, y, c, Clamp01(t + .5f));
		}
	}
}

void DrawSeaBands(Image& image, int top)
{
	PaintSea(image, top, top + 60, {HexColour(0x58b0e8), HexColour(0x3f92d8), 0, 2.4f, 150});
	PaintSea(image, top + 30, top + 92, {HexColour(0x4498dc), HexColour(0x2f7cc4), 2, 3.2f, 190});
	PaintSea(image, top + 64, HEIGHT, {HexColour(0x3384cc), HexColour(0x1c5ca4), 4, 4, 230});
}

static float RidgeLine(int meadowTop, int ridge, float x)
{
	return meadowTop + ridge * 26 - 26 * std::sin(x * .0062f + ridge * 1.9f + .6f) -
	       9 * std::sin(x * .019f + ridge * 2);
}

float ShoreLine(int shore, float x)
{
	return shore + 8 * std::sin(x * .013f) + 7 * LayeredNoise(x * .03f, 0, 3, 4);
}

static void PaintRidge(Image& image, int meadowTop, int shore, int ridge)
{
	static const float s_haze[] = {.42f, .16f, 0};
	for (int x = 0; x < WIDTH; x++) {
		float line = RidgeLine(meadowTop, ridge, x);
		float low  = ShoreLine(shore, (float)x);
		for (int y = (int)line - 1; y < low + 16; y++) {
			float t  = y + .5f - line;
			Colour c = GrassColour(x * 1.1f, 200 + ridge * 90 + t);
			c        = Mix(c, HexColour(0xcfe9c8), s_haze[ridge] * Smoothstep(90, 0, t));
			if (t < 2)
				c = Lighter(c, .3f);
			if (y > low - 3)
				c = Mix(HexColour(0xf4e2aa), HexColour(0xd8bc80), Smoothstep(low, low + 16, y));
			Blend(image, x, y, c, Clamp01(t + .5f));
		}
	}
}

static void StrokeMeadow(Image& image, int meadowTop, int shore)
{
	const int BLADES = 9000;
	Random random(7);
	CairoLayer layer(image);
	for (int i = 0; i < BLADES; i++) {
		float x = random.Range(0, WIDTH), y = random.Range(meadowTop + 40, shore + 4);
		float thick = LayeredNoise(x * .02f, y * .04f, 3, 21);
		if (random.Next01() > Smoothstep(.35f, .65f, thick))
			continue;
		bool light  = random.Next01() < .55f;
		Colour tone = Mix(GrassColour(x, y), light ? PAINT_BLADE_LIGHT : PAINT_BLADE_DARK, .38f);
		float tall = random.Range(2.5f, 5.5f), lean = random.Range(-1.6f, 1.6f);
		BladeStroke(layer.cairo, x, y, tall, lean, 1, tone, .62f);
	}
	layer.End();
	for (int i = 0; i < 26; i++) {
		int x = random.Below(WIDTH - 20), y = meadowTop + 60 + random.Below(shore - meadowTop - 70);
		Compose(image, i & 1 ? Flower(random.Below(8)) : GrassTuft(i), x, y);
	}
}

void DrawShoreLand(Image& image, int meadowTop, int shore)
{
	PaintSea(image, meadowTop - 20, meadowTop + 60,
	         {HexColour(0x5cb4ea), PAINT_SEA_BACK_DEEP, 1, 1.2f, 70});
	for (int ridge = 0; ridge < 3; ridge++)
		PaintRidge(image, meadowTop, shore, ridge);
	StrokeMeadow(image, meadowTop, shore);
}

Image SunnyShore(int meadowTop, int shore)
{
	static const struct {
		int w, h, x, y;
	} s_clouds[] = {{190, 76, -30, 116},
	                {130, 52, 150, 204},
	                {160, 62, 452, 176},
	                {100, 42, 300, 256},
	                {150, 60, 640, 96}};
	Image image(WIDTH, HEIGHT);
	PaintAir(image, meadowTop + 20, shore);
	PaintSun(image, 640, 74);
	int seed = 3;
	for (const auto& cloud : s_clouds)
		Compose(image, Cloud(cloud.w, cloud.h, seed++), cloud.x, cloud.y);
	DrawShoreLand(image, meadowTop, shore);
	return image;
}

// --- what stands on it

static Image Trunk(float size)
{
	Model m;
	int bark = m.Painted(
	    [](const SurfacePoint& s) {
		    Vec3 p  = s.position;
		    float g = LayeredNoise(Vec3{p.x * .55f, p.y * .09f, p.z * .55f}, 3);
		    return Mix(PAINT_TRUNK_DARK, PAINT_TRUNK_LIGHT, Smoothstep(.30f, .70f, g));
	    },
	    .04f);
	m.RoundCone({0, 0, 0}, {2, 44, 0}, 7.6f, 5, bark, 0);
	for (int i = 0; i < 5; i++) { // roots and boughs
		float a = i * 1.26f;
		m.RoundCone({0, 3, 0}, {std::cos(a) * 12, -1, std::sin(a) * 9}, 5, 2, bark, 3);
	}
	m.RoundCone({2, 36, 0}, {-17, 58, 2}, 4, 2.6f, bark, 2.4f);
	m.RoundCone({2, 36, 0}, {20, 56, 2}, 4, 2.6f, bark, 2.4f);
	Camera camera = ViewFrom((int)(64 * size), (int)(84 * size), 32 * size, 74 * size, 0, 14, 3);
	camera.scale  = size;
	return RenderModel(m, camera);
}

void DrawShoreTree(Image& image, int kind, float x, float y, float size, Colour leaves, int seed)
{
	DrawContactShadow(image, x + 4, y, 34 * size, 7 * size, .40f);
	Image trunk = Trunk(kind ? size * .7f : size);
	float foot  = kind ? size * .7f : size;
	Compose(image, trunk, (int)(x - 32 * foot), (int)(y - 74 * foot));
	Random random(seed);
	if (kind == 1) { // a pine of five skirts, the lower ones wider
		for (int tier = 0; tier < 5; tier++) {
			int w = (int)((74 - tier * 12) * size), h = (int)(36 * size);
			Image skirt = LeafCluster(w, h, seed + tier, leaves, 5.5f * size);
			ComposeCentred(image, skirt, x, y - (34 + tier * 17) * size);
		}
		return;
	}
	for (int i = 0; i < 11; i++) { // crown: lower and outer clusters first
		float row = i < 4 ? 0 : i < 8 ? 1 : 2, place = i < 4 ? i : i < 8 ? i - 4 : i - 8;
		float count = row < 2 ? 4 : 3, u = (place - (count - 1) * .5f) / count;
		float cx      = x + u * (118 - row * 22) * size + random.Range(-4, 4);
		float cy      = y - (62 + row * 24) * size + random.Range(-4, 4) + std::fabs(u) * 16 * size;
		Image cluster = LeafCluster((int)(58 * size), (int)(46 * size), seed + i, leaves, 7 * size);
		ComposeCentred(image, cluster, cx, cy);
	}
}

void DrawBubbles(Image& image, int count, int seed, int left, int top, int right, int bottom)
{
	Random random(seed);
	for (int i = 0; i < count; i++) {
		int size = 12 + (int)(random.Next01() * random.Next01() * 44);
		float x = random.Range(left, right), y = random.Range(top, bottom);
		ComposeCentred(image, Bubble(size, BubbleSkin::Normal, random.Next01()), x, y);
	}
}

// --- the sheep

static int EyeMaterial(Model& m, Vec3 centre, float radius, float lid, Colour skin)
{
	Material eye;
	eye.eye   = lid < .5f;
	eye.gloss = .2f;
	eye.paint = [=](const SurfacePoint& s) -> Colour {
		float u = (s.position.x - centre.x) / radius, v = (s.position.y - centre.y) / radius;
		if (lid > .5f) { // shut: skin with a dark curved line
			float line = std::fabs(v + .30f - .30f * u * u);
			return Mix(InkOf(skin), skin, Smoothstep(.08f, .17f, line));
		}
		float r  = std::hypot(u - .06f, v - .02f);
		Colour c = Mix(HexColour(0x6a3c1c), PAINT_WHITE, Smoothstep(.62f, .68f, r));
		c        = Mix(HexColour(0x1a0f14), c, Smoothstep(.44f, .50f, r));
		// The window's light on the pupil, and a small one below it.
		c = Mix(PAINT_WHITE, c, Smoothstep(.20f, .26f, std::hypot(u + .22f, v - .30f)));
		return Mix(PAINT_WHITE, c, Smoothstep(.08f, .13f, std::hypot(u - .26f, v + .26f)));
	};
	return m.Add(eye);
}

static void AddWool(Model& m, int wool)
{
	for (int i = 0; i < 15; i++) { // a ring of lumps round the face
		float a = i * 2 * PI / 15 + .1f, out = 15.5f + 1.2f * Hash01(i, 1, 2);
		float r = 6.2f + 1.6f * Hash01(i, 5, 2);
		m.Ball({std::cos(a) * out, 2 + std::sin(a) * out * .92f, -5}, r, wool, .9f);
	}
	m.Ball({0, 2, -9}, 17, wool, 2);
	for (int i = 0; i < 9; i++) { // the fringe
		float u = (i - 4) / 4.f;
		m.Ball({u * 10.5f, 15.2f - u * u * 4 + (i & 1) * 1.6f, 4.6f - u * u * 3},
		       4.4f + .7f * (i & 1), wool, .9f);
	}
}

Image SheepHead(int width, int height, float zoom, float lid)
{
	Model m;
	Colour skin = HexColour(0xf2d6b4);
	int wool    = m.Plain(0xfdfaf2u, .06f);
	int face    = m.Painted(
        [=](const SurfacePoint& s) {
            float cheek = std::hypot(std::fabs(s.position.x) - 7.2f, (s.position.y + 2.8f) * 1.3f);
            float front = Smoothstep(2, 5, s.position.z);
            return Mix(HexColour(0xf8a494), skin, 1 - .75f * front * Smoothstep(3.2f, .6f, cheek));
        },
        .16f);
	int pink = m.Plain(0xf0a48cu, .35f), dark = m.Plain(0x4a2c28u, .5f);
	AddWool(m, wool);
	m.Ellipsoid({0, 1, 1}, {11.6f, 13, 9}, Mat3(), face, 1);
	m.Ellipsoid({0, -6.6f, 6.4f}, {7.8f, 6.2f, 6.4f}, Mat3(), face, 2);
	for (float side : {-1.f, 1.f}) {
		m.Ellipsoid({side * 17, 3.4f, 0}, {7.6f, 3.6f, 2.8f}, TurnZ(side * -.34f), face, 1.2f);
		m.Ellipsoid({side * 17.6f, 2.9f, 2}, {5, 2, 1.4f}, TurnZ(side * -.34f), pink, .3f);
		Vec3 eye = {side * 4.9f, 4.2f, 8.2f};
		float r  = 4.1f;
		m.Ellipsoid(eye, {r * .92f, r * 1.14f, r * .8f}, Mat3(), EyeMaterial(m, eye, r, lid, skin),
		            0);
		m.RoundCone({side * 3.4f, 10.9f, 8.6f}, {side * 6.6f, 9.9f, 7.4f}, .42f, .34f, dark, 0);
		m.RoundCone({0, -9, 12.2f}, {side * 2.4f, -9.4f, 11.6f}, .36f, .34f, dark, .2f);
		m.RoundCone({side * 2.4f, -9.4f, 11.6f}, {side * 4.8f, -7.2f, 10.2f}, .34f, .26f, dark,
		            .2f);
	}
	m.Ellipsoid({0, -4.6f, 12.4f}, {2.7f, 1.8f, 1.4f}, Mat3(), pink, .3f);
	m.RoundCone({0, -6, 12.7f}, {0, -8.8f, 12.5f}, .36f, .36f, dark, 0);
	Camera camera = ViewFrom(width, height, width * .5f, height * .5f, 4, 4, 2);
	camera.scale  = zoom;
	ShadeStyle style;
	style.outline    = 1.9f;
	style.innerDepth = 1.4f;
	return RenderModel(m, camera, style);
}
