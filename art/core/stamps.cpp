// Leaves, blades, flowers, clouds and the two textures that many pictures use.
#include "art/core/stamps.h"

#include "art/core/palette.h"

#include <algorithm>

static void SetColour(cairo_t* c, Colour colour, float alpha = 1)
{
	cairo_set_source_rgba(c, colour.x, colour.y, colour.z, alpha);
}

void LeafPath(cairo_t* c, float x, float y, float angle, float length, float width)
{
	cairo_save(c);
	cairo_translate(c, x, y);
	cairo_rotate(c, angle);
	cairo_move_to(c, -length * .5f, 0);
	cairo_curve_to(c, -length * .2f, -width, length * .25f, -width * .8f, length * .5f, 0);
	cairo_curve_to(c, length * .25f, width * .8f, -length * .2f, width, -length * .5f, 0);
	cairo_close_path(c);
	cairo_restore(c);
}

namespace
{
struct Leaf {
	float x, y, angle, length;
	float light; // 0 dark, 1 bright
};
} // namespace

static std::vector<Leaf> ScatterLeaves(int w, int h, int seed, float leaf, float margin)
{
	float rx = w * .5f - margin, ry = h * .5f - margin;
	Random random(seed);
	std::vector<Leaf> leaves;
	int count = (int)(rx * ry * .24f * 49 / (leaf * leaf));
	for (int i = 0; i < count; i++) {
		float around = random.Range(0, 2 * PI), out = std::sqrt(random.Next01());
		float edge = 1 + .10f * std::sin(around * 5 + seed);
		float u = std::cos(around) * out * edge, v = std::sin(around) * out * edge;
		Leaf l;
		l.x      = w * .5f + u * rx;
		l.y      = h * .5f + v * ry;
		l.angle  = std::atan2(v * ry, u * rx) + random.Range(-.9f, .9f) + .5f;
		l.length = leaf * random.Range(.8f, 1.25f);
		l.light  = Clamp01(.48f + .62f * (-u * .42f - v * .88f) + random.Range(-.12f, .12f));
		leaves.push_back(l);
	}
	std::stable_sort(leaves.begin(), leaves.end(),
	                 [](const Leaf& a, const Leaf& b) { return a.light < b.light; });
	return leaves;
}

static void DrawLeaf(cairo_t* c, const Leaf& l, Colour base, Colour ink)
{
	const float SLIM = .30f;
	Colour low = ShadowOf(base) * .92f, high = Mix(base, {1, .96f, .55f}, .42f);
	Colour face =
	    l.light < .5f ? Mix(low, base, l.light * 2) : Mix(base, high, (l.light - .5f) * 2);
	SetColour(c, Mix(face, ink, .42f), .8f);
	LeafPath(c, l.x + .35f, l.y + .55f, l.angle, l.length + .5f, l.length * SLIM + .3f);
	cairo_fill(c);
	SetColour(c, face);
	LeafPath(c, l.x, l.y, l.angle, l.length, l.length * SLIM);
	cairo_fill(c);
	if (l.light > .62f) { // a light vein on the leaves that face the sun
		SetColour(c, Mix(face, {1, 1, .8f}, .30f), .7f);
		LeafPath(c, l.x - .4f, l.y - .4f, l.angle, l.length * .55f, l.length * .10f);
		cairo_fill(c);
	}
}

Image LeafCluster(int w, int h, int seed, Colour base, float leaf)
{
	float margin             = std::min(4.f, leaf * .55f);
	std::vector<Leaf> leaves = ScatterLeaves(w, h, seed, leaf, margin);
	Colour ink               = InkOf(base);
	Image out(w, h);
	CairoLayer layer(out, 4);
	cairo_t* c = layer.cairo;
	SetColour(c, ink);
	for (const Leaf& l : leaves) {
		LeafPath(c, l.x, l.y, l.angle, l.length + 2, l.length * .30f + 1);
		cairo_fill(c);
	}
	SetColour(c, ShadowOf(base) * .92f);
	Oval(w * .5f, h * .5f, (w * .5f - margin) * .92f, (h * .5f - margin) * .92f)(c);
	cairo_fill(c);
	for (const Leaf& l : leaves)
		DrawLeaf(c, l, base, ink);
	layer.End();
	return out;
}

void BladeStroke(cairo_t* c, float x, float y, float tall, float lean, float thick, Colour colour,
                 float alpha)
{
	SetColour(c, colour, alpha);
	cairo_set_line_width(c, thick);
	cairo_move_to(c, x, y);
	cairo_curve_to(c, x, y - tall * .5f, x + lean * .4f, y - tall * .8f, x + lean, y - tall);
	cairo_stroke(c);
}

