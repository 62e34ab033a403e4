// The hands of the driver: mouse, keyboard and the bot that plays.
#include "drive/driver.h"

#include "media/input.h"

#include <algorithm>
#include <strings.h>

static const int CLICK_FRAMES = 3; // move, press, release

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
