// Benchmarks of the screens: how soon each stands, and what a frame of the living ones costs.
#include "bench/rounds.h"
#include "frame/random.h"
#include "level/level_catalogue.h"
#include "media/display.h"
#include "media/render_manager.h"
#include "screens/bonus_intro.h"
#include "screens/credits.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/game_type.h"
#include "screens/in_game.h"
#include "screens/instructions.h"
#include "screens/level_tally.h"
#include "screens/main_menu.h"
#include "screens/map.h"
#include "screens/map_group1.h"
#include "screens/options.h"
#include "screens/profile.h"
#include "state/game_data.h"
#include "support/world.h"

#include <memory>

typedef CController* (*ScreenMaker)();

// clang-format off
static const struct {
	const char* name;
	ScreenMaker make;
} s_screens[] = {
	{ "main menu",    [] () -> CController* { return new CControllerMain(); } },
	{ "game type",    [] () -> CController* { return new CControllerGameType(); } },
	{ "profiles",     [] () -> CController* { return new CControllerProfile(); } },
	{ "options",      [] () -> CController* { return new CControllerOptions(); } },
	{ "instructions", [] () -> CController* { return new CControllerInstructions(); } },
	{ "credits",      [] () -> CController* { return new CControllerCredits(); } },
	{ "map",          [] () -> CController* { return new CControllerMap(0); } },
	{ "map, close",   [] () -> CController* { return new CControllerMapGroup1(); } },
	{ "dialog",       [] () -> CController* { return new CControllerDialog(DIALOG_RESET_MAP, true); } },
	{ "pause menu",   [] () -> CController* { return new CControllerInGame(); } },
	{ "title card",   [] () -> CController* { return new CControllerBonusIntro(12); } },
	{ "tally",        [] () -> CController* { return new CControllerLevelTally({}, {}); } },
};
// clang-format on

// From the constructor to the first frame on the screen, pictures decoded on the way.
static void OpenScreen(benchmark::State& state)
{
	CWorld world;
	const auto& row = s_screens[state.range(0)];
	state.SetLabel(row.name);
	CRounds rounds;
	for (auto _ : state) {
		rounds.Begin();
		std::unique_ptr<CController> screen(row.make());
		screen->Activate(nullptr, true);
		screen->Update();
		PresentFrame();
		rounds.End(state);
		screen.reset();
		g_currentController = nullptr;
	}
	rounds.Report(state);
}
BENCHMARK(OpenScreen)
    ->DenseRange(0, std::size(s_screens) - 1)
    ->UseManualTime()
    ->Iterations(8)
    ->Unit(benchmark::kMillisecond);

static void LivingFrames(benchmark::State& state, CController* made)
{
	std::unique_ptr<CController> screen(made);
	screen->Activate(nullptr, true);
	CRounds rounds;
	for (auto _ : state) {
		rounds.Begin();
		screen->Update();
		PresentFrame();
		rounds.End(state);
	}
	rounds.Report(state);
	screen.reset();
	g_currentController = nullptr;
}

static void FrameOfMainMenu(benchmark::State& state)
{
	CWorld world;
	LivingFrames(state, new CControllerMain());
}
BENCHMARK(FrameOfMainMenu)->UseManualTime()->Iterations(1500)->Unit(benchmark::kMillisecond);

static void FrameOfMap(benchmark::State& state)
{
	CWorld world;
	LivingFrames(state, new CControllerMapGroup1());
}
BENCHMARK(FrameOfMap)->UseManualTime()->Iterations(1500)->Unit(benchmark::kMillisecond);

// Every level that exists, once each; the median and the slowest are told.
static void BuildLevels(benchmark::State& state)
{
	CWorld world;
	SeedRandom(5);
	g_gameData->SetInstructionsSeen();
	g_gameData->SetHintPagesOn(false);
	auto game   = std::make_unique<CControllerGame>(FIRST_LEVEL);
	double most = 0;
	CRounds rounds;
	for (auto _ : state)
		for (int level = FIRST_LEVEL; level <= LAST_LEVEL; level++) {
			if (!HasLevel(level))
				continue;
			game->levelNumber = level - 1;
			rounds.Begin();
			game->ReloadLevel();
			const double time = rounds.End(state);
			if (time > most) {
				most = time;
				state.SetLabel("slowest: level " + std::to_string(level));
			}
		}
	rounds.Report(state);
	state.counters["slowest_ms"] = most;
}
BENCHMARK(BuildLevels)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
