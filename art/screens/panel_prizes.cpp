// The plate on which the panel shows a power-up, its marks and their words.
#include "art/screens/kit.h"
#include "art/screens/panel_parts.h"
#include "art/screens/prize_marks.h"

static const int PLATE_SIZE = 60;

static Image PrizePlate()
{
	Canvas canvas(PLATE_SIZE, PLATE_SIZE);
	const float C = 29;
	canvas.DropShadow(Disc(C, C, 27), 1.8f, 1, 2.4f, .5f);
	canvas.Body(Disc(C, C, 27), Downward(HexColour(0xffe07a), HexColour(0xcf8418), 3, 55),
	            HexColour(0x4a2410), 1.2f, 2.6f, 3, .8f);
	for (int i = 0; i < 16; i++) { // beads on the ring
		float a = i * PI / 8;
		canvas.Fill(Disc(C + std::cos(a) * 24.2f, C + std::sin(a) * 24.2f, 1.15f),
		            HexColour(0xfff2b8), .9f);
	}
	canvas.Fill(Disc(C, C, 21.6f), HexColour(0x4a2410));
	canvas.Relief(Disc(C, C, 20.6f), Downward(HexColour(0x2f66b8), HexColour(0x102c60), 8, 50),
	              3.4f, 1.6f, .2f);
	canvas.InnerShadow(Disc(C, C, 20.6f), 2, {.02f, .03f, .10f}, .55f);
	canvas.Fill(Oval(C - 8, C - 13, 8, 3.4f, -.5f), PAINT_WHITE, .22f);
	return canvas.Finish();
}

static void DrawPrizes(Sink& sink)
{
	sink.Add("sidebarpowerupdisc.png", PrizePlate());
	for (const PrizeInfo& info : PRIZES) {
		std::string stem = std::string("sidebarpowerup") + info.word;
		std::vector<Image> frames;
		for (int i = 0; i < std::max(1, info.frames); i++) {
			bool loops = info.prize == Prize::Gravity || info.prize == Prize::Fans;
			int steps  = std::max(1, loops ? info.frames : info.frames - 1);
			frames.push_back(PrizeMark(info.prize, i / (float)steps));
		}
		if (info.frames)
			sink.AddFrames(stem, frames);
		else
			sink.Add(stem + ".png", frames[0]);
		std::string word = info.prize == Prize::Fans ? "fans" : info.word;
		sink.Add("sidebarpowerupname" + word + ".png",
		         EdgedWord(info.title, 14, HexColour(0xffe98a), HexColour(0x1c0c40), 16));
	}
}

void AddPanelPrizes(Catalogue& catalogue)
{
	catalogue.Add("panel/prizes", __FILE__, DrawPrizes);
}
