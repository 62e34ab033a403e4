// The sea: three bands of water that are painted once, and the crests that roll before them.
#include "art/scenery/sea.h"

#include "art/core/palette.h"
#include "art/families.h"

static const int BASE_WIDTH = 800;

namespace
{
struct Band {
	const char* crest;
	const char* base;
	int crestWidth, baseHeight; // pixels
	WaterLook look;
};
} // namespace

// clang-format off
static const Band s_bands[] = {
	// crest                        base                              width  height
	{ "background_wavesback.png",   "background_wavesbaseback.png",   740, 20, { PAINT_SEA_BACK,  PAINT_SEA_BACK_DEEP, 1.3f,  61, 0.0f } },
	{ "background_wavesmiddle.png", "background_wavesbasemiddle.png", 752, 24, { PAINT_SEA_MID,   PAINT_SEA_MID_DEEP,  1.8f,  85, 2.0f } },
	{ "background_wavesfront.png",  "background_wavesbasefront.png",  774, 72, { PAINT_SEA_FRONT, PAINT_SEA_DEEP,      2.3f, 111, 4.0f } },
};
// clang-format on

// Row of the water's edge within the crest picture.
static float CrestLine(const WaterLook& look, float x)
{
	float turn = x * 2 * PI / look.period + look.phase;
	return 5.0f - look.amplitude * (std::sin(turn) + .5f * std::sin(turn / .43f)) +
	       1.2f * (Noise({x * .11f, look.phase, 0}) - .5f);
}

// Colour of the water; `depth` in pixels below the crest's line.
static Colour WaterColour(const WaterLook& look, float x, float y, float depth)
{
	Colour c     = Mix(look.light, look.deep, Clamp01(depth / 30));
	float swell  = LayeredNoise(x * .018f, y * .15f, 3, look.phase + 1);
	c            = c * (.95f + .10f * swell);
	float streak = LayeredNoise(x * .055f, y * .46f, 3, look.phase);
	c            = Mix(c, HexColour(0xbfe6fb),
	                   .34f * Smoothstep(.57f, .66f, streak) * Clamp01((depth - 3) / 4));
	float glint =
	    Noise({x * .33f, y * .9f, look.phase + 4}); // sparkle, only where the water is lit
	return Mix(c, PAINT_WHITE,
	           .70f * Smoothstep(.90f, .96f, glint) * Smoothstep(.42f, .62f, swell));
}

Image WaterCrest(const WaterLook& look, int width)
{
	Image out(width, CREST_HEIGHT);
	for (int x = 0; x < out.width; x++) {
		float line = CrestLine(look, x + .5f);
		float foam = 1.2f + 1.1f * Smoothstep(.45f, .75f, Noise({x * .07f, look.phase, 9}));
		for (int y = 0; y < out.height; y++) {
			float depth = y + .5f - line;
			Colour c    = WaterColour(look, x, y, depth);
			c = Mix(PAINT_WHITE, c, .15f + .85f * Smoothstep(foam - .5f, foam + .9f, depth));
			float lace = LayeredNoise(x * .16f, y * .55f, 2, look.phase + 2);
			c = Mix(c, PAINT_WHITE, .55f * Smoothstep(.60f, .68f, lace) * Smoothstep(6, 2, depth));
			Blend(out, x, y, c, Clamp01(depth + .5f));
		}
	}
	return out;
}

Image WaterBase(const WaterLook& look, int width, int height)
{
	const float CREST_DEPTH = CREST_HEIGHT - 5.f; // where the crest's picture ends
	Image out(width, height);
	for (int y = 0; y < out.height; y++)
		for (int x = 0; x < out.width; x++)
			Blend(out, x, y, WaterColour(look, x + 40.f, y + CREST_HEIGHT, y + CREST_DEPTH));
	return out;
}

void AddSea(Catalogue& catalogue)
{
	catalogue.Add("background_waves", __FILE__, [](Sink& sink) {
		for (const Band& band : s_bands) {
			sink.Add(band.crest, WaterCrest(band.look, band.crestWidth));
			sink.Add(band.base, WaterBase(band.look, BASE_WIDTH, band.baseHeight));
		}
	});
}
