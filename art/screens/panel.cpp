// The side panel: its plate, digit strips, bubbles of lives, fan gauge and glows.
#include "art/families.h"
#include "art/core/renderer.h"
#include "art/screens/kit.h"
#include "art/screens/panel_parts.h"

static const int WIDTH = 114, HEIGHT = 600; // the panel's picture stands at x 686
static const int LEFT        = 686;
static const int DIGIT_WIDTH = 13, DIGIT_HEIGHT = 20, STRIP_ROWS = 12;
static const float FAN_X = 745 - LEFT, FAN_Y = 264.2f, FAN_RADIUS = 24.5f; // of the glass
static const int COLOUR_X = 703, COLOUR_Y = 235, COLOUR_WIDTH = 85, COLOUR_HEIGHT = 83;
// Bubbles of life: five in a row, the tenth socket takes the small one that stands for ten.
static const int LIVES_X = 701, LIVES_Y = 187, LIFE_PITCH = 18, LIFE_ROW = 16, LIFE_SIZE = 17;
static const int SMALL_LIFE_SIZE = 13;
static const int GLOW_X = 691, GLOW_Y = 222;

static const Colour CREAM_LABEL = HexColour(0xfffbdb);

// --- the plate

static void DrawSteel(Canvas& canvas)
{
	PathFn edge = [](cairo_t* c) { cairo_rectangle(c, 6, -8, WIDTH + 8, HEIGHT + 16); };
	PathFn full = [](cairo_t* c) { cairo_rectangle(c, 7.4f, -8, WIDTH + 8, HEIGHT + 16); };
	canvas.DropShadow(edge, 2.5f, -2, 0, .6f);
	canvas.Fill(edge, InkOf(PAINT_STEEL));
	canvas.Relief(
	    full,
	    [](float x, float y) {
		    float brushed = LayeredNoise(x * .9f, y * .012f, 3, 3);
		    return PAINT_STEEL * ((.86f + .22f * brushed) * Mix(1.06f, .82f, y / HEIGHT));
	    },
	    3.2f, 2, .1f);
	canvas.Fill(RoundRect(8.6f, -4, 1.2f, HEIGHT + 8, .5f), {1, 1, 1}, .22f);
}

static void DrawLabel(Canvas& canvas, const std::string& text, float x, float y, float size = 12)
{
	canvas.Caption(text, size, x, y, CREAM_LABEL, PAINT_TEXT_BLUE, 1.5f);
}

// Plate with a fine light line inside and rivets in its corners, or in the upper two.
static void DrawSection(Canvas& canvas, float y, float h, int rivets = 4)
{
	DrawPlate(canvas, 11, y, 100, h, PAINT_STEEL_PLATE, 8);
	canvas.Stroke(RoundRect(13.6f, y + 2.6f, 94.8f, h - 5.2f, 6), HexColour(0xa8dcf4), .7f, .55f);
	for (int i = 0; i < rivets; i++)
		DrawRivet(canvas, i & 1 ? 105.f : 17.f, i & 2 ? y + h - 6 : y + 6, 1.9f);
}

// A trough with a socket for each bubble of life: two rows of five.
static void DrawLifeSockets(Canvas& canvas)
{
	PathFn trough = RoundRect(13, 186.4f, 93, 34.2f, 8);
	canvas.Fill(trough, HexColour(0xa8dcf4), .5f, .9f);
	canvas.Fill(trough, HexColour(0x173f60));
	canvas.InnerShadow(trough, 2, {.02f, .05f, .12f}, .7f);
	for (int i = 0; i < 10; i++) {
		float x = LIVES_X - LEFT + LIFE_PITCH * (i % 5) + LIFE_SIZE * .5f;
		float y = LIVES_Y + LIFE_ROW * (i / 5) + LIFE_SIZE * .5f;
		canvas.Fill(Disc(x, y, 6.2f), HexColour(0x0c2740), .8f);
	}
}

