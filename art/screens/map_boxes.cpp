// The frame round the map: boxes, the key, digits, labels and what helps a new player.
#include "art/families.h"
#include "art/screens/kit.h"
#include "art/screens/map/dots.h"

static const Colour CAPTION    = HexColour(0xfffbdb);
static const Colour HEADING    = HexColour(0x8a4a18);
static const Colour DARK_PLATE = HexColour(0x173a54);

// --- who plays, and how far

static void DrawModeBox(Sink& sink)
{
	const int W = 178, H = 112;
	Image box = SteelPanel(W, H, 10, false);
	Canvas canvas(W, H);
	DrawWindow(canvas, 13, 9.5f, 151, 20);
	canvas.Fill(RoundRect(34, 33, 110, 19, 8), DARK_PLATE, .85f);
	canvas.InnerShadow(RoundRect(34, 33, 110, 19, 8), 1.6f, {0, 0, 0}, .5f);
	canvas.Caption("Done", 15, 90, 62, CAPTION, PAINT_TEXT_BLUE, 1.3f, Align::Right);
	DrawRivet(canvas, 14, H - 19.f, 2.2f);
	DrawRivet(canvas, W - 18.f, H - 19.f, 2.2f);
	Compose(box, canvas.Finish(), 0, 0);
	sink.Add("mapmodebox.png", box);
	for (int i = 0; i < 11; i++) {
		std::string text = i < 10 ? std::to_string(i) : "%";
		Canvas digit(i < 10 ? 11 : 14, 16);
		digit.Caption(text, 16, digit.width * .5f, 8, PAINT_WHITE, PAINT_TEXT_BLUE, 1.3f);
		sink.Add("mappercentage" + (i < 10 ? text : "percent") + ".png", digit.Finish());
	}
}

static void DrawModeSigns(Sink& sink)
{
	struct Sign {
		const char *file, *text;
		Colour colour;
	};
	for (const Sign& sign : {Sign{"mapmoderegular.png", "Regular", PAINT_GO},
	                         Sign{"mapmodekids.png", "Kids", PAINT_SUNNY}}) {
		Canvas canvas(68, 18);
		PathFn pill = RoundRect(1, .8f, 66, 16.2f, 8);
		canvas.Body(pill, Downward(Lighter(sign.colour, .3f), Darker(sign.colour, .25f), 0, 18),
		            InkOf(sign.colour), .8f, 1.6f, 3, .3f);
		canvas.Caption(sign.text, 13, 34, 8.6f, PAINT_WHITE, InkOf(sign.colour), 1.2f);
		sink.Add(sign.file, canvas.Finish());
	}
}

static void DrawScoreBox(Sink& sink)
{
	const int W = 172, H = 78;
	Image box = SteelPanel(W, H, 10, false);
	Canvas canvas(W, H);
	for (float y : {17.f, 47.f}) {
		DrawWindow(canvas, 62, y, 91, 20);
		canvas.Caption(y < 20 ? "Score" : "Money", 15, 54, y + 10, CAPTION, PAINT_TEXT_BLUE, 1.3f,
		               Align::Right);
	}
	Compose(box, canvas.Finish(), 0, 0);
	sink.Add("mapscorebox.png", box);
	Image shelf(800, 76); // its own shadow falls below the screen
	Compose(shelf, SteelPanel(805, 82, 10, false), 0, 0);
	Canvas rivets(800, 76, 2);
	for (float x : {9.f, 790.f})
		DrawRivet(rivets, x, 37, 2.2f);
	Compose(shelf, rivets.Finish(), 0, 0);
	sink.Add("mapshelf.png", shelf);
}

// --- the key

namespace
{
struct KeyRow {
	DotKind kind;
	DotFace face;
	const char* text;
};
} // namespace

static void AddKeyRows(Sink& sink, const char* file, const std::vector<KeyRow>& rows)
{
	const int W = 108, ROW = 22;
	int h = ROW * (int)rows.size();
	Canvas canvas(W, h);
	Image dots(W, h);
	for (size_t i = 0; i < rows.size(); i++) {
		float y = ROW * (i + .5f) - 1.5f; // the last row keeps off the frame
		ComposeCentred(dots, Popped(DrawDot(rows[i].kind, rows[i].face, 0), .9f), 14.5f, y);
		canvas.Print(rows[i].text, 15, 32, y, PAINT_TEXT);
	}
	Compose(dots, canvas.Finish(), 0, 0);
	sink.Add(file, dots);
}

