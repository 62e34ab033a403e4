// drive: the real program, headless and on a clock of its own, played from a script.
#include "drive/driver.h"
#include "drive/recorder.h"
#include "drive/roster.h"

#include "frame/clock.h"
#include "frame/program.h"
#include "sound/sound_output.h"
#include "state/save_folder.h"
#include "support/temp_folder.h"

#include <SDL.h>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

static const char* s_usage =
    "usage: drive [--mode N] [--seed S] [--home DIR] [--data DIR] [--realtime]\n"
    "             [--sound FILE.wav] SCRIPT\n"
    "       drive roster [--data DIR]        prints what stands in every level\n"
    "       drive sheet DIR [--data DIR]     paints every level's picture to DIR/level_NNN.png\n"
    "SCRIPT is a file, or - for standard input. --mode as the game's own argument; --home is the\n"
    "per-user folder; --sound records what would be heard. Exit 0; 1 when an until or expect "
    "fails; 2 for an error in the script. Its commands, one a line:\n";

struct DriveOptions {
	std::string mode, home, script, sound;
	std::string sheetFolder;
	bool roster       = false; // or sheet
	std::string data  = QUORBLET_DATA;
	unsigned int seed = 1;
	bool realtime     = false;
};

static bool ParseOptions(int argc, char** argv, DriveOptions& options)
{
	for (int i = 1; i < argc; i++) {
		std::string word = argv[i];
		bool more        = i + 1 < argc;
		if (word == "--mode" && more)
			options.mode = argv[++i];
		else if (word == "--seed" && more)
			options.seed = static_cast<unsigned int>(std::strtoul(argv[++i], nullptr, 0));
		else if (word == "--home" && more)
			options.home = std::filesystem::absolute(argv[++i]);
		else if (word == "--data" && more)
			options.data = std::filesystem::absolute(argv[++i]);
		else if (word == "--sound" && more)
			options.sound = std::filesystem::absolute(argv[++i]);
		else if (word == "roster" && i == 1)
			options.roster = true;
		else if (word == "sheet" && i == 1 && more) {
			options.roster      = true;
			options.sheetFolder = std::filesystem::absolute(argv[++i]);
		} else if (word == "--realtime")
			options.realtime = true;
		else if (options.script.empty() && (word == "-" || word[0] != '-'))
			options.script = word;
		else
			return false;
	}
	return options.roster || !options.script.empty();
}

static bool LoadScript(const std::string& name, std::vector<ScriptCommand>& script)
{
	std::string problem;
	std::ifstream file;
	if (name != "-") {
		file.open(name);
		if (!file) {
			std::fprintf(stderr, "cannot read %s\n", name.c_str());
			return false;
		}
	}
	if (ReadScript(name == "-" ? std::cin : file, script, problem))
		return true;
	std::fprintf(stderr, "%s\n", problem.c_str());
	return false;
}

static bool EnterDataFolder(const DriveOptions& options)
{
	std::error_code missing;
	std::filesystem::current_path(options.data, missing);
	if (missing)
		std::fprintf(stderr, "no data folder %s\n", options.data.c_str());
	return !missing;
}

// In a player's folder of its own, which goes with it.
static int WalkLevels(const DriveOptions& options)
{
	if (!EnterDataFolder(options))
		return EXIT_SCRIPT_ERROR;
	CTempFolder home;
	SetSaveFolderRoot(home.path);
	setenv("SDL_VIDEODRIVER", "dummy", 0);
	ChooseSoundOutput(SOUND_OUTPUT_NONE);
	CVirtualClock clock;
	g_clock = &clock;
	CRoster roster(&clock, options.sheetFolder);
	char* arguments[] = {nullptr};
	RunProgram(ParseMode(0, arguments), options.seed, &roster);
	return roster.failed ? EXIT_FAILED_EXPECTATION : 0;
}

static int Play(const DriveOptions& options, const std::vector<ScriptCommand>& script)
{
	std::string folder = std::filesystem::current_path();
	if (!EnterDataFolder(options))
		return EXIT_SCRIPT_ERROR;
	if (!options.home.empty())
		SetSaveFolderRoot(options.home);
	setenv("SDL_VIDEODRIVER", "dummy", 0);
	ChooseSoundOutput(options.sound.empty() ? SOUND_OUTPUT_NONE : SOUND_OUTPUT_CAPTURE);

	CVirtualClock clock;
	if (!options.realtime)
		g_clock = &clock;
	CDriver driver(script, options.realtime ? nullptr : &clock, folder);
	std::unique_ptr<CRecorder> recorder;
	if (!options.sound.empty())
		recorder = std::make_unique<CRecorder>(&driver, options.sound);
	if (recorder && !recorder->IsOpen()) {
		std::fprintf(stderr, "cannot write %s\n", options.sound.c_str());
		return EXIT_SCRIPT_ERROR;
	}
	CFrameHook* hook     = recorder ? static_cast<CFrameHook*>(recorder.get()) : &driver;
	std::string modeText = options.mode;
	char name[]          = "quorblet";
	char* arguments[]    = {name, modeText.data(), nullptr};
	RunProgram(ParseMode(options.mode.empty() ? 1 : 2, arguments), options.seed, hook);

	if (const ScriptCommand* pending = driver.Pending(); pending && !driver.exitCode) {
		std::fprintf(stderr, "line %d: %s: the program ended before\n", pending->line,
		             pending->text.c_str());
		return EXIT_FAILED_EXPECTATION;
	}
	return driver.exitCode;
}

int main(int argc, char** argv)
{
	DriveOptions options;
	std::vector<ScriptCommand> script;
	if (!ParseOptions(argc, argv, options)) {
		std::fputs((s_usage + ScriptUsage()).c_str(), stderr);
		return EXIT_SCRIPT_ERROR;
	}
	if (options.roster)
		return WalkLevels(options);
	if (!LoadScript(options.script, script))
		return EXIT_SCRIPT_ERROR;
	return Play(options, script);
}
