// The rows of the choice of a player: what they show, clicks and the keyboard's focus.
#include "screens/profile.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "media/sprite.h"
#include "screens/card.h"
#include "screens/player_name.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <algorithm>

static const int LIST_DEPTH         = 750000;
static const int LIST_X             = 317; // pixels, as all below
static const int LIST_Y             = 209;
static const int LIST_WIDTH         = 157;
static const int ROW_HEIGHT         = 20;
static const int BAND_TOP           = 210; // where a click on the first row begins
static const int TEXT_X             = 319;
static const int TEXT_Y             = 212;
static const int FOCUS_X            = 374; // where the pointer goes with the keyboard's focus
static const int FOCUS_Y            = 217;
static const int DOUBLE_CLICK_GUARD = 15; // frames

void CControllerProfile::LoadList()
{
	profileCount = g_gameData->ProfileCount();
	if (newlyBuilt)
		ShowCurrent();
	newlyBuilt  = false;
	selectedRow = std::clamp(selectedRow, 0, profileCount - 1);
	Scroll(0);
}

// Down to the current profile, so that the selected row is in sight.
void CControllerProfile::ShowCurrent()
{
	const std::string current = g_gameData->CurrentProfileName();
	for (int row = 0; row < profileCount; row++)
		if (g_gameData->ProfileNameAt(row) == current)
			selectedRow = row;
	firstRow = selectedRow - ROWS + 1;
	focus    = std::min(selectedRow, ROWS - 1);
}

void CControllerProfile::Scroll(int rows)
{
	firstRow = std::max(std::min(firstRow + rows, profileCount - ROWS), 0);
	DrawList();
}

void CControllerProfile::Choose(int row)
{
	selectedRow = row;
	DrawList();
}

// A piece of the card, which itself bears no names, with the rows on it.
void CControllerProfile::DrawList()
{
	const int image = g_display->NewImage(LIST_WIDTH, ROWS * ROW_HEIGHT + 2);
	g_display->Blit(card->Image(), image, 0, 0, LIST_X, LIST_Y, LIST_WIDTH, ROWS * ROW_HEIGHT + 2);
	for (int k = 0; k < ROWS && firstRow + k < profileCount; k++) {
		if (firstRow + k == selectedRow)
			g_display->DrawFile("profileselectionselector.png", image, 0, k * ROW_HEIGHT, false);
		DrawText(ShownName(g_gameData->ProfileNameAt(firstRow + k)), image, TEXT_LEFT,
		         TEXT_X - LIST_X, TEXT_Y - LIST_Y + k * ROW_HEIGHT);
	}
	delete list;
	list = new CSprite(LIST_X, LIST_Y, LIST_DEPTH);
	list->AddImage(image);
}

int CControllerProfile::RowUnderPointer() const
{
	const int x = CursorX() - LIST_X, y = CursorY() - BAND_TOP;
	if (x < 0 || x >= LIST_WIDTH || y < 0 || y > ROWS * ROW_HEIGHT)
		return -1;
	const int row = firstRow + std::min(y / ROW_HEIGHT, ROWS - 1);
	return row < profileCount ? row : -1;
}

void CControllerProfile::ClickRow(int row)
{
	if (row == lastClicked && clickGuard > 0) {
		g_mouseSelectionSound->Play();
		OnGuiEvent(BUTTON_SELECT, 0);
		return;
	}
	g_mouseOverSound->Play();
	lastClicked = row;
	clickGuard  = DOUBLE_CLICK_GUARD;
	focus       = row - firstRow;
	Choose(row);
}

void CControllerProfile::MoveFocus(int step)
{
	const int shown = std::min(profileCount - firstRow, ROWS);
	focus           = (focus + step + PLACES) % PLACES;
	if (focus < ROWS && focus >= shown)
		focus = step > 0 ? ROWS : shown - 1;
	if (focus >= ROWS) {
		widgets[focus - ROWS]->TakeFocus();
		return;
	}
	g_mouseOverSound->Play();
	Choose(focus + firstRow);
	WarpCursor(FOCUS_X, FOCUS_Y + ROW_HEIGHT * focus);
	HideCursor(1);
}
