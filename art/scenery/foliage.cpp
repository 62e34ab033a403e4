// Draws foliage as hundreds of small strokes: ink first, then from dark to light.
#include "art/scenery/foliage.h"

#include "art/core/outlines.h"
#include "art/core/palette.h"
#include "art/core/stamps.h"

static const int FINE = 4; // samples a pixel of all foliage

static void SetColour(cairo_t* c, Colour colour, float alpha = 1)
{
	cairo_set_source_rgba(c, colour.x, colour.y, colour.z, alpha);
}

// Dark, own colour and sunlit colour of a foliage for a light of 0..1.
static Colour Ramp(Colour base, float light)
{
	Colour low  = ShadowOf(base) * .88f;
	Colour high = Mix(base, {1, .97f, .50f}, .50f);
	return light < .5f ? Mix(low, base, light * 2) : Mix(base, high, (light - .5f) * 2);
}

namespace
{
struct Lobe {
	float x, y, rx, ry;
};
struct Leaf {
	float x, y, angle, length;
	float light; // 0 dark, 1 bright
	float tint;  // -1 cooler, 1 warmer
};
} // namespace

// Small lobes round a larger one: the outline of a clump is bumpy like a cloud's.
static std::vector<Lobe> ClumpLobes(int seed)
{
	Random random(seed * 3 + 1);
	float cx = LEAF_CLUMP_WIDTH * .5f, cy = LEAF_CLUMP_HEIGHT * .5f;
	std::vector<Lobe> lobes = {{cx, cy + 2, 19, 14}};
	const int AROUND        = 7;
	float turn              = random.Range(0, 1);
	for (int i = 0; i < AROUND; i++) {
		float a    = (i + turn) * 2 * PI / AROUND + random.Range(-.16f, .16f);
		float size = random.Range(8.0f, 10.2f);
		lobes.push_back({cx + std::cos(a) * (cx - 4.5f - size),
		                 cy + std::sin(a) * (cy - 4.2f - size * .86f), size, size * .86f});
	}
	return lobes;
}

// Light falls by the place in the lobe and by the place in the whole clump.
static std::vector<Leaf> ClumpLeaves(int seed)
{
	const float PER_AREA = .072f, SIZE = 6.6f;
	Random random(seed);
	std::vector<Leaf> leaves;
	for (const Lobe& lobe : ClumpLobes(seed)) {
		int count = (int)(lobe.rx * lobe.ry * PI * PER_AREA * 1.5f);
		for (int i = 0; i < count; i++) {
			float around = random.Range(0, 2 * PI), out = std::sqrt(random.Next01());
			float u = std::cos(around) * out, v = std::sin(around) * out;
			Leaf l;
			l.x          = lobe.x + u * lobe.rx;
			l.y          = lobe.y + v * lobe.ry;
			float wholeU = (l.x / LEAF_CLUMP_WIDTH - .5f) * 2,
			      wholeV = (l.y / LEAF_CLUMP_HEIGHT - .5f) * 2;
			float inLobe = -u * .42f - v * .80f, inWhole = -wholeU * .46f - wholeV * .86f;
			l.angle =
			    std::atan2(wholeV + v * .4f, wholeU + u * .4f) + random.Range(-.9f, .9f) + .35f;
			l.length = SIZE * random.Range(.75f, 1.3f);
			l.light  = Clamp01(.45f + .24f * inLobe + .46f * inWhole + random.Range(-.10f, .10f));
			l.tint   = random.Range(-1, 1);
			leaves.push_back(l);
		}
	}
	std::stable_sort(leaves.begin(), leaves.end(),
	                 [](const Leaf& a, const Leaf& b) { return a.light < b.light; });
	return leaves;
}

