// A chain of controllers over the real services, driven by events as a player would.
#include "screens/screen_test.h"

#include "media/cursor.h"
#include "media/gui.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "screens/mouse_mode.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"
#include "state/save_folder.h"

#include <filesystem>

void ScreenTest::SetUp()
{
	FieldTest::SetUp();
	CreateUiSounds();
	for (const auto& file : std::filesystem::directory_iterator(SaveFolder()))
		std::filesystem::remove(file.path());
	g_gameData->LoadProfileList();
	ApplyMouseMode();
	g_input->Warp(400, 590);
	SDL_Event event;
	while (SDL_PollEvent(&event))
		;
	g_input->x       = 400;
	g_input->y       = 590;
	g_leftButtonDown = false;
	root.Activate(nullptr, true);
}

void ScreenTest::TearDown()
{
	EXPECT_TRUE(GuiWidgets.empty()) << "a screen left widgets behind";
	g_currentController = nullptr;
	DeleteUiSounds();
	FieldTest::TearDown();
}

void ScreenTest::Start(CController* screen)
{
	root.Push(screen);
	Frame();
}

void ScreenTest::Frame(int count)
{
	for (int i = 0; i < count; i++) {
		ControllerChainTick();
		PlaceCursor();
		g_render->Update(true);
	}
}

static void PushKey(int key, bool down)
{
	SDL_Event event      = {};
	event.type           = down ? SDL_KEYDOWN : SDL_KEYUP;
	event.key.keysym.sym = static_cast<SDLKey>(key);
	SDL_PushEvent(&event);
}

static void PushLeft(bool down)
{
	SDL_Event event     = {};
	event.type          = down ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
	event.button.button = SDL_BUTTON_LEFT;
	SDL_PushEvent(&event);
}

void ScreenTest::Key(int key)
{
	PushKey(key, true);
	PushKey(key, false);
	Frame();
}

void ScreenTest::Point(int x, int y)
{
	g_input->Warp(x, y);
	Frame();
}

void ScreenTest::Click(int x, int y)
{
	Point(x, y);
	PushLeft(true);
	Frame();
	PushLeft(false);
	Frame();
}

void ScreenTest::CloseWindow()
{
	SDL_Event event = {};
	event.type      = SDL_QUIT;
	SDL_PushEvent(&event);
	Frame();
}

std::string ScreenTest::Screen() const
{
	return g_currentController->Name();
}

bool ScreenTest::IsBack() const
{
	return g_currentController == &root;
}

void ScreenTest::WriteProfiles(const std::vector<std::string>& names, int current)
{
	for (const std::string& name : names)
		g_gameData->CreateProfile(name);
	g_gameData->DeleteProfile("PLAYER 1");
	g_gameData->SwitchProfile(names.at(static_cast<size_t>(current)));
}
