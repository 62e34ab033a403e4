// The main menu, the front door of the game.
#include "screens/main_menu.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/card.h"
#include "screens/intro.h"
#include "screens/menu_button.h"
#include "screens/menu_picture.h"
#include "screens/player_name.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

static const int PANEL_DEPTH     = 105000;
static const int PANEL_X         = 8; // pixels
static const int PANEL_Y         = 6;
static const int NAME_Y          = 10; // within the panel
static const int PLAYER_X        = 43;
static const int PLAYER_Y        = 42;
static const int SHADOW_X        = 3;
static const int SHADOW_Y        = 6;
static const int SPLASH_DISSOLVE = 500; // milliseconds
static const int TURN_DELAY      = 3;   // frames from one button's turn to the next one's
static const int FOCUS_HELD      = 2;   // frames until the pointer has followed the keyboard
static const int LAST_BUTTON     = CControllerMain::BUTTONS - 1;
static const int ACHIEVEMENTS    = 1; // buttons of page root
static const int OPTIONS         = 2;

// clang-format off
static const struct {
	int x, y;
	const char* frame;
} s_places[CControllerMain::BUTTONS] = {
	{ 590,   0, "buttonlarge" },
	{ 619, 108, "buttonsmall" },
	{ 619, 189, "buttonsmall" },
	{ 619, 270, "buttonsmall" },
	{ 619, 351, "buttonsmall" },
};

static const struct {
	MenuState page;
	int firstPress; // state of a press on button 0
	const char* faces[CControllerMain::BUTTONS];
} s_pages[] = {
	{ MENU_ROOT, MENU_ROOT_PLAY,
	  { "", "button0root", "button1root", "button2root", "button3root" } },
	{ MENU_ACHIEVEMENTS, MENU_ACHIEVEMENTS_PLAY,
	  { "", "button0achievements", "button1achievements", "button2achievements",
	    "button3achievements" } },
	{ MENU_OPTIONS, MENU_OPTIONS_PLAY,
	  { "", "button0options", "button1options", "button2options", "button3achievements" } },
};
// clang-format on

CControllerMain::CControllerMain()
{
	HideCursor(-1);
	if (!g_gameData->SystemCursorOn())
		g_input->Grab(true);
	if (g_splashOnTop)
		g_splashOnTop->FadeOut(SPLASH_DISSOLVE);
	Open();
}

CControllerMain::~CControllerMain()
{
	Close();
	DeleteChildren();
	delete g_splashOnTop;
	g_splashOnTop = nullptr;
}

void CControllerMain::Build()
{
	g_display->drawingEnabled = true; // a level that was left on the way up may have cleared it
	picture                   = new CMenuPicture;
	for (int i = 0; i < BUTTONS; i++)
		buttons[i] = new CMenuButton(s_places[i].x, s_places[i].y, s_places[i].frame);
	BuildPlayer();
	menuState = page = MENU_ROOT;
	firstPress       = s_pages[0].firstPress;
	menuFocus        = -1;
	for (int i = 1; i < BUTTONS && opened; i++)
		buttons[i]->SetFace(s_pages[0].faces[i]);
	for (int i = 1; i < BUTTONS && !opened; i++)
		buttons[i]->ShowFace(s_pages[0].faces[i], i * TURN_DELAY);
	busy   = !opened;
	opened = true;
	g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
	PlayTitleMusic();
}

// No overlays: the splash still dissolves over all of the menu.
void CControllerMain::BuildPlayer()
{
	const int panel = g_display->LoadImage("profilemainpanel.png", true);
	DrawText(ShownName(g_gameData->CurrentProfileName()), panel, TEXT_CENTRE,
	         g_display->ImageWidth(panel) / 2, NAME_Y);
	playerName = new CSprite(PANEL_X, PANEL_Y, PANEL_DEPTH);
	playerName->AddImage(panel);
	playerButton = new CGuiButton(PLAYER_X, PLAYER_Y, 0, this, "profilemainbuttonbase.png",
	                              "profilemainbuttonshadow.png", "profilemainbuttonrollover.png",
	                              "", false, false, SHADOW_X, SHADOW_Y);
}

void CControllerMain::TearDown()
{
	menuState = MENU_CLOSED;
	for (CMenuButton*& button : buttons) {
		delete button;
		button = nullptr;
	}
	delete playerButton;
	delete playerName;
	delete picture;
	playerButton = nullptr;
	playerName   = nullptr;
	picture      = nullptr;
}

