// The land of the main menu's picture and all that stands still on it.
#include "art/screens/menu_land.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/stamps.h"
#include "art/objects/points.h"
#include "art/scenery/foliage.h"
#include "art/screens/island.h"
#include "art/screens/menu_animals.h"
#include "art/screens/menu_board.h"
#include "art/screens/menu_driver.h"

static const int WIDTH = 800, HEIGHT = 600;
static const int MEADOW_TOP = 320, SHORE = 467;

static const float PALM_TOP_X = 545, PALM_TOP_Y = 334; // where its fronds grow
static const int PALM_TRUNK = 5;

// Clear water over sand, deeper toward the viewer.
static void PaintShallows(Image& scene)
{
	for (int y = SHORE - 10; y < HEIGHT; y++)
		for (int x = 0; x < WIDTH; x++) {
			float swell = LayeredNoise(x * .03f, y * .16f, 3, 11);
			Colour c =
			    Mix(HexColour(0xa8ecec), HexColour(0x62bcec), Clamp01((y - SHORE - 8) / 22.f));
			Blend(scene, x, y, Mix(c, PAINT_WHITE, .5f * Smoothstep(.56f, .64f, swell)));
		}
}

static void PaintBeach(Image& scene)
{
	const int SAND = 25; // pixels down to the water
	for (int x = 0; x < WIDTH; x++) {
		float low = ShoreLine(SHORE, (float)x);
		for (int y = (int)low - 1; y < low + SAND + 4; y++) {
			float t = y + .5f - low, grain = Hash01(x, y, 3) - .5f;
			Colour c = Mix(HexColour(0xf8e8b4), HexColour(0xe6cc92), Smoothstep(0, SAND, t));
			c        = c * (1 + .05f * grain);
			c        = Mix(c, HexColour(0xc4a468), .75f * Smoothstep(SAND - 8, SAND - 4, t)); // wet
			float foam = t - SAND - 1.5f * std::sin(x * .11f);
			c          = Mix(c, PAINT_WHITE, .9f * Smoothstep(-1.2f, .2f, foam));
			Blend(scene, x, y, c, Smoothstep(2.4f, .6f, foam));
		}
	}
	Random random(17);
	CairoLayer layer(scene);
	for (int i = 0; i < 2400; i++) { // the meadow hangs over the sand
		float x = random.Range(0, WIDTH), y = ShoreLine(SHORE, x) + random.Range(-1.5f, 3.5f);
		Colour tone = Mix(PAINT_GRASS_DARK, PAINT_GRASS_LIGHT, random.Next01());
		BladeStroke(layer.cairo, x, y, random.Range(4, 7.5f), random.Range(-2, 2), 1.2f, tone,
		            .95f);
	}
	layer.End();
}

// Pebbles, shells and a few starfish along the beach.
static void StrewBeach(Image& scene)
{
	Random random(31);
	Canvas canvas(WIDTH, 30, 3);
	for (int i = 0; i < 46; i++) {
		float x = random.Range(0, WIDTH), y = ShoreLine(0, x) + random.Range(6, 16);
		float r      = random.Range(1, 2.2f);
		Colour stone = Mix(HexColour(0xb09a78), HexColour(0xfff2e0), random.Next01());
		canvas.Body(Oval(x, y, r * 1.3f, r), Plain(stone), Darker(stone, .8f), .5f, .8f);
	}
	canvas.Body(Star(612, 11, 5.4f, 2.6f), Plain(HexColour(0xf0784a)), HexColour(0x7a2c14), .8f,
	            1.4f);
	canvas.Body(Star(28, 14, 4.6f, 2.2f), Plain(HexColour(0xf09a5a)), HexColour(0x7a2c14), .8f,
	            1.4f);
	Compose(scene, canvas.Finish(), 0, SHORE);
}

static void DrawPost(Image& scene, int x, int foot)
{
	const int TOP = 170, W = 22;
	int h = foot - TOP;
	DrawContactShadow(scene, x + 2, foot - 2, 15, 4, .45f);
	Canvas post(W, h + 4, 3);
	post.Body(RoundRect(3, -10, W - 6, h + 10, 3), WoodGrain(HexColour(0xa06a38), .35f, .02f),
	          InkOf(PAINT_WOOD), 1.2f, 3.4f, 3, .2f);
	Compose(scene, post.Finish(), x - W / 2, TOP);
}