static void DrawLeaf(cairo_t* c, const Leaf& l, Colour base, Colour ink)
{
	const float SLIM = .31f;
	Colour tinted    = l.tint > 0 ? Mix(base, {1, .86f, .20f}, .13f * l.tint)
	                              : Mix(base, {.10f, .50f, .46f}, -.10f * l.tint);
	Colour face      = Ramp(tinted, l.light);
	SetColour(c, Mix(face, ink, .40f), .8f);
	LeafPath(c, l.x + .35f, l.y + .55f, l.angle, l.length + .5f, l.length * SLIM + .3f);
	cairo_fill(c);
	SetColour(c, face);
	LeafPath(c, l.x, l.y, l.angle, l.length, l.length * SLIM);
	cairo_fill(c);
	if (l.light > .60f) { // the sunny leaves show a light upper half
		SetColour(c, Mix(face, {1, 1, .8f}, .34f), .7f);
		LeafPath(c, l.x - .4f, l.y - .45f, l.angle, l.length * .6f, l.length * .11f);
		cairo_fill(c);
	}
}

Image LeafClump(int seed, Colour base)
{
	std::vector<Leaf> leaves = ClumpLeaves(seed);
	Colour ink               = InkOf(base);
	Image out(LEAF_CLUMP_WIDTH, LEAF_CLUMP_HEIGHT);
	CairoLayer layer(out, FINE);
	cairo_t* c = layer.cairo;
	SetColour(c, ink);
	for (const Leaf& l : leaves) {
		LeafPath(c, l.x, l.y, l.angle, l.length + 1.9f, l.length * .31f + .95f);
		cairo_fill(c);
	}
	SetColour(c, ShadowOf(base) * .80f);
	for (const Lobe& lobe : ClumpLobes(seed)) {
		Oval(lobe.x, lobe.y, lobe.rx * .93f, lobe.ry * .93f)(c);
		cairo_fill(c);
	}
	for (const Leaf& l : leaves)
		DrawLeaf(c, l, base, ink);
	layer.End();
	return out;
}

namespace
{
struct Needle {
	float x, y, endX, endY, light;
};
} // namespace

// Needles run from the tip in bundles; the bundles end in points, which makes the ragged hem.
static std::vector<Needle> TierNeedles(int w, int h, int seed)
{
	Random random(seed);
	std::vector<Needle> needles;
	int bundles = std::max(7, w / 6), count = w * 6;
	float phase = random.Range(0, 1);
	for (int i = 0; i < count; i++) {
		float u = random.Range(-1, 1), down = random.Next01();
		float point    = (u * .5f + .5f) * bundles + phase,
		      inBundle = std::fabs(point - std::floor(point) - .5f) * 2;
		float sink     = (1 - std::sqrt(1 - u * u * .80f)) * h * .34f;
		float hemX     = w * .5f + u * (w * .5f - 3.5f);
		float hemY = h - 3.2f - sink - inBundle * std::min(4.5f, h * .15f) - random.Range(0, 1.5f);
		float from = down * .66f, to = std::min(1.f, from + .32f);
		float topX = w * .5f + u * w * .03f, topY = 3;
		float curve = .10f * h; // skirts swing outward at the hem
		auto fall   = [&](float t) { return Mix(topY, hemY, t) + curve * (t * t - t); };
		Needle n;
		auto spread = [&](float t) { return Mix(topX, hemX, std::pow(t, 1.28f)); };
		n.x         = spread(from);
		n.y         = fall(from);
		n.endX      = spread(to);
		n.endY      = fall(to) + 1.0f * to;
		n.light     = Clamp01(.60f - u * .36f - down * .22f - .20f * inBundle * down +
		                      random.Range(-.13f, .13f));
		needles.push_back(n);
	}
	std::stable_sort(needles.begin(), needles.end(),
	                 [](const Needle& a, const Needle& b) { return a.light < b.light; });
	return needles;
}

Image PineTier(int w, int h, int seed, Colour base)
{
	std::vector<Needle> needles = TierNeedles(w, h, seed);
	Image out(w, h);
	CairoLayer layer(out, FINE);
	cairo_t* c = layer.cairo;
	for (int pass = 0; pass < 2; pass++)
		for (const Needle& n : needles) {
			Colour high = Mix(base, {.86f, 1, .55f}, .42f), low = ShadowOf(base) * .92f;
			Colour needle =
			    n.light < .5f ? Mix(low, base, n.light * 2) : Mix(base, high, (n.light - .5f) * 2);
			SetColour(c, pass == 0 ? InkOf(base) : needle);
			cairo_set_line_width(c, pass == 0 ? 3.6f : 1.75f);
			cairo_move_to(c, n.x, n.y);
			cairo_line_to(c, n.endX, n.endY);
			cairo_stroke(c);
		}
	layer.End();
	return out;
}

