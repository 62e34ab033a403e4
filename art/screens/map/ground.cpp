// Colours of water and countries, shores and the slopes that the light falls on.
#include "art/screens/map/ground.h"

static const float CLIFF = 8; // pixels of rock under a southern shore

namespace
{
enum class Grain { Turf, Flowers, Sand, Snow, Cracks, Moss, Ice, Tiles };
struct Country {
	uint32_t low, high; // the two colours that its ground wavers between
	uint32_t shore, rock;
	Grain grain;
};
} // namespace

// clang-format off
static const Country s_countries[(int)Land::Count] = {
	{ 0xa9d852, 0x76b43e, 0xf4e2aa, 0xa8845c, Grain::Flowers },   // Meadow
	{ 0x9ccc58, 0x5fa048, 0xf0e0a8, 0x9c8460, Grain::Turf },   // Bamboo
	{ 0xf2dca0, 0xe2bc78, 0xfaeec0, 0xb08c5c, Grain::Sand },   // Cove
	{ 0x96c84c, 0x66a63a, 0xf0dca4, 0xa07c56, Grain::Flowers },   // Farm
	{ 0x7cb248, 0x508a3a, 0xe8d6a0, 0x947654, Grain::Moss },   // Woods
	{ 0xf4f9ff, 0xcddff2, 0xf4f8fc, 0x8aa6c8, Grain::Snow },   // Snow
	{ 0xb2bc50, 0x7c9440, 0xecd49c, 0xa87a4c, Grain::Moss },   // HighWoods
	{ 0xdcc070, 0xbc9a50, 0xf2dca4, 0xb07c4a, Grain::Turf },   // Dry
	{ 0xf0d086, 0xdcaa60, 0xf8e4b0, 0xb8804a, Grain::Sand },   // Sand
	{ 0x8ccc66, 0x549e58, 0xeee2b4, 0x8c8068, Grain::Flowers },   // Lakes
	{ 0xf0eaff, 0xc8bcec, 0xf2ecfc, 0x8c80b8, Grain::Snow },   // Heights
	{ 0xecc65c, 0xd09c3e, 0xf8e2a4, 0xb4743c, Grain::Turf },   // Savanna
	{ 0xfdf8ec, 0xe6dccc, 0xfcf2e0, 0xb8a48c, Grain::Cracks }, // Salt
	{ 0x5cac42, 0x2f7c38, 0xf0dca0, 0x7c6c4c, Grain::Moss },   // Jungle
	{ 0xf2fbff, 0xb6dcf0, 0xe8f6fc, 0x6ca4cc, Grain::Ice },    // Polar
	{ 0xf4c070, 0xdc8e48, 0xfadca4, 0xb8663c, Grain::Sand },   // Dunes
	{ 0xf6c8e8, 0xbca8f0, 0xfce8f4, 0x9a78c0, Grain::Tiles },  // Dream
};
// clang-format on

// --- the sea

// Long low waves; further off, in the north, they lie closer and paler.
static Colour OpenSea(float x, float y)
{
	float wave = LayeredNoise(x * .028f, y * .075f, 3, 6);
	Colour sea = Mix(HexColour(0x1c62b2), HexColour(0x3490da), Smoothstep(.2f, .8f, wave));
	float deep = LayeredNoise(x * .006f, y * .010f, 3, 16); // currents
	sea        = Mix(sea, HexColour(0x175096), .32f * Smoothstep(.50f, .74f, deep));
	return Mix(sea, HexColour(0x8cc8f0), .42f * Smoothstep(150, 0, y));
}

static Colour Shallows(Colour sea, float x, float y, float h)
{
	float reef = LayeredNoise(x * .045f, y * .06f, 3, 23);
	sea        = Mix(sea, HexColour(0x3aa6e0), .55f * Smoothstep(-1.05f, -.5f, h));
	sea        = Mix(sea, HexColour(0x5cd4e0), .85f * Smoothstep(-.62f, -.06f, h));
	float bed  = Smoothstep(-.7f, -.3f, h) * Smoothstep(-.1f, -.2f, h);
	return Mix(sea, HexColour(0x2a96b8), .40f * bed * Smoothstep(.54f, .64f, reef));
}

static Colour SeaAt(float x, float y, float h)
{
	float wave = LayeredNoise(x * .028f, y * .075f, 3, 6);
	Colour sea = Shallows(OpenSea(x, y), x, y, h);
	if (h < -.5f) {
		float crest = LayeredNoise(x * .036f, y * .21f, 3, 11);
		sea         = Mix(sea, HexColour(0xbfe4fa), .30f * Smoothstep(.62f, .71f, crest));
	}
	float lap  = .02f * std::sin(x * .11f + y * .07f);
	float surf = Smoothstep(.045f, .01f, std::fabs(h + .10f + lap));
	sea        = Mix(sea, {1, 1, 1}, .85f * surf * Smoothstep(.35f, .5f, wave + .12f));
	float ring = Smoothstep(.03f, .005f, std::fabs(h + .24f - lap));
	return Mix(sea, {1, 1, 1}, .45f * ring);
}

void PaintSea(Image& image, const Terrain& terrain, float scale)
{
	float fine = scale < .8f ? 1.25f : 1; // shorter waves on the smaller islands' sea
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++)
			Blend(image, x, y, SeaAt(x * fine, y * fine, terrain.level.At(x, y)));
}

// --- the land

// Distance to the nearest border of a patchwork of stones, in cells.
static float CrackDistance(float x, float y)
{
	float near = 9, next = 9;
	for (int j = -1; j <= 1; j++)
		for (int i = -1; i <= 1; i++) {
			int cx = (int)std::floor(x) + i, cy = (int)std::floor(y) + j;
			float far = std::hypot(cx + Hash01(cx, cy, 1) - x, cy + Hash01(cx, cy, 2) - y);
			next      = far < near ? near : std::min(next, far);
			near      = std::min(near, far);
		}
	return next - near;
}

