// The close-up of a group of islands: what clicks, keys and returning screens do.
#include "screens/map_group.h"

#include "media/cursor.h"
#include "media/gui.h"
#include "screens/card.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/refuse.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

#include <SDL.h>

static const int RESULT_PAST_OVERVIEW = 1;

CControllerMapGroup::CControllerMapGroup(IslandGroup newGroup) : group(newGroup) {}

// The subclass has closed it.
CControllerMapGroup::~CControllerMapGroup()
{
	delete game;
	delete dialog;
}

// Arrows set out from the selected dot when the pointer stands on nothing.
void CControllerMapGroup::OnKey(bool released, int key)
{
	if (!active || !IsOpen())
		return;
	const bool arrow = key == SDLK_LEFT || key == SDLK_UP || key == SDLK_RIGHT || key == SDLK_DOWN;
	if (released && arrow && g_focusedWidget < 0) {
		if (g_selectedMapDot < 0)
			SelectLevel(LevelToPlay(*g_gameData, group));
		g_focusedWidget = g_selectedMapDot;
	}
	CScreen::OnKey(released, key);
}

void CControllerMapGroup::OnMouseButton(bool left, bool right, bool released)
{
	if (IsOpen())
		CScreen::OnMouseButton(left, right, released);
}

void CControllerMapGroup::OnOtherKey(bool released, int key)
{
	if (released && key == SDLK_ESCAPE)
		EndByKey();
}

void CControllerMapGroup::OnGuiEvent(int id, int value)
{
	if (!active || !IsOpen())
		return;
	if (id >= FIRST_DOT_ID)
		OnDot(id - FIRST_DOT_ID + 1, value);
	else
		OnButton(id);
}

void CControllerMapGroup::OnDot(int level, int value)
{
	if (value < 0) {
		Ask(DIALOG_LEVEL_LOCKED);
	} else if (value == 1) {
		askedLevel = level;
		Ask(DIALOG_LEVEL_PLAYED);
	} else {
		StartLevel(level);
	}
}

void CControllerMapGroup::OnButton(int id)
{
	switch (id) {
	case MAP_RESET:
		Ask(DIALOG_RESET_MAP);
		break;
	case MAP_CHANGE:
		Ask(DIALOG_CHANGE_MODE);
		break;
	case MAP_PLAY:
		PressPlay();
		break;
	case MAP_ZOOM:
		SetResult(RESULT_RETURN);
		break;
	case MAP_MAIN_MENU:
		SetResult(RESULT_PAST_OVERVIEW);
		break;
	case MAP_ACHIEVEMENTS:
	case MAP_BACK:
		ShowPanel(id == MAP_ACHIEVEMENTS);
		break;
	case MAP_ARROW_A:
	case MAP_ARROW_C:
		GoToGroup(GROUP_B);
		break;
	case MAP_ARROW_B1:
		GoToGroup(GROUP_A);
		break;
	case MAP_ARROW_B2:
		GoToGroup(GROUP_C);
		break;
	default:
		RefuseMissing(); // sanctuary, trophies, high scores
	}
}

// As a click on the dot; before one is selected it is the level that would be next.
void CControllerMapGroup::PressPlay()
{
	const int selected   = SelectedLevel();
	const int level      = selected ? selected : LevelToPlay(*g_gameData, group);
	const DotState state = StateOfDot(*g_gameData, level);
	OnDot(level, state < DOT_COMPLETED ? -1 : state == DOT_COMPLETED);
}

void CControllerMapGroup::GoToGroup(IslandGroup wanted)
{
	if (!IsGroupOpen(*g_gameData, wanted)) {
		Ask(DIALOG_ISLANDS_LOCKED);
		return;
	}
	ShowHourglass(true);
	nextGroup = wanted;
	SetResult(RESULT_RETURN);
}

void CControllerMapGroup::Ask(int dialogKind)
{
	PaintWithoutCursor();
	Close();
	dialog = new CControllerDialog(dialogKind, true);
	Push(dialog);
}

void CControllerMapGroup::StartLevel(int number)
{
	ShowHourglass(true);
	PaintWithoutCursor(); // a page before the level begins with a copy of this screen
	Close();
	chosenLevel = startedLevel = number;
	startedAs                  = StateOfDot(*g_gameData, number);
	game                       = new CControllerGame(number);
	Push(game);
}

void CControllerMapGroup::Enter()
{
	const bool fromLevel = game;
	const int finished   = game ? game->lastFinishedLevel : NO_LEVEL;
	const int kind       = dialog ? dialog->kind : -1;
	const bool yes       = dialog && dialog->answer == 0;
	delete game;
	delete dialog;
	game   = nullptr;
	dialog = nullptr;
	if (fromLevel)
		AfterLevel(finished);
	else
		AfterDialog(kind, yes);
	if (active && result == RESULT_NONE)
		Open();
}

void CControllerMapGroup::AfterLevel(int finished)
{
	levelJustLeft     = finished > 0;
	lastFinishedIndex = levelJustLeft ? finished - 1 : -1;
	if (!levelJustLeft)
		return;
	g_gameData->OpenIsland(CGameData::IslandOpenedBy(finished));
	if (group != GROUP_C && finished == LastLevel(group)) {
		nextGroup = group == GROUP_A ? GROUP_B : GROUP_C;
		if (result == RESULT_NONE)
			SetResult(RESULT_RETURN);
	}
}

// Starting over closes the other groups, and with them the way to stay in one.
void CControllerMapGroup::AfterDialog(int kind, bool yes)
{
	if (!yes || result != RESULT_NONE)
		return;
	if (kind == DIALOG_CHANGE_MODE) {
		g_gameData->ToggleKidsMode();
		g_gameData->MarkRunAsKids();
	} else if (kind == DIALOG_RESET_MAP) {
		chosenLevel = 0;
		g_gameData->ResetProgress();
		if (group != GROUP_A) {
			SetResult(RESULT_RETURN);
			return;
		}
		Open();
		ClearScreen(false);
		BuildScreen(true);
	} else if (kind == DIALOG_LEVEL_PLAYED) {
		StartLevel(askedLevel);
	}
}
