// The tally after a level: how its panel is laid out and drawn.
#include "screens/level_tally.h"

#include "animals/species_numbers.h"
#include "field/portraits.h"
#include "field/score_drum.h"
#include "field/sidebar.h"
#include "media/display.h"
#include "media/gui_button.h"
#include "media/sprite.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cstdio>

static const int CARD_DEPTH = 505000, PICTURE_DEPTH = 506000;

// The panel stands in the middle of the field; sizes in pixels.
static const int FIELD_MIDDLE = 346;
static const int PANEL_LEFT   = 107;
static const int COLUMN_LEFT = 139, COLUMN_WIDTH = 414;
static const int HEAD_HEIGHT = 52; // title plank and upper edge
static const int FOOT_HEIGHT = 71; // buttons and lower edge
static const int NEW_HEIGHT = 75, ANIMALS_HEIGHT = 112, BUTTERFLY_HEIGHT = 40;
static const int TITLE_HEIGHT  = 24; // above a box, where it has one
static const int TOTALS_HEIGHT = 98;
static const int LINES_EDGE = 12, LINE_HEIGHT = 23, NO_BONUS_HEIGHT = 27;
static const int LINE_TITLE_X = 15, LINE_WORDS_X = 97, LINE_AMOUNT_X = 402; // in the column
static const int NEW_TITLE_WIDTH  = 118;
static const int FRAME_EDGE       = 5; // from a frame's corner to its window
static const int FACE_HEIGHT      = 54;
static const int MOST_IN_A_ROW    = 7;
static const int MOST_BUTTERFLIES = 6;
static const int TEXT_LINE        = 28;
static const int HARVEST_AMOUNT_X = 300; // right end, in the column
static const int DIGITS           = 7;

static const char* const COUNT_DIGIT  = "postlevel_tallynumbers_%i.png";
static const char* const AMOUNT_DIGIT = "postlevel_bonus_text_%i.png";

// clang-format off
static const struct {
	const char* family;
	int x;   // of the panel's row of buttons
	int y;   // above the panel's lower edge
} s_buttons[CControllerLevelTally::BUTTON_COUNT] = {
	{ "postlevel_button_retry",     336, 66 },
	{ "postlevel_button_continue",  434, 70 },
	{ "postlevel_button_mainmenu",  134, 66 },
	{ "postlevel_button_sanctuary", 232, 66 },
};
static const int s_totalsX[] = { 163, 301, 439 };
// clang-format on

// The places of the boxes follow from what the level brought.
void CControllerLevelTally::LayOut()
{
	const bool regular = count.type == TALLY_REGULAR;
	height    = TallyHeight(count.type, static_cast<int>(lines.size()), !newSpecies.empty());
	top       = (SCREEN_HEIGHT - height) / 2;
	newTop    = top + HEAD_HEIGHT;
	totalsTop = top + height - FOOT_HEIGHT - TOTALS_HEIGHT;
	if (regular) {
		animalsTop   = newSpecies.empty() ? newTop : newTop + NEW_HEIGHT;
		butterflyTop = animalsTop + ANIMALS_HEIGHT;
		bonusTop     = butterflyTop + BUTTERFLY_HEIGHT;
		if (g_gameData->rescuesThisLevel == 0) { // the room of their box goes between the others
			animalsTop += BUTTERFLY_HEIGHT / 4;
			bonusTop -= BUTTERFLY_HEIGHT / 4;
		}
	} else {
		bonusTop     = newTop;
		butterflyTop = totalsTop - BUTTERFLY_HEIGHT;
	}
}

void CControllerLevelTally::Build()
{
	LayOut();
	card = new CCard(CARD_DEPTH, true);
	card->Draw("postlevel_main_top.png", PANEL_LEFT, top);
	const char* middle = "postlevel_main_middle.tga";
	const int from     = top + PictureHeight("postlevel_main_top.png");
	const int to       = top + height - PictureHeight("postlevel_main_bottom.png");
	for (int y = from; y < to; y += PictureHeight(middle))
		g_display->DrawFilePart(middle, card->Image(), PANEL_LEFT, y, 0, 0, PictureWidth(middle),
		                        std::min(PictureHeight(middle), to - y));
	card->Draw("postlevel_main_bottom.png", PANEL_LEFT, to);

	amounts.resize(lines.size());
	for (int i = 0; i < BUTTON_COUNT; i++)
		buttons[i] =
		    NewButton(this, i, s_buttons[i].x, top + height - s_buttons[i].y, s_buttons[i].family);
	for (size_t i = 0; i < stepsShown; i++)
		ShowStep(steps[i], true);
}

