// Benchmarks that hold the speed goals; each figure is also told as a share of a 33 ms frame.
#include "animals/animal.h"
#include "bench/rounds.h"
#include "drive/bot.h"
#include "field/background.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "level/parts.h"
#include "media/cursor.h"
#include "media/display.h"
#include "media/render_manager.h"
#include "screens/game.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "sound/sound_output.h"
#include "sound/sound_state.h"
#include "state/game_data.h"
#include "support/world.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <vector>

static std::string s_toolFolder; // where drive lies

void PresentFrame()
{
	PlaceCursor();
	g_render->Update(true);
	g_display->Present(true);
}

// A running level behind a root that never does anything.
class CRunningLevel
{
public:
	CRunningLevel()
	{
		SeedRandom(5);
		g_gameData->SetInstructionsSeen(); // no page comes up over the level
		g_gameData->SetHintPagesOn(false);
		game = new CControllerGame(1);
		game->Activate(nullptr, true);
	}
	~CRunningLevel()
	{
		delete game;
		g_currentController = nullptr;
	}
	void Frame()
	{
		bool playing = bot.Think();
		if (playing)
			game->OnMouseMove(bot.mouseX, 500);
		if (playing && bot.buttonDown != pressed) {
			pressed = bot.buttonDown;
			game->OnMouseButton(true, false, !pressed);
		}
		game->Update();
		PresentFrame();
	}
	// The bot wins in the end: then the level starts anew, past its greeting.
	void KeepPlaying()
	{
		if (!game->levelOver && game->elapsed != -1)
			return;
		delete game;
		game = new CControllerGame(1);
		game->Activate(nullptr, true);
		bot.Reset();
		pressed = false;
		while (game->elapsed == -1)
			Frame();
	}

	CControllerGame* game;

private:
	CBot bot;
	bool pressed = false;
};

static void FrameOfLevel1(benchmark::State& state)
{
	CWorld world;
	CRunningLevel level;
	CRounds rounds;
	for (auto _ : state) {
		level.KeepPlaying();
		rounds.Begin();
		level.Frame();
		rounds.End(state);
	}
	rounds.Report(state);
	state.counters["resident_MiB"] = ResidentMegabytes();
}
BENCHMARK(FrameOfLevel1)->UseManualTime()->Iterations(3000)->Unit(benchmark::kMillisecond);

// 400 crates lie close together, but for a chamber in their middle where the ball bounces about.
// Before a way out is broken all stand again.
static void FillPit()
{
	static const int LEFT_EDGE = 280, RIGHT_EDGE = 400, TOP_EDGE = 230, BOTTOM_EDGE = 330;
	int placed = 0;
	for (int y = 150; placed < 400; y += 14) {
		for (int x = 20 + y % 3 * 9; x < 690 && placed < 400; x += 30) {
			if (x > LEFT_EDGE && x < RIGHT_EDGE && y > TOP_EDGE && y < BOTTOM_EDGE)
				continue;
			Crate(x, y);
			placed++;
		}
	}
	g_ball       = new CBall();
	g_ball->held = false;
	g_ball->x    = (LEFT_EDGE + RIGHT_EDGE) / 2;
	g_ball->y    = (TOP_EDGE + BOTTOM_EDGE) / 2;
	g_ball->vx   = RandomRange(-6, 6);
	g_ball->vy   = -7;
}

static void PhysicsAmong400Crates(benchmark::State& state)
{
	static const int ROUNDS_A_PIT = 40;
	CWorld world;
	SeedRandom(5);
	CRounds rounds;
	int turn        = 0;
	double segments = 0;
	for (auto _ : state) {
		if (turn++ % ROUNDS_A_PIT == 0) {
			ClearField();
			g_gameData->OnLevelStart(1);
			FillPit();
		}
		BallPhysics physics(g_ball, nullptr);
		rounds.Begin();
		physics.Step();
		rounds.End(state);
		segments += physics.segments.size();
	}
	rounds.Report(state);
	state.counters["segments"] = segments / turn;
	state.counters["points"]   = CElement::ObstaclePointList.size();
	ClearField();
}
BENCHMARK(PhysicsAmong400Crates)->UseManualTime()->Iterations(4000)->Unit(benchmark::kMillisecond);

