// The pages round the game: sizes that the game counts on, room for pointers, texts in their boxes.
#include "art/core/encode.h"
#include "art/families.h"

#include <gtest/gtest.h>
#include <map>

namespace
{
using Images = std::map<std::string, Image>;

// What the given entry points draw.
Images Drawn(std::initializer_list<void (*)(Catalogue&)> entries)
{
	Catalogue catalogue;
	for (auto* entry : entries)
		entry(catalogue);
	Images images;
	for (const Group& group : catalogue.groups) {
		if (group.name == "pages/credits/photo" || group.name == "pages/instructions/field")
			continue; // slow, and asked for nothing here
		Sink sink;
		group.draw(sink);
		for (const Picture& picture : sink.pictures)
			if (picture.name.find(".png") != std::string::npos)
				images[picture.name] = DecodePng(picture.bytes);
	}
	return images;
}

const Images& Pages()
{
	static const Images images =
	    Drawn({AddGameChoice, AddProfilePages, AddOptionsPages, AddInstructions, AddCredits});
	return images;
}

const Image& Page(const std::string& name)
{
	static const Image none;
	auto found = Pages().find(name);
	EXPECT_NE(found, Pages().end()) << name;
	return found == Pages().end() ? none : found->second;
}

// Where the game puts a family of pictures.
struct Placed {
	const char* family;
	int x, y;
};
} // namespace

// clang-format off
static const std::vector<std::vector<Placed>> s_screens = {
	{{"modeselection_buttonregular", 251, 330}, {"modeselection_buttonkids", 414, 330}},
	{{"continuegame_buttoncontinue", 260, 330}, {"continuegame_buttonnewgame", 405, 330}},
	{{"profilebuttonarrowup", 487, 209}, {"profilebuttonarrowdown", 487, 250},
	 {"profilebuttonselect", 358, 307}, {"profilebuttondelete", 425, 307},
	 {"profilebuttonrename", 358, 336}, {"profilebuttonaddnew", 358, 363}},
	{{"endgame_button_okay", 456, 266}, {"endgame_button_cancel", 456, 302}},
	{{"optionsbuttoncontrols", 348, 432}, {"optionsbuttonback", 348, 468}},
	{{"optionscontrolsinput", 423, 373}, {"optionsbuttonreset", 330, 433},
	 {"optionsbuttonsave", 330, 470}, {"optionsbuttoncancel", 402, 470}},
	{{"instructionsbuttonexit", 626, 516}},
};
// clang-format on

TEST(Pages, HaveButtonsOfOneSizeInAllStates)
{
	for (const auto& screen : s_screens)
		for (const Placed& button : screen) {
			const std::string family = button.family;
			const Image& base        = Page(family + "base.png");
			for (const char* state : {"rollover.png", "shadow.png"}) {
				EXPECT_EQ(Page(family + state).width, base.width) << family;
				EXPECT_EQ(Page(family + state).height, base.height) << family;
			}
			EXPECT_NE(Page(family + "rollover.png").data, base.data) << family;
		}
}

TEST(Pages, KeepNeighbouringButtonsApart)
{
	for (const auto& screen : s_screens)
		for (size_t i = 0; i < screen.size(); i++)
			for (size_t k = i + 1; k < screen.size(); k++) {
				const Placed &a = screen[i], &b = screen[k];
				const Image& first  = Page(std::string(a.family) + "base.png");
				const Image& second = Page(std::string(b.family) + "base.png");
				bool apart          = a.x + first.width <= b.x || b.x + second.width <= a.x ||
				             a.y + first.height <= b.y || b.y + second.height <= a.y;
				EXPECT_TRUE(apart) << a.family << " and " << b.family;
			}
}

// A letter that reaches the edge of its picture would be cut.
TEST(Pages, KeepTextsClearOfTheirPicturesEdges)
{
	int texts = 0;
	for (const auto& [name, image] : Pages()) {
		bool text = name.find("instructionspowerupinfo") == 0 ||
		            name.find("instructionspowerupname") == 0 || name.find("optionstext") == 0 ||
		            name.find("optionscontrolstext") == 0 || name == "continuegame_mainC.png" ||
		            name == "instructionspartA2.png" || name == "instructionspartB2.png" ||
		            name == "instructionspartCtext.png" || name == "creditsB.png";
		if (!text)
			continue;
		texts++;
		Bounds ink = OpaqueBounds(image, .05f);
		EXPECT_GT(ink.left, 0) << name;
		EXPECT_GT(ink.top, 0) << name;
		EXPECT_LT(ink.right, image.width - 1) << name;
		EXPECT_LT(ink.bottom, image.height - 1) << name;
	}
	EXPECT_EQ(texts, 16 + 16 + 3 + 4 + 5);
}

// The controls stand over a picture of the options: what shines through would seem to be theirs.
TEST(OptionsPage, HasABoardThatHidesAllItsWidgets)
{
	const int BOARD_X = 225, BOARD_Y = 51;
	const Image& board = Page("optionsmain.png");
	for (int y = 140; y < 505; y++)
		for (int x = 247; x < 555; x++)
			ASSERT_EQ(board.At(x - BOARD_X, y - BOARD_Y)[3], 1) << x << ", " << y;
}

TEST(OptionsPage, HasFieldsWithRoomForTheLongestKeyName)
{
	const int LETTERS = 10, CELL = 10, TEXT_X = 8, TEXT_Y = 7, LINE = 20;
	const Image& field = Page("optionscontrolsinputbase.png");
	EXPECT_GE(field.width, TEXT_X + LETTERS * CELL + TEXT_X);
	EXPECT_GE(field.height, TEXT_Y + LINE);
}

TEST(InstructionsPage, LightsARingRoundADiscThatStaysInSight)
{
	const int OUTSET  = 6;
	const Image &disc = Page("instructionspowerupdiscbase.png"),
	            &glow = Page("instructionspowerupdiscglow.png");
	EXPECT_EQ(disc.width + 2 * OUTSET, glow.width);
	EXPECT_EQ(disc.height + 2 * OUTSET, glow.height);
	const int middle = glow.width / 2;
	EXPECT_LT(glow.At(middle, middle)[3], .02f);
	EXPECT_GT(glow.At(middle, OUTSET)[3], .5f);
}

TEST(InstructionsPage, TellsOfAllPrizes)
{
	for (const char* word :
	     {"fast", "slow", "rain", "destructo", "barrier", "grav", "bulldozer", "fans", "bubblegrow",
	      "sticky", "2x", "3x", "4x", "1up", "grow", "shrink"})
		for (const char* kind : {"name", "info"}) {
			const Image& text = Page(std::string("instructionspowerup") + kind + word + ".png");
			EXPECT_GT(OpaqueBounds(text).Width(), 25) << kind << word;
		}
}
