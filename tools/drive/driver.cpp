// Plays a script against the running program, frame by frame.
#include "drive/driver.h"

#include "drive/fields.h"
#include "drive/picture.h"
#include "frame/controller.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/input.h"
#include "screens/main_menu.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <strings.h>

static const int UNTIL_FRAMES   = 3000; // an until waits so long by default
static const int CLICK_FRAMES   = 3;    // move, press, release
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
	if (word == "expect")
		Expect(command);
	else if (word == "show")
		Show(command);
	else if (word == "shot" && !SaveScreen(PathOf(command.args[0])))
		Stop(EXIT_SCRIPT_ERROR, command, "cannot write the picture");
	else if (word == "dump" && !DumpField(PathOf(command.args[0])))
		Stop(EXIT_SCRIPT_ERROR, command, "cannot write the file");
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

bool CDriver::StepMouse(const ScriptCommand& command)
{
	int x = 0, y = 0;
	if (command.word == "move") {
		if (!ParseInt(command, 0, x) || !ParseInt(command, 1, y))
			return false;
		PushMotion(x, y);
		return true;
	}
	if (command.args[0] != "left" && command.args[0] != "right") {
		Stop(EXIT_SCRIPT_ERROR, command, "left or right");
		return false;
	}
	PushButton(command.args[0] == "left", command.word == "press");
	return true;
}

// A frame between the steps: focus follows the pointer once a frame.
bool CDriver::StepClick(const ScriptCommand& command)
{
	int x = 0, y = 0;
	if (!ParseInt(command, 0, x) || !ParseInt(command, 1, y))
		return false;
	if (waited == 0)
		PushMotion(x, y);
	else if (waited == 1)
		PushButton(true, true);
	else if (waited == 2)
		PushButton(true, false);
	return waited >= CLICK_FRAMES;
}

static SDLKey KeyOfName(const std::string& name)
{
	for (int key = SDLK_FIRST + 1; key < SDLK_LAST; key++)
		if (!strcasecmp(name.c_str(), SDL_GetKeyName(static_cast<SDLKey>(key))))
			return static_cast<SDLKey>(key);
	return SDLK_UNKNOWN;
}

bool CDriver::StepKey(const ScriptCommand& command)
{
	std::string name;
	for (const std::string& part : command.args)
		name += (name.empty() ? "" : " ") + part;
	SDLKey key = KeyOfName(name);
	if (key == SDLK_UNKNOWN) {
		Stop(EXIT_SCRIPT_ERROR, command, "no such key");
		return false;
	}
	if (command.word != "let")
		PushKey(key, true);
	if (command.word != "hold")
		PushKey(key, false);
	return true;
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

// The front door may still be hidden behind the splash: keys skip it.
bool CDriver::StepLevel(const ScriptCommand& command)
{
	int number = 0;
	if (!ParseInt(command, 0, number))
		return false;
	if (CControllerMain* menu = dynamic_cast<CControllerMain*>(g_currentController)) {
		menu->StartLevel(number);
		return true;
	}
	if (waited >= LEVEL_PATIENCE)
		Stop(EXIT_SCRIPT_ERROR, command, "no menu has come up");
	else if (waited % SKIP_EVERY == 0)
		PushKey(SDLK_RETURN, false);
	return false;
}

void CDriver::RunBot()
{
	bool playing = bot.Think();
	if (playing && bot.mouseX != g_input->x)
		PushMotion(bot.mouseX, 500);
	bool wanted = playing && bot.buttonDown;
	if (wanted != botPressed)
		PushButton(true, wanted);
	botPressed = wanted;
}

void CDriver::PushMotion(int x, int y)
{
	SDL_Event event   = {};
	event.type        = SDL_MOUSEMOTION;
	event.motion.x    = static_cast<Uint16>(std::clamp(x, 0, 799));
	event.motion.y    = static_cast<Uint16>(std::clamp(y, 0, 599));
	float speed       = std::max(g_input->speed, 0.01f);
	event.motion.xrel = static_cast<Sint16>((x - g_input->x) / speed);
	event.motion.yrel = static_cast<Sint16>((y - g_input->y) / speed);
	SDL_PushEvent(&event);
}

void CDriver::PushButton(bool left, bool down)
{
	SDL_Event event     = {};
	event.type          = down ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
	event.button.button = left ? SDL_BUTTON_LEFT : SDL_BUTTON_RIGHT;
	event.button.state  = down ? SDL_PRESSED : SDL_RELEASED;
	event.button.x      = static_cast<Uint16>(g_input->x);
	event.button.y      = static_cast<Uint16>(g_input->y);
	SDL_PushEvent(&event);
}

void CDriver::PushKey(SDLKey key, bool down)
{
	int modifier = key == SDLK_LALT ? KMOD_LALT : key == SDLK_RALT ? KMOD_RALT : 0;
	modifiers    = down ? modifiers | modifier : modifiers & ~modifier;

	SDL_Event event      = {};
	event.type           = down ? SDL_KEYDOWN : SDL_KEYUP;
	event.key.state      = down ? SDL_PRESSED : SDL_RELEASED;
	event.key.keysym.sym = key;
	event.key.keysym.mod = static_cast<SDLMod>(modifiers);
	SDL_PushEvent(&event);
}
