// The sign board with the title, and the player's panel of the main menu.
#include "art/screens/menu_board.h"

#include "art/core/stamps.h"
#include "art/families.h"
#include "art/objects/ball.h"
#include "art/screens/kit.h"

static const int BOARD_X = 84, BOARD_Y = 96; // on the screen
static const int BOARD_WIDTH = 464, BOARD_HEIGHT = 150;
static const int PLANKS  = 3;
static const float FRAME = 9; // pixels

// Three weathered planks that fill the rectangle.
static void DrawPlanks(Canvas& canvas)
{
	static const uint32_t s_tones[PLANKS] = {0x9c6634, 0x8c5a2e, 0x96602f};
	float high                            = BOARD_HEIGHT / (float)PLANKS;
	canvas.Fill(RoundRect(-4, -4, BOARD_WIDTH + 8, BOARD_HEIGHT + 8, 0), HexColour(0x2c180c));
	for (int i = 0; i < PLANKS; i++) {
		Colour tone = HexColour(s_tones[i]);
		auto grain  = WoodGrain(tone);
		canvas.Relief(
		    RoundRect(-6, i * high + .8f, BOARD_WIDTH + 12, high - 1.6f, 2),
		    [=](float x, float y) { return grain(x + i * 133, y); }, 2.2f, 2.6f, .15f);
	}
	// A pool of light behind the word.
	PathFn all = RoundRect(-4, -4, BOARD_WIDTH + 8, BOARD_HEIGHT + 8, 0);
	Field glow = canvas.Mask(Oval(BOARD_WIDTH * .5f, BOARD_HEIGHT * .48f, 190, 46));
	canvas.FillMask(Product(Blur(glow, 26.f * canvas.supersample), canvas.Mask(all)),
	                HexColour(0xffd890), .34f);
}

static void DrawBoardFrame(Canvas& canvas)
{
	const float W = BOARD_WIDTH, H = BOARD_HEIGHT;
	PathFn sides[] = {RoundRect(0, H - FRAME, W, FRAME, 1), RoundRect(0, 0, FRAME, H, 1),
	                  RoundRect(W - FRAME, 0, FRAME, H, 1), RoundRect(0, 0, W, FRAME, 1)};
	canvas.InnerShadow(RoundRect(FRAME - 2, FRAME - 2, W - 2 * FRAME + 4, H - 2 * FRAME + 4, 3), 4,
	                   {.08f, .03f, .01f}, .75f);
	for (int i = 0; i < 4; i++)
		canvas.Body(sides[i],
		            i == 0 || i == 3 ? WoodGrain(PAINT_WOOD) : WoodGrain(PAINT_WOOD, .35f, .02f),
		            InkOf(PAINT_WOOD), .9f, 2.6f, 3, .25f);
	for (int i = 0; i < 4; i++) { // brass on the corners
		float cx = i & 1 ? W : 0, cy = i & 2 ? H : 0, dx = i & 1 ? -1 : 1, dy = i & 2 ? -1 : 1;
		PathFn plate = Polygon({{cx, cy},
		                        {cx + dx * 34, cy},
		                        {cx + dx * 26, cy + dy * (FRAME + 2)},
		                        {cx + dx * (FRAME + 2), cy + dy * 26},
		                        {cx, cy + dy * 34}});
		canvas.Body(plate, Plain(PAINT_BRASS), PAINT_BRASS_INK, 1.1f, 2, 3, .7f);
		DrawRivet(canvas, cx + dx * 8, cy + dy * 8, 2.6f);
	}
}

// From the foot of the right post up to the board and along its edges.
void DrawMenuIvy(Image& target, int left, int top)
{
	static const struct {
		float x, y;
		int width;
	} s_sprigs[] = {{494, 318, 22}, {505, 304, 24}, {495, 290, 24}, {506, 276, 26}, {496, 262, 28},
	                {488, 244, 30}, {474, 246, 22}, {506, 250, 34}, {526, 244, 32}, {542, 240, 34},
	                {549, 222, 30}, {545, 206, 26}, {550, 193, 20}};
	static const At s_blossoms[] = {{498, 294}, {503, 262}, {484, 246}, {520, 240},
	                                {549, 230}, {546, 205}, {536, 250}};
	CairoLayer stem(target);
	for (const auto& sprig : s_sprigs)
		cairo_line_to(stem.cairo, sprig.x - left, sprig.y - top);
	cairo_set_source_rgb(stem.cairo, .22, .30, .10);
	cairo_set_line_width(stem.cairo, 3);
	cairo_stroke(stem.cairo);
	stem.End();
	int seed = 70;
	for (const auto& sprig : s_sprigs)
		ComposeCentred(
		    target,
		    LeafCluster(sprig.width, sprig.width * 4 / 5, seed++, HexColour(0x4f9e36), 5.5f),
		    sprig.x - left, sprig.y - top);
	const int SIZE = 12;
	for (const At& place : s_blossoms) {
		Canvas blossom(SIZE, SIZE);
		for (int i = 0; i < 5; i++) {
			float a = i * 2 * PI / 5 - PI / 2;
			DrawMarked(blossom, Disc(6 + std::cos(a) * 2.6f, 6 + std::sin(a) * 2.6f, 1.9f),
			           HexColour(0xff9ac4), HexColour(0x8a2c5c), .7f);
		}
		blossom.Fill(Disc(6, 6, 1.7f), HexColour(0xfff08a));
		ComposeCentred(target, blossom.Finish(), place.x - left, place.y - top);
	}
}

static void DrawLogo(Sink& sink)
{
	Canvas canvas(BOARD_WIDTH, BOARD_HEIGHT, 3);
	DrawPlanks(canvas);
	DrawBoardFrame(canvas);
	Image board = canvas.Finish();
	Compose(board,
	        TitleOn(BOARD_WIDTH, BOARD_HEIGHT, BOARD_WIDTH * .5f, BOARD_HEIGHT * .48f, "Quorblet",
	                108, TITLE_YELLOW, 8),
	        0, 0);
	static const struct {
		float x, y;
		int size;
	} s_bubbles[] = {{436, 36, 44}, {408, 22, 18}, {30, 106, 36}, {50, 130, 16}, {196, 30, 26}};
	for (const auto& b : s_bubbles)
		ComposeCentred(board, Bubble(b.size, BubbleSkin::Normal, b.x * .01f), b.x, b.y);
	DrawMenuIvy(board, BOARD_X, BOARD_Y);
	sink.Add("mainmenulogo.jpg", board);
}

static void DrawPlayer(Sink& sink)
{
	sink.Add("profilemainpanel.png", SteelPanel(214, 76));
	AddCapsule(sink, "profilemainbutton", 132, 30, "Change player", PAINT_NEUTRAL, 16);
}

void AddMenuBoard(Catalogue& catalogue)
{
	catalogue.Add("menu/logo", __FILE__, DrawLogo);
	catalogue.Add("menu/player", __FILE__, DrawPlayer);
}
