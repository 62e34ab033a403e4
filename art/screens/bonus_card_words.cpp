// The sentences of the title cards of bonus levels, in the pieces that the game puts together.
#include "art/families.h"
#include "art/objects/crates.h"
#include "art/objects/points.h"
#include "art/screens/frames.h"

static const int MIDDLE_X = 400; // of every card, on the game's screen
// Sentences put together of several pictures keep to one size, whatever picture a word is in.
static const float ROW_SIZE = 16; // the longest sentence just fits on the paper
static const float SIZE     = 17;
static const int STEP       = 19; // from line to line

static void Add(Sink& sink, const char* name, const Image& image)
{
	sink.Add(std::string("prelevel_text_") + name + ".png", image);
}

// Words of a sentence that goes on in other pictures: `middle` is how far below the picture's top
// the line runs.
static void AddPiece(Sink& sink, const char* name, const std::string& text, int middle,
                     float size = ROW_SIZE)
{
	Add(sink, name, TextPiece(text, size, 2 * middle));
}

// Words that end at x = `end` of a picture of the given width; another goes on behind it.
static void AddEnd(Sink& sink, const char* name, int w, float end, const char* text, int middle)
{
	Canvas canvas(w, 2 * middle);
	canvas.Print(text, ROW_SIZE, end, middle - ROW_SIZE * .04f, PAINT_TEXT, Align::Right);
	Add(sink, name, canvas.Finish());
}

// A block of its own, of which the game knows the left edge only.
static void AddBlock(Sink& sink, const char* name, int x, const char* text, Colour c = PAINT_TEXT,
                     float size = SIZE)
{
	Add(sink, name, TextAround(text, size, x, MIDDLE_X, c, STEP));
}

// The same, whose lines run from `middle` below the picture's top.
static void AddLines(Sink& sink, const char* name, int x, const std::string& text, int middle,
                     Colour c = PAINT_TEXT, int lines = 1)
{
	int h = 2 * middle + STEP * (lines - 1);
	Add(sink, name, TextBlock(text, SIZE, 2 * (MIDDLE_X - x), h, c, STEP));
}

static void DrawLowerTexts(Sink& sink)
{
	const Colour HEADING = PAINT_HEADING;
	AddLines(sink, "achieveperfect", 313, "For a perfect score,", 11, HEADING);
	AddLines(sink, "breakingall", 321, "break all there is.", 11);
	AddLines(sink, "lastinguntil", 303, "last until time runs out.", 11);
	AddPiece(sink, "collectingatleast", "you need at least", 11, SIZE);
	AddPiece(sink, "eggs1", " eggs.", 11, SIZE);
	AddLines(sink, "thefewerbirds", 307, "The fewer birds you hit,", 12, HEADING);
	AddLines(sink, "thefewerdogs", 305, "The fewer dogs you wake,", 12, HEADING);
	AddLines(sink, "thefewerskunks", 303, "The fewer you upset,", 12, HEADING);
	AddLines(sink, "thelesspollution", 244, "The less pollution you cause,", 12, HEADING);
	AddLines(sink, "themorebonus", 294, "the more bonus you get!", 11);
	AddLines(sink, "tomakeeasier", 324, "To make it easier,", 8, HEADING);
	AddLines(sink, "bulldozer", 323, "the bubble breaks\nthrough most things!", 12, PAINT_TEXT, 2);
	AddLines(sink, "unlimitedfans", 262, "your fans will never run down here.", 10);
	sink.Add("prelevel_boxBtext.png",
	         EdgedBlock("Hold the right button to blow!", 17, 2 * (MIDDLE_X - 280), 22));
	for (int i = 0; i < 10; i++)
		Add(sink, ("with_bg_" + std::to_string(i)).c_str(),
		    TextBlock(std::to_string(i), 16.5f, 13, 22));
}

// Three crates with their numbers, under the words.
static Image OrderPicture(Image words)
{
	const int PITCH = 62, FOOT = 160, CRATE_W = 50, CRATE_H = 40;
	Image out(words.width, FOOT);
	Compose(out, words, 0, 0);
	for (int i = 0; i < 3; i++) {
		int middle = words.width / 2 + (i - 1) * PITCH, top = FOOT - CRATE_H - 1;
		DrawFootShadow(out, middle + 2, FOOT - 9, 24, PAINT_SHADOW_SAND, .3f);
		Compose(out, CrateImage(i == 1 ? CrateLook::Dark : CrateLook::Light), middle - CRATE_W / 2,
		        top);
		Compose(out, OrderNumber(i + 1), middle - 13, top - 17);
	}
	return out;
}