static void DrawCounters(Canvas& canvas)
{
	DrawSection(canvas, 4, 220, 2);
	static const struct {
		const char* label;
		float y;
	} s_rows[] = {{"SCORE", 40}, {"MONEY", 101}, {"RESCUED", 162}};
	for (const auto& row : s_rows) {
		DrawLabel(canvas, row.label, 60, row.y - 13);
		DrawWindow(canvas, 14, row.y, 7 * DIGIT_WIDTH, DIGIT_HEIGHT, PAINT_WINDOW, 2);
	}
	DrawLifeSockets(canvas);
	for (float y : {74.f, 135.f}) { // engraved rules between the rows
		canvas.Fill(RoundRect(22, y, 76, 1.2f, .6f), HexColour(0x1c4a6c), .7f);
		canvas.Fill(RoundRect(22, y + 1.2f, 76, 1, .5f), HexColour(0xbfe8fa), .5f);
	}
}

// The dark dial with resting blades; the coloured dial is laid over it as far as there is charge.
static void DrawDial(Canvas& canvas)
{
	DrawSection(canvas, 228, 68);
	for (int side = -1; side <= 1; side += 2) // cooling slots at both sides
		for (int i = 0; i < 4; i++) {
			float x = FAN_X + side * 41.f - 4, y = 249 + i * 9.f;
			canvas.Fill(RoundRect(x, y, 8, 4, 2), HexColour(0x16405e));
			canvas.Fill(RoundRect(x + .6f, y + 2.6f, 7, 1.4f, .7f), HexColour(0x9cd8f2), .6f);
		}
	canvas.Fill(Disc(FAN_X, FAN_Y, FAN_RADIUS + 1.5f), HexColour(0x0e2436));
	canvas.FillAt(Disc(FAN_X, FAN_Y, FAN_RADIUS),
	              Downward(HexColour(0x0c2032), HexColour(0x1e4866), FAN_Y - 26, FAN_Y + 26));
}

static void DrawDoorway(Canvas& canvas, float y, bool portrait)
{
	DrawSection(canvas, y - 7, 106);
	canvas.Body(RoundRect(8.6f, y - 3.4f, 100.8f, 98.8f, 4), Plain(PAINT_BRASS), PAINT_BRASS_INK, 1,
	            1.6f, 3, .6f);
	PathFn hole = RoundRect(12, y, 94, 92, 1.5f);
	if (portrait) {
		canvas.FillAt(hole, Downward(HexColour(0x14283a), HexColour(0x24506e), y, y + 92));
	} else {
		canvas.FillAt(hole, [=](float px, float py) {
			float u = px - 59, v = py - (y + 36);
			float wave = std::sin(3 * (std::atan2(v, u) + std::hypot(u, v) * .055f));
			Colour c   = Mix(HexColour(0x5a2aa8), HexColour(0x8c5ae0), Smoothstep(-.3f, .3f, wave));
			return Mix(HexColour(0xc8a0ff), c, Smoothstep(8, 46, std::hypot(u, v)));
		});
	}
	canvas.InnerShadow(hole, 2.4f, {.02f, .03f, .08f}, .7f);
}

static void DrawToRescue(Canvas& canvas)
{
	const float Y = 431;
	DrawSection(canvas, 399, 88);
	// A paw between two rules closes the gap under the doorway.
	Colour pale = HexColour(0xd8f0fc);
	canvas.Fill(Oval(59, 418.6f, 5.2f, 4.2f), pale, .85f);
	for (int i = 0; i < 4; i++) {
		float u = (i - 1.5f);
		canvas.Fill(Oval(59 + u * 4.4f, 411.6f + u * u * .9f, 1.9f, 2.5f, u * .2f), pale, .85f);
	}
	DrawWindow(canvas, 14, Y, 2 * DIGIT_WIDTH, DIGIT_HEIGHT, PAINT_WINDOW, 2);
	canvas.Caption("TO", 11, 75, Y + 3.6f, CREAM_LABEL, PAINT_TEXT_BLUE, 1.5f);
	canvas.Caption("RESCUE", 12, 75, Y + 15.6f, CREAM_LABEL, PAINT_TEXT_BLUE, 1.5f);
	for (int i = 0; i < 5; i++) { // grille below
		canvas.Fill(RoundRect(30 + i * 12.f, 464, 8, 10, 3), HexColour(0x16405e));
		canvas.Fill(RoundRect(30.8f + i * 12.f, 472, 6.4f, 1.6f, .8f), HexColour(0x9cd8f2), .6f);
	}
}

