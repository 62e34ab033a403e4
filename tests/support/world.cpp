// The program's services as start-up makes them, for tests that need pictures and a field.
#include "support/world.h"

#include "frame/program.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "state/game_data.h"
#include "state/save_folder.h"

#include <SDL.h>
#include <cstdlib>
#include <filesystem>

static std::string DataFolder()
{
	const char* chosen = std::getenv("QUORBLET_DATA");
	return chosen ? chosen : QUORBLET_DATA;
}

CWorld::CWorld() : clockBefore(g_clock)
{
	std::filesystem::current_path(DataFolder());
	g_clock = &clock;
	SetSaveFolderRoot(home.path);
	g_fullscreen = false;
	data         = std::make_unique<CGameData>();
	SDL_Init(SDL_INIT_VIDEO);
	g_gameData = g_levelGameData = data.get();
	input                        = std::make_unique<CInput>();
	g_input                      = input.get();
	display                      = std::make_unique<CDisplay>();
	g_display                    = display.get();
	display->Preload();
	display->FreeLoadingText();
	render   = std::make_unique<CRenderManager>();
	g_render = render.get();
	cursor   = std::make_unique<CCursor>();
	g_cursor = cursor.get();
}

CWorld::~CWorld()
{
	cursor.reset();
	render.reset();
	display.reset();
	g_cursor  = nullptr;
	g_render  = nullptr;
	g_display = nullptr;
	input.reset();
	g_input = nullptr;
	data.reset();
	g_gameData = g_levelGameData = nullptr;
	SDL_Quit();
	SetSaveFolderRoot("");
	g_clock = clockBefore;
}