Image GrassTuft(int seed, int w, int h)
{
	Image out(w, h);
	CairoLayer layer(out, 4);
	cairo_t* c = layer.cairo;
	for (int pass = 0; pass < 2; pass++) { // ink first, then the blades
		Random random(seed);
		for (int i = 0; i < 13; i++) {
			float u = random.Range(-1, 1), foot = w * (.5f + u * .23f), tip = w * (.5f + u * .41f);
			float tall  = random.Range(.4f, .8f) * h * (1 - .4f * std::fabs(u));
			float light = Clamp01(.5f - u * .4f + random.Range(-.2f, .2f));
			SetColour(c, pass == 0 ? HexColour(0x35661f)
			                       : Mix(HexColour(0x5c9a2c), HexColour(0xb4dc5c), light));
			cairo_set_line_width(c, pass == 0 ? 2.3f : 1.2f);
			float base = h - 2.f;
			cairo_move_to(c, foot, base);
			cairo_curve_to(c, foot, base - tall * .6f, Mix(foot, tip, .6f), base - tall * .9f, tip,
			               base - tall);
			cairo_stroke(c);
		}
	}
	layer.End();
	return out;
}

Image Flower(int kind)
{
	static const Colour PETALS[4] = {HexColour(0xffffff), HexColour(0xffd840), HexColour(0xf27ab0),
	                                 HexColour(0x9a7cf0)};
	Colour petal                  = PETALS[kind % 4];
	Canvas canvas(14, 15);
	PathFn stem = [](cairo_t* c) {
		cairo_rectangle(c, 6.5f, 7, 1.2f, 7);
		LeafPath(c, 9, 11.5f, -.5f, 5, 1.4f);
	};
	std::vector<PathFn> petals;
	for (int i = 0; i < 5; i++) {
		float angle = i * 2 * PI / 5 - .3f;
		petals.push_back(Disc(7 + std::cos(angle) * 2.6f, 5 + std::sin(angle) * 2.2f, 2));
	}
	canvas.Fill(stem, HexColour(0x2c5a1c), 1, .6f);
	canvas.Fill(stem, HexColour(0x5c9a2c));
	canvas.Fill(Joined(petals), InkOf(petal), 1, .75f);
	canvas.Fill(Joined(petals), petal);
	canvas.Fill(Disc(7, 5, 1.5f), HexColour(kind % 4 == 1 ? 0xd87a1c : 0xffc81e));
	return canvas.Finish();
}

Image Cloud(int w, int h, int seed)
{
	const int PUFFS = 7;
	Random random(seed);
	std::vector<PathFn> puffs;
	for (int i = 0; i < PUFFS; i++) {
		float u = (i + .5f) / PUFFS * 2 - 1, middle = 1 - u * u;
		float y    = h * (.64f - middle * .14f) + random.Range(-2, 2);
		float size = h * (.17f + .16f * middle + random.Range(-.02f, .05f));
		puffs.push_back(Disc(w * (.5f + u * .36f), y, size));
	}
	puffs.push_back(RoundRect(w * .12f, h * .66f, w * .76f, h * .20f, h * .1f));
	Canvas canvas(w, h, 3);
	Field mask = Blur(canvas.Mask(Joined(puffs)), .7f * canvas.supersample);
	canvas.ReliefMask(mask, Downward({1, 1, 1}, HexColour(0xb6d0f0), h * .45f, h * .95f), 3.5f,
	                  1.4f, 0);
	return canvas.Finish();
}

Colour WoodColour(Vec3 p, Colour base, int axis, float plank)
{
	float across = axis == 0 ? p.x : axis == 1 ? p.y : p.z;
	float along  = axis == 0 ? p.y : p.x + p.z;
	float number = std::floor(across / plank), part = across / plank - number;
	float grain = LayeredNoise(Vec3{across * 1.4f, along * .10f, number * 7.3f}, 3);
	float tone  = .86f + .30f * grain + .20f * (Hash01((int)number, 3, 9) - .5f);
	float toGap = std::min(part, 1 - part) * plank;
	return Mix(base * .42f, base * tone, Smoothstep(.15f, .55f, toGap));
}

Colour GrassColour(float x, float y)
{
	float broad = LayeredNoise(x * .011f, y * .026f, 4, 1);
	float patch = LayeredNoise(x * .045f, y * .085f, 3, 5);
	float grain = LayeredNoise(x * .35f, y * .5f, 2, 9);
	Colour c    = Mix(PAINT_GRASS_DARK, PAINT_GRASS_LIGHT, Smoothstep(.30f, .72f, broad));
	c           = Mix(c, PAINT_GRASS_MID, .35f);
	c           = c * (1 + .10f * (patch - .5f) + .06f * (grain - .5f));
	c           = Mix(c, PAINT_GRASS_FAR, .30f * Smoothstep(260, 120, y));
	return c * Mix(1.f, .90f, Smoothstep(380, 600, y));
}