static Colour Grained(Colour c, const Country& country, float x, float y)
{
	float fine = LayeredNoise(x * .22f, y * .3f, 2, 7);
	switch (country.grain) {
	case Grain::Sand: { // dunes with a lit and a shaded side
		float warp = 9 * LayeredNoise(x * .03f, y * .03f, 2, 50);
		float dune = std::sin(y * .42f + x * .10f + warp);
		return dune > 0 ? Lighter(c, .22f * dune) : Darker(c, -.18f * dune);
	}
	case Grain::Snow:
		return Hash01((int)x, (int)y, 5) > .985f ? Colour{1, 1, 1} : c * (.98f + .04f * fine);
	case Grain::Cracks:
		return Mix(HexColour(0xbca890), c,
		           Smoothstep(.02f, .12f, CrackDistance(x * .085f, y * .11f)));
	case Grain::Ice:
		return Mix(HexColour(0x86c0e4), c,
		           Smoothstep(.01f, .10f, CrackDistance(x * .045f, y * .06f)));
	case Grain::Moss:
		return c * (.88f + .24f * LayeredNoise(x * .14f, y * .18f, 2, 9));
	case Grain::Tiles: { // the chequered lawn of a dream
		bool odd = ((int)std::floor(x / 11 + y / 18) + (int)std::floor(y / 9 - x / 22)) & 1;
		return odd ? Mix(c, HexColour(0xb8f0e0), .5f) : c;
	}
	case Grain::Flowers: {
		static const uint32_t s_petals[] = {0xfff8d0, 0xffe060, 0xff9ac0, 0xfff8d0};
		float place                      = Hash01((int)x, (int)y, 8);
		if (place > .994f && LayeredNoise(x * .03f, y * .03f, 2, 60) > .45f)
			return HexColour(s_petals[(int)(place * 8000) & 3]);
		break;
	}
	case Grain::Turf:
		break;
	}
	return c * (.95f + .10f * fine);
}

static Colour CountryColour(Land land, float x, float y)
{
	const Country& country = s_countries[(int)land];
	float n                = LayeredNoise(x * .035f, y * .05f, 3, 3);
	Colour c = Mix(HexColour(country.low), HexColour(country.high), Smoothstep(.28f, .72f, n));
	return Grained(c, country, x, y);
}

static Colour LandColour(const Terrain& t, int x, int y, float h, float scale)
{
	float share        = t.share.At(x, y);
	float detail       = scale < .8f ? 1.3f : 1; // the overview's islands are smaller, not coarser
	const Country& own = s_countries[(int)t.FirstLand(x, y)];
	Colour land        = CountryColour(t.FirstLand(x, y), x * detail, y * detail);
	Colour shore       = HexColour(own.shore);
	if (share > .01f) {
		land  = Mix(land, CountryColour(t.SecondLand(x, y), x * detail, y * detail), share);
		shore = Mix(shore, HexColour(s_countries[(int)t.SecondLand(x, y)].shore), share);
	}
	return Mix(shore, land, Smoothstep(.07f, .19f, h));
}

static Colour LitBySlope(const Terrain& t, int x, int y, Colour c, float scale)
{
	float gx  = t.level.Clamped(x + 2, y) - t.level.Clamped(x - 2, y);
	float gy  = t.level.Clamped(x, y + 2) - t.level.Clamped(x, y - 2);
	float lit = Clamp01(.5f - (gx * 1.5f + gy * 2.2f) * scale);
	return lit > .5f ? Lighter(c, (lit - .5f) * .34f) : Darker(c, (.5f - lit) * .7f);
}

static void PaintCliff(Image& image, const Terrain& t, int x, int y, float scale)
{
	int up      = (int)(y - CLIFF * scale);
	float above = t.level.Clamped(x, up);
	if (above <= -.02f)
		return;
	Land land    = t.FirstLand(x, std::max(0, up));
	float strata = LayeredNoise(x * .22f / scale, y * .05f / scale, 3, 5);
	Colour rock  = HexColour(s_countries[(int)land].rock) * (.60f + .55f * strata);
	Blend(image, x, y, rock, Smoothstep(-.02f, .03f, above));
}

// Lake water with a reedy rim, lighter toward its edge.
static void PaintLake(Image& image, int x, int y, float depth)
{
	float wave   = LayeredNoise(x * .05f, y * .16f, 3, 31);
	Colour water = Mix(HexColour(0x7fd8e8), HexColour(0x2f86cc), Smoothstep(.05f, .5f, depth));
	water        = Mix(water, {1, 1, 1}, .35f * Smoothstep(.60f, .68f, wave));
	Blend(image, x, y, HexColour(0x6a7a3c), .6f * Smoothstep(-.16f, -.03f, depth));
	Blend(image, x, y, HexColour(0xe8f8f4), .9f * Smoothstep(-.05f, .0f, depth));
	Blend(image, x, y, water, Smoothstep(.02f, .08f, depth));
}

void PaintLand(Image& image, const Terrain& t, float scale)
{
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++) {
			float h = t.level.At(x, y);
			if (h < 0)
				PaintCliff(image, t, x, y, scale);
			if (h <= -.02f)
				continue;
			Colour land = LitBySlope(t, x, y, LandColour(t, x, y, h, scale), scale);
			Blend(image, x, y, land, Smoothstep(-.02f, .03f, h));
			if (t.lake.At(x, y) > -.2f)
				PaintLake(image, x, y, t.lake.At(x, y));
		}
}
