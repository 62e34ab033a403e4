// Trees in pieces: trunks whose feet lie where the game stands them, and the foliage for them.
#include "art/families.h"

#include "art/core/palette.h"
#include "art/core/renderer.h"
#include "art/scenery/foliage.h"

static const float TREE_ELEVATION = 17; // degrees that the camera looks down on trees

namespace
{
// A broadleaf trunk; the picture is as high as its foot row and a little more for the roots.
struct TrunkLook {
	const char* name;
	int footX, footY;  // pixel on which the tree stands
	int width, height; // of the picture
	float radius;      // at half height
	int boughs;
	float spread; // pixels from the outermost bough to the middle
	float crownX; // middle of the crown, pixels right of the foot
	int seed;
};
} // namespace

// clang-format off
static const TrunkLook s_trunks[] = {
	// name                 foot     picture   radius boughs spread crownX seed
	{ "treetrunkbigA.png",   52, 95, 104, 106,  8.4f,  5,    44,  -10,    1 },
	{ "treetrunkbigB.png",   66, 95, 132, 106,  8.8f,  6,    50,    0,    2 },
	{ "treetrunkbigC.png",   70, 97, 140, 108,  8.6f,  6,    54,    0,    3 },
	{ "treetrunkthinA.png",  13, 80,  26,  87,  3.6f,  3,     9,   -3,    4 },
	{ "treetrunkthinB.png",  13, 81,  26,  87,  3.6f,  3,     9,   -3,    5 },
	{ "treetrunksmallA.png", 44, 68,  88,  76,  6.2f,  4,    32,    0,    6 },
	{ "treetrunksmallB.png", 46, 70,  90,  77,  6.4f,  4,    34,   -5,    7 },
};
// clang-format on

// Furrows run along the trunk; moss sits low on the shaded side.
static Colour BarkColour(Vec3 p)
{
	float furrow = LayeredNoise(Vec3{p.x * .60f, p.y * .085f, p.z * .60f}, 3);
	float crack  = Noise(Vec3{p.x * .95f + 7, p.y * .10f, p.z * .95f});
	Colour bark  = Mix(PAINT_TRUNK_DARK, PAINT_TRUNK_LIGHT, Smoothstep(.28f, .68f, furrow));
	bark         = bark * (crack < .30f ? .80f : 1.f);
	float moss =
	    Smoothstep(.55f, .68f, LayeredNoise(p * .14f + Vec3{5, 2, 9}, 2)) * Smoothstep(34, 6, p.y);
	return Mix(bark, PAINT_MOSS * .86f, moss * .5f);
}

static void AddRoots(Model& model, float radius, int bark, Random& random)
{
	const int ROOTS = 7;
	for (int i = 0; i < ROOTS; i++) {
		float a     = i * 2 * PI / ROOTS + random.Range(-.2f, .2f);
		float reach = radius * random.Range(1.42f, 1.75f);
		model.RoundCone({std::cos(a) * radius * .35f, radius * .9f, std::sin(a) * radius * .35f},
		                {std::cos(a) * reach, -.4f, std::sin(a) * reach}, radius * .46f,
		                radius * .18f, bark, radius * .34f);
	}
}

// Boughs rise out of the trunk in two bends toward the middle of the crown.
static void AddBoughs(Model& model, const TrunkLook& look, float top, int bark, Random& random)
{
	for (int i = 0; i < look.boughs; i++) {
		float t    = look.boughs > 1 ? i / (look.boughs - 1.f) * 2 - 1 : 0;
		float rise = Mix(.97f, .80f, std::fabs(t)) + random.Range(-.03f, .03f);
		float root = look.radius * Mix(.52f, .42f, std::fabs(t));
		Vec3 from{t * look.radius * .3f, top * (.50f - .06f * std::fabs(t)), 0};
		Vec3 to{look.crownX * .8f + t * look.spread, top * rise, random.Range(-5, 5)};
		Vec3 bend = Mix(from, to, .50f) + Vec3{t * look.spread * .10f, -top * .05f, 0};
		model.RoundCone(from, bend, root, root * .66f, bark, look.radius * .30f);
		model.RoundCone(bend, to, root * .66f, root * .30f, bark, .8f);
	}
}