void CControllerLevelTally::TearDown()
{
	for (CGuiButton*& button : buttons) {
		delete button;
		button = nullptr;
	}
	for (CScoreDrum*& drum : totals) {
		delete drum;
		drum = nullptr;
	}
	for (std::vector<CSprite*>& figures : amounts)
		for (CSprite* figure : figures)
			delete figure;
	amounts.clear();
	for (CSprite* picture : pictures)
		delete picture;
	pictures.clear();
	delete card;
	card = nullptr;
}

void CControllerLevelTally::ShowStep(const TallyStep& step, bool quiet)
{
	switch (step.kind) {
	case STEP_NEW:
		ShowNewSpecies(step.index);
		break;
	case STEP_ANIMALS:
		PutCentred("postlevel_boxanimals_title.png", FIELD_MIDDLE, animalsTop);
		PutBox("postlevel_boxanimals_", animalsTop + TITLE_HEIGHT);
		return;
	case STEP_ANIMAL:
		ShowAnimal(step.index);
		break;
	case STEP_BUTTERFLIES:
		ShowButterflies();
		break;
	case STEP_BONUS_BOX:
		ShowBonusBox();
		break;
	case STEP_LINE:
		ShowLine(step.index);
		break;
	case STEP_NO_BONUS:
		PutCentred("postlevel_nobonus.png", FIELD_MIDDLE, bonusTop);
		return;
	case STEP_TOTALS:
		ShowTotals();
		return;
	}
	if (!quiet)
		PlayFlyaway();
}

CSprite* CControllerLevelTally::Put(const std::string& file, int x, int y)
{
	CSprite* sprite = new CSprite(x, y, PICTURE_DEPTH + static_cast<int>(pictures.size()));
	sprite->AddFile(file);
	pictures.push_back(sprite);
	return sprite;
}

void CControllerLevelTally::PutCentred(const std::string& file, int middleX, int y)
{
	Put(file, middleX - PictureWidth(file) / 2, y);
}

// A box as wide as the column: its ends, and the middle piece as often as it fits.
void CControllerLevelTally::PutBox(const std::string& family, int y)
{
	const std::string middle = family + "middle.png";
	const int leftWidth      = PictureWidth(family + "left.png");
	const int rightX         = COLUMN_LEFT + COLUMN_WIDTH - PictureWidth(family + "right.png");
	const int width          = PictureWidth(middle);
	Put(family + "left.png", COLUMN_LEFT, y);
	for (int x = COLUMN_LEFT + leftWidth; x < rightX; x += width)
		Put(middle, x, y)->SetWidth(std::min(width, rightX - x));
	Put(family + "right.png", rightX, y);
}

static std::string DigitFile(const char* format, char digit)
{
	char name[80];
	std::snprintf(name, sizeof name, format, digit - '0');
	return name;
}

// Returns the x behind the last figure.
int CControllerLevelTally::PutNumber(const char* format, int value, int x, int y)
{
	for (char digit : std::to_string(std::max(value, 0))) {
		const std::string file = DigitFile(format, digit);
		Put(file, x, y);
		x += PictureWidth(file);
	}
	return x;
}

int CControllerLevelTally::PutWords(const std::vector<TallyWord>& words, int x, int y)
{
	for (const TallyWord& word : words) {
		if (!word.file) {
			x = PutNumber(AMOUNT_DIGIT, word.number, x, y);
			continue;
		}
		Put(word.file, x, y);
		x += PictureWidth(word.file);
	}
	return x;
}

static int WordsWidth(const std::vector<TallyWord>& words)
{
	int width = 0;
	for (const TallyWord& word : words) {
		if (word.file) {
			width += PictureWidth(word.file);
			continue;
		}
		for (char digit : std::to_string(std::max(word.number, 0)))
			width += PictureWidth(DigitFile(AMOUNT_DIGIT, digit));
	}
	return width;
}

static bool EndsLine(const TallyWord& word)
{
	return !word.file && word.number == -1;
}