// Three blades of the fan at one angle, as solid as those of the machine.
static Image FanBlades(float angle, Colour blade, float width, float height)
{
	Model m;
	int blades = m.Plain(blade, .5f), hub = m.Plain(PAINT_BRASS, .8f);
	for (int i = 0; i < 3; i++) {
		float a   = angle + i * 2 * PI / 3;
		Mat3 axes = TurnZ(a) * TurnX(.5f);
		m.Ellipsoid({std::cos(a) * 12.4f, std::sin(a) * 12.4f, 0}, {12, 7.4f, 2.6f}, axes, blades,
		            1.6f);
	}
	m.Ball({0, 0, 3}, 5.4f, hub, .2f);
	return RenderModel(m, ViewFrom((int)width, (int)height, width * .5f, height * .5f, 0, 0, 4));
}

static void DrawMain(Sink& sink)
{
	Canvas canvas(WIDTH, HEIGHT, 3);
	DrawSteel(canvas);
	DrawCounters(canvas);
	DrawDial(canvas);
	DrawDoorway(canvas, 297, true);
	DrawToRescue(canvas);
	DrawDoorway(canvas, 494, false);
	Image panel = canvas.Finish();
	Image still = FanBlades(.5f, HexColour(0x4a6478), 56, 56);
	Tint(still, HexColour(0x16324a), .35f);
	ComposeCentred(panel, still, FAN_X, FAN_Y);
	sink.Add("sidebarmain.png", panel);
}

// --- digit strips

// Rows from the top: the pale zero that leads a number, 1 to 9, 0 and again 1, each a rounded face
// of a drum.
static Image DigitStrip(Colour paper, Colour figure)
{
	Canvas canvas(DIGIT_WIDTH, DIGIT_HEIGHT * STRIP_ROWS);
	canvas.FillAt([](cairo_t* c) { cairo_rectangle(c, 0, 0, DIGIT_WIDTH, 2000); },
	              [=](float x, float y) {
		              float row  = std::fmod(y, DIGIT_HEIGHT) / DIGIT_HEIGHT;
		              float tone = Mix(.56f, 1.f, std::sin(row * PI));
		              float side = Smoothstep(0, 1.6f, std::min(x, DIGIT_WIDTH - x));
		              return paper * (tone * Mix(.45f, 1.f, side));
	              });
	canvas.Fill(Lettering("0", 18, DIGIT_WIDTH * .5f, DIGIT_HEIGHT * .5f), figure, .26f, .1f);
	for (int row = 1; row < STRIP_ROWS; row++) {
		float y = row * DIGIT_HEIGHT + DIGIT_HEIGHT * .5f;
		canvas.Print(std::to_string(row % 10), 18, DIGIT_WIDTH * .5f, y + .7f, PAINT_WHITE,
		             Align::Centre);
		canvas.Fill(Lettering(std::to_string(row % 10), 18, DIGIT_WIDTH * .5f, y), figure, 1, .25f);
	}
	return canvas.Finish();
}

// --- lives

