// The title card of a bonus level.
#include "screens/bonus_intro.h"

#include "level/level_kinds.h"
#include "media/cursor.h"
#include "media/gui_button.h"
#include "screens/buttons.h"
#include "screens/card.h"

#include <SDL.h>

#include <algorithm>
#include <span>
#include <string>

static const int CARD_DEPTH         = 505000;
static const int MOTIONS_HIDDEN     = 2; // the pointer stays away while the hand comes to rest
static const int DIGIT_ADVANCE      = 9; // pixels
static const int DIGIT_INSET        = 2; // the first digit stands this far left of its place
static const int EGGS_FOR_PERFECT   = 24;
static const char* const CARD_DIGIT = "prelevel_text_with_bg_%i.png";

// clang-format off
static const int s_withoutBox[] = {
	26, 43, 59, 64, 67, 77, 80, 87, 92, 96, 106, 109, 112, 117, 129, 134, 176, 179,
};
static const int s_withFans[]   = { 8, 38, 55, 126, 148, 155, 173 };
static const int s_bulldozer[]  = { 4, 29, 120 };

static const struct {
	LevelKind kind;
	const char* file;
} s_titles[] = {
	{ KIND_DEMOLITION, "prelevel_titledemolition.png" },
	{ KIND_STAMPEDE,   "prelevel_titlestampede.png" },
	{ KIND_SPEEDBALL,  "prelevel_titlespeedball.png" },
	{ KIND_COIN,       "prelevel_titlecoin.png" },
	{ KIND_DODGEBALL,  "prelevel_titledodgeball.png" },
	{ KIND_ORDER,      "prelevel_titleorder.png" },
	{ KIND_HARVEST,    "prelevel_titleharvest.png" },
	{ KIND_PINBALL,    "prelevel_titlepinball.png" },
	{ KIND_TIGHT_SPOT, "prelevel_titletightspot.png" },
	{ KIND_EGG,        "prelevel_titleegg.png" },
};

static const CardPart s_fans[] = {
	{ "prelevel_boxB.png",               254, 372 },
	{ "prelevel_boxBtext.png",           280, 387 },
	{ "prelevel_text_tomakeeasier.png",  324, 335 },
	{ "prelevel_text_unlimitedfans.png", 262, 351 },
};
static const CardPart s_demolition[] = {
	{ "prelevel_text_demolition.png", 307, 240 },
};
static const CardPart s_bulldozerHelp[] = {
	{ "prelevel_text_tomakeeasier.png", 324, 333 },
	{ "prelevel_text_bulldozer.png",    323, 349 },
};
static const CardPart s_speedball[] = {
	{ "prelevel_text_quorbletfaster.png", 301, 223 },
	{ "prelevel_text_keepinplay.png",     301, 267 },
	{ "prelevel_text_achieveperfect.png", 313, 338 },
	{ "prelevel_text_lastinguntil.png",   303, 359 },
};
static const CardPart s_coin[] = {
	{ "prelevel_text_stampede1.png",      326, 249 },
	{ "prelevel_text_coins.png",          426, 249 },
	{ "prelevel_text_stampede2.png",      295, 266 },
	{ "prelevel_text_achieveperfect.png", 313, 338 },
	{ "prelevel_text_breakingall.png",    321, 359 },
};
static const CardPart s_birds[] = {
	{ "prelevel_text_birdsanctuary.png",  277, 233 },
	{ "prelevel_text_birdsanctuary2.png", 279, 267 },
	{ "prelevel_text_thefewerbirds.png",  307, 337 },
	{ "prelevel_text_themorebonus.png",   294, 359 },
};
static const CardPart s_drums[] = {
	{ "prelevel_text_pollutiondrums.png",   262, 293 },
	{ "prelevel_text_thelesspollution.png", 244, 337 },
	{ "prelevel_text_themorebonus.png",     294, 359 },
	{ "drumBbase.png",                      387, 219 },
	{ "drumAbase.png",                      361, 230 },
	{ "prelevel_drumshadow.png",            365, 223 },
};
static const CardPart s_dogs[] = {
	{ "prelevel_text_dogsasleep.png",   304, 285 },
	{ "prelevel_text_thefewerdogs.png", 305, 337 },
	{ "prelevel_text_themorebonus.png", 294, 359 },
	{ "prelevel_portraitframe.png",     358, 211 },
	{ "sidebarportrait14.png",          363, 216 },
};
static const CardPart s_skunks[] = {
	{ "prelevel_text_skunkcolony.png",    284, 294 },
	{ "prelevel_text_thefewerskunks.png", 303, 337 },
	{ "prelevel_text_themorebonus.png",   294, 359 },
	{ "prelevel_portraitframe.png",       352, 218 },
	{ "sidebarportrait51.png",            357, 223 },
};
static const CardPart s_order[] = {
	{ "prelevel_text_winbybreaking.png", 295, 248 },
};
static const CardPart s_tightSpot[] = {
	{ "prelevel_text_someanimalsstuck.png", 290, 223 },
	{ "prelevel_text_makerescue.png",       284, 272 },
};
static const CardPart s_stampede[] = {
	{ "prelevel_text_winbyrescuing1.png", 303, 239 },
	{ "prelevel_text_winbyrescuing3.png", 359, 273 },
};
static const CardPart s_harvest[] = {
	{ "prelevel_text_animalshungry1.png", 270, 225 },
	{ "prelevel_text_animalshungry2.png", 274, 273 },
	{ "prelevel_text_animalshungry3.png", 466, 275 },
};
static const CardPart s_egg[] = {
	{ "prelevel_text_stampede1.png",      326, 244 },
	{ "prelevel_text_eggs2.png",          426, 246 },
	{ "prelevel_text_winbyrescuing3.png", 358, 261 },
	{ "prelevel_text_achieveperfect.png", 313, 338 },
};