static Image DrawTrunk(const TrunkLook& look)
{
	Model model;
	int bark = model.Painted([](const SurfacePoint& at) { return BarkColour(at.position); }, .04f);
	Random random(look.seed);
	float top = look.footY - 4.f, r = look.radius;
	model.Tube({0, 0, 0}, {random.Range(-1, 1), top * .18f, 0},
	           {random.Range(-2, 2), top * .36f, 0}, {look.crownX * .15f, top * .58f, 0}, r * 1.12f,
	           r * .70f, 6, bark, 0, 1.2f);
	AddRoots(model, r, bark, random);
	AddBoughs(model, look, top, bark, random);
	Camera camera = ViewFrom(look.width, look.height, look.footX, look.footY - 1.5f, 0,
	                         TREE_ELEVATION, look.width > 60 ? 3 : 4);
	Image out(look.width, look.height);
	float shade = std::min(look.radius * 4.4f, look.width * .5f / 1.3f);
	DrawGroundShade(out, look.footX + 2.f, look.footY + .5f, shade, look.height - look.footY - 1.f);
	Compose(out, RenderModel(model, camera), 0, 0);
	return out;
}

namespace
{
struct PineLook {
	const char* trunk;
	const char* tiers;
	int footX, footY, width, height; // of the trunk
	float radius;
	int tierWidth, tierHeight; // of the lowest tier
	int seed;
};
} // namespace

static const int PINE_TIERS = 5; // the first one is the top

// clang-format off
static const PineLook s_pines[] = {
	{ "treetrunkpinebig.png",      "pinetreebig",      10, 46, 20, 53, 4.6f, 90, 44, 11 },
	{ "treetrunkpine.png",         "pinetreeregular",   8, 35, 16, 41, 3.6f, 72, 36, 12 },
	{ "treetrunkpinesmall.png",    "pinetreesmall",     6, 25, 12, 30, 2.8f, 58, 29, 13 },
	{ "treetrunkpinesmallest.png", "pinetreesmallest",  5, 20, 10, 25, 2.3f, 46, 24, 14 },
};
// clang-format on

static Image DrawPineTrunk(const PineLook& look)
{
	Model model;
	int bark =
	    model.Painted([](const SurfacePoint& at) { return BarkColour(at.position) * .92f; }, .04f);
	Random random(look.seed);
	float r = look.radius;
	model.RoundCone({0, 0, 0}, {0, (float)look.footY, 0}, r, r * .8f, bark, 0);
	for (int i = 0; i < 6; i++) {
		float a = i * PI / 3 + .3f, reach = r * 1.30f;
		model.RoundCone({0, r * .9f, 0}, {std::cos(a) * reach, -.3f, std::sin(a) * reach}, r * .5f,
		                r * .22f, bark, r * .4f);
	}
	Image out(look.width, look.height);
	DrawGroundShade(out, look.footX, look.footY + .5f, look.width * .5f,
	                look.height - look.footY - 1.f);
	Camera camera =
	    ViewFrom(look.width, look.height, look.footX - .5f, look.footY - 1.f, 0, TREE_ELEVATION);
	Compose(out, RenderModel(model, camera), 0, 0);
	return out;
}

// Each tier is narrower than the one below it and a touch brighter.
static void DrawTiers(Sink& sink, const PineLook& look, int variant)
{
	for (int i = 0; i < PINE_TIERS; i++) {
		float down   = i / (PINE_TIERS - 1.f);
		int w        = (int)(look.tierWidth * Mix(.36f, 1.f, down) + .5f);
		int h        = (int)(look.tierHeight * Mix(.86f, 1.f, down) + .5f);
		Colour green = Mix(PAINT_PINE[variant], HexColour(0x9bd060), (1 - down) * .18f);
		std::string name =
		    std::string(look.tiers) + (variant ? "B" : "") + std::to_string(i) + ".png";
		sink.Add(name, PineTier(w, h, look.seed * 16 + variant * 8 + i, green));
	}
}

static void AddLeaves(Catalogue& catalogue)
{
	catalogue.Add("leaves", __FILE__, [](Sink& sink) {
		const struct {
			const char* word;
			Colour colour;
		} KINDS[] = {
		    {"green", PAINT_LEAF_GREEN}, {"orange", PAINT_LEAF_ORANGE}, {"red", PAINT_LEAF_RED}};
		for (const auto& kind : KINDS)
			for (int i = 0; i < 3; i++)
				sink.Add(std::string("leaves") + kind.word + (char)('A' + i) + ".png",
				         LeafClump(40 + i, kind.colour));
	});
}

void AddTrees(Catalogue& catalogue)
{
	for (const TrunkLook& look : s_trunks)
		catalogue.Add(look.name, __FILE__,
		              [&look](Sink& sink) { sink.Add(look.name, DrawTrunk(look)); });
	for (const PineLook& look : s_pines)
		catalogue.Add(look.tiers, __FILE__, [&look](Sink& sink) {
			sink.Add(look.trunk, DrawPineTrunk(look));
			DrawTiers(sink, look, 0);
			DrawTiers(sink, look, 1);
		});
	AddLeaves(catalogue);
}
