// Walks through every level that exists.
#include "drive/roster.h"

#include "drive/picture.h"

#include "animals/stampede.h"
#include "field/background.h"
#include "field/crate.h"
#include "field/element.h"
#include "field/element_point.h"
#include "frame/controller.h"
#include "level/level_catalogue.h"
#include "level/level_kinds.h"
#include "screens/game.h"
#include "screens/main_menu.h"
#include "state/game_data.h"

#include <SDL.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>

static const int FRAME_MILLISECONDS = 33;
static const int GREETING_LEAVES    = 20; // frames of play until its last picture is gone
static const int SKIP_EVERY         = 20; // frames between two keys that skip the splash

CRoster::CRoster(CVirtualClock* newClock, const std::string& newFolder)
    : clock(newClock), folder(newFolder)
{
	for (int number = FIRST_LEVEL; number <= LAST_LEVEL; number++)
		if (HasLevel(number))
			levels.push_back(number);
	if (!folder.empty()) {
		std::error_code exists;
		std::filesystem::create_directories(folder, exists);
	}
}

static void PressKey(SDLKey key)
{
	SDL_Event event      = {};
	event.type           = SDL_KEYDOWN;
	event.key.keysym.sym = key;
	SDL_PushEvent(&event);
	event.type = SDL_KEYUP;
	SDL_PushEvent(&event);
}

void CRoster::BeforeFrame()
{
	frames++;
	CController* screen = g_currentController;
	if (CControllerMain* menu = dynamic_cast<CControllerMain*>(screen)) {
		if (next == levels.size()) {
			RequestQuit(menu);
			return;
		}
		g_gameData->SetInstructionsSeen();
		g_gameData->SetHintPagesOn(false);
		printed = false;
		menu->StartLevel(levels[next]);
	} else if (screen != g_game && frames % SKIP_EVERY == 0) {
		PressKey(SDLK_RETURN); // the splash, a title card
	}
}

void CRoster::AfterFrame()
{
	if (clock->ticks == ticksBefore)
		clock->Advance(FRAME_MILLISECONDS);
	ticksBefore = clock->ticks;
	if (!g_game || next == levels.size())
		return;
	if (!printed && folder.empty())
		PrintRow();
	printed = true;
	if (!folder.empty() && !OpenedForPlay())
		return;
	if (!folder.empty()) {
		char name[30];
		std::snprintf(name, sizeof name, "/level_%03d.png", levels[next]);
		failed |= !SaveScreen(folder + name);
	}
	if (g_currentController != g_game)
		return;
	next++;
	g_game->SetResult(RESULT_RETURN);
}

// The greeting has left the field.
bool CRoster::OpenedForPlay()
{
	playFrames = std::strcmp(g_game->StateName(), "play") == 0 ? playFrames + 1 : 0;
	return playFrames > GREETING_LEAVES;
}

static const char* Word(int value, const std::vector<const char*>& words)
{
	return value >= 0 && value < static_cast<int>(words.size()) ? words[value] : "?";
}

// What the crates hold, in the columns fruit_crates, coin_crates, barrels, power_ups.
static std::string CratesText()
{
	static const std::vector<const char*> PRIZES = {
	    "",          "money",     "double", "triple",  "quadruple", "barrier",
	    "bulldozer", "destructo", "fast",   "gravity", "grow",      "wide",
	    "life",      "rain",      "shrink", "slow",    "sticky",    "fans"};
	int fruit = 0, coins = 0, barrels = 0;
	std::map<int, int> prizes;
	for (const CCrate* crate : CCrate::CrateList) {
		barrels += crate->barrel;
		if (crate->containsPowerup)
			prizes[crate->contents]++;
		else if (crate->contents == POINT_COIN)
			coins++;
		else if (crate->contents)
			fruit++;
	}
	std::string text;
	for (const auto& [kind, count] : prizes) {
		text += std::string(text.empty() ? "" : ", ") + Word(kind, PRIZES);
		if (count > 1)
			text += " x" + std::to_string(count);
	}
	return std::to_string(fruit) + "\t" + std::to_string(coins) + "\t" + std::to_string(barrels) +
	       "\t" + (text.empty() ? "-" : text);
}

// Animals by class; the herd and loose fruit by number.
static std::string GuestsText(std::map<std::string, int>& counts)
{
	static const char* const THINGS[] = {"CCrate",        "CFence",    "CFencePost", "CTree",
	                                     "CRock",         "CCactus",   "CDrum",      "CBackground",
	                                     "CSidebar",      "CPaddle",   "CBall",      "CBarrier",
	                                     "CElementPoint", "CProfessor"};
	for (const char* thing : THINGS)
		counts.erase(thing);
	std::string text;
	for (const auto& [name, count] : counts)
		text += (text.empty() ? "" : ", ") + name.substr(1) + " " + std::to_string(count);
	if (!CElementStampede::StampedeList.empty())
		text += " of species " + std::to_string(CElementStampede::stampedeSpecies);
	return text.empty() ? "-" : text;
}

void CRoster::PrintRow() const
{
	if (next == 0)
		std::printf(
		    "level\tname\tkind\ttime\tground\tsky\tcrates\tfences\ttrees\trocks\tcacti\tdrums\t"
		    "coins\tfruit_crates\tcoin_crates\tbarrels\tpower_ups\tanimals\n");
	std::map<std::string, int> counts;
	int coins = 0;
	for (const CElement* element : CElement::ElementList) {
		counts[element->ClassName()]++;
		if (const CElementPoint* point = dynamic_cast<const CElementPoint*>(element))
			coins += point->kind == POINT_COIN;
	}
	const int number           = levels[next];
	const BackgroundLook& look = g_game->background->look;
	std::printf("%d\t%s\t%s\t%d\t%s\t%s\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t", number, LevelName(number),
	            NameOfKind(KindOfLevel(number)), g_game->TimeLeft() / 31,
	            Word(look.ground, {"grass", "sand", "snow", "snowy grass"}),
	            Word(look.sky, {"blue", "light blue", "deep blue", "sunset", "magenta", "purple",
	                            "dusk", "night"}),
	            counts["CCrate"], counts["CFence"], counts["CTree"], counts["CRock"],
	            counts["CCactus"], counts["CDrum"], coins);
	std::printf("%s\t%s\n", CratesText().c_str(), GuestsText(counts).c_str());
	std::fflush(stdout);
}
