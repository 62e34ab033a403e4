// Draws the signs on the main menu's buttons.
#include "art/screens/menu_emblems.h"

#include "art/screens/kit.h"

static const float X = MENU_EMBLEM_X, Y = MENU_EMBLEM_Y;
static const Colour GOLD = HexColour(0xffd84a), GOLD_INK = HexColour(0x4a2c08);
static const Colour CREAM = HexColour(0xfff2d0), RED = HexColour(0xe03a30);

void DrawCupEmblem(Canvas& canvas)
{
	PathFn bowl = [](cairo_t* c) {
		cairo_move_to(c, X - 12, Y - 14);
		cairo_line_to(c, X + 12, Y - 14);
		cairo_curve_to(c, X + 12, Y, X + 7, Y + 5, X + 2, Y + 6);
		cairo_line_to(c, X + 2, Y + 10);
		cairo_line_to(c, X + 8, Y + 14);
		cairo_line_to(c, X - 8, Y + 14);
		cairo_line_to(c, X - 2, Y + 10);
		cairo_line_to(c, X - 2, Y + 6);
		cairo_curve_to(c, X - 7, Y + 5, X - 12, Y, X - 12, Y - 14);
	};
	for (int s = -1; s <= 1; s += 2) {
		canvas.Stroke(Oval(X + s * 13, Y - 7, 5, 5.6f), GOLD_INK, 4.4f);
		canvas.Stroke(Oval(X + s * 13, Y - 7, 5, 5.6f), GOLD, 2.2f);
	}
	DrawMarked(canvas, bowl, GOLD, GOLD_INK, 1.4f);
	DrawMarked(canvas, Star(X, Y - 6, 5, 2.2f), CREAM, HexColour(0xb87a18), .6f);
}

void DrawGearEmblem(Canvas& canvas)
{
	const int TEETH           = 8;
	std::vector<PathFn> parts = {Disc(X, Y, 10)};
	for (int i = 0; i < TEETH; i++) {
		float a = i * 2 * PI / TEETH;
		parts.push_back(Turned(RoundRect(X - 3, Y - 14, 6, 8, 1.4f), X, Y, a));
	}
	Field shape = canvas.Mask(Joined(parts));
	canvas.FillMask(canvas.Mask(Joined(parts), 1.5f), PAINT_TEXT_BLUE);
	canvas.ReliefMask(shape, Downward(HexColour(0xf4faff), HexColour(0xa8c0d8), Y - 14, Y + 14),
	                  1.6f, 2.6f, .4f);
	canvas.Fill(Disc(X, Y, 4.6f), PAINT_TEXT_BLUE);
}

void DrawGiftEmblem(Canvas& canvas)
{
	Colour ink = HexColour(0x3c2408);
	canvas.Body(RoundRect(X - 12, Y - 4, 24, 18, 2), Plain(CREAM), ink, 1.3f, 1.4f);
	canvas.Body(RoundRect(X - 14, Y - 10, 28, 8, 2), Plain(PAINT_CREAM), ink, 1.3f, 1.4f);
	canvas.Fill(RoundRect(X - 2.6f, Y - 10, 5.2f, 24, .5f), RED);
	for (int s = -1; s <= 1; s += 2)
		canvas.Body(Oval(X + s * 5.4f, Y - 12.8f, 5.2f, 3, s * .45f), Plain(RED),
		            HexColour(0x5a1010), 1.1f, 1.2f);
}

void DrawDoorEmblem(Canvas& canvas)
{
	Colour ink = HexColour(0x3c0c08);
	canvas.Body(RoundRect(X - 12, Y - 15, 18, 29, 2), Plain(CREAM), ink, 1.3f, 1.4f);
	canvas.Fill(Polygon({{X - 11, Y - 14}, {X - 1, Y - 10}, {X - 1, Y + 16}, {X - 11, Y + 13}}),
	            HexColour(0x8a4a24));
	canvas.Fill(Disc(X - 3.6f, Y + 3, 1.5f), GOLD);
	DrawMarked(canvas, Arrow(X + 12, Y, 16, 4.6f, 0), HexColour(0xfff27a), ink, 1.2f);
}

void DrawPawEmblem(Canvas& canvas)
{
	const float TOES[4][3] = {{-10, -3, -.4f}, {-4, -10, -.1f}, {4, -10, .1f}, {10, -3, .4f}};
	Colour ink             = HexColour(0x143c14);
	PathFn pad             = Joined({Oval(X, Y + 5, 6.4f, 5.6f), Oval(X - 4.6f, Y + 8, 4, 3.8f),
	                                 Oval(X + 4.6f, Y + 8, 4, 3.8f)});
	for (const auto& toe : TOES)
		DrawMarked(canvas, Oval(X + toe[0], Y + toe[1], 3.4f, 4.6f, toe[2]), CREAM, ink, 1.3f);
	canvas.FillMask(canvas.Mask(pad, 1.3f), ink);
	canvas.ReliefMask(canvas.Mask(pad), Plain(CREAM), 1.4f, 2.4f, .3f);
}