// The harvest, far below the words, where others have a box.
static Image HarvestPicture(Image words)
{
	static const struct {
		Fruit fruit;
		int variant, x, y;
	} s_pieces[] = {
	    {Fruit::Coconut, 0, 77, 134},     {Fruit::Pinecone, 0, 115, 122},
	    {Fruit::RedApple, 1, 153, 124},   {Fruit::Coconut, 1, 186, 137},
	    {Fruit::Acorn, 1, 52, 150},       {Fruit::RedApple, 0, 99, 146},
	    {Fruit::GreenApple, 2, 135, 148}, {Fruit::Acorn, 0, 170, 154},
	    {Fruit::Pinecone, 1, 211, 154},
	};
	const float ZOOM = 1.7f;
	Image out(words.width, 186);
	Compose(out, words, 0, 0);
	DrawFootShadow(out, words.width * .5f + 2, 164, 76, PAINT_SHADOW_SAND, .28f);
	for (const auto& piece : s_pieces)
		ComposeCentred(out, FruitImage(piece.fruit, piece.variant, ZOOM), (float)piece.x,
		               (float)piece.y);
	return out;
}

static void DrawUpperTexts(Sink& sink)
{
	AddBlock(sink, "demolition", 307,
	         "Win by breaking\neverything there is\nbefore the time is up!", PAINT_TEXT, 18);
	AddBlock(sink, "quorbletfaster", 301, "The bubble is a good\ndeal faster than usual.");
	AddBlock(sink, "keepinplay", 301, "Keep it in play as\nlong as you can!");
	AddBlock(sink, "birdsanctuary", 277, "This is a home for birds.");
	AddBlock(sink, "birdsanctuary2", 279, "Keep the bubble away from\nthem until time runs out!");
	AddLines(sink, "pollutiondrums", 262, "Do not hit the drums!", 14);
	AddLines(sink, "dogsasleep", 304, "Do not wake the dogs!", 20);
	AddLines(sink, "skunkcolony", 284, "Do not upset the skunks!", 16);
	int order = MIDDLE_X - 295;
	Add(sink, "winbybreaking",
	    OrderPicture(TextBlock("Win by breaking\nthe crates in the order\nof their numbers!",
	                           SIZE + 1, 2 * order, 66, PAINT_TEXT, 21)));
	AddBlock(sink, "someanimalsstuck", 290, "Some animals are stuck\nin a tight spot.");
	AddBlock(sink, "makerescue", 284, "Rescue all of them\nbefore time runs out!");
}

// Sentences that several cards share parts of:
//   "Win by rescuing / all the monkeys / you can!"
//   "Catch all the coins / ..." and "Catch all the eggs / you can!"
//   "You win by bringing them all the / apples, acorns, coconuts, and pinecones you can!"
static void DrawSharedTexts(Sink& sink)
{
	static const int ROW = 13; // line of the row of fruit below the top of its pictures
	AddBlock(sink, "winbyrescuing1", 303, "Win by rescuing", PAINT_TEXT, ROW_SIZE);
	AddPiece(sink, "monkeys", "monkeys", 13);
	AddPiece(sink, "sheep", "sheep", 12);
	AddPiece(sink, "turtles", "turtles", 12);
	AddPiece(sink, "frogs", "frogs", 14);
	AddPiece(sink, "ostriches", "ostriches", 12);
	AddPiece(sink, "cats", "cats", 12);
	AddPiece(sink, "coins", "coins", 12);
	AddPiece(sink, "eggs2", "eggs", 10);
	AddEnd(sink, "animalshungry3", 53, 49.5f, "all the", 10);
	AddEnd(sink, "stampede1", 100, 96.5f, "Catch all the", 12);
	AddBlock(sink, "stampede2", 295, "that are hidden in things!", PAINT_TEXT, ROW_SIZE);
	Add(sink, "animalshungry1",
	    HarvestPicture(TextAround("The animals are hungry!\nEach of them likes fruit.", ROW_SIZE,
	                              270, MIDDLE_X, PAINT_TEXT, STEP)));
	AddEnd(sink, "animalshungry2", 197, 196.5f, "You win by bringing them", 12);
	AddPiece(sink, "apples", "apples", ROW);
	AddPiece(sink, "acorns", "acorns", ROW);
	AddPiece(sink, "coconuts", "coconuts", ROW);
	AddPiece(sink, "pinecones", "pinecones", ROW);
	AddPiece(sink, "comma", ", ", ROW);
	AddPiece(sink, "and", "and ", ROW);
	AddEnd(sink, "winbyrescuing3", 59, 58, "you can!", ROW); // stands under other lines too
}

void AddBonusCardWords(Catalogue& catalogue)
{
	catalogue.Add("bonuscard/words", __FILE__, [](Sink& sink) {
		DrawLowerTexts(sink);
		DrawUpperTexts(sink);
		DrawSharedTexts(sink);
	});
}
