// The planes of the main menu's picture: sky, sun, clouds, land, leaves and rows of water.
#include "art/core/palette.h"
#include "art/core/stamps.h"
#include "art/families.h"
#include "art/scenery/foliage.h"
#include "art/scenery/sea.h"
#include "art/scenery/skies.h"
#include "art/screens/menu_land.h"

static const int WIDTH = 800, SKY_HEIGHT = 340;
static const int LAND_TOP = 170, SEAM = 330, LAND_BOTTOM = 500;
static const int HORIZON = 316;

// --- sky

static Image Sky()
{
	Image sky(WIDTH, SKY_HEIGHT);
	for (int y = 0; y < SKY_HEIGHT; y++) {
		float t  = Clamp01(y / (float)HORIZON);
		Colour c = t < .6f ? Mix(HexColour(0x2f80e0), PAINT_SKY_MID, t / .6f)
		                   : Mix(PAINT_SKY_MID, HexColour(0xeefaff), (t - .6f) / .4f);
		for (int x = 0; x < WIDTH; x++)
			Blend(sky, x, y, c);
	}
	return sky;
}

// Its upper rays are cut by the upper edge of the screen.
static Image Sun()
{
	const int W = 160, H = 150;
	const float CX = 80, CY = 70, R = 25, GLOW = 79;
	Image sun(W, H);
	for (int y = 0; y < H; y++)
		for (int x = 0; x < W; x++) {
			float dx = x + .5f - CX, dy = y + .5f - CY, q = std::hypot(dx, dy);
			float ray  = .80f + .20f * std::sin(std::atan2(dy, dx) * 12);
			float halo = Clamp01(1 - (q - R * .5f) / (GLOW - R * .5f));
			Blend(sun, x, y, HexColour(0xfff6c8), .80f * halo * halo * ray);
			float heart = Smoothstep(R, R * .3f, std::hypot(dx + 4, dy + 5));
			Blend(sun, x, y, Mix(HexColour(0xffe87c), HexColour(0xfffff0), heart),
			      Smoothstep(R + 1, R - 1, q));
		}
	return sun;
}

static void DrawSky(Sink& sink)
{
	static const struct {
		const char* name;
		int w, h, seed;
	} s_clouds[] = {{"mainmenucloudA.png", 190, 76, 3},
	                {"mainmenucloudB.png", 130, 52, 4},
	                {"mainmenucloudC.png", 160, 60, 5},
	                {"mainmenucloudD.png", 100, 40, 6}};
	sink.Add("mainmenusky.png", Sky());
	sink.Add("mainmenusun.png", Sun());
	for (const auto& cloud : s_clouds)
		sink.Add(cloud.name, LitCloud(cloud.w, cloud.h, cloud.seed));
}

// --- land

static void DrawLand(Sink& sink)
{
	Image land = MenuLand();
	sink.Add("mainmenubackgroundtop.png", Cropped(land, 0, LAND_TOP, WIDTH, SEAM - LAND_TOP));
	sink.Add("mainmenubackgroundbottom.jpg", Cropped(land, 0, SEAM, WIDTH, LAND_BOTTOM - SEAM));
}

namespace
{
struct Clump {
	float x, y, size; // centre in pixels of the picture, magnification
};
} // namespace

static Image Foliage(int w, int h, Colour leaves, int seed, const std::vector<Clump>& clumps)
{
	Image out(w, h);
	for (const Clump& c : clumps)
		ComposeCentred(
		    out, LeafCluster((int)(58 * c.size), (int)(46 * c.size), seed++, leaves, 7 * c.size),
		    c.x, c.y);
	return out;
}

static void DrawLeaves(Sink& sink)
{
	sink.Add("mainmenuleavesA.png",
	         Foliage(120, 80, PAINT_LEAF_GREEN, 40,
	                 {{32, 52, .9f}, {86, 54, .9f}, {58, 56, .9f}, {62, 26, .8f}}));
	sink.Add("mainmenuleavesB.png", Foliage(100, 70, PAINT_LEAF_ORANGE, 60,
	                                        {{26, 48, .78f}, {74, 46, .82f}, {50, 50, .8f}}));
	sink.Add("mainmenuleavesC.png", MenuPalmLeaves(486, 318, 110, 60));
}

// --- water

namespace
{
struct WaterRow {
	const char* word;
	int crestWidth, baseHeight; // pixels
	WaterLook look;
};
} // namespace

// clang-format off
static const WaterRow s_rows[] = {
	// word       crest base    light                deep                 amplitude period phase
	{ "back",      816, 34, { HexColour(0x62bcec), HexColour(0x3f92d8), 1.5f,     97,   0.0f } },
	{ "middle",    820, 34, { HexColour(0x469cde), HexColour(0x2c78c2), 1.9f,    131,   2.0f } },
	{ "front",     824, 36, { HexColour(0x3484ce), HexColour(0x1b58a0), 2.3f,    173,   4.0f } },
};
// clang-format on

// Low swell that stands on the strips between two crests.
static void StrokeSwell(Image& strip, int seed)
{
	Random random(seed);
	CairoLayer layer(strip);
	for (int i = 0; i < 9; i++) {
		float x = (i + random.Next01() * .8f) * WIDTH / 9.f, half = random.Range(22, 58);
		float y = random.Range(7, strip.height - 10.f), high = random.Range(2, 3.4f);
		for (float way : {-1.f, 1.f}) {
			cairo_move_to(layer.cairo, x, y - high);
			cairo_curve_to(layer.cairo, x + way * half * .3f, y - high, x + way * half * .5f, y,
			               x + way * half, y + .6f);
			cairo_set_source_rgba(layer.cairo, .86, .95, 1, .42);
			cairo_set_line_width(layer.cairo, 1.4);
			cairo_stroke(layer.cairo);
		}
	}
	layer.End();
}

static void DrawWater(Sink& sink)
{
	for (const WaterRow& row : s_rows) {
		std::string stem = std::string("mainmenuwaves") + row.word;
		Image strip      = WaterBase(row.look, WIDTH, row.baseHeight);
		StrokeSwell(strip, row.baseHeight + (int)row.look.period);
		sink.Add(stem + "base.png", strip);
		sink.Add(stem + "top.png", WaterCrest(row.look, row.crestWidth));
	}
}

void AddMenuPicture(Catalogue& catalogue)
{
	catalogue.Add("menu/sky", __FILE__, DrawSky);
	catalogue.Add("menu/land", __FILE__, DrawLand);
	catalogue.Add("menu/leaves", __FILE__, DrawLeaves);
	catalogue.Add("menu/water", __FILE__, DrawWater);
}