// Frames 0 to 2 burst: 0 nothing but drops, 2 a stretched film; 3 and 4 a whole bubble, breathing.
static Image LifeBubble(int frame, int size)
{
	Canvas canvas(size, size, 4);
	float c = size * .5f, r = c - 1.2f;
	if (frame >= 3) {
		float wide = r * (frame == 3 ? 1 : 1.04f), tall = r * (frame == 3 ? 1 : .94f);
		canvas.Fill(Oval(c, c, wide, tall), HexColour(0x0a2c54), .9f, .8f);
		canvas.FillAt(Oval(c, c, wide, tall), [=](float x, float y) {
			float out   = std::hypot(x - c, y - c) / r;
			Colour film = Mix(HexColour(0x6cc4f4), HexColour(0xe8fbff), Smoothstep(.3f, .95f, out));
			return Mix(film, HexColour(0xffc8f0),
			           .35f * Smoothstep(.4f, .9f, (x - y) / size + .4f));
		});
		canvas.Fill(Oval(c - r * .34f, c - r * .40f, r * .34f, r * .19f, -.8f), PAINT_WHITE);
		canvas.Stroke([=](cairo_t* k) { cairo_arc(k, c, c, r * .70f, .2f, 1.3f); }, PAINT_WHITE,
		              1.2f, .85f);
		return canvas.Finish();
	}
	float spread = frame == 2 ? .78f : frame == 1 ? .96f : 1.05f;
	for (int i = 0; i < 9; i++) {
		float a = i * 2 * PI / 9 + .3f, drop = (frame == 0 ? .07f : .12f) * size;
		float x = c + std::cos(a) * r * spread, y = c + std::sin(a) * r * spread;
		canvas.Fill(Disc(x, y, drop * .5f), HexColour(0xdff6ff), frame == 0 ? .55f : .95f);
	}
	if (frame == 2)
		canvas.Stroke(Disc(c, c, r * .86f), HexColour(0xbfeaff), 1.3f, .6f);
	return canvas.Finish();
}

// --- the fan

static Image FanFrame()
{
	const int W = COLOUR_WIDTH, H = 64;
	Canvas canvas(W, H);
	float cx = FAN_X - (COLOUR_X - LEFT), cy = FAN_Y - (COLOUR_Y - 1);
	PathFn ring = [=](cairo_t* c) {
		cairo_arc(c, cx, cy, FAN_RADIUS + 4.4f, 0, 2 * PI);
		cairo_new_sub_path(c);
		cairo_arc_negative(c, cx, cy, FAN_RADIUS, 2 * PI, 0);
	};
	canvas.Fill(ring, PAINT_BRASS_INK, 1, 1);
	canvas.Relief(ring, Downward(Lighter(PAINT_BRASS, .2f), Darker(PAINT_BRASS, .25f), 0, H), 1.9f,
	              3, .8f);
	for (int i = 0; i < 8; i++) {
		float a = (i + .5f) * PI / 4;
		canvas.Fill(Disc(cx + std::cos(a) * 26.8f, cy + std::sin(a) * 26.8f, 1.25f),
		            HexColour(0x7a4a14));
	}
	// The glass over the dial: a light lobe at the upper left.
	canvas.Fill(Oval(cx - 11, cy - 13, 11, 5.4f, -.7f), PAINT_WHITE, .26f);
	canvas.Stroke([=](cairo_t* c) { cairo_arc(c, cx, cy, FAN_RADIUS - 3.4f, .3f, 1.25f); },
	              PAINT_WHITE, 1.6f, .35f);
	return canvas.Finish();
}

// The charged dial. Rows below the dial stay empty, so that a full charge shows the whole of it.
static Image FanColour(int frame)
{
	Canvas canvas(COLOUR_WIDTH, COLOUR_HEIGHT);
	float cx = FAN_X - (COLOUR_X - LEFT), cy = FAN_Y - COLOUR_Y;
	canvas.FillAt(Disc(cx, cy, FAN_RADIUS), [=](float x, float y) {
		float u = x - cx, v = y - cy, r = std::hypot(u, v) / FAN_RADIUS;
		float swirl = std::sin(3 * (std::atan2(v, u) - frame * PI / 9) + r * 5);
		Colour c    = Mix(HexColour(0x9cf4ff), HexColour(0x1c9ce0), Smoothstep(0, 1, r));
		return Mix(c, HexColour(0xd8fcff), .28f * Smoothstep(.2f, 1, swirl));
	});
	canvas.InnerShadow(Disc(cx, cy, FAN_RADIUS), 2.4f, HexColour(0x06324e), .7f);
	Image dial = canvas.Finish();
	ComposeCentred(dial, FanBlades(.5f - frame * PI / 9, HexColour(0xfdf8ea), 56, 56), cx, cy);
	return dial;
}

