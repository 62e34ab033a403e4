// The screens that the main menu opens, and what it does when they return.
#include "screens/main_menu.h"

#include "field/sidebar.h"
#include "frame/program.h"
#include "media/cursor.h"
#include "screens/card.h"
#include "screens/credits.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/game_continue.h"
#include "screens/game_type.h"
#include "screens/instructions.h"
#include "screens/map.h"
#include "screens/open_address.h"
#include "screens/options.h"
#include "screens/profile.h"
#include "screens/refuse.h"
#include "state/game_data.h"

static const int GO_TO_GROUP      = 1; // what the map is told: straight to where the run stands
static const int SHOW_ALL_ISLANDS = 0;

void CControllerMain::Act()
{
	switch (menuState) {
	case MENU_ROOT_PLAY:
	case MENU_ACHIEVEMENTS_PLAY:
	case MENU_OPTIONS_PLAY:
		Play();
		break;
	case MENU_MORE_GAMES:
		MakeRoomForChild();
		Push(dialog = new CControllerDialog(DIALOG_MORE_GAMES, true));
		break;
	case MENU_QUIT:
		SetResult(RESULT_RETURN);
		break;
	case MENU_INSTRUCTIONS:
		MakeRoomForChild();
		Push(child = new CControllerInstructions);
		break;
	case MENU_SETTINGS:
		MakeRoomForChild();
		Push(child = new CControllerOptions);
		break;
	case MENU_CREDITS:
		MakeRoomForChild();
		Push(child = new CControllerCredits);
		break;
	default: // sanctuary, trophies, high scores
		RefuseMissing();
		menuState = page;
	}
}

void CControllerMain::Play()
{
	MakeRoomForChild();
	if (g_play.levelScore == 0)
		Push(gameType = new CControllerGameType);
	else
		Push(gameContinue = new CControllerGameContinue);
}

void CControllerMain::OnGuiEvent(int, int)
{
	if (!AcceptsInput())
		return;
	MakeRoomForChild();
	Push(child = new CControllerProfile);
}

void CControllerMain::MakeRoomForChild()
{
	PaintWithoutCursor();
	Close();
}

void CControllerMain::OpenMap(int goToCurrentGroup)
{
	ShowHourglass(true);
	Push(child = new CControllerMap(goToCurrentGroup));
}

void CControllerMain::StartLevel(int number)
{
	ShowHourglass(true);
	PaintWithoutCursor(); // a page before the level begins with a copy of this screen
	Close();
	Push(child = new CControllerGame(number));
}

void CControllerMain::DeleteChildren()
{
	delete dialog;
	delete gameType;
	delete gameContinue;
	delete child;
	dialog       = nullptr;
	gameType     = nullptr;
	gameContinue = nullptr;
	child        = nullptr;
}

// A result that is already pending comes from a closed window: then no screen follows.
void CControllerMain::Enter()
{
	const bool goesOn    = result == RESULT_NONE;
	const bool typeIsSet = goesOn && gameType;
	const bool answered  = goesOn && gameContinue;
	const bool newGame   = answered && gameContinue->newGame;
	const bool moreGames = goesOn && dialog && dialog->answer == 0;
	DeleteChildren();
	if (typeIsSet || (answered && !newGame)) {
		OpenMap(typeIsSet ? SHOW_ALL_ISLANDS : GO_TO_GROUP);
		return;
	}
	if (moreGames) {
		OpenAddress(g_moreGamesAddress);
		SetResult(RESULT_QUIT);
		return;
	}
	HideCursor(-1);
	Open();
	if (newGame) {
		g_gameData->ResetRun();
		Play();
	}
}
