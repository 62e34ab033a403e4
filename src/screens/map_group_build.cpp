// The close-up of a group of islands: what stands on it, and its frame.
#include "screens/map_group.h"

#include "field/score_drum.h"
#include "field/sidebar.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/buttons.h"
#include "screens/map_clouds.h"
#include "sound/sound_manager.h"

static const int BACKGROUND_DEPTH = 700000;
static const int CLOUD_DEPTH      = 700100;
static const int BOX_DEPTH        = 700200;
static const int TEXT_DEPTH       = 700210;

static const int MODE_BOX_MIDDLE = 89; // pixels within the box
static const int NAME_Y          = 9;
static const int LABEL_Y         = 32;

static const int PERCENT_Y      = 62; // pixels
static const int PERCENT_X      = 130;
static const int ONES_X         = 120;
static const int DIGIT_SHIFTS[] = {0, -11, -20}; // from the ones to the left

static const int COUNTER_DIGITS = 7;
static const int COUNTER_X      = 684;
static const int SCORE_Y        = 23;
static const int MONEY_Y        = 53;

namespace
{
struct ButtonPlace {
	MapButton id;
	const char* family;
	int x, y;  // pixels
	int panel; // 0 is always there
};
struct LegendPart {
	const char* file;
	int x, y;  // pixels
	int reach; // shown from this stage on
};
} // namespace

// clang-format off
// Along the shelf, in the order in which the keys walk.
static const ButtonPlace s_buttons[] = {
	{ MAP_RESET,        "mapbuttonreset",        16,  540, 1 }, // 122x40 each
	{ MAP_CHANGE,       "mapbuttonchange",       146, 540, 1 },
	{ MAP_MAIN_MENU,    "mapbuttonmainmenu",     276, 540, 1 },
	{ MAP_ACHIEVEMENTS, "mapbuttonachievements", 406, 540, 1 },
	{ MAP_SANCTUARY,    "mapbuttonsanctuary",    16,  540, 2 },
	{ MAP_TROPHIES,     "mapbuttontrophies",     146, 540, 2 },
	{ MAP_HIGH_SCORES,  "mapbuttonhighscores",   276, 540, 2 },
	{ MAP_BACK,         "mapbuttonback",         406, 540, 2 },
	{ MAP_ZOOM,         "mapbuttonzoom",         542, 540, 0 }, // 104x40
	{ MAP_PLAY,         "mapbuttonplay",         656, 534, 0 }, // 132x50
};

// Rows of 22 pixels under the box's title. A box grows with what there is to explain.
static const LegendPart s_legendBoxes[] = {
	{ "maplegendboxA.png", 660, 94, 0 }, // 132x114
	{ "maplegendboxB.png", 660, 94, 1 }, // 132x158
	{ "maplegendboxC.png", 660, 94, 2 }, // 132x202
};
static const LegendPart s_legendTexts[] = {
	{ "maplegendtextA.png", 672, 128, 0 }, // 108x66: to play, done, locked
	{ "maplegendtextB.png", 672, 194, 1 }, // 108x44: bonus, special
	{ "maplegendtextC.png", 672, 238, 2 }, // 108x22: side path
	{ "maplegendtextD.png", 672, 260, 3 }, // 108x22: alien
};

// What has to be finished for each stage of the legend.
static const int s_legendLevels[] = { 3, 12, 23 };
// clang-format on

CSprite* CControllerMapGroup::AddPicture(const char* file, int x, int y, int depth)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	pictures.push_back(sprite);
	return sprite;
}

void CControllerMapGroup::AddBackground(const char* file, int y)
{
	AddPicture(file, 0, y, BACKGROUND_DEPTH);
}

void CControllerMapGroup::AddArrow(MapButton id, const char* family, int x, int y)
{
	arrows.push_back(NewButton(this, id, x, y, family));
}

CSprite* CControllerMapGroup::AddBox(const std::string& file, int x, int y, int depth)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	boxes.push_back(sprite);
	return sprite;
}

void CControllerMapGroup::Build()
{
	PlayMapMusic();
	HideCursor(-1);
	g_display->drawingEnabled = true;
	g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
	BuildPercentage();
	AddBox(g_gameData->IsKidsMode() ? "mapmodekids.png" : "mapmoderegular.png", 69, 92, TEXT_DEPTH);
	BuildCounters();
	clouds = new CMapClouds(CLOUD_DEPTH);
	BuildLegend();
	BuildButtons();
	BuildScreen(firstTime);
	firstTime     = false;
	levelJustLeft = false;
	labelledLevel = -1;
	WriteModeBox();
}

