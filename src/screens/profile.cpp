// The choice of a player.
#include "screens/profile.h"

#include "media/display.h"
#include "media/gui_button.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "screens/dialog.h"
#include "screens/mouse_mode.h"
#include "screens/name_box.h"
#include "state/game_data.h"

#include <SDL.h>

#include <algorithm>

static const int CARD_DEPTH = 740000; // below the boxes of its children

// clang-format off
static const CardPart s_parts[] = {
	{ "profileselectionmain.png", 313, 150 },
	{ "profileselectiontext.png", 334, 162 },
};

static const struct {
	const char* family;
	int x, y;
} s_widgets[CControllerProfile::WIDGETS] = {
	{ "profilebuttonarrowup",   487, 209 },
	{ "profilebuttonarrowdown", 487, 250 },
	{ "profilebuttonselect",    358, 307 },
	{ "profilebuttondelete",    425, 307 },
	{ "profilebuttonrename",    358, 336 },
	{ "profilebuttonaddnew",    358, 363 },
};
// clang-format on

CControllerProfile::CControllerProfile() : card(new CCard(CARD_DEPTH, true))
{
	card->Draw(s_parts);
	Open();
}

CControllerProfile::~CControllerProfile()
{
	Close();
	delete dialog;
	delete nameBox;
	delete list;
	delete card;
}

void CControllerProfile::Build()
{
	for (int id = 0; id < WIDGETS; id++)
		widgets[id] = NewButton(this, id, s_widgets[id].x, s_widgets[id].y, s_widgets[id].family,
		                        id == BUTTON_SELECT);
	LoadList();
}

void CControllerProfile::TearDown()
{
	for (CGuiButton*& widget : widgets) {
		delete widget;
		widget = nullptr;
	}
}

// Focus follows the pointer onto the widgets, so that the keys go on from there.
void CControllerProfile::Step()
{
	clickGuard = std::max(clickGuard - 1, 0);
	for (int id = 0; id < WIDGETS; id++)
		if (widgets[id]->HasFocus())
			focus = ROWS + id;
}

void CControllerProfile::OnMouseButton(bool left, bool right, bool released)
{
	const bool click = left && released && g_leftButtonDown;
	CScreen::OnMouseButton(left, right, released);
	const int row = RowUnderPointer();
	if (active && click && result == RESULT_NONE && row >= 0)
		ClickRow(row);
}

void CControllerProfile::OnKey(bool released, int key)
{
	if (!active)
		return;
	const bool forward = key == SDLK_DOWN || key == SDLK_RIGHT;
	const bool back    = key == SDLK_UP || key == SDLK_LEFT;
	if (!forward && !back)
		CScreen::OnKey(released, key);
	else if (released)
		MoveFocus(forward ? 1 : -1);
}

void CControllerProfile::OnOtherKey(bool released, int key)
{
	if (released && key == SDLK_ESCAPE)
		EndByKey();
}

std::string CControllerProfile::SelectedName() const
{
	return g_gameData->ProfileNameAt(selectedRow);
}

void CControllerProfile::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	switch (id) {
	case BUTTON_UP:
	case BUTTON_DOWN:
		Scroll(id == BUTTON_UP ? -1 : 1);
		break;
	case BUTTON_SELECT:
		Select();
		break;
	case BUTTON_DELETE:
		MakeRoomForChild();
		Push(dialog = new CControllerDialog(DIALOG_DELETE_USER, true));
		break;
	case BUTTON_RENAME:
	case BUTTON_ADD:
		AskName(id == BUTTON_ADD);
		break;
	}
}

void CControllerProfile::Select()
{
	g_gameData->SaveProfile();
	g_gameData->SwitchProfile(SelectedName());
	ApplyMouseMode();
	SetResult(RESULT_RETURN);
}

void CControllerProfile::AskName(bool forNewProfile)
{
	MakeRoomForChild();
	Push(nameBox = new CControllerName(forNewProfile));
}

void CControllerProfile::MakeRoomForChild()
{
	PaintWithoutCursor();
	Close();
}

void CControllerProfile::Enter()
{
	if (dialog && dialog->kind == DIALOG_DELETE_USER && dialog->answer == 0) {
		g_gameData->SaveProfile();
		g_gameData->DeleteProfile(SelectedName());
		ApplyMouseMode();
	}
	delete dialog;
	dialog = nullptr;
	g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
	if (!AnswerName())
		Open();
}

// Carries out what the name box was opened for. True when it has gone on to the dialog that says
// that the name is in use.
bool CControllerProfile::AnswerName()
{
	CControllerName* answered = nameBox;
	nameBox                   = nullptr;
	if (!answered)
		return false;
	const bool wanted = !answered->cancelled && !answered->text.empty();
	const bool taken  = wanted && g_gameData->profileNumberByName.count(answered->text) > 0;
	if (wanted)
		g_gameData->SaveProfile();
	if (wanted && !taken && answered->newProfile)
		g_gameData->CreateProfile(answered->text);
	else if (wanted && !taken)
		g_gameData->RenameProfile(SelectedName(), answered->text);
	delete answered;
	ApplyMouseMode();
	if (!taken || result != RESULT_NONE)
		return false;
	Open();
	MakeRoomForChild();
	Push(dialog = new CControllerDialog(DIALOG_NAME_IN_USE, true));
	return true;
}
