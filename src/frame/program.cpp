// Start-up in its fixed order, the main loop, shut-down.
#include "frame/program.h"

#include "frame/controller.h"
#include "frame/debug.h"
#include "frame/random.h"
#include "media/archive.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "screens/intro.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"

#include <SDL.h>
#include <cstdlib>
#include <memory>

static const char* const TITLE            = "Quorblet";
static const char* const ICON_FILE        = "icon.dat";
static const char* const ADDRESS_FILE     = "data1.dat";
static const size_t MAX_ADDRESS           = 255; // characters
static const unsigned char ICON_KEY_RED   = 255; // the icon's see-through colour
static const unsigned char ICON_KEY_GREEN = 147;
static const unsigned char ICON_KEY_BLUE  = 252;

bool g_fullscreen = true;
std::string g_moreGamesAddress;

// The long-lived objects, in order of construction. They live in RunProgram's frame; the rest of
// the game reaches them through global pointers.
struct Services {
	std::unique_ptr<CGameData> gameData;
	std::unique_ptr<CInput> input;
	std::unique_ptr<CDisplay> display;
	std::unique_ptr<CRenderManager> render;
	std::unique_ptr<CCursor> cursor;
	std::unique_ptr<CControllerIntro> intro;
};

// clang-format off
static const ProgramMode s_modes[] = {
	// window  no sound  ask for device
	{ false,   false,    false },
	{ true,    false,    false },
	{ false,   true,     false },
	{ true,    true,     false },
	{ false,   false,    true },
	{ true,    false,    true },
	{ false,   true,     true },
	{ true,    true,     true },
};
// clang-format on

ProgramMode ParseMode(int argc, char** argv)
{
	const long count  = sizeof s_modes / sizeof s_modes[0];
	const long number = argc == 2 ? strtol(argv[1], nullptr, 0) : 0;
	return s_modes[number > 0 && number < count ? number : 0];
}

// One line of text: what comes after it, or beyond the limit, is left out.
static void ReadMoreGamesAddress()
{
	Bytes text;
	g_moreGamesAddress.clear();
	if (!ReadWholeFile(ADDRESS_FILE, text))
		return;
	for (unsigned char c : text) {
		if (c < ' ' || g_moreGamesAddress.size() == MAX_ADDRESS)
			return;
		g_moreGamesAddress += static_cast<char>(c);
	}
}

static void SetIcon()
{
	SDL_Surface* icon = SDL_LoadBMP(ICON_FILE);
	if (!icon)
		return;
	SDL_SetColorKey(icon, SDL_SRCCOLORKEY,
	                SDL_MapRGB(icon->format, ICON_KEY_RED, ICON_KEY_GREEN, ICON_KEY_BLUE));
	SDL_WM_SetIcon(icon, nullptr);
	SDL_FreeSurface(icon);
}

static void StartSdl()
{
	if (SDL_Init(SDL_INIT_VIDEO) < 0)
		Error("Unable to initialize SDL: ", SDL_GetError(), true, true);
	static const int s_registered = atexit(SDL_Quit); // once, however often the program runs
	(void)s_registered;
	SDL_WM_SetCaption(TITLE, TITLE);
	SetIcon();
}

// Aids for whoever works on the game: QUORBLET_DEBUG=points,rects in the environment.
static void ReadDebugAids()
{
	const char* wanted            = getenv("QUORBLET_DEBUG");
	const std::string aids        = wanted ? wanted : "";
	g_render->showCollisionPoints = aids.find("points") != std::string::npos;
	g_render->showDirtyRects      = aids.find("rects") != std::string::npos;
}

static void StartServices(Services& services, const ProgramMode& mode)
{
	if (!mode.soundOff)
		SoundInit(!mode.askDevice);
	services.gameData = std::make_unique<CGameData>();
	// A window asked for on the command line beats the profile.
	if (g_fullscreen)
		g_fullscreen = services.gameData->GetFullscreen();
	StartSdl();

	g_gameData = g_levelGameData = services.gameData.get();
	services.input               = std::make_unique<CInput>();
	g_input                      = services.input.get();
	services.display             = std::make_unique<CDisplay>();
	services.display->Preload();
	LoadMusicTracks();
	LoadSoundResources(services.display.get());
	services.display->FreeLoadingText();
	g_display       = services.display.get();
	services.render = std::make_unique<CRenderManager>();
	g_render        = services.render.get();
	ReadDebugAids();
	services.cursor = std::make_unique<CCursor>();
	g_cursor        = services.cursor.get();
	g_display->LoadPersistentImages();
	CreateUiSounds();
	services.intro = std::make_unique<CControllerIntro>();
	services.intro->Activate(nullptr, true);
}

static void RunMainLoop(CFrameHook* hook)
{
	while (g_running) {
		if (hook)
			hook->BeforeFrame();
		ControllerChainTick();
		SoundUpdate();
		if (g_running) {
			PlaceCursor();
			g_render->Update(true);
			g_display->Present(true);
		}
		if (hook)
			hook->AfterFrame();
	}
}

static void StopServices(Services& services)
{
	DeleteUiSounds();
	g_display->ReleasePersistentImages();
	DeleteMusicTracks();
	SoundShutdown();

	services.intro.reset();
	g_currentController = nullptr;
	services.cursor.reset();
	g_cursor = nullptr;
	services.render.reset();
	g_render = nullptr;
	services.display.reset();
	g_display = nullptr;
	services.gameData.reset();
	g_gameData = g_levelGameData = nullptr;
	services.input.reset();
	g_input = nullptr;
}

int RunProgram(const ProgramMode& mode, unsigned int seed, CFrameHook* hook)
{
	SeedRandom(seed);
	g_running    = true;
	g_fullscreen = !mode.windowed;
	ReadMoreGamesAddress();

	Services services;
	StartServices(services, mode);
	RunMainLoop(hook);
	StopServices(services);
	return 0;
}