void CControllerMapGroup::TearDown()
{
	chosenLevel = SelectedLevel();
	ClearScreen(true);
	for (CGuiButton* button : buttons)
		delete button;
	for (CSprite* box : boxes)
		delete box;
	buttons.clear();
	boxes.clear();
	delete modeBox;
	delete score;
	delete money;
	delete clouds;
	modeBox = nullptr;
	score = money = nullptr;
	clouds        = nullptr;
}

void CControllerMapGroup::ClearScreen(bool all)
{
	for (CGuiButtonMapDot* dot : dots)
		delete dot;
	dots.clear();
	if (!all)
		return;
	for (CGuiButton* arrow : arrows)
		delete arrow;
	for (CSprite* picture : pictures)
		delete picture;
	arrows.clear();
	pictures.clear();
}

// Before anything is selected it tells the level that was played last.
void CControllerMapGroup::WriteModeBox()
{
	const int selected = SelectedLevel();
	if (selected == labelledLevel)
		return;
	labelledLevel           = selected;
	const int image         = g_display->LoadImage("mapmodebox.png", true);
	const std::string label = "Level " + g_gameData->LevelLabel(selected ? selected : -1);
	DrawText(g_gameData->CurrentProfileName(), image, TEXT_CENTRE, MODE_BOX_MIDDLE, NAME_Y);
	DrawText(label, image, TEXT_CENTRE, MODE_BOX_MIDDLE, LABEL_Y);
	delete modeBox;
	modeBox = new CSprite(8, 8, BOX_DEPTH);
	modeBox->AddImage(image);
}

void CControllerMapGroup::BuildPercentage()
{
	int rest = g_gameData->PercentComplete();
	for (int shift : DIGIT_SHIFTS) {
		AddBox("mappercentage" + std::to_string(rest % 10) + ".png", ONES_X + shift, PERCENT_Y,
		       TEXT_DEPTH);
		rest /= 10;
		if (rest == 0)
			break;
	}
	AddBox("mappercentagepercent.png", PERCENT_X, PERCENT_Y, TEXT_DEPTH);
}

void CControllerMapGroup::BuildCounters()
{
	AddBox("mapscorebox.png", 622, 6, BOX_DEPTH); // 172x78
	AddBox("mapshelf.png", 0, 524, BOX_DEPTH);    // 800x76
	score = new CScoreDrum("sidebarnumbersA.png", COUNTER_DIGITS, COUNTER_X, SCORE_Y);
	money = new CScoreDrum("sidebarnumbersB.png", COUNTER_DIGITS, COUNTER_X, MONEY_Y);
	score->SetShown(g_play.levelScore * CScoreDrum::TWENTIETHS);
	money->SetShown(g_play.money * CScoreDrum::TWENTIETHS);
}

void CControllerMapGroup::BuildLegend()
{
	int reach = 0;
	for (int level : s_legendLevels)
		reach += g_gameData->IsLevelDoneEver(level - 1);
	const LegendPart* box = s_legendBoxes;
	for (const LegendPart& part : s_legendBoxes)
		if (part.reach <= reach)
			box = &part;
	AddBox(box->file, box->x, box->y, BOX_DEPTH);
	for (const LegendPart& part : s_legendTexts)
		if (part.reach <= reach)
			AddBox(part.file, part.x, part.y, TEXT_DEPTH);
}

void CControllerMapGroup::BuildButtons()
{
	for (const ButtonPlace& place : s_buttons)
		buttons.push_back(
		    NewButton(this, place.id, place.x, place.y, place.family, place.id == MAP_PLAY));
	ShowPanel(secondPanel);
}

void CControllerMapGroup::ShowPanel(bool second)
{
	secondPanel = second;
	for (size_t i = 0; i < buttons.size(); i++) {
		if (s_buttons[i].panel == (second ? 1 : 2))
			buttons[i]->HideWidget();
		else
			buttons[i]->ShowWidget();
	}
}

void CControllerMapGroup::Step()
{
	if (!IsOpen())
		return;
	clouds->Step();
	StepHelpArrow();
	SelectWhenGrown();
	WriteModeBox();
}
