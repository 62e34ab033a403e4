// Small trees are crowns of leaves and plain skirts: at this size needles would turn to mud.
#include "art/screens/map/growth.h"

#include "art/core/palette.h"
#include "art/core/stamps.h"
#include "art/screens/map/toy.h"

// --- with leaves

// A crown on a short trunk.
static Image Crowned(int w, int h, int trunk, Colour leaves, int seed)
{
	Toy toy(w, h + trunk);
	float cx = w * .5f, foot = h + trunk - 2.f;
	toy.Part(RoundRect(cx - 1.3f, h - 5.f, 2.6f, foot - h + 5, .8f), PAINT_TRUNK_LIGHT, .9f);
	toy.Place(LeafCluster(w, h, seed, leaves, 4.6f), 0, 0);
	return toy.Finish();
}

static Image Leafy(int seed)
{
	static const uint32_t s_greens[] = {0x62b03a, 0x4f9a34, 0x7cbc48};
	return Crowned(18 + seed % 3, 15 + seed % 2, 5, HexColour(s_greens[seed % 3]), seed);
}

static Image Autumn(int seed)
{
	static const uint32_t s_golds[] = {0xe8a430, 0xd0702c, 0xc2b23c};
	return Crowned(17, 15, 5, HexColour(s_golds[seed % 3]), seed);
}

static Image Blossom(int seed)
{
	static const uint32_t s_pinks[] = {0xf08cc8, 0xa888f0, 0x78d8d0};
	return Crowned(17, 16, 6, HexColour(s_pinks[seed % 3]), seed);
}

static Image Giant(int seed)
{
	Toy toy(24, 26);
	toy.Part(Corners({10, 12, 14, 12, 16, 24, 8, 24}), HexColour(0x8a6440), .9f);
	toy.Place(LeafCluster(24, 14, seed + 3, HexColour(0x2f8a3c), 5), 0, 5);
	toy.Place(LeafCluster(18, 12, seed, HexColour(seed & 1 ? 0x46a83c : 0x3c9a4a), 5), 3, 0);
	return toy.Finish();
}

static Image Acacia(int seed)
{
	Toy toy(24, 19);
	toy.Stroke(Line({{12, 17}, {11, 11}, {6, 7}}), HexColour(0x4a2c18), 2.4f);
	toy.Stroke(Line({{11.5f, 12}, {17, 6}}), HexColour(0x4a2c18), 2);
	toy.Place(LeafCluster(24, 10, seed, HexColour(seed & 1 ? 0x8aa63c : 0x76983a), 4.2f), 0, 0);
	return toy.Finish();
}

static Image Bush(int seed)
{
	return LeafCluster(13, 10, seed, HexColour(seed & 1 ? 0x8ab04a : 0x6ca43c), 4);
}

// --- pines

static Image Conifer(Colour c, bool snow)
{
	Toy toy(17, 24);
	std::vector<PathFn> skirts;
	for (int i = 0; i < 3; i++) {
		float top = 1.5f + i * 5, half = 3.6f + i * 1.7f, low = top + 8.6f;
		skirts.push_back(
		    Corners({8.5f, top, 8.5f + half, low, 8.5f, low + 1.4f, 8.5f - half, low}));
	}
	toy.Part(RoundRect(7.2f, 18, 2.6f, 4, 1), HexColour(0x5a3c24), .8f);
	for (int i = 2; i >= 0; i--) {
		toy.Shaded(
		    skirts[i], [c](float x, float) { return x < 8 ? Lighter(c, .25f) : Darker(c, .3f); },
		    InkOf(c), .9f);
		float top = 1.5f + i * 5;
		if (snow)
			toy.Flat(Corners({8.5f, top, 11.4f, top + 4.6f, 8.5f, top + 3.6f, 5.4f, top + 5.2f}),
			         PAINT_WHITE, .95f);
	}
	return toy.Finish();
}

