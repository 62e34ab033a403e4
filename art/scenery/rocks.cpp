// Rocks in stone and sandstone: three sizes, each standing on a ground line near the lower edge.
#include "art/families.h"

#include "art/core/palette.h"
#include "art/core/renderer.h"

static const int FOOT = 15; // pixels from the lower edge up to the middle of a rock's footprint

namespace
{
struct RockSize {
	const char* word;
	int width, height, variants;
};
} // namespace

static const RockSize s_sizes[] = {
    {"big", 104, 54, 4}, {"medium", 62, 40, 6}, {"small", 38, 30, 4}};

static Colour StoneColour(Vec3 p, float seed, Colour base, bool sand)
{
	float grain = LayeredNoise(p * .18f + Vec3{seed, 0, 0}, 3);
	float fleck = Noise(p * .9f + Vec3{0, seed, 0});
	Colour c    = base * (.80f + .40f * grain) * (fleck > .76f ? 1.10f : fleck < .2f ? .92f : 1.f);
	if (sand) // bedding lines, bent by the grain
		return c * (.94f + .10f * std::sin(p.y * 1.1f + 5 * grain + p.x * .06f));
	float crack = std::fabs(LayeredNoise(p * .07f + Vec3{seed, 4, 1}, 2) - .5f);
	c           = Mix(c * .72f, c, Smoothstep(.0f, .022f, crack));
	float moss  = Smoothstep(.50f, .62f, LayeredNoise(p * .11f + Vec3{0, seed, 3}, 3));
	return Mix(c, PAINT_MOSS * .95f, moss * .55f);
}

namespace
{
// Puts one rock together; odd seeds are built the other way round.
struct RockBuilder {
	Model& model;
	int stone;
	float half, tall, flip;
	Random random;

	void Finish(Shape& s) const
	{
		s.bumps     = half * .036f + .4f;
		s.bumpScale = 5.f / half + .05f;
		s.cutBelow  = -1.5f;
	}
	// Sizes and places are parts of the rock's half width and height.
	void Lump(float x, float y, float z, Vec3 size, float blend)
	{
		Vec3 at{x * half * flip, y * tall, z * half};
		Finish(model.Ellipsoid(at, {size.x * half, size.y * tall, size.z * half},
		                       TurnY(random.Range(-.5f, .5f)) * TurnZ(random.Range(-.14f, .14f)),
		                       stone, blend));
	}
	// A broken block with dull edges: gives the rock its faces.
	void Block(float x, float y, float z, Vec3 size, float blend)
	{
		Vec3 at{x * half * flip, y * tall, z * half},
		    sides{size.x * half, size.y * tall, size.z * half};
		Mat3 turn = TurnY(random.Range(.3f, .9f) * flip) * TurnZ(random.Range(-.30f, .30f)) *
		            TurnX(random.Range(-.2f, .2f));
		float dull = std::min(sides.x, std::min(sides.y, sides.z)) * .42f;
		Finish(model.Box(at, sides, turn, dull, stone, blend));
	}
};
} // namespace

// A main block with shoulders and pebbles at its foot.
static void BuildRock(Model& model, int w, int h, int seed, int stone)
{
	RockBuilder b{model, stone, w * .5f - 3, h - FOOT - 3.f, seed % 2 ? -1.f : 1.f, Random(seed)};
	Random& random = b.random;
	float k        = w * .035f + .8f;
	b.Block(random.Range(-.2f, .04f), .38f, 0, {.42f, random.Range(.52f, .62f), .31f}, 0);
	b.Block(random.Range(.42f, .52f), .18f, .06f,
	        {random.Range(.32f, .38f), random.Range(.34f, .46f), .30f}, k);
	b.Lump(-.56f, .16f, .12f, {random.Range(.36f, .42f), random.Range(.32f, .48f), .34f}, k);
	b.Lump(0, .10f, .10f, {.74f, .30f, .40f}, k * 1.4f);
	if (w > 50)
		b.Block(random.Range(-.1f, .25f), .08f, .34f, {.24f, .20f, .16f}, k * .5f);
	b.Lump(.86f, .02f, .20f, {.10f, .16f, .11f}, .3f);
	b.Lump(-.85f, .02f, .26f, {.09f, .14f, .10f}, .3f);
}

static Image DrawRock(const RockSize& size, int variant, bool sand)
{
	Model model;
	float slice = (size.width + variant * 3) * 1.7f;
	Colour base = sand ? HexColour(variant % 2 ? 0xd2ac6c : 0xc69c5e) : PAINT_ROCK[variant % 2];
	int stone   = model.Painted(
        [=](const SurfacePoint& at) { return StoneColour(at.position, slice, base, sand); }, .10f);
	BuildRock(model, size.width, size.height, size.width + variant, stone);
	ShadeStyle style;
	style.shadowFrom = .26f;
	Image rock       = RenderModel(model,
	                               ViewFrom(size.width, size.height, size.width * .5f,
	                                        size.height - FOOT + 1.f, 0, 19, size.width > 50 ? 3 : 4),
	                               style);
	Image out(size.width, size.height);
	DrawFootShadow(out, size.width * .5f + 2, size.height - FOOT + 3.5f, size.width * .36f,
	               sand ? PAINT_SHADOW_SAND : PAINT_SHADOW, .42f);
	Compose(out, rock, 0, 0);
	return out;
}

void AddRocks(Catalogue& catalogue)
{
	for (int sand = 0; sand < 2; sand++)
		for (const RockSize& size : s_sizes) {
			std::string stem = std::string(sand ? "sandrock" : "rock") + size.word;
			catalogue.Add(stem, __FILE__, [&size, stem, sand](Sink& sink) {
				for (int i = 0; i < size.variants; i++)
					sink.Add(stem + (char)('A' + i) + ".png", DrawRock(size, i, sand == 1));
			});
		}
}
