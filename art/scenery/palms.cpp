// Palms: curved trunks with rings, and fronds in the order in which the game lays them.
#include "art/families.h"

#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/scenery/foliage.h"

namespace
{
struct PalmLook {
	const char* name;
	int footX, footY, width, height; // of the picture
	float topX;                      // where the trunk ends, pixels from the left
	float radius, bow;               // at half height; sideways bend in pixels
};
} // namespace

// clang-format off
static const PalmLook s_palms[] = {
	// name              foot      picture   topX  radius  bow
	{ "trunkpalmA.png",  16, 188,  70, 195,  48,   6.6f,  -10 },
	{ "trunkpalmB.png",  68, 175,  86, 182,  14,   7.0f,   12 },
	{ "trunkpalmC.png",  26, 182,  54, 189,  11,   5.6f,    7 },
	{ "trunkpalmD.png",  17, 164,  94, 171,  76,   6.6f,  -14 },
	{ "trunkpalmE.png",  18, 155,  52, 162,  37,   5.2f,   -8 },
	{ "trunkpalmF.png",  31, 147,  48, 154,  16,   5.2f,    8 },
	{ "trunkpalmG.png",  16, 125,  34, 132,  12,   4.6f,   -5 },
};
// clang-format on

// Old leaf bases leave a ring every few pixels; each ring is dark below and light above.
static Colour PalmBark(Vec3 p, Vec3 normal)
{
	const float RING = 6;
	float part       = p.y / RING - std::floor(p.y / RING);
	Colour bark      = Mix(HexColour(0x8a6238), HexColour(0xc49a5c),
	                       LayeredNoise(Vec3{p.x * .5f, p.y * .2f, p.z * .5f}, 3));
	bark             = bark * (.92f + .16f * part + .06f * normal.y);
	return Mix(HexColour(0x5c3e22), bark, Smoothstep(.02f, .26f, std::min(part, 1 - part) * 2));
}

static Image DrawPalmTrunk(const PalmLook& look)
{
	const int PIECES = 18;
	Model model;
	int bark = model.Painted(
	    [](const SurfacePoint& at) { return PalmBark(at.position, at.normal); }, .06f);
	float top = (look.footY - 3.f) / std::cos(Radians(9)), lean = look.topX - look.footX;
	auto spine = [&](float t) {
		return Vec3{lean * t * t + look.bow * std::sin(t * PI), top * t, 0};
	};
	auto radius = [&](float t) {
		return look.radius * (.66f + .34f * (1 - t) + .55f * std::pow(1 - t, 9.f));
	};
	for (int i = 0; i < PIECES; i++) {
		float t = i / (float)PIECES, u = (i + 1) / (float)PIECES;
		model.RoundCone(spine(t), spine(u), radius(t), radius(u), bark, i ? .4f : 0).cutBelow = -1;
	}
	Random random(look.height);
	for (int i = 0; i < 7; i++) { // root knobs
		float a = i * 2 * PI / 7 + random.Range(-.2f, .2f), out = look.radius * 1.35f;
		model.Ball({std::cos(a) * out, 0, std::sin(a) * out}, look.radius * .42f, bark, 2)
		    .cutBelow = -1;
	}
	Image out(look.width, look.height);
	DrawGroundShade(out, look.footX + 1.f, look.footY + .5f,
	                std::min(look.radius * 3.6f, look.footX * 1.f + 1),
	                look.height - look.footY - 1.f);
	Compose(out,
	        RenderModel(model,
	                    ViewFrom(look.width, look.height, look.footX, look.footY - 1.f, 0, 9, 3)),
	        0, 0);
	return out;
}

// clang-format off
static const FrondShape s_bigFronds[12] = {
	// A to F: back to front, left and right by turns
	{ Radians(122), 60, 2, 0.62f }, { Radians(60), 60, 4, 0.46f },
	{ Radians(158), 74, 30, 0.82f }, { Radians(20), 74, 32, 0.62f },
	{ Radians(200), 68, 44, 0.62f }, { Radians(-22), 66, 46, 0.50f },
	// G to L: a lopsided, more upright crown
	{ Radians(98), 54, 0, 0.62f }, { Radians(42), 66, 16, 0.54f },
	{ Radians(138), 68, 16, 0.86f }, { Radians(2), 72, 42, 0.60f },
	{ Radians(178), 74, 44, 0.74f }, { Radians(-40), 58, 36, 0.46f },
};
static const FrondShape s_smallFronds[12] = {
	// A to F: back to front, left and right by turns
	{ Radians(122), 47, 2, 0.62f }, { Radians(60), 47, 3, 0.46f },
	{ Radians(158), 58, 23, 0.82f }, { Radians(20), 58, 25, 0.62f },
	{ Radians(200), 53, 34, 0.62f }, { Radians(-22), 51, 36, 0.50f },
	// G to L: a lopsided, more upright crown
	{ Radians(98), 42, 0, 0.62f }, { Radians(42), 51, 12, 0.54f },
	{ Radians(138), 53, 12, 0.86f }, { Radians(2), 56, 33, 0.60f },
	{ Radians(178), 58, 34, 0.74f }, { Radians(-40), 45, 28, 0.46f },
};
// clang-format on

Frond NamedFrond(bool big, int letter)
{
	return big ? PalmFrond(s_bigFronds[letter], 13, letter)
	           : PalmFrond(s_smallFronds[letter], 10, letter + 20);
}

Frond NamedPalmTrunk(int letter)
{
	const PalmLook& look = s_palms[letter];
	return {DrawPalmTrunk(look), (int)look.topX, 6};
}

void AddPalms(Catalogue& catalogue)
{
	for (const PalmLook& look : s_palms)
		catalogue.Add(look.name, __FILE__,
		              [&look](Sink& sink) { sink.Add(look.name, DrawPalmTrunk(look)); });
	catalogue.Add("leafpalm", __FILE__, [](Sink& sink) {
		for (int i = 0; i < 12; i++) {
			std::string letter(1, (char)('A' + i));
			sink.Add("leafpalmbig" + letter + ".png", NamedFrond(true, i).image);
			sink.Add("leafpalmsmall" + letter + ".png", NamedFrond(false, i).image);
		}
	});
}
