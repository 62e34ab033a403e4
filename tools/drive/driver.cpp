// Plays a script against the running program, frame by frame.
#include "drive/driver.h"

#include "drive/fields.h"
#include "drive/picture.h"
#include "drive/zoo.h"
#include "frame/controller.h"
#include "frame/random.h"
#include "level/level_catalogue.h"
#include "media/display.h"
#include "screens/game.h"
#include "screens/main_menu.h"
#include "state/game_data.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

static const int UNTIL_FRAMES   = 3000; // an until waits so long by default
static const int LEVEL_PATIENCE = 900;  // frames until a menu must have come up
static const int SKIP_EVERY     = 20;   // frames between two keys that skip the splash

CDriver::CDriver(const std::vector<ScriptCommand>& newScript, CVirtualClock* newClock,
                 const std::string& newFolder)
    : script(newScript), clock(newClock), folder(newFolder)
{
}

const ScriptCommand* CDriver::Pending() const
{
	return Finished() ? nullptr : &script[next];
}

void CDriver::BeforeFrame()
{
	ticksBefore = g_clock->Ticks();
	while (!stopped && !Finished()) {
		if (!Execute(script[next]))
			break;
		next++;
		waited = 0;
	}
	waited++;
	if (stopped || Finished())
		RequestQuit();
	else if (botOn)
		RunBot();
}

// A frame that was not presented has not waited: its time passes all the same.
void CDriver::AfterFrame()
{
	g_driverFrame++;
	if (clock && g_clock->Ticks() == ticksBefore)
		clock->Advance(FRAME_TICKS);
}

void CDriver::Stop(int code, const ScriptCommand& command, const std::string& reason)
{
	std::fprintf(stderr, "line %d: %s: %s\n", command.line, command.text.c_str(), reason.c_str());
	exitCode = code;
	stopped  = true;
}

bool CDriver::ParseInt(const ScriptCommand& command, size_t argument, int& value)
{
	char* end = nullptr;
	value     = static_cast<int>(std::strtol(command.args[argument].c_str(), &end, 10));
	if (*end == 0 && end != command.args[argument].c_str())
		return true;
	Stop(EXIT_SCRIPT_ERROR, command, command.args[argument] + " is no number");
	return false;
}

std::string CDriver::PathOf(const std::string& name) const
{
	return name[0] == '/' ? name : folder + "/" + name;
}

bool CDriver::Execute(const ScriptCommand& command)
{
	const std::string& word = command.word;
	int number              = 0;
	if (word == "wait")
		return ParseInt(command, 0, number) && waited >= number;
	if (word == "move" || word == "press" || word == "release")
		return StepMouse(command);
	if (word == "click")
		return StepClick(command);
	if (word == "key" || word == "hold" || word == "let")
		return StepKey(command);
	if (word == "until")
		return StepUntil(command);
	if (word == "level")
		return StepLevel(command);
	if (word == "zoo")
		return StepZoo(command);
	if (word == "film")
		return StepFilm(command);
	if (word == "expect")
		Expect(command);
	else if (word == "show")
		Show(command);
	else if (word == "shot" && !SaveScreen(PathOf(command.args[0])))
		Stop(EXIT_SCRIPT_ERROR, command, "cannot write the picture");
	else if (word == "dump" && !DumpField(PathOf(command.args[0])))
		Stop(EXIT_SCRIPT_ERROR, command, "cannot write the file");
	else if (word == "act")
		Act(command);
	else if (word == "bot")
		botOn = command.args[0] == "on";
	else if (word == "seed" && ParseInt(command, 0, number))
		SeedRandom(number);
	else if (word == "quit") {
		SDL_Event event = {};
		event.type      = SDL_QUIT;
		SDL_PushEvent(&event);
	}
	return !stopped;
}

bool CDriver::StepUntil(const ScriptCommand& command)
{
	int patience = UNTIL_FRAMES;
	if (command.args.size() == 5 && !ParseInt(command, 4, patience))
		return false;
	std::string value;
	if (!ReadField(command.args[0], value)) {
		Stop(EXIT_SCRIPT_ERROR, command, "no such field");
		return false;
	}
	bool valid = false;
	if (Holds(value, command.args[1], command.args[2], valid))
		return true;
	if (!valid)
		Stop(EXIT_SCRIPT_ERROR, command, "cannot compare " + value);
	else if (waited >= patience)
		Stop(EXIT_FAILED_EXPECTATION, command, command.args[0] + " is " + value);
	return false;
}

void CDriver::Expect(const ScriptCommand& command)
{
	std::string value;
	bool valid = false;
	if (!ReadField(command.args[0], value))
		Stop(EXIT_SCRIPT_ERROR, command, "no such field");
	else if (!Holds(value, command.args[1], command.args[2], valid))
		Stop(valid ? EXIT_FAILED_EXPECTATION : EXIT_SCRIPT_ERROR, command,
		     command.args[0] + " is " + value);
}

void CDriver::Show(const ScriptCommand& command)
{
	std::vector<std::string> names = command.args.empty() ? FieldNames() : command.args;
	for (const std::string& name : names) {
		std::string value;
		if (!ReadField(name, value)) {
			Stop(EXIT_SCRIPT_ERROR, command, name + ": no such field");
			return;
		}
		std::printf("%s=%s\n", name.c_str(), value.c_str());
	}
}

bool CDriver::StepLevel(const ScriptCommand& command)
{
	int number = 0;
	return ParseInt(command, 0, number) && StepStart(command, number);
}

// The front door may still be hidden behind the splash: keys skip it.
bool CDriver::StepStart(const ScriptCommand& command, int level)
{
	if (CControllerMain* menu = dynamic_cast<CControllerMain*>(g_currentController)) {
		menu->StartLevel(level);
		return true;
	}
	if (waited >= LEVEL_PATIENCE)
		Stop(EXIT_SCRIPT_ERROR, command, "no menu has come up");
	else if (waited % SKIP_EVERY == 0)
		PushKey(SDLK_RETURN, false);
	return false;
}

// In the level that runs, else in one of its own without screens over it.
bool CDriver::StepZoo(const ScriptCommand& command)
{
	std::string problem;
	if (!g_game) {
		g_gameData->SetInstructionsSeen();
		g_gameData->SetHintPagesOn(false);
	}
	if (!g_game && !StepStart(command, FIRST_LEVEL))
		return false;
	if (BuildZoo(g_game, command.args, problem))
		return true;
	Stop(EXIT_SCRIPT_ERROR, command, problem);
	return false;
}

void CDriver::Act(const ScriptCommand& command)
{
	std::string problem;
	if (!ForceAction(command.args[0], command.args[1], problem))
		Stop(EXIT_SCRIPT_ERROR, command, problem);
}

// A frame is on the screen only after it has passed.
bool CDriver::StepFilm(const ScriptCommand& command)
{
	int count = 0;
	if (!ParseInt(command, 1, count))
		return false;
	std::string folder = PathOf(command.args[0]);
	std::error_code failed;
	std::filesystem::create_directories(folder, failed);
	char name[20];
	std::snprintf(name, sizeof name, "/%05d.png", waited - 1);
	if (waited > 0 && !SaveScreen(folder + name))
		Stop(EXIT_SCRIPT_ERROR, command, "cannot write the picture");
	return waited >= count;
}