static void FullRepaint(benchmark::State& state)
{
	CWorld world;
	CRunningLevel level;
	level.KeepPlaying();
	CRounds rounds;
	for (auto _ : state) {
		g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
		rounds.Begin();
		g_render->Update(true);
		rounds.End(state);
	}
	rounds.Report(state);
}
BENCHMARK(FullRepaint)->UseManualTime()->Iterations(200)->Unit(benchmark::kMillisecond);

static void LoadLevel1(benchmark::State& state)
{
	CWorld world;
	g_display->LoadPersistentImages();
	CRounds rounds;
	for (auto _ : state) {
		rounds.Begin();
		CRunningLevel level;
		rounds.End(state);
	}
	rounds.Report(state);
	g_display->ReleasePersistentImages();
}
BENCHMARK(LoadLevel1)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

// From process start to the menu, the splash's waiting left out by the driver's clock.
static void StartUp(benchmark::State& state)
{
	CTempFolder folder;
	std::ofstream(folder.path + "script") << "until screen = CControllerMain within 900\n";
	const char* data    = std::getenv("QUORBLET_DATA");
	std::string command = s_toolFolder + "/drive --data " + (data ? data : QUORBLET_DATA) +
	                      " --home " + folder.path + "home " + folder.path + "script > /dev/null";
	CRounds rounds;
	for (auto _ : state) {
		rounds.Begin();
		if (std::system(command.c_str()) != 0)
			state.SkipWithError("the driver has failed");
		rounds.End(state);
	}
	rounds.Report(state);
}
BENCHMARK(StartUp)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

// A second of music and twenty voices, mixed as for a device: the processor time of all threads.
// Beside it what the sound adds to start-up and to memory.
static void SoundMix(benchmark::State& state)
{
	CWorld world;
	if (!std::filesystem::exists("title.mdt")) {
		state.SkipWithError("the data folder holds no music");
		return;
	}
	ChooseSoundOutput(SOUND_OUTPUT_CAPTURE);
	const double megabytesBefore = ResidentMegabytes();
	const auto start             = std::chrono::steady_clock::now();
	SoundInit(true);
	LoadMusicTracks();
	LoadSoundResources(nullptr);
	const std::chrono::duration<double> loading = std::chrono::steady_clock::now() - start;

	std::vector<std::unique_ptr<CSound>> voices;
	for (const auto& [name, index] : preloadedSounds) {
		voices.push_back(std::make_unique<CSound>(name));
		voices.back()->Play(true, 0, 1.01f); // bent, so that nothing is merely copied
		if (voices.size() == 20)
			break;
	}
	PlayTitleMusic();
	const int frames               = 30;
	const std::clock_t ticksBefore = std::clock();
	CRounds rounds;
	for (auto _ : state) {
		rounds.Begin();
		for (int i = 0; i < frames; i++) {
			SoundUpdate();
			CaptureSound(CAPTURE_RATE / frames);
		}
		rounds.End(state);
	}
	const double spent = static_cast<double>(std::clock() - ticksBefore) / CLOCKS_PER_SEC;
	rounds.Report(state);
	state.counters["core_share%"] = spent / static_cast<double>(state.iterations()) * 100;
	state.counters["start_ms"]    = loading.count() * 1000;
	state.counters["sounds_MiB"]  = ResidentMegabytes() - megabytesBefore;
	voices.clear();
	DeleteMusicTracks();
	SoundShutdown();
	ChooseSoundOutput(SOUND_OUTPUT_NONE);
}
BENCHMARK(SoundMix)->UseManualTime()->Iterations(60)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
	setenv("SDL_VIDEODRIVER", "dummy", 1);
	ChooseSoundOutput(SOUND_OUTPUT_NONE);
	s_toolFolder = std::filesystem::canonical("/proc/self/exe").parent_path();
	benchmark::Initialize(&argc, argv);
	benchmark::RunSpecifiedBenchmarks();
	return 0;
}