static void DrawPalm(Image& scene)
{
	Frond trunk = NamedPalmTrunk(PALM_TRUNK);
	int x = (int)PALM_TOP_X, y = (int)PALM_TOP_Y;
	Compose(scene, trunk.image, x - trunk.rootX, y - trunk.rootY);
	for (int letter : {6, 7, 8, 9, 10, 11, 0, 1, 4, 5}) { // the fronds that sway are missing
		Frond frond = NamedFrond(false, letter);
		Compose(scene, frond.image, x - frond.rootX, y - frond.rootY);
	}
	for (int i = 0; i < 3; i++)
		ComposeCentred(scene, FruitImage(Fruit::Coconut, i, .9f), x - 9.f + i * 9,
		               y + 7.f + (i == 1 ? 4 : 0));
}

Image MenuPalmLeaves(int left, int top, int width, int height)
{
	Image out(width, height);
	for (int letter : {2, 3}) {
		Frond frond = NamedFrond(false, letter);
		Compose(out, frond.image, (int)PALM_TOP_X - left - frond.rootX,
		        (int)PALM_TOP_Y - top - frond.rootY);
	}
	return out;
}

// Far out, where the sea is pale.
static void DrawSailBoat(Image& scene, int x, int y)
{
	const int W = 30, H = 34;
	Canvas canvas(W, H);
	PathFn hull = Polygon({{4, 26}, {26, 26}, {22, 31}, {8, 31}});
	canvas.Fill(RoundRect(14.4f, 3, 1.4f, 23, .5f), HexColour(0x6a4a30));
	canvas.Body(Polygon({{16.6f, 4}, {25, 23.5f}, {16.6f, 23.5f}}), Plain(HexColour(0xfffaf0)),
	            HexColour(0x6a86a8), .7f, 1.2f);
	canvas.Body(Polygon({{13.6f, 7}, {13.6f, 23.5f}, {6.5f, 23.5f}}), Plain(HexColour(0xf2695a)),
	            HexColour(0x8a3a3a), .7f, 1.2f);
	canvas.Body(hull, Plain(HexColour(0x9a5a34)), HexColour(0x4a2c1c), .8f, 1.2f);
	canvas.Stroke(Line({{2, 31.6f}, {28, 31.6f}}), PAINT_WHITE, 1.2f, .8f);
	Compose(scene, canvas.Finish(), x - W / 2, y - H);
}

static void DrawTrees(Image& scene)
{
	static const struct {
		float x, y, size;
		int paint;
	} s_pines[] = {{226, 328, .38f, 1}, {212, 333, .48f, 0}, {452, 338, .50f, 1},
	               {588, 352, .62f, 0}, {606, 360, .72f, 1}, {776, 384, .9f, 0}};
	int seed    = 5;
	for (const auto& pine : s_pines)
		DrawShoreTree(scene, 1, pine.x, pine.y, pine.size, PAINT_PINE[pine.paint], seed++);
	DrawSailBoat(scene, 404, 308);
	DrawPost(scene, 128, 352);
	DrawPost(scene, 500, 368);
	DrawMenuIvy(scene, 0, 0);
	DrawShoreTree(scene, 0, 152, 372, .82f, PAINT_LEAF_ORANGE, 9);
	DrawShoreTree(scene, 0, 60, 396, 1, PAINT_LEAF_GREEN, 4);
}

// Where animals and the machine stand.
static bool IsTaken(int x, int y)
{
	static const struct {
		int left, top, right;
	} s_places[] = {
	    {285, 390, 500}, {105, 392, 235}, {226, 384, 300}, {36, 420, 112}, {490, 420, 570}};
	for (const auto& place : s_places)
		if (x > place.left - 16 && x < place.right && y > place.top - 18)
			return true;
	return false;
}

static void DrawMeadowFlowers(Image& scene)
{
	Random random(12);
	for (int i = 0; i < 60; i++) {
		int x = random.Below(WIDTH - 20), y = 384 + random.Below(62);
		if (!IsTaken(x, y))
			Compose(scene, i % 3 ? Flower(random.Below(8)) : GrassTuft(i), x, y);
	}
}

Image MenuLand()
{
	Image scene(WIDTH, HEIGHT);
	PaintShallows(scene);
	DrawShoreLand(scene, MEADOW_TOP, SHORE);
	PaintBeach(scene);
	StrewBeach(scene);
	DrawTrees(scene);
	DrawMeadowFlowers(scene);
	DrawMenuBodies(scene);
	DrawMenuMachine(scene);
	DrawPalm(scene);
	return scene;
}
