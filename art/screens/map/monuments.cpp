// Castle, temple, pyramids, igloo, and the wonders of the dream isles.
#include "art/screens/map/monuments.h"

#include "art/core/palette.h"
#include "art/core/stamps.h"
#include "art/screens/map/toy.h"

// --- stone

static void DrawTower(Toy& toy, float x, float top, float width, float foot, Colour roof)
{
	toy.Part(RoundRect(x, top, width, foot - top, .6f), HexColour(0xc8c2bc));
	toy.Flat(RoundRect(x + 1, top + 1, width * .3f, foot - top - 2, .4f), PAINT_WHITE, .55f);
	toy.Part(Corners({x - 1.6f, top + 1, x + width * .5f, top - 10, x + width + 1.6f, top + 1}),
	         roof);
	toy.Flat(RoundRect(x + width * .5f - .9f, top + 4, 1.8f, 4, .9f), HexColour(0x3c3848));
}

Image DrawCastle(float scale)
{
	const Colour ROOF = HexColour(0x4c78d0);
	Toy toy(44, 44, scale);
	DrawTower(toy, 17, 15, 9, 34, ROOF);
	toy.Part(RoundRect(9, 25, 26, 15, .5f), HexColour(0xb8b0a8));
	for (int i = 0; i < 4; i++)
		toy.Part(RoundRect(12.4f + i * 5, 22.4f, 3, 3.4f, .3f), HexColour(0xb8b0a8), .6f);
	DrawTower(toy, 5, 22, 7.6f, 41, ROOF);
	DrawTower(toy, 31, 22, 7.6f, 41, ROOF);
	toy.Part(RoundRect(18.6f, 30, 6.4f, 11, 3.2f), HexColour(0x6a4628), .7f);
	toy.Part(Corners({21.8f, 4.6f, 28, 2.6f, 21.8f, 1}), HexColour(0xe84c3c), .6f);
	return toy.Finish();
}

Image DrawTemple(float scale)
{
	Toy toy(50, 38, scale);
	const Colour STONE = HexColour(0xc4b48c);
	for (int i = 0; i < 4; i++) {
		float half = 22 - i * 5.f, low = 35 - i * 6.f;
		toy.Part(RoundRect(25 - half, low - 6, half * 2, 6.4f, .6f),
		         i & 1 ? STONE : Lighter(STONE, .12f));
		toy.Flat(RoundRect(25 - half, low - 1.8f, half * 2, 1.4f, .5f), HexColour(0x5c8a3c), .55f);
	}
	toy.Part(RoundRect(19, 4, 12, 8, .6f), Lighter(STONE, .2f));
	toy.Part(RoundRect(17.4f, 2, 15.2f, 3, .8f), STONE, .8f);
	toy.Flat(RoundRect(23, 6.4f, 4, 6, .6f), HexColour(0x3c2c1c));
	toy.Part(Corners({21.4f, 35, 23, 12, 27, 12, 28.6f, 35}), HexColour(0xe0d4b0), .7f);
	for (int i = 0; i < 7; i++)
		toy.Stroke(Line({{22, 14.6f + i * 3}, {28, 14.6f + i * 3}}), HexColour(0x9c8c64), .7f);
	return toy.Finish();
}

Image DrawPyramid(float scale)
{
	Toy toy(62, 38, scale);
	auto face = [&](float x, float top, float half, float foot) {
		toy.Part(Corners({x, top, x + half, foot - 3, x + half * .25f, foot, x - half, foot - 2}),
		         HexColour(0xf4cc78));
		toy.Flat(Corners({x, top, x + half, foot - 3, x + half * .25f, foot}), HexColour(0xb87c40),
		         .75f);
		for (int i = 1; i < 5; i++) {
			float t = i / 5.f;
			toy.Stroke(Line({{Mix(x, x - half, t), Mix(top, foot - 2, t)},
			                 {Mix(x, x + half * .25f, t), Mix(top, foot, t)}}),
			           HexColour(0xc89850), .7f, .8f);
		}
	};
	face(40, 12, 18, 33);
	face(22, 3, 20, 35);
	return toy.Finish();
}

