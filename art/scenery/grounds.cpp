// The four grounds, each as a lower picture and the ragged far edge on top of it, and the hills.
#include "art/families.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/stamps.h"
#include "art/scenery/boundary.h"
#include "art/scenery/ground_paint.h"

// The lower picture stands 20 rows below the screen's lower edge, so it begins at row 180.
static const int GROUND_WIDTH = 3300, BOTTOM_HEIGHT = 440, TOP_HEIGHT = 56, FIELD_TOP = 124;
static const int EDGE_ROW = 7; // of the top picture: where the ground begins behind the wall

static float EdgeLine(float x, int)
{
	return EDGE_ROW + 2.2f * LayeredNoise(x * .035f, 0, 2, 3);
}

static Image DrawGround(Turf turf)
{
	Image ground(GROUND_WIDTH, TOP_HEIGHT + BOTTOM_HEIGHT);
	for (int y = 0; y < ground.height; y++)
		for (int x = 0; x < ground.width; x++) {
			float inside = y < EDGE_ROW + 4 ? Clamp01(y + .5f - EdgeLine(x, 0) + .5f) : 1;
			if (inside > 0)
				Blend(ground, x, y, GroundColour(turf, x, y + FIELD_TOP), inside);
		}
	StrokeGround(ground, turf, FIELD_TOP, EDGE_ROW + 3);
	return ground;
}

static void AddGround(Catalogue& catalogue, const char* word, Turf turf)
{
	std::string stem = std::string("background_") + word;
	catalogue.Add(stem, __FILE__, [stem, turf](Sink& sink) {
		Image ground = DrawGround(turf);
		Image top    = Cropped(ground, 0, 0, GROUND_WIDTH, TOP_HEIGHT);
		StrokeSeam(top, {turf, FIELD_TOP, 1.2f, 1, 3, 4}, EdgeLine, 0);
		sink.Add(stem + "_top.png", top);
		sink.Add(stem + "_bottom.jpg", Cropped(ground, 0, TOP_HEIGHT, GROUND_WIDTH, BOTTOM_HEIGHT));
	});
}

// --- hills: a hazy far ridge and a near one that goes on down behind the wall
static const int HILLS_WIDTH = 1900, HILLS_TOP = 62, HILLS_BOTTOM = 64;

static float RidgeLine(Turf turf, int ridge, float x)
{
	float phase = ridge * 2.1f, steep = turf == Turf::Snow ? 1.25f : 1;
	float line = 16.f + ridge * 15 -
	             steep * (7.5f * std::sin(x * .0085f + phase) + 3.6f * std::sin(x * .021f + ridge));
	float rough = LayeredNoise(x * .030f, ridge, 3, 8) - .5f;
	if (turf == Turf::Snow) // peaks
		line -= 34 * std::fabs(LayeredNoise(x * .013f, ridge * 3.f, 3, 2) - .5f) - 5 + 5 * rough;
	return std::max(1.5f, line - 4 * rough);
}

static Colour HillColour(Turf turf, int ridge, float x, float y, float depth)
{
	float slope = (RidgeLine(turf, ridge, x + 12) - RidgeLine(turf, ridge, x - 12)) *
	              .25f; // positive: falls to the right
	Colour c = GroundColour(turf, x * 1.6f + ridge * 300, 152 + depth * 2.2f);
	float fold =
	    14 * (LayeredNoise(x * .02f, y * .05f, 2, 5) - .5f); // the light's edge isn't straight
	float reach = Smoothstep(44 + fold, 2 + fold, depth);
	float shade = Clamp01(slope * .085f) * reach, sun = Clamp01(-slope * .06f) * reach;
	c = Mix(c, ShadowOf(c), shade * (turf == Turf::Snow ? .62f : .5f));
	c = Mix(c, HighlightOf(c), sun);
	if (turf == Turf::Snow) { // bare rock on the steep sides
		float rock = LayeredNoise(x * .06f + y * .05f, y * .11f, 3, 12 + ridge);
		c          = Mix(c, HexColour(0x8c9cbc),
		                 .55f * Smoothstep(.60f, .68f, rock) * Smoothstep(.2f, 2.5f, std::fabs(slope)));
	}
	Colour haze = HexColour(turf == Turf::Snow   ? 0xc8dcf0
	                        : turf == Turf::Sand ? 0xf0e2c0
	                                             : 0xcfe6d0);
	c           = Mix(c, haze, (ridge ? .15f : .42f) * (.35f + .65f * Smoothstep(40, 0, depth)));
	return depth < 1.5f ? Lighter(c, .30f) : c;
}

static Image DrawHills(Turf turf)
{
	Image hills(HILLS_WIDTH, HILLS_TOP + HILLS_BOTTOM);
	for (int ridge = 0; ridge < 2; ridge++)
		for (int x = 0; x < HILLS_WIDTH; x++) {
			float line = RidgeLine(turf, ridge, x);
			for (int y = (int)line - 1; y < hills.height; y++) {
				float depth = y + .5f - line;
				if (depth > -.5f)
					Blend(hills, x, y, HillColour(turf, ridge, x, y, depth), Clamp01(depth + .5f));
			}
		}
	return hills;
}

