// The tally after a level: panel, boxes, gauges, numerals and buttons.
#include "art/animals/butterfly.h"
#include "art/animals/figure.h"
#include "art/families.h"
#include "art/screens/frames.h"

static const int PANEL_W = 478, COLUMN_W = 414;
static const int SHADOW_W = 3; // pictures that the game centres are empty by so much at the left,
                               // which makes up for the shadow at the right

static Image Centred(const Image& source)
{
	Image out(source.width + SHADOW_W, source.height);
	Compose(out, source, SHADOW_W, 0);
	return out;
}

// --- the panel, in three pieces

// Mixes the rows toward row `to` of the panel, so that the piece in the middle goes on without a
// seam: fully at row `full`, not at all at row `none`.
static void Settle(Image& piece, const Image& panel, int to, int none, int full)
{
	int step = none < full ? 1 : -1;
	for (int y = none; y != full + step; y += step) {
		float part = (y - none) / (float)(full - none);
		for (int x = 0; x < piece.width; x++)
			for (int c = 0; c < 4; c++) {
				float& value = piece.At(x, y)[c];
				value        = Mix(value, panel.At(x, to)[c], part);
			}
	}
}

// Takes the paper's clouds out of one row: repeated, they would be stripes.
static void Smooth(Image& panel, int row)
{
	const int FRAME = 26; // at each side: wood, and the shadow that it throws
	int count       = panel.width - 2 * FRAME;
	for (int c = 0; c < 4; c++) {
		float sum = 0;
		for (int x = FRAME; x < FRAME + count; x++)
			sum += panel.At(x, row)[c];
		for (int x = FRAME; x < FRAME + count; x++)
			panel.At(x, row)[c] = sum / count;
	}
}

static void DrawPanel(Sink& sink)
{
	const int W = PANEL_W + SHADOW_W, H = 400, AIR = 13;
	const int TOP_H = 60, MIDDLE_H = 10, BOTTOM_H = 40, ROW = 180;
	Image paper = PaperPanel(W, H);
	Smooth(paper, ROW);
	Image top(W, TOP_H), middle(W, MIDDLE_H);
	Compose(top, paper, 0, AIR);
	Settle(top, paper, ROW, AIR + 22, TOP_H - 1);
	Image plank = TitlePlank(316, 54, "Level complete!", 33);
	Compose(top, plank, (PANEL_W - 313) / 2 + 1, 0);
	for (int y = 0; y < MIDDLE_H; y++)
		std::copy(paper.At(0, ROW), paper.At(0, ROW) + 4 * W, middle.At(0, y));
	Image bottom = Cropped(paper, 0, H - BOTTOM_H, W, BOTTOM_H);
	Settle(bottom, paper, ROW, 16, 0);
	sink.Add("postlevel_main_top.png", top);
	sink.Add("postlevel_main_middle.tga", middle);
	sink.Add("postlevel_main_bottom.png", bottom);
}

// --- boxes

static void DrawAnimalBoxes(Sink& sink)
{
	AddWellParts(sink, "postlevel_boxnewanimal_", 24, 10, 24, 70, PAINT_WELL_NEW);
	sink.Add("postlevel_boxnewanimal_title.png",
	         TextBlock("New in the\nsanctuary", 18, 104, 54, HexColour(0x3a6a2a), 22));
	AddWellParts(sink, "postlevel_boxanimals_", 24, 10, 24, 84);
	sink.Add("postlevel_boxanimals_title.png", TextBlock("Rescued", 20, 140, 24, PAINT_HEADING));

	const int W = 100, H = 64, WINDOW_W = 90, WINDOW_H = 54;
	Canvas frame(W, H, 3);
	DrawWindow(frame, 5, 5, WINDOW_W, WINDOW_H, PAINT_WINDOW, 5);
	Image window = frame.Finish();
	DrawRays(window, 5, 5, WINDOW_W, WINDOW_H, HexColour(0x6cc0f0), HexColour(0x9adcff));
	sink.Add("postlevel_boxnewanimal_frame.png", window);
}

static void DrawButterflyBox(Sink& sink)
{
	const int W = COLUMN_W, H = 36;
	Canvas box(W, H);
	DrawWell(box, 1, 1, W - 2, H - 2);
	box.Print("Butterflies", 18, 15, H * .5f - .5f, PAINT_HEADING);
	sink.Add("postlevel_boxbutterfly_AB.png", box.Finish());

	Species species;
	species.build = [](Model& model, const View&, const Pose& pose) {
		const Butterfly BLUE = {0x3f8cf4, 0x8ad8ff, 0x1a2260, 0xe8f6ff,
		                        0xd8fbff, 0x262a54, .74f,     .30f};
		AddButterfly(model, BLUE, pose);
	};
	species.width        = 26;
	species.elevation    = 58;
	species.shadow       = 0;
	species.rest.heading = Heading::Up;
	species.rest.flying  = true;
	species.rest.flap    = .1f;
	Figure figure(species);
	Image drawn = figure.DrawAlone(species.rest);
	Image out(28, 24);
	ComposeCentred(out, drawn, 14, 12);
	sink.Add("postlevel_butterfly.png", out);
}

