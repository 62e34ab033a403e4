// Glows worked out pixel by pixel, and the bolts of the stun.
#include "art/objects/machine_effects.h"

#include "art/core/canvas.h"
#include "art/objects/light.h"

// Heat 0..1 to colour: from the dark edge to the white core.
static Colour FlameColour(bool fast, float heat)
{
	Colour edge   = HexColour(fast ? 0xd82a14 : 0x1f50e8);
	Colour outer  = HexColour(fast ? 0xff7a18 : 0x2f8cff);
	Colour middle = HexColour(fast ? 0xffd83c : 0x8ce0ff);
	Colour c      = Mix(edge, outer, Smoothstep(.02f, .30f, heat));
	c             = Mix(c, middle, Smoothstep(.30f, .58f, heat));
	return Mix(c, {1, 1, .96f}, Smoothstep(.62f, .9f, heat));
}

Image Flame(bool fast, bool toRight, float power, float phase)
{
	const int w = fast ? 48 : 22, h = 33;
	const float middle = 16.5f, thick = fast ? 9.f : 7.f;
	float turn = phase * 2 * PI;
	return PaintLight(w, h, [=](float x, float y, Colour& c) {
		float along  = (toRight ? x : w - x) / (w * power * .82f); // 0 at the nozzle, 1 at the tip
		float across = y - middle;
		// Waves that run outward make it flicker; whole turns keep the loop closed.
		float sway =
		    (1.6f * std::sin(5 * along - 2 * turn) + .8f * std::sin(9 * along - 3 * turn)) * along;
		float lick =
		    .12f * std::sin(across * .9f + turn) + .09f * std::sin(across * 1.7f - 2 * turn);
		float reach = 1 - .10f * (1 + std::sin(turn * 2)) * .5f + lick;
		float t     = along / reach;
		if (t > 1.25f)
			return 0.f;
		float body = std::sqrt(std::max(0.f, 1 - t)) *
		             (.62f + .62f * std::sin(PI * std::min(1.f, t * .9f + .12f)));
		float half = thick * body * std::sqrt(power) + .01f;
		float off  = std::fabs(across - sway) / half;
		float heat = (1 - off) * (1.12f - .62f * t);
		c          = FlameColour(fast, heat);
		float glow = .38f * std::exp(-std::max(0.f, off - 1) * 2.2f) * Smoothstep(1.25f, .5f, t);
		// the glow fades out before the edges of the picture
		glow *= Smoothstep(middle, middle - 5, std::fabs(across));
		return std::max(Smoothstep(0, .16f, heat) * .96f, glow * power);
	});
}

Image StunGlow(float power)
{
	return PaintLight(120, 104, [=](float x, float y, Colour& c) {
		float u = (x - 60) / 59, v = (y - 52) / 51, r = std::hypot(u, v);
		float size  = .55f + .45f * power;
		float cloud = LayeredNoise(x * .07f, y * .07f, 2);
		float shell = std::exp(-std::pow((r / size - .78f) / .12f, 2.f));
		c           = Mix(HexColour(0xfff6b0), HexColour(0x9a5cff), Smoothstep(.2f, .9f, r / size));
		c           = Mix(c, {1, 1, 1}, shell * .45f);
		float fill  = .50f * Smoothstep(1, .35f, r / size) * (.7f + .6f * cloud);
		return power * Smoothstep(1, .9f, r) * (fill + .55f * shell);
	});
}

// One jagged bolt: white core in a coloured halo.
static void Bolt(Canvas& canvas, At a, At b, int seed, Colour halo, float wild, float strength)
{
	Random random(seed);
	std::vector<At> points;
	for (int i = 0; i <= 7; i++) {
		float t = i / 7.f, k = std::sin(t * PI) * wild;
		points.push_back(
		    {Mix(a.x, b.x, t) + random.Range(-k, k), Mix(a.y, b.y, t) + random.Range(-k, k)});
	}
	PathFn line = Line(points);
	canvas.Stroke(line, halo, 6, .22f * strength);
	canvas.Stroke(line, halo, 3.2f, .6f * strength);
	canvas.Stroke(line, {1, 1, 1}, 1.3f, strength);
}

// Five bolts live six frames each, one after the other, and leap along an oval.
Image StunCrackle(int frame)
{
	const int bolts = 5, life = 6;
	Canvas canvas(112, 94, 3);
	for (int i = 0; i < bolts; i++) {
		int age = (frame + i * 2) % life, number = (frame + i * 2) / life % (60 / life);
		float strength = age < 4 ? 1.f : .45f;
		float a        = (i + .8f * Hash01(i, number, 3)) * 2 * PI / bolts + age * .10f,
		      b        = a + 1.1f + Hash01(i, number, 5);
		float r        = .82f + .18f * Hash01(i, number, 8);
		Colour halo    = HexColour(i & 1 ? 0x8a6cff : 0x54b4ff);
		Bolt(canvas, {56 + std::cos(a) * 48 * r, 47 + std::sin(a) * 39 * r},
		     {56 + std::cos(b) * 48 * r, 47 + std::sin(b) * 39 * r}, frame * 9 + i, halo, 9,
		     strength);
	}
	return canvas.Finish();
}

Image DestructoRay(int height)
{
	const int w = 44;
	return PaintLight(w, height, [=](float x, float y, Colour& c) {
		float u    = std::fabs(x - w * .5f + .8f * std::sin(y * .09f)) / (w * .5f);
		float halo = .62f * std::exp(-u * u * 5), core = Smoothstep(.34f, .10f, u);
		float rings = .28f * Smoothstep(.6f, 1, std::sin(y * .35f)) * Smoothstep(.62f, .2f, u);
		float spark =
		    Smoothstep(.62f, .92f, Noise({x * .4f, y * .14f, 4})) * Smoothstep(.62f, .3f, u);
		c = Mix(HexColour(0x38c0ff), {1, 1, 1}, Clamp01(core + rings + spark * .8f));
		return (halo + core + rings + spark * .5f) * Smoothstep(1, .8f, u);
	});
}

Image DestructoSign(float power)
{
	const int size = 40;
	Colour deep    = HexColour(0x1c5ac8);
	Image glow     = PaintLight(size, size, [=](float x, float y, Colour& c) {
        float r = std::hypot(x - 20, y - 20), ring = 13 + 4 * power;
        float edge = std::exp(-std::pow((r - ring) / 1.6f, 2.f));
        c          = Mix(deep, {.7f, .95f, 1}, Clamp01(edge + .4f * power * Smoothstep(14, 4, r)));
        float fill = Smoothstep(ring + 2, ring - 5, r) * (.42f + .2f * power);
        return std::max(fill, edge * (.55f + .4f * power)) * Smoothstep(20, 17.5f, r);
    });
	float k        = 1 + .12f * power;
	PathFn bolt    = Turned(
	       Polygon({{23, 8}, {12.5f, 22}, {18.5f, 22}, {16, 33}, {28, 17}, {21, 17}, {27.5f, 8}}), 20,
	       20, 0, k);
	Canvas canvas(size, size);
	canvas.Fill(bolt, HexColour(0x10245c), .95f, 1.5f);
	canvas.Relief(bolt,
	              Downward(Mix(HexColour(0xfff08a), {1, 1, 1}, power * .5f),
	                       Mix(HexColour(0xffb42a), HexColour(0xfff08a), power), 8, 33),
	              1.2f, 2.4f, .5f);
	Image mark = canvas.Finish();
	Compose(glow, mark, 0, 0);
	return glow;
}