// Light that swells round the dial while the fan runs; frame 0 faintest, 8 full.
static Image FanGlow(int frame)
{
	const int W = 109, H = 84;
	Image glow(W, H);
	float cx = FAN_X + LEFT - GLOW_X, cy = FAN_Y - GLOW_Y, power = .25f + .75f * frame / 8;
	for (int y = 0; y < H; y++)
		for (int x = 0; x < W; x++) {
			float q     = std::hypot(x + .5f - cx, y + .5f - cy) - (FAN_RADIUS + 4);
			float halo  = q > 0 ? std::exp(-q * .17f) : std::exp(q * .30f);
			float inner = Smoothstep(-FAN_RADIUS, -2, q);
			float edge = Smoothstep(0, 8, std::min(std::min(x + 1, W - x), std::min(y + 1, H - y)));
			Blend(glow, x, y, Mix(HexColour(0x6cf0ff), {1, 1, 1}, .5f * halo),
			      power * .85f * halo * inner * edge);
		}
	return glow;
}

// --- the score's glow

static Image ScoreGlow(int frame)
{
	// The window of the score lies at (700, 40), the glow at (684, 25).
	const int W = 123, H = 50;
	const float WX = 16 - 2, WY = 15 - 2, WW = 91 + 4, WH = 20 + 4;
	Image glow(W, H);
	float power = .2f + .8f * frame / 8;
	for (int y = 0; y < H; y++)
		for (int x = 0; x < W; x++) {
			float dx   = std::max(std::max(WX - x, x - (WX + WW)), 0.f);
			float dy   = std::max(std::max(WY - y, y - (WY + WH)), 0.f);
			float in   = std::min(std::min(x - WX, WX + WW - x), std::min(y - WY, WY + WH - y));
			float q    = std::hypot(dx, dy);
			float a    = q > 0 ? std::exp(-q * .26f) : Smoothstep(5, 0, in);
			float edge = Smoothstep(0, 5, std::min(std::min(x + 1, W - x), std::min(y + 1, H - y)));
			Blend(glow, x, y, Mix(HexColour(0xffd83a), {1, 1, .9f}, .45f * a),
			      power * .9f * a * edge);
		}
	return glow;
}

static void DrawGauges(Sink& sink)
{
	sink.Add("sidebarnumbersA.png", DigitStrip(HexColour(0xf6f0de), HexColour(0x2a2018)));
	sink.Add("sidebarnumbersB.png", DigitStrip(HexColour(0xcfeaa8), HexColour(0x1c4a1c)));
	for (int i = 0; i < 5; i++) {
		sink.Add("sidebarbubble" + std::to_string(i) + ".png", LifeBubble(i, LIFE_SIZE));
		sink.Add("sidebarbubblesmall" + std::to_string(i) + ".png", LifeBubble(i, SMALL_LIFE_SIZE));
	}
	sink.Add("sidebarfanframe.png", FanFrame());
	for (int i = 0; i < 6; i++)
		sink.Add("sidebarfancolour" + std::to_string(i) + ".png", FanColour(i));
	for (int i = 0; i < 9; i++) {
		sink.Add("sidebarfanglow" + std::to_string(i) + ".png", FanGlow(i));
		sink.Add("sidebarscoreglow" + std::to_string(i) + ".png", ScoreGlow(i));
	}
}

void AddPanel(Catalogue& catalogue)
{
	catalogue.Add("panel/main", __FILE__, DrawMain);
	catalogue.Add("panel/gauges", __FILE__, DrawGauges);
	AddPanelDoors(catalogue);
	AddPanelWords(catalogue);
	AddPanelPrizes(catalogue);
}