static Image Pine(int seed)
{
	static const uint32_t s_greens[] = {0x2f8044, 0x3f9450, 0x35883c};
	return Conifer(HexColour(s_greens[seed % 3]), false);
}

static Image SnowPine(int seed)
{
	return Conifer(HexColour(seed & 1 ? 0x7cb0bc : 0x6aa4a8), true);
}

// --- warm countries

static Image Palm(int seed)
{
	Toy toy(22, 24);
	float lean = seed & 1 ? 2.4f : -2.4f, top = 8, cx = 11 + lean;
	PathFn trunk = [=](cairo_t* c) {
		cairo_move_to(c, 11 - lean, 21.5);
		cairo_curve_to(c, 11 - lean, 16, cx, 13, cx, top);
	};
	toy.Stroke(trunk, HexColour(0x4a2c14), 3.6f);
	toy.Stroke(trunk, HexColour(0xb8844c), 2);
	for (int pass = 0; pass < 2; pass++)
		for (int i = 0; i < 6; i++) {
			float a = -.25f + i * (PI + .5f) / 5, reach = 8.4f;
			float x = cx - std::cos(a) * reach, y = top - std::sin(a) * 4.6f + 2.6f;
			PathFn frond = [=](cairo_t* c) {
				cairo_move_to(c, cx, top);
				cairo_curve_to(c, Mix(cx, x, .4f), top - 4.4f, x, y - 4, x, y + 1);
				cairo_curve_to(c, x, y - 1.4f, Mix(cx, x, .5f), top - .6f, cx, top);
			};
			Colour green = HexColour(i < 3 ? 0x6cc048 : 0x4a9c3a);
			if (pass == 0)
				toy.Part(frond, green, .9f);
			else
				toy.Flat(frond, green);
		}
	toy.Part(Disc(cx, top + 1, 1.5f), HexColour(0x8a5a2c), .6f);
	return toy.Finish();
}

static Image Bamboo(int seed)
{
	Toy toy(18, 25);
	for (int i = 0; i < 4; i++) {
		float x = 4 + i * 3.3f, top = 3.f + (i * 7 + seed * 3) % 6, lean = (i - 1.5f) * 1.1f;
		toy.Stroke(Line({{x, 22.5f}, {x + lean, top}}), HexColour(0x2c5420), 3);
		toy.Stroke(Line({{x, 22.5f}, {x + lean, top}}), HexColour(0x9cd048), 1.6f);
		for (float t : {.3f, .6f})
			toy.Flat(Disc(x + lean * t, Mix(22.5f, top, t), 1.1f), HexColour(0x4c8a2c));
		for (float side : {-1.f, 1.f})
			toy.Part(Oval(x + lean + side * 2.2f, top + 1.4f, 2.6f, 1, side * .7f),
			         HexColour(0x6cb83c), .5f);
	}
	return toy.Finish();
}

static Image Cactus(int seed)
{
	Toy toy(17, 21);
	Colour green = HexColour(seed & 1 ? 0x58a048 : 0x489450);
	float left = seed & 1 ? 8.f : 10.f, right = seed & 1 ? 10.f : 7.f;
	toy.Part(Joined({RoundRect(6.6f, 2, 4, 17, 2), RoundRect(2, left - 3, 2.8f, 6.4f, 1.4f),
	                 RoundRect(2, left + 1.2f, 7, 2.6f, 1.2f),
	                 RoundRect(12.4f, right - 3, 2.8f, 6, 1.4f),
	                 RoundRect(8, right + 1, 7.2f, 2.6f, 1.2f)}),
	         green);
	toy.Flat(RoundRect(7.4f, 3.4f, .9f, 14, .4f), Lighter(green, .5f));
	if (seed % 3 == 0)
		toy.Part(Disc(8.6f, 2.6f, 1.5f), HexColour(0xf070a0), .6f);
	return toy.Finish();
}

static Image Reeds(int seed)
{
	return GrassTuft(seed, 16, 13);
}

// --- stone, ice and dreams

