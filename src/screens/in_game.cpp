// The pause menu.
#include "screens/in_game.h"

#include "media/cursor.h"
#include "media/sprite.h"
#include "screens/card.h"
#include "screens/instructions.h"
#include "screens/options.h"
#include "screens/refuse.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

#include <SDL.h>

#include <string>

static const int FADER_DEPTH = 50000, PANEL_DEPTH = 200000, PROFESSOR_DEPTH = 200100;
static const int SHADOW_DEPTH = 200200, BASE_DEPTH = 200300, ROLLOVER_DEPTH = 200400;
static const int PRESSED_OFFSET     = 2; // pixels right and down
static const int FOCUS_MOTIONS      = 2; // motions that moving the focus brings about by itself
static const int RESULT_LEAVE_LEVEL = 1, RESULT_MAIN_MENU = 3;

// clang-format off
static const struct {
	const char* prefix;
	const char* shadow;
	int x, y;
} s_buttons[CControllerInGame::BUTTON_COUNT] = {
	{ "ingamemenubuttonresume",       "ingamemenubuttonresumeshadow.png", 319, 168 },
	{ "ingamemenubuttoninstructions", "ingamemenubuttonshadow.png",       339, 213 },
	{ "ingamemenubuttonsettings",     "ingamemenubuttonshadow.png",       339, 248 },
	{ "ingamemenubuttonsanctuary",    "ingamemenubuttonshadow.png",       339, 283 },
	{ "ingamemenubuttontrophies",     "ingamemenubuttonshadow.png",       339, 318 },
	{ "ingamemenubuttonhigh",         "ingamemenubuttonshadow.png",       339, 353 },
	{ "ingamemenubuttonmap",          "ingamemenubuttonshadow.png",       339, 388 },
	{ "ingamemenubuttonmainmenu",     "ingamemenubuttonshadow.png",       339, 423 },
};
// clang-format on

static CSprite* NewPicture(const std::string& file, int x, int y, int depth)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	return sprite;
}

CControllerInGame::CControllerInGame()
{
	Build();
}

CControllerInGame::~CControllerInGame()
{
	TearDown();
	delete child;
}

void CControllerInGame::Build()
{
	if (built)
		return;
	built     = true;
	fader     = NewPicture("gui_fader.png", 0, 0, FADER_DEPTH);
	panel     = NewPicture("ingamemenumain.png", 279, 149, PANEL_DEPTH);
	professor = NewPicture("ingamemenuprof.png", 356, 41, PROFESSOR_DEPTH);
	for (int i = 0; i < BUTTON_COUNT; i++) {
		const auto& row          = s_buttons[i];
		const std::string prefix = row.prefix;
		buttons[i].shadow        = NewPicture(row.shadow, row.x, row.y, SHADOW_DEPTH);
		buttons[i].base          = NewPicture(prefix + "base.png", row.x, row.y, BASE_DEPTH);
		buttons[i].rollover = NewPicture(prefix + "rollover.png", row.x, row.y, ROLLOVER_DEPTH);
		buttons[i].rollover->Hide();
	}
}

void CControllerInGame::TearDown()
{
	if (!built)
		return;
	built    = false;
	selected = -1;
	for (Button& button : buttons) {
		delete button.shadow;
		delete button.base;
		delete button.rollover;
		button = Button();
	}
	delete fader;
	delete panel;
	delete professor;
	fader = panel = professor = nullptr;
}

void CControllerInGame::Enter()
{
	delete child;
	child = nullptr;
	HideCursor(-1);
	Build();
}

void CControllerInGame::Update()
{
	PollInput(this);
	if (active && built)
		StepButtons();
}

// One button at a time is lit: the one that was first stays so while the pointer is over it.
void CControllerInGame::StepButtons()
{
	selected = -1;
	for (int i = 0; i < BUTTON_COUNT; i++) {
		if (!buttons[i].base->MouseOver(0, 0)) {
			buttons[i].base->Show();
			buttons[i].rollover->Hide();
		} else if (!buttons[i].rollover->IsHidden()) {
			selected = i;
		}
	}
	for (int i = 0; i < BUTTON_COUNT && selected == -1; i++) {
		if (!buttons[i].base->MouseOver(0, 0))
			continue;
		selected = i;
		buttons[i].base->Hide();
		buttons[i].rollover->Show();
		g_mouseOverSound->Play();
	}
	if (selected == -1)
		return;
	const int offset = leftHeld ? PRESSED_OFFSET : 0;
	buttons[selected].rollover->SetPos(s_buttons[selected].x + offset,
	                                   s_buttons[selected].y + offset);
}

void CControllerInGame::MoveFocus(int step)
{
	int next = selected + step;
	if (next < 0)
		next = BUTTON_COUNT - 1;
	if (next >= BUTTON_COUNT)
		next = 0;
	const CSprite* base = buttons[next].base;
	WarpCursor(s_buttons[next].x + base->Width() / 2, s_buttons[next].y + base->Height() / 2);
	HideCursor(-1);
	quietMotions = FOCUS_MOTIONS;
	selected     = next;
}

void CControllerInGame::OnKey(bool released, int key)
{
	if (!active || !released || !built)
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
		Activate(selected);
		break;
	case SDLK_ESCAPE:
		g_mouseSelectionSound->Play();
		SetResult(RESULT_RETURN);
		break;
	}
}

void CControllerInGame::OnMouseMove(int, int)
{
	if (!active)
		return;
	if (quietMotions > 0)
		quietMotions--;
	else
		CursorActivity();
}

void CControllerInGame::OnMouseButton(bool left, bool, bool released)
{
	if (!active || !left)
		return;
	CursorActivity();
	const bool wasHeld = leftHeld;
	leftHeld           = !released;
	if (wasHeld && released)
		Activate(selected);
}

void CControllerInGame::Activate(int button)
{
	if (button < 0)
		return;
	g_mouseSelectionSound->Play();
	switch (button) {
	case RESUME:
		ShowHourglass(false);
		SetResult(RESULT_RETURN);
		break;
	case MAP:
		ShowHourglass(false);
		SetResult(RESULT_LEAVE_LEVEL);
		break;
	case MAIN_MENU:
		ShowHourglass(false);
		SetResult(RESULT_MAIN_MENU);
		break;
	default:
		OpenChild(button);
	}
}

void CControllerInGame::OpenChild(int button)
{
	if (button != INSTRUCTIONS && button != SETTINGS) {
		RefuseMissing();
		return;
	}
	PaintWithoutCursor();
	TearDown();
	if (button == INSTRUCTIONS)
		child = new CControllerInstructions();
	else
		child = new CControllerOptions();
	Push(child);
}
