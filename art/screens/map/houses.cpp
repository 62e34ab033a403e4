// Farms, lodges, cabins and huts.
#include "art/screens/map/houses.h"

#include "art/core/palette.h"
#include "art/screens/map/toy.h"

static const Colour WALL = HexColour(0xf6e8cc);

// House with its gable to the front left, roof falling to the right.
static void DrawHouse(Toy& toy, float x, float foot, Colour wall, Colour roof)
{
	toy.Part(
	    Corners({x, foot - 3, x, foot - 11, x + 6, foot - 17, x + 12, foot - 11, x + 12, foot}),
	    wall);
	toy.Part(Corners({x + 12, foot, x + 12, foot - 11, x + 27, foot - 13, x + 27, foot - 3}),
	         Darker(wall, .35f));
	toy.Part(Corners({x + 5, foot - 19, x + 21, foot - 21, x + 29, foot - 12, x + 13, foot - 9.5f}),
	         roof);
	toy.Part(Corners({x + 5, foot - 19, x + 7, foot - 17.4f, x - 1, foot - 9, x - 2, foot - 11}),
	         Lighter(roof, .3f), .7f);
}

Image DrawBarn(float scale)
{
	Toy toy(44, 34, scale);
	toy.Part(RoundRect(33, 9, 7, 20, 3), HexColour(0xd8dce4)); // silo
	toy.Flat(RoundRect(34, 10, 2, 18, 1), PAINT_WHITE, .8f);
	toy.Part(Oval(36.5f, 9.4f, 4, 3.4f), HexColour(0xc04434), .8f);
	DrawHouse(toy, 4, 31, HexColour(0xd8503c), HexColour(0x8c5a3c));
	toy.Flat(Corners({7.4f, 29, 7.4f, 22, 12.6f, 22.4f, 12.6f, 30.2f}), PAINT_CREAM);
	toy.Stroke(Line({{7.6f, 22.4f}, {12.4f, 30}}), HexColour(0xb03c2c), .9f);
	toy.Stroke(Line({{12.4f, 22.6f}, {7.6f, 29}}), HexColour(0xb03c2c), .9f);
	return toy.Finish();
}

Image DrawMill(float scale)
{
	Toy toy(36, 42, scale);
	toy.Part(Corners({11, 38, 14, 18, 22, 18, 25, 38}), WALL);
	toy.Part(Corners({12.6f, 18.6f, 18, 10.6f, 23.4f, 18.6f}), HexColour(0xc85a3c));
	toy.Part(RoundRect(16, 30, 4.4f, 8, 2), HexColour(0x7a4a2c), .7f);
	for (int i = 0; i < 4; i++) {
		PathFn sail =
		    Joined({RoundRect(17.4f, 4, 1.2f, 13, .5f), RoundRect(18.4f, 4, 4.2f, 9, .8f)});
		toy.Part(Turned(sail, 18, 18, i * PI / 2 + .4f), PAINT_CREAM, .8f);
	}
	toy.Part(Disc(18, 18, 1.9f), HexColour(0x8c5a2c), .7f);
	return toy.Finish();
}

// Strips of crops lying flat.
Image DrawAcre(float scale, int seed)
{
	static const uint32_t s_crops[] = {0xe8c850, 0x8cbc3c, 0xb8863c, 0xd8dc68};
	Toy toy(50, 30, scale);
	for (int i = 0; i < 4; i++) {
		float x = 5 + i * 9.2f, slope = 7;
		Colour c = HexColour(s_crops[(i + seed) % 4]);
		toy.Part(Corners({x + slope, 4, x + slope + 8.6f, 4.6f, x + 8.6f, 26, x, 25.4f}), c, .6f);
		for (int k = 1; k < 4; k++)
			toy.Stroke(Line({{x + slope + k * 2.1f, 6}, {x + k * 2.1f, 24.4f}}), Darker(c, .55f),
			           .7f, .7f);
	}
	return toy.Finish();
}

Image DrawLodge(float scale)
{
	Toy toy(38, 36, scale);
	for (int tier = 0; tier < 2; tier++) {
		float half = tier ? 8.f : 12.f, low = tier ? 18.f : 33.f;
		toy.Part(RoundRect(19 - half, low - 9, half * 2, 9, .6f),
		         HexColour(tier ? 0xe8d49c : 0xd8bc7c));
		for (int i = -1; i <= 1; i++)
			toy.Stroke(Line({{19 + i * half * .6f, low - 8}, {19 + i * half * .6f, low - 1}}),
			           HexColour(0x9c7438), 1.1f);
		float eaves = half + 5, y = low - 9;
		PathFn roof = [=](cairo_t* c) {
			cairo_move_to(c, 19 - eaves, y - 1.4f);
			cairo_curve_to(c, 19 - half, y - 1, 19 - half * .5f, y - 4, 19 - 3, y - 7);
			cairo_line_to(c, 22, y - 7);
			cairo_curve_to(c, 19 + half * .5f, y - 4, 19 + half, y - 1, 19 + eaves, y - 1.4f);
			cairo_curve_to(c, 19 + half, y + 3, 19 - half, y + 3, 19 - eaves, y - 1.4f);
			cairo_close_path(c);
		};
		toy.Part(roof, HexColour(0x4c8a4c));
	}
	return toy.Finish();
}

Image DrawCabin(float scale)
{
	Toy toy(38, 32, scale);
	DrawHouse(toy, 4, 29, HexColour(0xb07c48), HexColour(0x5c7a4c));
	for (float y : {17.6f, 20.6f, 23.6f})
		toy.Stroke(Line({{16.6f, y + 2}, {30.6f, y - .4f}}), HexColour(0x6a4424), .8f);
	toy.Part(RoundRect(25, 5, 3.6f, 7, .6f), HexColour(0xa0968c), .8f);
	toy.Flat(RoundRect(7.8f, 20, 4.4f, 8, 1), HexColour(0x5a3418));
	return toy.Finish();
}

// Two round huts under straw.
Image DrawHuts(float scale)
{
	Toy toy(46, 32, scale);
	auto hut = [&](float x, float foot) {
		toy.Part(RoundRect(x - 7, foot - 11, 14, 11, 3), HexColour(0xc88c5c));
		toy.Flat(RoundRect(x - 1.6f, foot - 7, 4.4f, 7, 2), HexColour(0x4a2c1c));
		toy.Part(Corners({x, foot - 22, x + 11, foot - 9, x + 5, foot - 7.4f, x - 5, foot - 7.4f,
		                  x - 11, foot - 9}),
		         HexColour(0xe8cc78));
		for (float side : {-5.f, -1.f, 4.f})
			toy.Stroke(Line({{x, foot - 20}, {x + side, foot - 9}}), HexColour(0xb08c40), .8f, .8f);
	};
	hut(30, 25);
	hut(14, 29);
	return toy.Finish();
}