// Line by line, each in the middle, and all of them about middleY.
void CControllerLevelTally::PutWordsCentred(const std::vector<TallyWord>& words, int middleX,
                                            int middleY)
{
	const int lineEnds = static_cast<int>(std::count_if(words.begin(), words.end(), EndsLine));
	int y              = middleY - TEXT_LINE * (lineEnds + 1) / 2;
	std::vector<TallyWord> line;
	for (size_t i = 0; i <= words.size(); i++) {
		if (i < words.size() && !EndsLine(words[i])) {
			line.push_back(words[i]);
			continue;
		}
		PutWords(line, middleX - WordsWidth(line) / 2, y);
		line.clear();
		y += TEXT_LINE;
	}
}

// The faces stand side by side behind the box's words, closer together when there are many.
void CControllerLevelTally::ShowNewSpecies(int index)
{
	if (index == 0) {
		PutBox("postlevel_boxnewanimal_", newTop);
		Put("postlevel_boxnewanimal_title.png", COLUMN_LEFT + 10, newTop + 8);
	}
	const int portrait = PortraitOfKind(newSpecies[index]);
	if (portrait < 0)
		return;
	const int room  = COLUMN_WIDTH - NEW_TITLE_WIDTH - PORTRAIT_WINDOW_WIDTH - 10;
	const int count = static_cast<int>(newSpecies.size());
	const int pitch = count > 1 ? std::min(PORTRAIT_WINDOW_WIDTH + 10, room / (count - 1)) : 0;
	const int x     = COLUMN_LEFT + NEW_TITLE_WIDTH + index * pitch;
	Put("postlevel_boxnewanimal_frame.png", x - FRAME_EDGE, newTop + 8 - FRAME_EDGE);
	CSprite* face = Put("sidebarportrait" + std::to_string(portrait) + ".png", x, newTop + 8);
	if (face->FullHeight() > FACE_HEIGHT)
		face->SetHeight(FACE_HEIGHT);
}

void CControllerLevelTally::ShowAnimal(int index)
{
	const int count   = static_cast<int>(speciesList.size());
	const int rows    = count > MOST_IN_A_ROW ? 2 : 1;
	const int columns = (count + rows - 1) / rows;
	const int pitch   = COLUMN_WIDTH / columns;
	const int rowHigh = (ANIMALS_HEIGHT - TITLE_HEIGHT - 8) / rows;
	const int middle  = COLUMN_LEFT + pitch * (index % columns) + pitch / 2;
	const int foot = animalsTop + TITLE_HEIGHT + rowHigh * (index / columns + 1) - (rows == 1) * 6;

	const std::string file =
	    std::string("postlevel_animal_") + SpeciesBubbleWord(speciesList[index]) + ".png";
	Put(file, middle - PictureWidth(file) / 2 - 6, foot - PictureHeight(file) - (rows == 1) * 14);
	const int x = middle + 4, y = foot - PictureHeight("postlevel_tallynumbers_x.png");
	Put("postlevel_tallynumbers_x.png", x, y);
	PutNumber(COUNT_DIGIT, speciesCounts[index], x + PictureWidth("postlevel_tallynumbers_x.png"),
	          y);
}

// Up to six are drawn, more are told by a number.
void CControllerLevelTally::ShowButterflies()
{
	const char* picture = "postlevel_butterfly.png";
	PutCentred("postlevel_boxbutterfly_AB.png", FIELD_MIDDLE, butterflyTop);
	const int width  = PictureWidth(picture) + 6;
	const int caught = g_gameData->rescuesThisLevel;
	const int y      = butterflyTop + 5;
	if (caught <= MOST_BUTTERFLIES) {
		for (int i = 0; i < caught; i++)
			Put(picture, FIELD_MIDDLE - caught * width / 2 + i * width, y);
		return;
	}
	Put(picture, FIELD_MIDDLE - width, y);
	Put("postlevel_tallynumbers_x.png", FIELD_MIDDLE, y + 6);
	PutNumber(COUNT_DIGIT, caught, FIELD_MIDDLE + PictureWidth("postlevel_tallynumbers_x.png"),
	          y + 6);
}

