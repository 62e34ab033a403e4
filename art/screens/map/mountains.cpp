// Massifs of cones, rendered solid: each by its seed with two to four peaks.
#include "art/screens/map/mountains.h"

#include "art/core/renderer.h"

namespace
{
struct Stone {
	uint32_t dark, light, foot;
	float snow; // part of the height above which snow lies
};
} // namespace

static Colour StoneColour(const Stone& stone, Vec3 p, float h, int seed)
{
	float f        = LayeredNoise(p * .09f + Vec3{(float)seed, 0, 0}, 4);
	float fray     = LayeredNoise(p * .25f + Vec3{0, (float)seed, 0}, 2) - .5f;
	float snowLine = h * stone.snow + 9 * fray;
	Colour c       = Mix(HexColour(stone.dark), HexColour(stone.light), Smoothstep(.3f, .7f, f));
	c = Mix(HexColour(stone.foot), c, Smoothstep(h * .06f, h * .34f, p.y + 8 * (f - .5f)));
	return Mix(c, HexColour(0xfafcff), Smoothstep(snowLine, snowLine + 3, p.y));
}

// Its foot melts into the ground, or it would lie there like a boulder.
static Image Rooted(Image mountain, float width)
{
	int low    = OpaqueBounds(mountain).bottom;
	float melt = width * .13f;
	for (int y = 0; y < mountain.height; y++)
		for (int x = 0; x < mountain.width; x++) {
			float side = std::fabs(x / (float)mountain.width - .5f) * 2;
			float foot = low - melt * .8f * side * side; // the ends of the foot lie higher
			float keep = Smoothstep(foot, foot - melt, y);
			for (int k = 0; k < 4; k++)
				mountain.At(x, y)[k] *= keep;
		}
	return mountain;
}

Image DrawMountain(MountainKind kind, float width, float height, int seed)
{
	static const Stone s_stones[] = {{0x94805e, 0xb8a47e, 0x6c9a3c, .58f},
	                                 {0x8296b4, 0xb4c4da, 0xc8d8ec, .30f},
	                                 {0x8878b0, 0xb8a8dc, 0xd8ccf0, .42f}};
	const Stone stone             = s_stones[(int)kind];
	Model m;
	int rock = m.Painted(
	    [=](const SurfacePoint& s) { return StoneColour(stone, s.position, height, seed); });
	Random random(seed);
	int peaks = 2 + seed % 3;
	int high  = random.Below(peaks);
	for (int i = 0; i < peaks; i++) {
		bool tall = i == high;
		float x   = (i - (peaks - 1) * .5f) * width * .62f / peaks + random.Range(-2, 2);
		float top = height * (tall ? .88f : random.Range(.44f, .66f)), z = tall ? -4 : 4;
		float foot = width * (tall ? .25f : .18f);
		Shape& cone =
		    m.RoundCone({x, 0, z}, {x + random.Range(-3, 3), top, z}, foot, 1.4f, rock, 3);
		cone.bumps     = kind == MountainKind::Grey ? 2.6f : 1.6f;
		cone.bumpScale = .11f;
	}
	Camera camera = ViewFrom((int)width, (int)(height + width * .30f), width * .5f, height, 0, 22);
	ShadeStyle style;
	style.shadowFrom = .26f;
	return Rooted(RenderModel(m, camera, style), width);
}

static Colour MesaColour(const SurfacePoint& s, float height)
{
	float warp  = 4 * LayeredNoise(s.position * .10f, 2);
	float layer = .5f + .5f * std::sin((s.position.y + warp) * .85f);
	Colour c    = Mix(HexColour(0xa84c30), HexColour(0xdc8a50), Smoothstep(.2f, .8f, layer));
	if (s.normal.y > .7f)
		c = HexColour(0xe4a064);
	return Mix(HexColour(0xe0a868), c, Smoothstep(0, height * .22f, s.position.y));
}

Image DrawMesa(float width, float height, int seed)
{
	Model m;
	int rock = m.Painted([=](const SurfacePoint& s) { return MesaColour(s, height); });
	Random random(seed);
	m.Ellipsoid({0, 0, 0}, {width * .44f, height * .22f, width * .26f}, Mat3(), rock, 0);
	for (int i = 0; i < 3; i++) {
		bool tall = i == seed % 3;
		float x = (i - 1) * width * .23f, z = tall ? -3.f : 3.f;
		float top = height * (tall ? .98f : random.Range(.44f, .72f));
		Vec3 half = {width * (tall ? .15f : .12f), top * .5f, width * .12f};
		Shape& b = m.Box({x, top * .5f, z}, half, TurnY(random.Range(-.6f, .6f)), 2.2f, rock, 2.5f);
		b.bumps  = 1.8f;
		b.bumpScale = .16f;
	}
	Camera camera = ViewFrom((int)width, (int)(height + width * .34f), width * .5f, height, 0, 22);
	ShadeStyle style;
	style.innerDepth = 4;
	return RenderModel(m, camera, style);
}