static const struct {
	int level;
	int wordX; // of the words before the name, at y 259
	CardPart name;
} s_herds[] = {
	{ 8,   340, { "prelevel_text_monkeys.png",   393, 256 } },
	{ 38,  349, { "prelevel_text_sheep.png",     403, 257 } },
	{ 77,  345, { "prelevel_text_turtles.png",   398, 257 } },
	{ 96,  350, { "prelevel_text_frogs.png",     403, 255 } },
	{ 134, 338, { "prelevel_text_ostriches.png", 391, 257 } },
	{ 155, 355, { "prelevel_text_cats.png",      408, 257 } },
};
// clang-format on

static bool Among(std::span<const int> levels, int level)
{
	return std::find(levels.begin(), levels.end(), level) != levels.end();
}

CControllerBonusIntro::CControllerBonusIntro(int newLevel) : level(newLevel)
{
	Open();
	HideCursor(MOTIONS_HIDDEN);
}

CControllerBonusIntro::~CControllerBonusIntro()
{
	Close();
}

void CControllerBonusIntro::Build()
{
	card = new CCard(CARD_DEPTH, true);
	DrawFrame();
	DrawTexts();
	button = NewButton(this, 0, 328, 428, "prelevel_button", true);
}

void CControllerBonusIntro::TearDown()
{
	delete button;
	delete card;
	button = nullptr;
	card   = nullptr;
}

void CControllerBonusIntro::DrawFrame()
{
	card->Draw("prelevel_main.png", 189, 145);
	if (!Among(s_withoutBox, level))
		card->Draw("prelevel_boxA.png", 194, 320);
	card->Draw("prelevel_titlebox.png", 242, 133);
	for (const auto& title : s_titles)
		if (title.kind == KindOfLevel(level))
			card->Draw(title.file, 318, 176);
}

static std::span<const CardPart> DodgeTexts(int level)
{
	switch (level) {
	case 21:
		return s_birds;
	case 32:
		return s_drums;
	case 123:
		return s_dogs;
	default:
		return s_skunks;
	}
}

void CControllerBonusIntro::DrawTexts()
{
	switch (KindOfLevel(level)) {
	case KIND_DEMOLITION:
		card->Draw(s_demolition);
		if (Among(s_bulldozer, level))
			card->Draw(s_bulldozerHelp);
		break;
	case KIND_STAMPEDE:
		DrawStampede();
		break;
	case KIND_SPEEDBALL:
		card->Draw(s_speedball);
		break;
	case KIND_COIN:
		card->Draw(s_coin);
		break;
	case KIND_DODGEBALL:
		card->Draw(DodgeTexts(level));
		break;
	case KIND_ORDER:
		card->Draw(s_order);
		break;
	case KIND_TIGHT_SPOT:
		card->Draw(s_tightSpot);
		break;
	case KIND_HARVEST:
	case KIND_PINBALL:
		DrawHarvest();
		break;
	case KIND_EGG:
		DrawEggs();
		break;
	case KIND_REGULAR:
	case KIND_ALIEN:
		break;
	}
	if (Among(s_withFans, level))
		card->Draw(s_fans);
}

void CControllerBonusIntro::DrawStampede()
{
	card->Draw(s_stampede);
	for (const auto& herd : s_herds) {
		if (herd.level != level)
			continue;
		card->Draw("prelevel_text_animalshungry3.png", herd.wordX, 259);
		card->Draw(herd.name.file, herd.name.x, herd.name.y);
	}
}

// The four fruits stand in a row, as wide as their words are.
void CControllerBonusIntro::DrawHarvest()
{
	card->Draw(s_harvest);
	int x = 245;
	for (const char* word : {"apples", "comma", "acorns", "comma", "coconuts", "comma", "and",
	                         "pinecones", "winbyrescuing3"}) {
		const std::string file = std::string("prelevel_text_") + word + ".png";
		card->Draw(file, x, 289);
		x += PictureWidth(file);
	}
}

void CControllerBonusIntro::DrawEggs()
{
	card->Draw(s_egg);
	const char* atLeast = "prelevel_text_collectingatleast.png";
	card->Draw(atLeast, 311, 359);
	int x = 311 + PictureWidth(atLeast) + 3;
	x     = card->DrawNumber(CARD_DIGIT, EGGS_FOR_PERFECT, x - DIGIT_INSET, 359, DIGIT_ADVANCE);
	card->Draw("prelevel_text_eggs1.png", x + 3, 359);
}

void CControllerBonusIntro::OnGuiEvent(int, int)
{
	if (active)
		SetResult(RESULT_RETURN);
}

void CControllerBonusIntro::OnOtherKey(bool released, int key)
{
	if (released && key == SDLK_ESCAPE)
		EndByKey();
}