void DrawMedalEmblem(Canvas& canvas)
{
	for (int s = -1; s <= 1; s += 2)
		DrawMarked(
		    canvas,
		    Polygon(
		        {{X + s * 2, Y - 2}, {X + s * 3, Y - 15}, {X + s * 11, Y - 15}, {X + s * 7, Y}}),
		    s < 0 ? RED : HexColour(0x3a8ae8), HexColour(0x3c1408), 1.2f);
	DrawMarked(canvas, Disc(X, Y + 5, 9.4f), GOLD, GOLD_INK, 1.3f);
	DrawMarked(canvas, Star(X, Y + 5, 6.2f, 2.8f), CREAM, HexColour(0xb87a18), .7f);
}

void DrawPodiumEmblem(Canvas& canvas)
{
	const float HEIGHTS[3] = {12, 17, 9};
	Colour ink             = HexColour(0x14285a);
	for (int i = 0; i < 3; i++) {
		float x = X - 16.5f + i * 11, h = HEIGHTS[i];
		canvas.Body(RoundRect(x, Y + 14 - h, 11, h, 1), Plain(i == 1 ? GOLD : CREAM), ink, 1.2f,
		            1.4f);
		const char* figures[3] = {"2", "1", "3"};
		canvas.Print(figures[i], 11, x + 5.5f, Y + 14 - std::min(h * .5f, 7.f), ink, Align::Centre);
	}
	DrawMarked(canvas, Star(X, Y - 9, 5.4f, 2.4f), HexColour(0xfff27a), HexColour(0x6a3c08), 1.1f);
}

void DrawBackEmblem(Canvas& canvas)
{
	Colour ink   = HexColour(0x5a2a08);
	PathFn sweep = [](cairo_t* c) {
		cairo_move_to(c, X + 13, Y + 11);
		cairo_curve_to(c, X + 16, Y - 4, X + 6, Y - 7, X - 4, Y - 5);
	};
	PathFn head = Polygon({{X - 16, Y - 4}, {X - 3, Y - 14}, {X - 3, Y + 5}});
	canvas.Stroke(sweep, ink, 9.4f);
	canvas.Fill(head, ink, 1, 1.5f);
	canvas.Stroke(sweep, CREAM, 6.4f);
	canvas.Relief(head, Plain(CREAM), 1.1f, 2, .2f);
}

void DrawQuestionEmblem(Canvas& canvas)
{
	Colour ink = HexColour(0x143c14);
	auto page  = [](float s) {
        return Polygon({{X, Y - 8}, {X + s * 15, Y - 12}, {X + s * 15, Y + 9}, {X, Y + 13}});
	};
	for (float s : {-1.f, 1.f})
		canvas.Body(page(s), Plain(s < 0 ? PAINT_CREAM : HexColour(0xf0e0bc)), ink, 1.4f, 1.2f);
	canvas.Caption("?", 27, X, Y - 1, GOLD, ink, 2);
}

void DrawSlidersEmblem(Canvas& canvas)
{
	const float KNOBS[3] = {6, -7, 2};
	for (int i = 0; i < 3; i++) {
		float y = Y - 9 + i * 9.5f;
		canvas.Fill(RoundRect(X - 16, y - 2, 32, 4, 2), PAINT_TEXT_BLUE, 1, 1);
		canvas.Fill(RoundRect(X - 16, y - 2, 32, 4, 2), HexColour(0xdce8f4));
		DrawMarked(canvas, Disc(X + KNOBS[i], y, 4.2f), GOLD, PAINT_TEXT_BLUE, 1.3f);
	}
}

void DrawScrollEmblem(Canvas& canvas)
{
	Colour ink = HexColour(0x4a3018);
	canvas.Body(RoundRect(X - 11, Y - 13, 22, 26, 2), Plain(PAINT_CREAM), ink, 1.3f, 1.4f);
	for (int i = 0; i < 3; i++)
		canvas.Fill(RoundRect(X - 7, Y - 6 + i * 4.6f, i == 2 ? 9 : 14, 1.8f, .9f),
		            HexColour(0x9a8a70));
	for (float y : {Y - 13, Y + 13})
		canvas.Body(RoundRect(X - 15, y - 3, 30, 6, 3), Plain(HexColour(0xe8c88c)), ink, 1.2f,
		            1.6f);
	DrawMarked(canvas, Star(X + 9, Y + 7, 6.4f, 2.8f), GOLD, GOLD_INK, 1.1f);
}
