// The instructions' prizes: their discs, names and what each of them does.
#include "art/screens/instructions.h"
#include "art/screens/pages.h"
#include "art/screens/prize_marks.h"

static const int DISC = 38, RING = 50;
static const int NAME_WIDTH = 150, NAME_HEIGHT = 26;
static const int INFO_WIDTH = 198, INFO_HEIGHT = 90;
static const int FIELD_MIDDLE = 637 - 534; // of the reading well, within the text's picture

// clang-format off
static const struct { Prize prize; const char* text; } s_infos[] = {
	{ Prize::Fast,         "The bubble flies faster for half a minute. Keep your eyes open!" },
	{ Prize::Slow,         "The bubble takes its time for half a minute." },
	{ Prize::Rain,         "Apples, acorns and pinecones rain down. Gather all you can!" },
	{ Prize::Destructo,    "Two shots for the ray. The left button fires at what stands above you." },
	{ Prize::Barrier,      "A shield below the machine. It saves the bubble once." },
	{ Prize::Gravity,      "The bubble draws in the animals and the fruit that are near it." },
	{ Prize::Bulldozer,    "The bubble goes straight through crates and fences." },
	{ Prize::Fans,         "The fan's dial stays full. Blow as long as you like!" },
	{ Prize::BubbleGrow,   "The bubble grows two sizes, so that larger animals fit in." },
	{ Prize::Sticky,       "The bumper holds the bubble where it lands. Let go with the left button." },
	{ Prize::Double,       "All points count double for half a minute." },
	{ Prize::Triple,       "All points count three times for half a minute." },
	{ Prize::Quadruple,    "All points count four times for half a minute." },
	{ Prize::ExtraLife,    "One more life for you. Don't let it get past you!" },
	{ Prize::PaddleGrow,   "A wider bumper for half a minute: it reaches the bubble with ease." },
	{ Prize::PaddleShrink, "A short, flat bumper for half a minute. Aim well!" },
};
// clang-format on

static Image DiscBase()
{
	Canvas canvas(DISC, DISC);
	const float C = DISC * .5f;
	canvas.Body(Disc(C, C, C - 1.2f), Downward(HexColour(0xffe07a), HexColour(0xcf8418), 0, DISC),
	            HexColour(0x4a2410), 1, 1.8f, 3, .7f);
	canvas.Fill(Disc(C, C, 15.6f), HexColour(0x4a2410));
	canvas.Relief(Disc(C, C, 15), Downward(HexColour(0x2f66b8), HexColour(0x102c60), 4, DISC - 4),
	              2.4f, 1.6f, .2f);
	return canvas.Finish();
}

// A ring of light round the disc; its middle is clear.
static Image DiscGlow()
{
	Image image(RING, RING);
	for (int y = 0; y < RING; y++)
		for (int x = 0; x < RING; x++) {
			float r    = std::hypot(x + .5f - RING * .5f, y + .5f - RING * .5f);
			float far  = std::fabs(r - 18.6f);
			float glow = std::exp(-far * far / (r > 18.6f ? 9.f : 3.f));
			Colour c   = Mix(HexColour(0xffb428), HexColour(0xfff8c8), Smoothstep(.5f, .95f, glow));
			Blend(image, x, y, c, glow * Smoothstep(25, 21, r));
		}
	return image;
}

Image FallingPrize()
{
	const int W = 80, H = 112;
	Canvas canvas(W, H);
	struct {
		float x, y;
		uint32_t colour;
	} balloons[] = {{26, 28, 0x3fa8f0}, {54, 26, 0xf6bc2c}, {40, 20, 0xec443c}};
	for (const auto& b : balloons) {
		canvas.Stroke(Line({{b.x, b.y + 18}, {40, 74}}), HexColour(0x6a5a4a), 1.1f);
		Colour c = HexColour(b.colour);
		canvas.Body(Oval(b.x, b.y, 15, 18),
		            Downward(Lighter(c, .22f), Darker(c, .5f), b.y - 18, b.y + 20), InkOf(c), 1.1f,
		            5, 2.2f, .2f);
		canvas.Fill(Oval(b.x - 5.5f, b.y - 7, 4, 2.4f, -.8f), PAINT_WHITE, .88f);
	}
	canvas.Place(DiscBase(), 21, 72);
	canvas.Caption("?", 22, 40, 91, HexColour(0xffe060), HexColour(0x101c40), 1.4f);
	return canvas.Finish();
}

static const PrizeInfo& InfoOf(Prize prize)
{
	for (const PrizeInfo& info : PRIZES)
		if (info.prize == prize)
			return info;
	return PRIZES[0];
}

static void DrawTexts(Sink& sink)
{
	const float SIZE = 15;
	for (const auto& entry : s_infos) {
		const PrizeInfo& prize = InfoOf(entry.prize);
		std::string word       = entry.prize == Prize::Fans ? "fans" : prize.word;
		sink.Add("instructionspowerupname" + word + ".png",
		         TextBlock(prize.title, 18, NAME_WIDTH, NAME_HEIGHT, PAINT_HEADING));
		Canvas canvas(INFO_WIDTH, INFO_HEIGHT);
		PrintText(canvas, entry.text, SIZE, FIELD_MIDDLE, 38, 176, Align::Centre);
		sink.Add("instructionspowerupinfo" + word + ".png", canvas.Finish());
	}
}

void AddInstructionsPrizes(Catalogue& catalogue)
{
	catalogue.Add("pages/instructions/discs", __FILE__, [](Sink& sink) {
		sink.Add("instructionspowerupdiscbase.png", DiscBase());
		sink.Add("instructionspowerupdiscglow.png", DiscGlow());
	});
	catalogue.Add("pages/instructions/prizes", __FILE__, DrawTexts);
}
