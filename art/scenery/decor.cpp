// Flowers and tufts of grass that levels strew over the ground.
#include "art/families.h"

#include "art/core/canvas.h"
#include "art/core/palette.h"
#include "art/core/stamps.h"

namespace
{
struct FlowerLook {
	uint32_t petal, heart;
	int petals;
	float reach, size; // pixels from the heart to a petal's middle, and the petal's radius
	bool bell;         // closed, hanging to one side
};
} // namespace

// clang-format off
static const FlowerLook s_flowers[8] = {
	{ 0xffffff, 0xffc81e, 6, 2.9f, 1.75f, false }, // daisy
	{ 0xffd840, 0xd87a1c, 5, 2.6f, 2.00f, false }, // buttercup
	{ 0xf27ab0, 0xffe27a, 5, 2.6f, 2.05f, false }, // campion
	{ 0x9a7cf0, 0xffd23c, 5, 2.6f, 2.00f, false }, // violet
	{ 0xe8503c, 0x3a2230, 4, 2.3f, 2.50f, false }, // poppy
	{ 0xffa94a, 0x9a4a18, 8, 3.1f, 1.50f, false }, // marigold
	{ 0x6fb4f6, 0xfff2b0, 5, 2.5f, 1.95f, false }, // forget-me-not
	{ 0xb66ad8, 0x7a3aa8, 3, 1.6f, 2.30f, true },  // bellflower
};
// clang-format on

static PathFn Petals(const FlowerLook& look, float x, float y)
{
	std::vector<PathFn> petals;
	for (int i = 0; i < look.petals; i++) {
		float a = look.bell ? PI * (.30f + .20f * i) : i * 2 * PI / look.petals - .3f;
		petals.push_back(
		    Disc(x + std::cos(a) * look.reach, y + std::sin(a) * look.reach * .86f, look.size));
	}
	return Joined(petals);
}

static Image DrawFlower(int number)
{
	const FlowerLook& look = s_flowers[number];
	const int W = 16, H = 18;
	float x = 7.5f, y = look.bell ? 5.f : 5.8f, bend = number % 2 ? 1.2f : -1.0f;
	Canvas canvas(W, H);
	canvas.Fill(Oval(8.5f, 16.2f, 4.6f, 1.2f), PAINT_SHADOW, .25f);
	PathFn stem = [=](cairo_t* c) {
		cairo_move_to(c, x, y);
		cairo_curve_to(c, x + bend, y + 4, x + bend, y + 7, x + .4f, 16);
	};
	PathFn leaves = [](cairo_t* c) {
		LeafPath(c, 10.4f, 12.8f, -.55f, 5.5f, 1.5f);
		LeafPath(c, 5.2f, 14.0f, -2.7f, 4.8f, 1.4f);
	};
	canvas.Stroke(stem, HexColour(0x2c5a1c), 2.5f);
	canvas.Fill(leaves, HexColour(0x2c5a1c), 1, .6f);
	canvas.Stroke(stem, HexColour(0x5c9a2c), 1.2f);
	canvas.Fill(leaves, HexColour(0x66a834));
	Colour petal = HexColour(look.petal);
	PathFn bloom = Petals(look, x, y);
	canvas.Fill(bloom, InkOf(petal), 1, .8f);
	canvas.FillAt(bloom, Downward(Lighter(petal, .18f), Darker(petal, .30f), y - 4, y + 5));
	if (!look.bell)
		canvas.Fill(Disc(x, y, 1.55f), HexColour(look.heart));
	canvas.Fill(Disc(x - .4f, y - .5f, .55f), HexColour(0xffffff), .55f);
	return canvas.Finish();
}

void AddDecor(Catalogue& catalogue)
{
	catalogue.Add("background_decor", __FILE__, [](Sink& sink) {
		for (int i = 0; i < 8; i++)
			sink.Add("background_flower" + std::to_string(i + 1) + ".png", DrawFlower(i));
		const int SIZES[3][2] = {{22, 15}, {26, 17}, {19, 13}};
		for (int i = 0; i < 3; i++)
			sink.Add("background_grasstuft" + std::to_string(i + 1) + ".png",
			         GrassTuft(i + 1, SIZES[i][0], SIZES[i][1]));
	});
}