bool CControllerMain::IsTurning() const
{
	for (const CMenuButton* button : buttons)
		if (button->IsTurning())
			return true;
	return false;
}

bool CControllerMain::AcceptsInput() const
{
	return active && !busy && menuState >= MENU_ROOT && menuState <= MENU_OPTIONS;
}

void CControllerMain::Step()
{
	if (!IsOpen())
		return;
	picture->Step();
	for (CMenuButton* button : buttons)
		button->Step();
	StepFocus();
	StepState();
}

void CControllerMain::StepState()
{
	if (busy)
		busy = IsTurning();
	else if (menuState >= MENU_ROOT_PLAY && !buttons[menuState - firstPress]->IsPressing())
		Act();
	else if (menuState > MENU_OPTIONS && menuState < MENU_ROOT_PLAY && !IsTurning())
		menuState = page;
}

int CControllerMain::PlaceUnderPointer() const
{
	for (int i = 0; i < BUTTONS; i++)
		if (buttons[i]->MouseOver())
			return i;
	return playerButton->HasFocus() ? PROFILE_PLACE : -1;
}

// After a key the focus waits until the pointer has arrived.
void CControllerMain::StepFocus()
{
	int place = menuFocus;
	if (!AcceptsInput())
		place = -1;
	else if (focusHeld > 0)
		focusHeld--;
	else
		place = PlaceUnderPointer();
	if (place != menuFocus && place >= 0 && place != PROFILE_PLACE)
		g_mouseOverSound->Play();
	menuFocus = place;
	for (int i = 0; i < BUTTONS; i++)
		buttons[i]->SetLit(i == menuFocus, g_leftButtonDown);
}

void CControllerMain::MoveFocus(int step)
{
	menuFocus = menuFocus < 0 && step < 0 ? PROFILE_PLACE : (menuFocus + step + PLACES) % PLACES;
	focusHeld = FOCUS_HELD;
	if (menuFocus == PROFILE_PLACE) {
		playerButton->TakeFocus();
		return;
	}
	g_mouseOverSound->Play();
	WarpCursor(buttons[menuFocus]->CentreX(), buttons[menuFocus]->CentreY());
	HideCursor(1);
}

void CControllerMain::OnKey(bool released, int key)
{
	if (!released || !AcceptsInput())
		return;
	switch (key) {
	case SDLK_DOWN:
	case SDLK_RIGHT:
		MoveFocus(1);
		break;
	case SDLK_UP:
	case SDLK_LEFT:
		MoveFocus(-1);
		break;
	case SDLK_RETURN:
	case SDLK_KP_ENTER:
	case SDLK_SPACE:
		Press(menuFocus);
		break;
	case SDLK_ESCAPE: // back, and from page root out
		Press(LAST_BUTTON);
		break;
	}
}

// What is pressed while the buttons move is lost, but the button is still known to be down.
void CControllerMain::OnMouseButton(bool left, bool, bool released)
{
	if (!active)
		return;
	CursorActivity();
	if (!left)
		return;
	const bool click = g_leftButtonDown && released;
	g_leftButtonDown = !released;
	if (click && AcceptsInput())
		Press(menuFocus);
}

void CControllerMain::Press(int place)
{
	if (place == PROFILE_PLACE)
		playerButton->Press(true, true);
	else if (place >= 0)
		PressButton(place);
}

void CControllerMain::PressButton(int button)
{
	g_mouseSelectionSound->Play();
	if (page == MENU_ROOT && button == ACHIEVEMENTS) {
		Turn(MENU_TO_ACHIEVEMENTS, MENU_ACHIEVEMENTS);
	} else if (page == MENU_ROOT && button == OPTIONS) {
		Turn(MENU_TO_OPTIONS, MENU_OPTIONS);
	} else if (page != MENU_ROOT && button == LAST_BUTTON) {
		Turn(page == MENU_ACHIEVEMENTS ? MENU_FROM_ACHIEVEMENTS : MENU_FROM_OPTIONS, MENU_ROOT);
	} else {
		menuState = firstPress + button;
		buttons[button]->Press();
	}
}

void CControllerMain::Turn(MenuState turning, MenuState newPage)
{
	menuState = turning;
	page      = newPage;
	for (const auto& row : s_pages) {
		if (row.page != newPage)
			continue;
		firstPress = row.firstPress;
		for (int i = 1; i < BUTTONS; i++)
			buttons[i]->ShowFace(row.faces[i], (i - 1) * TURN_DELAY);
	}
}