void CControllerLevelTally::ShowBonusBox()
{
	static const char* const TITLES[] = {"postlevel_bonus_title_goodtry.png",
	                                     "postlevel_bonus_title_waytogo.png",
	                                     "postlevel_bonus_title_perfect.png"};
	const bool harvest                = count.type == TALLY_HARVEST;
	PutCentred(harvest ? "postlevel_bonus_boxB.png" : "postlevel_bonus_boxA.png", FIELD_MIDDLE,
	           bonusTop + 16);
	PutCentred("postlevel_bonus_title_box.png", FIELD_MIDDLE, bonusTop);
	PutCentred(TITLES[bonusResult.grade], FIELD_MIDDLE, bonusTop + 6);
	if (harvest) {
		ShowHarvest(bonusTop + 46);
		return;
	}
	const std::vector<TallyWord> words = BonusLevelWords(count, bonusResult.grade, record);
	PutWordsCentred(words, FIELD_MIDDLE, bonusTop + 104);
}

void CControllerLevelTally::ShowHarvest(int y)
{
	static const struct {
		const char* picture;
		const char* word;
	} FRUIT[]           = {{"appleA.png", "prelevel_text_apples.png"},
	                       {"pineconeA.png", "prelevel_text_pinecones.png"},
	                       {"acornA.png", "prelevel_text_acorns.png"},
	                       {"coconutA.png", "prelevel_text_coconuts.png"}};
	const int numbers[] = {count.a, count.b, count.c, count.d};
	auto putAmount      = [&](int amount, int amountY) {
        const std::vector<TallyWord> number = {{nullptr, amount}};
        PutWords(number, COLUMN_LEFT + HARVEST_AMOUNT_X - WordsWidth(number), amountY);
	};
	PutCentred("postlevel_bonus_text_harvest.png", FIELD_MIDDLE, y);
	for (int i = 0; i < 4; i++) {
		const int row = y + 26 + i * 22;
		Put(FRUIT[i].picture, COLUMN_LEFT + 90, row);
		Put(FRUIT[i].word, COLUMN_LEFT + 130, row);
		putAmount(numbers[i], row);
	}
	const int total = count.a + count.b + count.c + count.d;
	Put("postlevel_bonus_boxBtotal.png", COLUMN_LEFT + 80, y + 114);
	putAmount(total, y + 116);
}

// The first line brings its box along.
void CControllerLevelTally::ShowLine(int index)
{
	if (index == 0) {
		const char* middle = "postlevel_boxbonuses_middle.tga";
		const int rows     = static_cast<int>(lines.size()) * LINE_HEIGHT;
		Put("postlevel_boxbonuses_top.png", COLUMN_LEFT, bonusTop);
		for (int y = 0; y < rows; y += LINE_HEIGHT)
			Put(middle, COLUMN_LEFT, bonusTop + LINES_EDGE + y);
		Put("postlevel_boxbonuses_bottom.png", COLUMN_LEFT, bonusTop + LINES_EDGE + rows);
	}
	const int y = bonusTop + LINES_EDGE + index * LINE_HEIGHT;
	Put(lines[index].title, COLUMN_LEFT + LINE_TITLE_X, y);
	PutWords(lines[index].words, COLUMN_LEFT + LINE_WORDS_X, y);
	if (static_cast<int>(amountsShown.size()) <= index)
		amountsShown.push_back(0);
	PutLineAmount(index, amountsShown[index] / CScoreDrum::TWENTIETHS);
}

// Set anew, flush right, whenever the counter has gone on.
void CControllerLevelTally::PutLineAmount(int index, int value)
{
	std::vector<CSprite*>& figures = amounts[index];
	for (CSprite* figure : figures)
		delete figure;
	figures.clear();
	const std::string digits = std::to_string(value);
	int x                    = COLUMN_LEFT + LINE_AMOUNT_X;
	for (size_t i = digits.size(); i-- > 0;) {
		const std::string file = DigitFile(AMOUNT_DIGIT, digits[i]);
		x -= PictureWidth(file);
		CSprite* figure =
		    new CSprite(x, bonusTop + LINES_EDGE + index * LINE_HEIGHT, PICTURE_DEPTH + 1000);
		figure->AddFile(file);
		figures.push_back(figure);
	}
}

void CControllerLevelTally::ShowTotals()
{
	PutCentred("postlevel_boxtotal_B.png", FIELD_MIDDLE, totalsTop);
	PutCentred("postlevel_tally.png", FIELD_MIDDLE, totalsTop + 10);
	for (int i = 0; i < 3; i++)
		totals[i] = new CScoreDrum("sidebarnumbersA.png", DIGITS, s_totalsX[i], totalsTop + 45);
}