static void DrawLinesBox(Sink& sink)
{
	const int EDGE = 12, ROW = 23, H = 80;
	Image well = Well(COLUMN_W, H);
	Image row  = Cropped(well, 0, H / 2, COLUMN_W, ROW);
	Canvas band(COLUMN_W, ROW);
	DrawBand(band, 6, 1, COLUMN_W - 12.f, ROW - 2.f);
	Compose(row, band.Finish(), 0, 0);
	sink.Add("postlevel_boxbonuses_top.png", Cropped(well, 0, 0, COLUMN_W, EDGE));
	sink.Add("postlevel_boxbonuses_middle.tga", row);
	sink.Add("postlevel_boxbonuses_bottom.png", Cropped(well, 0, H - EDGE, COLUMN_W, EDGE));
}

static void DrawBonusBoxes(Sink& sink)
{
	sink.Add("postlevel_bonus_boxA.png", Well(COLUMN_W, 148));
	sink.Add("postlevel_bonus_boxB.png", Well(COLUMN_W, 178));
	sink.Add("postlevel_bonus_boxBtotal.png", [] {
		Canvas bar(254, 26);
		DrawBand(bar, 0, 1, 254, 24);
		bar.Print("In all", 18, 50, 12.5f, PAINT_HEADING);
		return bar.Finish();
	}());
	sink.Add("postlevel_bonus_title_box.png", Centred(Plank(204, 46)));
	static const struct {
		const char* name;
		const char* text;
		const TitleInk& ink;
	} s_titles[] = {{"perfect", "Perfect!", TITLE_YELLOW},
	                {"waytogo", "Way to go!", TITLE_YELLOW},
	                {"goodtry", "Good try!", TITLE_BLUE}};
	for (const auto& title : s_titles)
		sink.Add(std::string("postlevel_bonus_title_") + title.name + ".png",
		         TitleOn(150, 36, 75, 14.5f, title.text, 27, title.ink));
}

// The steel panel with windows for the three counters, which stand behind nothing but it.
static void DrawTotals(Sink& sink)
{
	const int W = 421, H = 94, FIELD_MIDDLE = 346, DRUM_Y = 45, DRUM_W = 91, DRUM_H = 20;
	static const int s_drums[] = {163, 301, 439}; // on the screen
	Image box                  = Centred(SteelPanel(W, H, 9, false));
	Canvas windows(box.width, H);
	int left = FIELD_MIDDLE - box.width / 2;
	for (int x : s_drums)
		DrawWindow(windows, x - left, DRUM_Y, DRUM_W, DRUM_H);
	Compose(box, windows.Finish(), 0, 0);
	sink.Add("postlevel_boxtotal_B.png", box);

	static const char* const s_words[] = {"Level", "Bonus", "Total"};
	const int WORDS_W = 400, WORDS_H = 24;
	Canvas words(WORDS_W, WORDS_H);
	for (int i = 0; i < 3; i++) {
		float x = s_drums[i] + DRUM_W * .5f - (FIELD_MIDDLE - WORDS_W / 2);
		words.Caption(s_words[i], 19, x, WORDS_H * .5f,
		              i == 2 ? HexColour(0xfff04a) : PAINT_ON_STEEL, PAINT_TEXT_BLUE, 1.6f);
	}
	sink.Add("postlevel_tally.png", words.Finish());
}

// --- numerals and buttons

static void DrawNumerals(Sink& sink)
{
	const Colour EDGE = HexColour(0x5a3414);
	auto numeral      = [&](const std::string& text) {
        return EdgedBlock(text, 18, (int)std::lround(LetteringWidth(text, 18)) + 2, 20, PAINT_WHITE,
		                       EDGE, 1.6f);
	};
	sink.Add("postlevel_tallynumbers_x.png", numeral("x"));
	for (int i = 0; i < 10; i++)
		sink.Add("postlevel_tallynumbers_" + std::to_string(i) + ".png",
		         numeral(std::to_string(i)));
}

static void DrawButtons(Sink& sink)
{
	AddCapsule(sink, "postlevel_button_retry", 92, 38, "Retry", PAINT_SUNNY, 19);
	AddCapsule(sink, "postlevel_button_continue", 126, 46, "Continue", PAINT_GO, 24);
	AddCapsule(sink, "postlevel_button_mainmenu", 92, 38, "Menu", PAINT_STOP, 19);
	AddCapsule(sink, "postlevel_button_sanctuary", 98, 38, "Sanctuary", PAINT_NEUTRAL, 18);
}

void AddTally(Catalogue& catalogue)
{
	catalogue.Add("tally/panel", __FILE__, DrawPanel);
	catalogue.Add("tally/boxes", __FILE__, [](Sink& sink) {
		DrawAnimalBoxes(sink);
		DrawButterflyBox(sink);
		DrawLinesBox(sink);
	});
	catalogue.Add("tally/bonusboxes", __FILE__, DrawBonusBoxes);
	catalogue.Add("tally/totals", __FILE__, [](Sink& sink) {
		DrawTotals(sink);
		DrawNumerals(sink);
	});
	catalogue.Add("tally/buttons", __FILE__, DrawButtons);
}
