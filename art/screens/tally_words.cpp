// The tally's sentences, in pieces that the game sets side by side with numbers between them.
#include "art/families.h"
#include "art/screens/frames.h"

static const int HEIGHT       = 23; // of every piece: they share a base line
static const float LINE_SIZE  = 17; // in the lines of a regular level
static const float TITLE_SIZE = 18;
static const float WORD_SIZE  = 20; // in the box of a bonus level
static const int DIGIT_WIDTH  = 11; // all alike: amounts stand in columns and don't shake

// A piece that a number or a word comes after ends in a space; one that comes after a number
// begins with one. Which piece follows which is told by src/level/tally_words.cpp.
// clang-format off
static const char* const s_bonusWords[][2] = {
	// of several types
	{ "all",              "all " },
	{ "exclamation",      "!" },
	{ "ofthe",            " of the " },
	{ "with",             "with " },
	{ "seconds",          " seconds!" },
	{ "secondsleft",      " seconds to spare!" },
	{ "yourescued",       "You rescued " },
	{ "youbroke",         "You broke " },
	{ "youbrokeall",      "You broke them all" },
	// dodgeball: "You managed to spare / all 10 of the birds!"
	{ "youmanagedbird",   "You managed to spare" },
	{ "ofthebirds",       " of the birds!" },
	{ "allbirds",         "You troubled all the birds!" },
	{ "youavoidedpollution", "You kept the lid on" },
	{ "ofthedrums",       " of the drums!" },
	{ "alldrums",         "You let all the drums spill!" },
	{ "youmanageddogs",   "You managed not to wake" },
	{ "ofthedogs",        " of the dogs!" },
	{ "alldogs",          "You woke all the dogs!" },
	{ "youavoidedskunks", "You managed not to upset" },
	{ "oftheskunks",      " of the skunks!" },
	{ "allskunks",        "You upset all the skunks!" },
	// speedball, tight spot
	{ "youkepttheball",   "You kept the bubble in play for" },
	{ "yourescuedthe",    "You rescued the " },
	{ "animal",           "animal" },
	{ "animals",          "animals" },
	// order
	{ "perfectorder",     "in perfect order!" },
	{ "brokeinthisorder", "You broke the crates in this order:" },
	{ "hyphen",           " - " },
	// stampede: "You rescued all / of the monkeys!"
	{ "monkeys",          "monkeys" },
	{ "sheep",            "sheep" },
	{ "turtles",          "turtles" },
	{ "ostriches",        "ostriches" },
	{ "frogs",            "frogs" },
	{ "cats",             "cats" },
	// demolition, coin, egg, harvest
	{ "oftheobjects",     " of the things" },
	{ "bracket",          "(" },
	{ "objectsremaining", " still standing)" },
	{ "youcollectedmoney", "Your coins are worth " },
	{ "objects",          " things!" },
	{ "youcollected",     "You collected " },
	{ "eggs",             " of the eggs!" },
	{ "harvest",          "You gathered:" },
};

static const char* const s_timeWords[][2] = {
	{ "completed", "Finished in under " },
	{ "1", "1" }, { "2", "2" }, { "3", "3" }, { "4", "4" }, { "5", "5" },
	{ "10", "10" }, { "20", "20" }, { "30", "30" }, { "40", "40" }, { "50", "50" },
	{ "seconds", " seconds" }, { "minute", " minute" }, { "minutes", " minutes" },
};

static const struct {
	const char* name;
	const char* title;
	const char* words; // null: composed of the words above
} s_lines[] = {
	{ "time",   "Time",      nullptr },
	{ "skunk",  "Skunks",    "Nobody was sprayed" },
	{ "enviro", "Clean air", "The drums stayed shut" },
	{ "alien",  "Visitor",   "An alien was taken home" },
};
// clang-format on

static void DrawBonusWords(Sink& sink)
{
	for (const auto& word : s_bonusWords)
		sink.Add(std::string("postlevel_bonus_text_") + word[0] + ".png",
		         TextPiece(word[1], WORD_SIZE, HEIGHT));
	for (int i = 0; i < 10; i++) {
		std::string digit = std::to_string(i);
		sink.Add("postlevel_bonus_text_" + digit + ".png",
		         TextBlock(digit, WORD_SIZE, DIGIT_WIDTH, HEIGHT, PAINT_MONEY));
	}
}

static void DrawLineWords(Sink& sink)
{
	for (const auto& word : s_timeWords)
		sink.Add(std::string("postlevel_bonustime_text") + word[0] + ".png",
		         TextPiece(word[1], LINE_SIZE, HEIGHT));
	for (const auto& line : s_lines) {
		sink.Add(std::string("postlevel_bonustitle_") + line.name + ".png",
		         TextPiece(line.title, TITLE_SIZE, HEIGHT, PAINT_HEADING));
		if (line.words)
			sink.Add(std::string("postlevel_bonusdescription_") + line.name + ".png",
			         TextPiece(line.words, LINE_SIZE, HEIGHT));
	}
	sink.Add("postlevel_nobonus.png", TextBlock("No bonus this time", 19, 300, 24, PAINT_HEADING));
}

void AddTallyWords(Catalogue& catalogue)
{
	catalogue.Add("tally/words", __FILE__, DrawBonusWords);
	catalogue.Add("tally/lines", __FILE__, DrawLineWords);
}