Image DrawIgloo(float scale)
{
	const Colour SEAM = HexColour(0x6c9cc8);
	Toy toy(36, 26, scale);
	PathFn dome = [](cairo_t* c) {
		cairo_move_to(c, 3, 21);
		cairo_curve_to(c, 3, -2, 33, -2, 33, 21);
		cairo_curve_to(c, 26, 24, 10, 24, 3, 21);
		cairo_close_path(c);
	};
	toy.Part(dome, HexColour(0xd4e8f8), 1.3f);
	for (int row = 0; row < 3; row++) {
		float y = 9 + row * 5.f, half = 10.5f + row * 2;
		toy.Stroke(Line({{18 - half, y}, {18 + half, y}}), SEAM, 1.1f);
		for (int i = -2; i <= 2; i++)
			toy.Stroke(
			    Line({{18 + i * 6 + (row & 1) * 3.f, y}, {18 + i * 6 + (row & 1) * 3.f, y + 5}}),
			    SEAM, .9f);
	}
	PathFn gate = [](cairo_t* c) {
		cairo_move_to(c, 11, 23);
		cairo_curve_to(c, 11, 8, 25, 8, 25, 23);
		cairo_close_path(c);
	};
	toy.Part(gate, HexColour(0xe8f4fc), 1.1f);
	toy.Flat(Turned(gate, 18, 23, 0, .62f), HexColour(0x24406c));
	return toy.Finish();
}

// --- the dream isles

Image DrawRainbow(float scale)
{
	static const uint32_t s_bands[] = {0xf05050, 0xf8a030, 0xf8e048, 0x58c858, 0x48a0f0, 0xa060e0};
	Toy toy(64, 38, scale);
	PathFn arcs = [](cairo_t* c) { cairo_arc(c, 32, 33, 22, PI, 2 * PI); };
	toy.Stroke(arcs, HexColour(0x4c3c70), 15, .9f);
	for (int i = 0; i < 6; i++)
		toy.Stroke([=](cairo_t* c) { cairo_arc(c, 32, 33, 27.6f - i * 2.2f, PI, 2 * PI); },
		           HexColour(s_bands[i]), 2.4f);
	toy.Place(Cloud(22, 12, 4), 0, 26);
	toy.Place(Cloud(22, 12, 6), 42, 26);
	return toy.Finish();
}

Image DrawPawn(float scale, int seed)
{
	Toy toy(22, 34, scale);
	Colour c    = HexColour(seed & 1 ? 0x5c4a78 : 0xfff4e0);
	PathFn body = [](cairo_t* k) {
		cairo_move_to(k, 3, 31);
		cairo_curve_to(k, 3, 26, 8, 25, 8.4, 15);
		cairo_line_to(k, 13.6, 15);
		cairo_curve_to(k, 14, 25, 19, 26, 19, 31);
		cairo_close_path(k);
	};
	toy.Part(body, c);
	toy.Part(RoundRect(6, 13, 10, 3, 1.4f), c, .8f);
	toy.Part(Disc(11, 8.6f, 5.4f), c);
	toy.Flat(Disc(9.4f, 7, 1.7f), PAINT_WHITE, .8f);
	return toy.Finish();
}

Image DrawMoonGate(float scale)
{
	Toy toy(34, 40, scale);
	PathFn moon = [](cairo_t* c) {
		cairo_arc(c, 17, 17, 14, -.9, 2.2);
		cairo_curve_to(c, 20, 26, 26, 16, 25.7, 6);
		cairo_close_path(c);
	};
	PathFn crescent = Turned(moon, 17, 17, 2.2f);
	toy.Part(RoundRect(11, 30, 12, 7, 1.4f), HexColour(0xa890d8));
	toy.Part(crescent, HexColour(0xffe27a), 1.1f);
	toy.Part(Star(23, 11, 4.2f, 1.9f), HexColour(0xfff6c0), .8f);
	return toy.Finish();
}