// Three plain skirts, lit at the left: needles would run together at this size.
static Image DrawFarPine(float tall, Colour green, bool snowy)
{
	int w = (int)(tall * .56f) + 4, h = (int)tall + 4;
	float middle = w * .5f, foot = h - 2.f;
	Canvas canvas(w, h);
	for (int pass = 0; pass < 2; pass++)
		for (int i = 0; i < 3; i++) {
			float low = foot - 1.5f - i * tall * .27f, half = tall * (.27f - .065f * i),
			      peak   = low - tall * .44f;
			PathFn skirt = Polygon(
			    {{middle - half, low}, {middle, peak}, {middle + half, low}, {middle, low + 1.2f}});
			PathFn shade =
			    Polygon({{middle + half * .1f, low + 1}, {middle, peak}, {middle + half, low}});
			if (pass == 0) {
				canvas.Fill(skirt, InkOf(green), .9f, .8f);
				continue;
			}
			canvas.Fill(skirt, Lighter(green, .18f));
			canvas.Fill(shade, Darker(green, .5f));
			if (snowy)
				canvas.Fill(Polygon({{middle - half * .55f, low - tall * .16f},
				                     {middle, peak},
				                     {middle + half * .3f, low - tall * .2f}}),
				            PAINT_WHITE, .85f);
		}
	return canvas.Finish();
}

// A tree far away: a clump or a spire of a few pixels, with its shadow to the right.
static void StampFarTree(Image& hills, Turf turf, float x, float y, float size, int kind)
{
	Colour haze = HexColour(turf == Turf::Snow ? 0xc8dcf0 : 0xb4d4b8);
	Image tree;
	if (turf == Turf::Snow || kind % 4 == 0)
		tree = DrawFarPine(size * 1.9f, Mix(PAINT_PINE[kind % 2], haze, .22f), turf == Turf::Snow);
	else
		tree = LeafCluster((int)(size * 1.5f) + 4, (int)(size * 1.15f) + 4, kind,
		                   Mix(kind % 7 == 0 ? PAINT_LEAF_ORANGE : HexColour(0x5c9c40), haze, .24f),
		                   4);
	DrawContactShadow(hills, x + size * .4f, y, size * .7f, size * .20f,
	                  turf == Turf::Snow ? .12f : .22f);
	Compose(hills, Faded(tree, .92f), (int)(x - tree.width * .5f), (int)(y - tree.height + 2));
}

static void PlantHills(Image& hills, Turf turf)
{
	Random random(31);
	const int GROVES = turf == Turf::Sand ? 26 : 46;
	for (int i = 0; i < GROVES; i++) {
		float x = random.Range(10, HILLS_WIDTH - 10), deep = random.Range(3, 26);
		int count = turf == Turf::Sand ? 1 : 1 + random.Below(5);
		for (int k = 0; k < count; k++) {
			float px = x + random.Range(-17, 17), size = random.Range(4.5f, 7) + deep * .12f;
			float y  = RidgeLine(turf, 1, px) + deep + random.Range(-2, 3);
			int kind = random.Below(40);
			if (turf == Turf::Sand) { // tufts of dry grass
				Image tuft = GrassTuft(kind, 12, 8);
				Tint(tuft, HexColour(0xb8a45c), .6f);
				Compose(hills, tuft, (int)px, (int)y - 6);
			} else {
				StampFarTree(hills, turf, px, y, size, kind);
			}
		}
	}
}

static void AddHills(Catalogue& catalogue, const char* word, Turf turf)
{
	std::string stem = std::string("background_") + word + "_hill";
	catalogue.Add(stem, __FILE__, [stem, turf](Sink& sink) {
		Image hills = DrawHills(turf);
		PlantHills(hills, turf);
		sink.Add(stem + "_top.png", Cropped(hills, 0, 0, HILLS_WIDTH, HILLS_TOP));
		sink.Add(stem + "_bottom.jpg", Cropped(hills, 0, HILLS_TOP, HILLS_WIDTH, HILLS_BOTTOM));
	});
}

void AddGrounds(Catalogue& catalogue)
{
	AddGround(catalogue, "grass", Turf::Grass);
	AddGround(catalogue, "sand", Turf::Sand);
	AddGround(catalogue, "snow", Turf::Snow);
	AddGround(catalogue, "snowygrass", Turf::SnowyGrass);
	AddHills(catalogue, "grass", Turf::Grass);
	AddHills(catalogue, "sand", Turf::Sand);
	AddHills(catalogue, "snow", Turf::Snow);
	AddBoundary(catalogue);
	AddRailroad(catalogue);
}
