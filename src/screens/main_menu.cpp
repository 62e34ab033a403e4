// The front door of the game.
#include "screens/main_menu.h"

#include "media/cursor.h"
#include "media/gui.h"
#include "media/gui_button.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "screens/intro.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <SDL.h>

static const int BACKDROP_DEPTH  = 100000;
static const int PLAY_X          = 304; // pixels
static const int PLAY_Y          = 436;
static const int SHADOW_X        = 3;
static const int SHADOW_Y        = 6;
static const int SPLASH_DISSOLVE = 500; // milliseconds

CControllerMain::CControllerMain()
{
	HideCursor(-1);
	if (!g_gameData->SystemCursorOn())
		g_input->Grab(true);
	if (g_splashOnTop)
		g_splashOnTop->FadeOut(SPLASH_DISSOLVE);
	Build();
}

CControllerMain::~CControllerMain()
{
	TearDown();
	delete game;
	delete g_splashOnTop;
	g_splashOnTop = nullptr;
}

void CControllerMain::Build()
{
	if (built)
		return;
	built    = true;
	backdrop = new CSprite(0, 0, BACKDROP_DEPTH);
	backdrop->AddFile("frontdoor.jpg");
	playButton = new CGuiButton(PLAY_X, PLAY_Y, BUTTON_PLAY, this, "frontdoor_playbase.png",
	                            "frontdoor_playshadow.png", "frontdoor_playrollover.png", "", true,
	                            false, SHADOW_X, SHADOW_Y);
	g_render->AddExtraRect(0, 0, 800, 600);
	PlayTitleMusic();
}

void CControllerMain::TearDown()
{
	if (!built)
		return;
	built = false;
	delete playButton;
	delete backdrop;
	playButton = nullptr;
	backdrop   = nullptr;
}

void CControllerMain::Update()
{
	PollInput(this);
	if (!active)
		return;
	GuiStepAll();
}

void CControllerMain::Enter()
{
	delete game;
	game = nullptr;
	HideCursor(-1);
	Build();
}

void CControllerMain::OnKey(bool released, int key)
{
	if (!active || !released || GuiKey(key))
		return;
	if (key == SDLK_ESCAPE) {
		g_mouseSelectionSound->Play();
		SetResult(RESULT_RETURN);
	}
}

void CControllerMain::OnMouseMove(int, int)
{
	if (active)
		CursorActivity();
}

void CControllerMain::OnMouseButton(bool left, bool, bool released)
{
	if (!active)
		return;
	CursorActivity();
	if (left)
		GuiMouseEdge(released);
}

void CControllerMain::OnGuiEvent(int id, int)
{
	if (active && id == BUTTON_PLAY)
		StartLevel(g_gameData->FirstLevelNotDone());
}

void CControllerMain::StartLevel(int number)
{
	ShowHourglass(true);
	TearDown();
	game = new CControllerGame(number);
	Push(game);
}