static void DrawKey(Sink& sink)
{
	const int W = 132;
	for (int i = 0; i < 3; i++) {
		int h     = 114 + 44 * i;
		Image box = PaperPanel(W, h, 8);
		Canvas canvas(W, h);
		canvas.Print("Map key", 17, 64, 22, HEADING, Align::Centre);
		Compose(box, canvas.Finish(), 0, 0);
		sink.Add(std::string("maplegendbox") + (char)('A' + i) + ".png", box);
	}
	AddKeyRows(sink, "maplegendtextA.png",
	           {{DotKind::Regular, DotFace::Incomplete, "To play"},
	            {DotKind::Regular, DotFace::Completed, "Done"},
	            {DotKind::Regular, DotFace::Locked, "Locked"}});
	AddKeyRows(sink, "maplegendtextB.png",
	           {{DotKind::Bonus, DotFace::Completed, "Bonus"},
	            {DotKind::Star, DotFace::Incomplete, "Special"}});
	AddKeyRows(sink, "maplegendtextC.png", {{DotKind::Side, DotFace::Completed, "Side path"}});
	AddKeyRows(sink, "maplegendtextD.png", {{DotKind::Alien, DotFace::Completed, "Alien"}});
}

// --- help

static void DrawHelp(Sink& sink)
{
	sink.Add("mapoverviewboxlockedmain.png", PaperPanel(200, 104, 9));
	Canvas words(160, 90);
	words.Print("Welcome!", 20, 79, 18, HEADING, Align::Centre);
	words.Print(Wrapped("Press Play to start your first level.", 16, 150), 16, 79, 52, PAINT_TEXT,
	            Align::Centre);
	sink.Add("maphelptext.png", words.Finish());
	Image shadow(34, 12);
	for (int y = 0; y < shadow.height; y++)
		for (int x = 0; x < shadow.width; x++) {
			float q = std::hypot((x + .5f - 17) / 14, (y + .5f - 6) / 5);
			Blend(shadow, x, y, HexColour(0x0a1c10), .55f * Smoothstep(1, .2f, q));
		}
	sink.Add("maphelparrowshadow.png", shadow);
}

// --- the overview's signs

static void DrawLabels(Sink& sink)
{
	struct Label {
		const char *file, *text;
		uint32_t edge;
	};
	static const Label s_labels[] = {{"west", "Western Isles", 0x1c5a1c},
	                                 {"south", "Southern Isles", 0x1c4a6c},
	                                 {"east", "Eastern Isles", 0x7a2c14}};
	const int W = 178, H = 52;
	for (const Label& label : s_labels) {
		Image sign = Plank(W, H);
		Canvas canvas(W, H);
		canvas.Caption(label.text, 20, W * .5f - 2, 30, PAINT_CREAM, HexColour(label.edge), 1.8f);
		Compose(sign, canvas.Finish(), 0, 0);
		sink.Add(std::string("mapoverviewlabel") + label.file + ".png", sign);
	}
	for (int i = 1; i <= 3; i++) {
		Canvas canvas(90, 18);
		canvas.Print("Chapter " + std::to_string(i), 13, 43, 9, PAINT_TEXT_BROWN, Align::Centre);
		sink.Add("mapoverviewlabelchapter" + std::to_string(i) + ".png", canvas.Finish());
	}
	Image title = Plank(476, 72);
	ComposeCentred(title, TitleLettering("Choose your islands", 42, TITLE_YELLOW), 236, 34);
	sink.Add("mapoverviewboxchoosemain.png", title);
}

static void DrawLock(Sink& sink)
{
	Canvas canvas(40, 44, 6);
	PathFn bow = [](cairo_t* c) {
		cairo_move_to(c, 12, 23);
		cairo_line_to(c, 12, 13);
		cairo_arc(c, 20, 13, 8, PI, 2 * PI);
		cairo_line_to(c, 28, 23);
	};
	PathFn body = RoundRect(5, 19, 30, 21, 5);
	canvas.DropShadow(body, 1.6f, 1, 2, .5f);
	canvas.Stroke(bow, HexColour(0x1c2430), 7);
	canvas.Stroke(bow, HexColour(0xb4c0d0), 4.2f);
	canvas.Stroke(bow, PAINT_WHITE, 1.2f, .7f);
	canvas.Body(body, Downward(HexColour(0xffd868), HexColour(0xd08a1e), 19, 40), PAINT_BRASS_INK,
	            1.4f, 2.6f, 3, .6f);
	canvas.Fill(Disc(20, 27.6f, 3.2f), PAINT_BRASS_INK);
	canvas.Fill(RoundRect(18.6f, 28, 2.8f, 8, 1), PAINT_BRASS_INK);
	sink.Add("mapoverviewlock.png", canvas.Finish());
}

void AddMapBoxes(Catalogue& catalogue)
{
	catalogue.Add("map/box/mode", __FILE__, DrawModeBox);
	catalogue.Add("map/box/signs", __FILE__, DrawModeSigns);
	catalogue.Add("map/box/score", __FILE__, DrawScoreBox);
	catalogue.Add("map/box/key", __FILE__, DrawKey);
	catalogue.Add("map/box/help", __FILE__, DrawHelp);
	catalogue.Add("map/box/labels", __FILE__, DrawLabels);
	catalogue.Add("map/box/lock", __FILE__, DrawLock);
}
