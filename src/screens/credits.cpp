// Who made the game.
#include "screens/credits.h"

#include "field/sidebar.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <SDL.h>

#include <iterator>

static const int CARD_DEPTH              = 600000;
static const char* const VERSION         = "Version 1.01";
static const int SEQUENCE_KEYS           = 2;
static const int SEQUENCE[SEQUENCE_KEYS] = {SDLK_q, SDLK_z};
static const int SPECIES_OF_FIRST_HALF   = 32;
static const int EXTRA_LIVES             = 100;
static const int EXTRA_MONEY             = 5000;

// clang-format off
static const CardPart s_parts[] = {
	{ "creditsA.png",      188,  95 },
	{ "creditsB.png",      200, 121 },
	{ "creditsC.png",      325,  97 },
	{ "credits_nourl.jpg", 387, 262 },
};
// clang-format on

CControllerCredits::CControllerCredits()
{
	Open();
}

CControllerCredits::~CControllerCredits()
{
	Close();
}

void CControllerCredits::Build()
{
	card = new CCard(CARD_DEPTH, true);
	card->Draw(s_parts);
	card->Write(VERSION, TEXT_CENTRE, 400, 443); // to the left of the button
	exit = NewButton(this, 0, 495, 443, "instructionsbuttonexit", true);
}

void CControllerCredits::TearDown()
{
	delete exit;
	delete card;
	exit = nullptr;
	card = nullptr;
}

bool CControllerCredits::IsArmed() const
{
	return typed == SEQUENCE_KEYS;
}

// A letter out of its turn starts the sequence anew; once armed it stays so.
bool CControllerCredits::TypeSequence(int key)
{
	if (key != SEQUENCE[0] && key != SEQUENCE[1])
		return false;
	if (!IsArmed())
		typed = key == SEQUENCE[typed] ? typed + 1 : key == SEQUENCE[0] ? 1 : 0;
	return true;
}

static void OpenAllLevels()
{
	for (LevelRecord& level : g_gameData->profile.levels)
		level.doneEver = 1;
	for (int i = 0; i < ISLAND_COUNT; i++)
		g_gameData->OpenIsland(i);
}

static void GiveSpecies(size_t count)
{
	for (size_t i = 0; i < count; i++)
		g_gameData->profile.speciesRescued[i] = 1;
}

bool CControllerCredits::RunTest(int key)
{
	switch (key) {
	case SDLK_1:
		OpenAllLevels();
		break;
	case SDLK_2:
		GiveSpecies(SPECIES_OF_FIRST_HALF);
		break;
	case SDLK_3:
		GiveSpecies(std::size(g_gameData->profile.speciesRescued));
		break;
	case SDLK_4:
		g_play.lives += EXTRA_LIVES;
		break;
	case SDLK_5:
		g_play.money += EXTRA_MONEY;
		break;
	default:
		return false;
	}
	if (g_trophySound)
		g_trophySound->Play();
	return true;
}

void CControllerCredits::OnKey(bool released, int key)
{
	if (!active || !released || TypeSequence(key))
		return;
	if (!IsArmed() || !RunTest(key))
		EndByKey();
}

void CControllerCredits::OnGuiEvent(int, int)
{
	if (active)
		SetResult(RESULT_RETURN);
}
