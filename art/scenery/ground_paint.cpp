// Paints grass, sand and snow: noise for every pixel, strokes for what noise can't do.
#include "art/scenery/ground_paint.h"

#include "art/core/outlines.h"
#include "art/core/palette.h"
#include "art/core/stamps.h"

static const float FAR_ROW = 130, NEAR_ROW = 600; // rows of the field's far and near edge

// 1 at the far edge, where haze lies over the meadow, 0 from the middle on.
static float Haze(float y)
{
	return Smoothstep(255, FAR_ROW - 5, y);
}
static float Nearness(float y)
{
	return Smoothstep(380, NEAR_ROW, y);
}

static Colour Meadow(float x, float y)
{
	float broad = LayeredNoise(x * .0085f, y * .021f, 4, 1);
	float patch = LayeredNoise(x * .040f, y * .090f, 3, 5);
	float grain = LayeredNoise(x * .35f, y * .55f, 2, 9);
	float sun   = LayeredNoise(x * .0052f + 3, y * .015f, 2, 14); // light through clouds
	float mown  = LayeredNoise(x * .016f, y * .046f, 2, 23);
	Colour c    = Mix(PAINT_GRASS_DARK, PAINT_GRASS_LIGHT, Smoothstep(.28f, .74f, broad));
	c           = Mix(c, PAINT_GRASS_MID, .38f);
	c           = Mix(c, HexColour(0xb4d452), .34f * Smoothstep(.52f, .78f, sun));
	c           = Mix(c, HexColour(0x5c9a3c), .20f * Smoothstep(.56f, .76f, mown)); // clover
	c           = c * (1 + .10f * (patch - .5f) + .07f * (grain - .5f));
	c           = Mix(c, PAINT_GRASS_FAR, .36f * Haze(y));
	return c * Mix(1.f, .90f, Nearness(y));
}

static Colour Dunes(float x, float y)
{
	float broad  = LayeredNoise(x * .0085f, y * .021f, 4, 1);
	float grain  = LayeredNoise(x * .40f, y * .55f, 2, 9);
	float ripple = std::sin(y * .44f + 6 * LayeredNoise(x * .011f, y * .028f, 3, 4) + x * .028f);
	float where =
	    Smoothstep(.42f, .66f, LayeredNoise(x * .012f, y * .03f, 2, 19)); // ripples come in fields
	Colour c = Mix(HexColour(0xddc288), HexColour(0xf1e0ae), Smoothstep(.30f, .72f, broad));
	c        = Mix(c, HexColour(0xe6b878),
	               .16f * Smoothstep(.55f, .8f, LayeredNoise(x * .02f, y * .05f, 2, 33)));
	c        = c * (1 + .030f * ripple * where + .07f * (grain - .5f));
	return Mix(c, HexColour(0xf8efd0), .35f * Haze(y)) * Mix(1.f, .93f, Nearness(y));
}

static Colour Drifts(float x, float y)
{
	float broad = LayeredNoise(x * .0085f, y * .023f, 4, 1);
	float grain = LayeredNoise(x * .35f, y * .5f, 2, 9);
	float slope =
	    LayeredNoise(x * .0085f + .03f, y * .023f - .05f, 4, 1) - broad; // lit from the left
	Colour c = Mix(HexColour(0xd3e1f3), HexColour(0xfafdff), Smoothstep(.32f, .64f, broad));
	c        = Mix(c, HexColour(0xc3d4ee), Clamp01(slope * 3.2f) * .45f);
	c        = c * (1 + .02f * (grain - .5f));
	c        = Mix(c, HexColour(0xe6f0fb), .4f * Haze(y));
	return c * Mix(1.f, .955f, Nearness(y));
}

// Snow that melts: grass shows where the noise is low.
static float SnowCover(float x, float y)
{
	float patch = LayeredNoise(x * .012f, y * .028f, 4, 17);
	float grain = LayeredNoise(x * .35f, y * .5f, 2, 9);
	return .30f + .70f * Smoothstep(.36f, .52f, patch + .12f * (grain - .5f));
}

Colour GroundColour(Turf turf, float x, float y)
{
	switch (turf) {
	case Turf::Sand:
		return Dunes(x, y);
	case Turf::Snow:
		return Drifts(x, y);
	case Turf::SnowyGrass:
		return Mix(Mix(Meadow(x, y), HexColour(0x7a9a5c), .42f), Drifts(x, y), SnowCover(x, y));
	default:
		return Meadow(x, y);
	}
}