namespace
{
// The rib of a frond in its own coordinates, root at (0, 0), y down.
struct Rib {
	FrondShape shape;
	At operator()(float t) const
	{
		float out = shape.length * (t - .10f * t * t);
		return {std::cos(shape.angle) * out,
		        -std::sin(shape.angle) * out * .80f + shape.sag * t * t};
	}
};
} // namespace

// Both rows of leaflets; the row turned away from the sun is darker.
static void DrawLeaflets(cairo_t* c, const Rib& rib, float leaflet, int seed, bool inking)
{
	const int PAIRS = 21;
	Random random(seed);
	Colour green = HexColour(0x58a838);
	Colour body  = Ramp(green, rib.shape.light);
	for (int i = 0; i <= PAIRS; i++) {
		float t = .05f + .95f * i / PAIRS;
		At p = rib(t), before = rib(std::max(0.f, t - .04f));
		float along = std::atan2(p.y - before.y, p.x - before.x);
		float reach =
		    leaflet * (1.22f - t * .76f) * Smoothstep(-.04f, .16f, t) * random.Range(.80f, 1.15f);
		for (int side = -1; side <= 1; side += 2) {
			float a = along + side * (.92f - .40f * t), droop = reach * .42f;
			float endX = p.x + std::cos(a) * reach, endY = p.y + std::sin(a) * reach + droop;
			bool shaded = side * std::cos(rib.shape.angle) > 0;
			Colour face = shaded ? Darker(body, .42f) : body;
			SetColour(c, inking ? InkOf(green) : face * (i % 2 ? 1.f : .94f));
			cairo_set_line_width(c, inking ? 3.4f : 1.9f);
			cairo_move_to(c, p.x, p.y);
			cairo_curve_to(c, p.x + std::cos(a) * reach * .5f, p.y + std::sin(a) * reach * .5f,
			               endX, endY - droop * .4f, endX, endY);
			cairo_stroke(c);
		}
	}
}

static void DrawRib(cairo_t* c, const Rib& rib)
{
	const int STEPS = 20;
	SetColour(c, Lighter(Ramp(HexColour(0x58a838), rib.shape.light), .40f));
	cairo_set_line_width(c, 1.2f);
	for (int i = 0; i <= STEPS; i++) {
		At p = rib(i / (float)STEPS);
		if (i)
			cairo_line_to(c, p.x, p.y);
		else
			cairo_move_to(c, p.x, p.y);
	}
	cairo_stroke(c);
}

Frond PalmFrond(const FrondShape& shape, float leaflet, int seed)
{
	int reach = (int)(shape.length + leaflet * 2 + 8);
	Image wide(reach * 2, reach * 2);
	CairoLayer layer(wide, 3);
	cairo_t* c = layer.cairo;
	cairo_translate(c, reach, reach);
	// a smaller frond behind fills the gap to the neighbour
	FrondShape behind = {shape.angle + (std::cos(shape.angle) > 0 ? .34f : -.34f),
	                     shape.length * .78f, shape.sag * .8f, Clamp01(shape.light - .30f)};
	for (const FrondShape& s : {behind, shape}) {
		Rib rib{s};
		DrawLeaflets(c, rib, leaflet, seed, true);
		DrawLeaflets(c, rib, leaflet, seed, false);
		DrawRib(c, rib);
	}
	layer.End();
	Bounds bounds = CommonBounds({wide}, 1);
	return {Cropped(wide, bounds), reach - bounds.left, reach - bounds.top};
}

void DrawGroundShade(Image& image, float cx, float cy, float rx, float ry)
{
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++) {
			float u = (x + .5f - cx) / rx, v = (y + .5f - cy) / ry;
			Blend(image, x, y, PAINT_SHADOW,
			      .36f * Smoothstep(1.f, .15f, std::sqrt(u * u + v * v)));
		}
}
