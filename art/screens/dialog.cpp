// The modal box: its frame with the empty plank, titles, words, questions and buttons.
#include "art/families.h"
#include "art/screens/frames.h"

// Places of the game's screen, in pixels.
static const int BOX_X = 213, BOX_Y = 158;
static const int WORDS_MIDDLE = 254; // between the plank and the question
static const int TITLE_X = 278, TITLE_Y = 177, QUESTION_X = 286;
static const int PAPER_TOP      = 16; // below the picture's top, where the plank begins
static const int MIDDLE_X       = 400;
static const float TITLE_MIDDLE = 190; // of the plank and of the words on it

static void DrawBox(Sink& sink)
{
	const int W = 2 * (MIDDLE_X - BOX_X) + 3, H = 248, PLANK_W = 272, PLANK_H = 54;
	Image box(W, H);
	Compose(box, PaperPanel(W, H - PAPER_TOP), 0, PAPER_TOP);
	Compose(box, Plank(PLANK_W, PLANK_H), MIDDLE_X - BOX_X - PLANK_W / 2 + 2,
	        (int)std::lround(TITLE_MIDDLE - BOX_Y) - PLANK_H / 2 + 3);
	sink.Add("confirmation_main.png", box);
}

static std::string TitleFile(const std::string& name)
{
	return "confirmation_A_" + name + ".png";
}

static Image Title(const char* text, int x)
{
	const int H = 32;
	int w       = 2 * (MIDDLE_X - x);
	return TitleOn(w, H, w * .5f, TITLE_MIDDLE - TITLE_Y, text, 23, TITLE_YELLOW);
}

static Image SteelPlate(int w, int h)
{
	Canvas canvas(w, h);
	DrawWindow(canvas, 4, 4, w - 8.f, h - 8.f, HexColour(0x1c4468), 6);
	return canvas.Finish();
}

static void DrawTitles(Sink& sink)
{
	static const struct {
		const char* name;
		const char* text;
		int x = TITLE_X;
	} s_titles[] = {
	    {"moregames", "More games"},         {"changemode", "Change the mode"},
	    {"resetmap", "Start over?"},         {"levellocked", "Level locked"},
	    {"levelplayed", "Play it again?"},   {"islandslocked", "Islands locked"},
	    {"resettrophies", "Reset trophies"}, {"disableshield", "Shield off?"},
	    {"deleteuser", "Delete player"},     {"resethighscores", "Reset scores"},
	    {"nameinuse", "Name in use"},        {"poorperformance", "Too slow?", 272},
	};
	for (const auto& title : s_titles)
		sink.Add(TitleFile(title.name), Title(title.text, title.x));
	// The text of this one is set in the game's own light letters, which ask for a dark ground.
	const int PLATE_X = 282, PLATE_Y = 214, PLATE_W = 266, PLATE_H = 74;
	Image title = Title("Server error", TITLE_X);
	Image plate = SteelPlate(PLATE_W, PLATE_H);
	Image both(PLATE_X + PLATE_W - TITLE_X, PLATE_Y + PLATE_H - TITLE_Y);
	Compose(both, title, 0, 0);
	Compose(both, plate, PLATE_X - TITLE_X, PLATE_Y - TITLE_Y);
	sink.Add(TitleFile("serverrerror"), both);
}

static void DrawWords(Sink& sink)
{
	static const struct {
		const char* name;
		int x, y;
		const char* text;
	} s_words[] = {
	    {"moregames", 264, 229, "You are about to leave the game\nfor a page on the Internet."},
	    {"changemode", 258, 221,
	     "The way you play will change, and\nthis run will count as a kids' game."},
	    {"resetmap", 265, 217,
	     "Every level on the map will be\nclosed again, and all your progress\nwill be lost."},
	    {"levellocked", 259, 226, "This level is still locked. Finish\nthe level before it first."},
	    {"levelplayed", 271, 210,
	     "You have finished this level.\nYou may play it once more\nfor a better result."},
	    {"islandslocked", 279, 211,
	     "These islands are still closed.\nFinish all the levels of the\nislands before them "
	     "first."},
	    {"resettrophies", 300, 230, "All the trophies that you\nhave won will be lost."},
	    {"disableshield", 239, 218,
	     "The kids' shield keeps the bubble in play.\nWithout it the bubble can be lost."},
	    {"deleteuser", 327, 238, "All will be lost!"},
	    {"resethighscores", 296, 230, "All the high scores on\nthis list will be lost."},
	    {"namealreadyexists", 258, 223, "Another player on this computer\nalready has this name."},
	    {"namealreadyexistshiscores", 278, 208,
	     "This name is already taken\nin the list on the Internet.\nPlease choose another one."},
	    {"poorperformance", 278, 208,
	     "The game does not run as\nsmoothly as it should here.\nWithout weather it is faster."},
	};
	for (const auto& words : s_words)
		sink.Add(std::string("confirmation_B_") + words.name + ".png",
		         TextBlock(words.text, 18, 2 * (MIDDLE_X - words.x), 2 * (WORDS_MIDDLE - words.y),
		                   PAINT_TEXT, 23));
}

static void DrawQuestions(Sink& sink)
{
	static const char* const s_questions[][2] = {
	    {"areyousure", "Are you sure?"},
	    {"clickokay", "Click okay to go on."},
	    {"disableweather", "Turn weather effects off?"},
	    {"playagain", "Play it again?"},
	    {"proceed", "Go there now?"},
	};
	for (const auto& question : s_questions)
		sink.Add(std::string("confirmation_C_") + question[0] + ".png",
		         TextBlock(question[1], 19, 2 * (MIDDLE_X - QUESTION_X), 22, PAINT_HEADING));
}

void AddDialog(Catalogue& catalogue)
{
	catalogue.Add("dialog/box", __FILE__, DrawBox);
	catalogue.Add("dialog/titles", __FILE__, DrawTitles);
	catalogue.Add("dialog/words", __FILE__, [](Sink& sink) {
		DrawWords(sink);
		DrawQuestions(sink);
	});
	catalogue.Add("dialog/buttons", __FILE__, [](Sink& sink) {
		AddCapsule(sink, "confirmation_buttonokay", 140, 40, "Okay", PAINT_GO, 22);
		AddCapsule(sink, "confirmation_buttoncancel", 140, 40, "Cancel", PAINT_STOP, 22);
	});
}