static void Blob(cairo_t* c, float x, float y, float rx, float ry, Colour colour, float alpha)
{
	cairo_set_source_rgba(c, colour.x, colour.y, colour.z, alpha);
	Oval(x, y, rx, ry)(c);
	cairo_fill(c);
}

namespace
{
// Strokes onto one ground: where they may lie, and how large things are there.
struct Brush {
	cairo_t* c;
	Turf turf;
	int width, height, top, margin;
	Random random;

	float AnyX() { return random.Range(0, width); }
	float AnyY() { return random.Range(margin + 4.f, height); }
	float Near(float y) const { return .72f + .5f * y / height; }
	Colour Base(float x, float y) const { return GroundColour(turf, x, y + top); }
};
} // namespace

// Short blades everywhere, thicker where the meadow is lush.
static void StrokeBlades(Brush& b, int count, float strength)
{
	for (int i = 0; i < count; i++) {
		float x = b.AnyX(), y = b.AnyY();
		float lush = LayeredNoise(x * .02f, (y + b.top) * .04f, 3, 21);
		float luck = b.random.Next01(), hue = b.random.Next01();
		float tall = b.random.Range(2, 4.2f) * b.Near(y), lean = b.random.Range(-1.4f, 1.4f);
		if (luck > Smoothstep(.32f, .64f, lush))
			continue;
		if (b.turf == Turf::SnowyGrass && SnowCover(x, y + b.top) > .72f)
			continue; // none on the snow itself
		Colour base = b.Base(x, y);
		Colour c =
		    hue < .55f ? Mix(base, PAINT_BLADE_LIGHT, .42f) : Mix(base, PAINT_BLADE_DARK, .34f);
		BladeStroke(b.c, x, y, tall, lean, .9f, c, strength);
	}
}

// Little fans of longer blades, darker at the foot.
static void StrokeClumps(Brush& b, int count)
{
	for (int i = 0; i < count; i++) {
		float x = b.AnyX(), y = b.AnyY(), near = b.Near(y);
		Colour base = b.Base(x, y);
		if (b.turf == Turf::SnowyGrass && SnowCover(x, y + b.top) > .72f)
			continue;
		Blob(b.c, x, y, 5.5f * near, 1.7f * near, Mix(base, PAINT_BLADE_DARK, .5f), .20f);
		int blades = 5 + b.random.Below(5);
		for (int k = 0; k < blades; k++) {
			float u    = b.random.Range(-1, 1),
			      tall = b.random.Range(4, 7.5f) * near * (1 - .3f * std::fabs(u));
			bool light = b.random.Next01() < .5f;
			Colour c =
			    light ? Mix(base, PAINT_BLADE_LIGHT, .46f) : Mix(base, PAINT_BLADE_DARK, .40f);
			BladeStroke(b.c, x + u * 3.6f * near, y, tall, u * 3.4f * near, 1.0f, c, .72f);
		}
	}
}

// Daisies and buttercups of two or three pixels, in loose groups far apart.
static void StrokeDaisies(Brush& b, int groups)
{
	for (int i = 0; i < groups; i++) {
		float x = b.AnyX(), y = b.AnyY();
		bool yellow = b.random.Below(3) == 0;
		int count   = 2 + b.random.Below(5);
		for (int k = 0; k < count; k++) {
			float px = x + b.random.Range(-17, 17), py = y + b.random.Range(-7, 7),
			      size = b.Near(py) * .9f;
			if (py < b.margin + 4)
				continue;
			Blob(b.c, px + .5f, py + 1.1f, size * 1.5f, size * .8f, PAINT_BLADE_DARK, .35f);
			Blob(b.c, px, py, size * 1.45f, size * 1.15f,
			     yellow ? HexColour(0xffdc3c) : HexColour(0xfdfdf4), .92f);
			Blob(b.c, px, py, size * .55f, size * .5f, HexColour(yellow ? 0xd89a1c : 0xf2c02c),
			     .95f);
		}
	}
}

