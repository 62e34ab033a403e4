// Ships, whales, icebergs and lone rocks; the compass rose.
#include "art/screens/map/sea_marks.h"

#include "art/core/palette.h"
#include "art/screens/map/toy.h"

static void DrawWake(Toy& toy, float x, float y, float half)
{
	toy.Flat(Oval(x, y, half, 2.2f), PAINT_WHITE, .55f);
	toy.Flat(Oval(x + 2, y + 2.6f, half * .7f, 1.1f), PAINT_WHITE, .35f);
}

Image DrawShip(float scale)
{
	Toy toy(46, 48, scale);
	DrawWake(toy, 22, 42, 19);
	toy.Stroke(Line({{22, 36}, {22, 5}}), HexColour(0x5a3818), 2);
	PathFn sail = [](cairo_t* c) {
		cairo_move_to(c, 20, 7);
		cairo_curve_to(c, 10, 14, 8, 24, 8, 31);
		cairo_curve_to(c, 13, 29, 17, 29, 20, 30);
		cairo_close_path(c);
	};
	PathFn jib = [](cairo_t* c) {
		cairo_move_to(c, 23.6, 8);
		cairo_curve_to(c, 33, 14, 38, 24, 38, 31);
		cairo_curve_to(c, 33, 29, 28, 29, 23.6, 30);
		cairo_close_path(c);
	};
	toy.Part(sail, PAINT_CREAM);
	toy.Part(jib, HexColour(0xf0604c));
	toy.Part(Corners({4, 33, 41, 33, 36, 42, 10, 42}), HexColour(0xa8683c));
	toy.Flat(RoundRect(6, 34.4f, 32, 1.6f, .7f), HexColour(0xf0c070));
	toy.Part(Corners({22.4f, 5, 29, 3.4f, 22.4f, 1.4f}), PAINT_MACHINE, .6f);
	return toy.Finish();
}

Image DrawWhale(float scale)
{
	Toy toy(48, 40, scale);
	const Colour SKIN = HexColour(0x3c6ea8);
	for (float side : {-1.f, 1.f})
		toy.Stroke(
		    [=](cairo_t* c) {
			    cairo_move_to(c, 16, 17);
			    cairo_curve_to(c, 16, 8, 16 + side * 3, 5, 16 + side * 6, 9);
		    },
		    HexColour(0xd8f4ff), 1.8f, .95f);
	PathFn back = [](cairo_t* c) {
		cairo_move_to(c, 4, 34);
		cairo_curve_to(c, 4, 12, 30, 14, 35, 34);
		cairo_close_path(c);
	};
	PathFn tail = [](cairo_t* c) {
		cairo_move_to(c, 39, 34);
		cairo_curve_to(c, 39, 28, 40, 25, 35, 21);
		cairo_curve_to(c, 39, 19, 41, 21, 41.6, 23);
		cairo_curve_to(c, 42, 20, 44, 19, 47, 20);
		cairo_curve_to(c, 44, 25, 44, 29, 43.6, 34);
		cairo_close_path(c);
	};
	toy.Part(back, SKIN);
	toy.Part(tail, SKIN);
	toy.Flat(Disc(9.4f, 27, 2.1f), PAINT_WHITE);
	toy.Flat(Disc(9, 27.2f, 1.2f), HexColour(0x101828));
	DrawWake(toy, 20, 34.6f, 18);
	DrawWake(toy, 41, 34.6f, 5);
	return toy.Finish();
}

Image DrawIceberg(float scale, int seed)
{
	Toy toy(44, 36, scale);
	float lean = seed & 1 ? 4 : -4;
	DrawWake(toy, 22, 31, 20);
	toy.Part(Corners({4, 31, 10, 18, 20 + lean, 4, 28, 13, 34, 16, 40, 31}), HexColour(0xcfe8f8));
	toy.Flat(Corners({5, 30.6f, 10.4f, 18.4f, 20 + lean, 5, 19, 20, 15, 30.6f}), PAINT_WHITE, .9f);
	toy.Flat(Corners({28, 13.6f, 34, 16.6f, 39, 30.6f, 30, 30.6f}), HexColour(0x7cb0dc), .7f);
	toy.Flat(RoundRect(3, 29.4f, 38, 2.4f, 1), HexColour(0x7ce0ec), .6f);
	return toy.Finish();
}

// A rock in the shallows with a tree or a lighthouse.
Image DrawRocklet(float scale, bool tower)
{
	Toy toy(44, 46, scale);
	toy.Flat(Oval(22, 39, 21, 6), HexColour(0x5cd4e0), .7f);
	DrawWake(toy, 22, 40, 17);
	toy.Part(Corners({7, 40, 9, 34, 15, 31, 30, 31, 36, 34, 37, 40, 22, 42}), HexColour(0xb09468));
	toy.Part(Oval(22, 32.4f, 13, 3.6f), HexColour(0x8cc04c), .7f);
	if (!tower) {
		toy.Stroke(Line({{22, 32}, {24, 16}}), HexColour(0x4a2c14), 3.4f);
		toy.Stroke(Line({{22, 32}, {24, 16}}), HexColour(0xb8844c), 1.9f);
		for (int i = 0; i < 5; i++)
			toy.Part(
			    Oval(24 + (i - 2) * 4.4f, 15 + std::fabs(i - 2.f) * 1.6f, 5, 1.7f, (i - 2) * .45f),
			    HexColour(i & 1 ? 0x4a9c3a : 0x6cc048), .7f);
		return toy.Finish();
	}
	toy.Part(Corners({17, 32, 19, 11, 25, 11, 27, 32}), PAINT_CREAM);
	toy.Flat(Corners({18.4f, 17, 18.9f, 12.6f, 25.1f, 12.6f, 25.6f, 17}), HexColour(0xe04c3c));
	toy.Flat(Corners({17.5f, 27, 18, 22, 26, 22, 26.5f, 27}), HexColour(0xe04c3c));
	toy.Part(RoundRect(18.4f, 6, 7.2f, 5.4f, .8f), HexColour(0xfff09a), .8f);
	toy.Part(Corners({17, 6.4f, 22, 1.6f, 27, 6.4f}), HexColour(0x3c5c90), .8f);
	return toy.Finish();
}

Image DrawCompass(float scale)
{
	const float C = 36;
	Toy toy(72, 75, scale);
	toy.Flat(Disc(C, C, 29), HexColour(0x10304c), .30f);
	toy.Stroke(Disc(C, C, 26), HexColour(0xfff6d8), 1.2f, .7f);
	for (int i = 0; i < 8; i++) {
		bool minor = i & 1;
		float a = i * PI / 4 - PI / 2, reach = minor ? 17 : 27;
		for (float half : {-1.f, 1.f}) {
			float b      = a + half * .42f;
			uint32_t hex = half < 0 ? (minor ? 0xf0d890 : 0xfffaea) : (minor ? 0xb08838 : 0xd8402c);
			toy.Flat(Polygon({{C, C},
			                  {C + std::cos(b) * 7, C + std::sin(b) * 7},
			                  {C + std::cos(a) * reach, C + std::sin(a) * reach}}),
			         HexColour(hex), .95f);
		}
	}
	toy.Part(Lettering("N", 11, C, 5.4f), PAINT_WHITE, 1.2f);
	return toy.Finish();
}