static Image Boulder(int seed)
{
	Toy toy(16, 13);
	Colour rock = HexColour(seed & 1 ? 0xb8a48c : 0xa4988c);
	toy.Part(Corners({2, 10, 3, 5.6f, 7, 2.4f, 11.6f, 4, 14, 10, 9, 11.4f}), rock);
	toy.Flat(Corners({3.6f, 6, 7, 3.2f, 9.4f, 4.6f, 6, 7.4f}), Lighter(rock, .5f), .8f);
	return toy.Finish();
}

// A pointed crystal with a lit and a dark face, and a small one beside it.
static Image Shards(Colour c, int seed)
{
	Toy toy(16, 22);
	float lean = seed & 1 ? 1.6f : -1.6f;
	for (int i = 0; i < 2; i++) {
		float x = i ? 4.6f : 9.4f, half = i ? 2.4f : 3.4f, top = i ? 10.f : 2.f;
		float tip = x + (i ? -lean : lean);
		toy.Part(Corners({tip, top, x + half, top + 5, x + half * .8f, 19.4f, x - half * .8f, 19.4f,
		                  x - half, top + 5}),
		         c);
		toy.Flat(Corners({tip, top + .6f, x - half, top + 5, x - half * .8f, 19, x - .4f, 19,
		                  x - .2f, top + 6}),
		         Mix(c, PAINT_WHITE, .55f), .8f);
	}
	return toy.Finish();
}

static Image SaltCone(int seed)
{
	Toy toy(17, 12);
	float top = 2.f + seed % 2;
	toy.Part(Corners({8, top, 14.6f, 10, 8, 11, 2, 10}), HexColour(0xf4ece0));
	toy.Flat(Corners({8, top + .6f, 8.6f, 10.4f, 3, 9.8f}), PAINT_WHITE, .9f);
	return toy.Finish();
}

static Image Mushroom(int seed)
{
	static const uint32_t s_caps[] = {0xf05a8c, 0x7a6cf0, 0x30b8b0};
	Toy toy(18, 19);
	toy.Part(RoundRect(7, 8, 4, 9, 1.8f), HexColour(0xfff0dc), .9f);
	PathFn cap = [](cairo_t* c) {
		cairo_move_to(c, 1.6, 10);
		cairo_curve_to(c, 2, 0, 16, 0, 16.4, 10);
		cairo_curve_to(c, 12, 12, 6, 12, 1.6, 10);
		cairo_close_path(c);
	};
	toy.Part(cap, HexColour(s_caps[seed % 3]));
	toy.Flat(Disc(6, 6.4f, 1.5f), PAINT_WHITE, .95f);
	toy.Flat(Disc(11, 4.8f, 1.3f), PAINT_WHITE, .95f);
	toy.Flat(Disc(12.8f, 8.4f, 1.1f), PAINT_WHITE, .95f);
	return toy.Finish();
}

Image DrawGrowth(Growth growth, int seed)
{
	switch (growth) {
	case Growth::Leafy:
		return Leafy(seed);
	case Growth::Autumn:
		return Autumn(seed);
	case Growth::Blossom:
		return Blossom(seed);
	case Growth::Pine:
		return Pine(seed);
	case Growth::SnowPine:
		return SnowPine(seed);
	case Growth::Palm:
		return Palm(seed);
	case Growth::Bamboo:
		return Bamboo(seed);
	case Growth::Cactus:
		return Cactus(seed);
	case Growth::Acacia:
		return Acacia(seed);
	case Growth::Giant:
		return Giant(seed);
	case Growth::Bush:
		return Bush(seed);
	case Growth::Reeds:
		return Reeds(seed);
	case Growth::Boulder:
		return Boulder(seed);
	case Growth::Spire:
		return Shards(HexColour(0x9cd4f4), seed);
	case Growth::Crystal:
		return Shards(HexColour(seed & 1 ? 0xb088f0 : 0xe088d8), seed);
	case Growth::Salt:
		return SaltCone(seed);
	default:
		return Mushroom(seed);
	}
}