static void StrokePebbles(Brush& b, int count)
{
	for (int i = 0; i < count; i++) {
		float x = b.AnyX(), y = b.AnyY(), size = b.random.Range(.5f, 1.5f) * b.Near(y);
		bool dark = b.random.Next01() < .5f;
		Blob(b.c, x + .6f, y + size * .6f, size * 1.6f, size * .9f, HexColour(0xa07c46), .30f);
		Blob(b.c, x, y, size * 1.5f, size, HexColour(dark ? 0xbd9a60 : 0xfff6dc),
		     dark ? .55f : .65f);
	}
}

// Dry stalks, a handful of blades that the wind has bent one way.
static void StrokeStalks(Brush& b, int count)
{
	for (int i = 0; i < count; i++) {
		float x = b.AnyX(), y = b.AnyY(), near = b.Near(y);
		Blob(b.c, x + 2, y, 6 * near, 1.5f * near, HexColour(0xa07c46), .22f);
		for (int k = 0; k < 6; k++) {
			Colour c = Mix(HexColour(0x9c9a4c), HexColour(0xd8c878), b.random.Next01());
			BladeStroke(b.c, x + b.random.Range(-2.5f, 2.5f), y, b.random.Range(4, 8) * near,
			            b.random.Range(.5f, 4), 1.0f, c, .8f);
		}
	}
}

static void StrokeSnowfield(Brush& b, int count)
{
	for (int i = 0; i < count; i++) {
		float x = b.AnyX(), y = b.AnyY();
		bool spark  = b.random.Next01() < .45f;
		float reach = b.random.Range(14, 30), size = b.random.Range(.45f, .9f);
		if (b.turf == Turf::SnowyGrass && SnowCover(x, y + b.top) < .85f)
			continue;
		if (spark) {
			Blob(b.c, x, y, size, size, {1, 1, 1}, .95f);
			continue;
		}
		cairo_set_source_rgba(b.c, .70f, .79f, .93f, .32f);
		cairo_set_line_width(b.c, 1.1f);
		cairo_move_to(b.c, x, y);
		cairo_curve_to(b.c, x + reach * .3f, y - 1.8f, x + reach * .6f, y - 1.8f, x + reach, y);
		cairo_stroke(b.c);
	}
}

void StrokeGround(Image& ground, Turf turf, int top, int margin)
{
	CairoLayer layer(ground);
	Brush b{layer.cairo, turf, ground.width, ground.height, top, margin, Random(77)};
	float area =
	    ground.width * (float)ground.height / 10000; // counts are given for 100 x 100 pixels
	switch (turf) {
	case Turf::Grass:
		StrokeBlades(b, (int)(area * 430), .62f);
		StrokeClumps(b, (int)(area * 3.4f));
		StrokeDaisies(b, (int)(area * .28f));
		break;
	case Turf::SnowyGrass:
		StrokeBlades(b, (int)(area * 330), .62f);
		StrokeClumps(b, (int)(area * 4.f));
		StrokeSnowfield(b, (int)(area * 14));
		break;
	case Turf::Sand:
		StrokePebbles(b, (int)(area * 24));
		StrokeStalks(b, (int)(area * .16f));
		break;
	case Turf::Snow:
		StrokeSnowfield(b, (int)(area * 26));
		break;
	}
	layer.End();
}

void StrokeSeam(Image& image, const SeamLook& look, float (*height)(float x, int variant),
                int variant)
{
	CairoLayer layer(image);
	Random random(look.seed);
	bool blades = look.turf == Turf::Grass || look.turf == Turf::SnowyGrass;
	int count   = (int)(image.width * look.perPixel);
	for (int i = 0; i < count; i++) {
		float x = random.Range(0, image.width), y = height(x, variant) + random.Range(-1, 4);
		float tall = random.Range(look.low, look.high), lean = random.Range(-1.6f, 1.6f);
		bool light  = random.Next01() < .5f;
		Colour base = GroundColour(look.turf, x, y + look.fieldTop + 8);
		if (!blades) {
			Blob(layer.cairo, x, y + 1.6f, 6 + tall, 2.2f, base, .85f);
			continue;
		}
		Colour c = Mix(base, light ? HexColour(0xc4e470) : PAINT_BLADE_DARK, .36f);
		BladeStroke(layer.cairo, x, y + 2, tall + 2, lean, 1.f, c, .9f);
	}
	layer.End();
}
