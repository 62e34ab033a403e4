// The event pump: events in, calls on the current controller out.
#include "media/input.h"

#include "frame/controller.h"
#include "media/display.h"
#include "state/game_data.h"

#include <cstdlib>

static const int LEFT_BUTTON  = 1;
static const int RIGHT_BUTTON = 3;
static const int ALT_KEYS     = KMOD_LALT | KMOD_RALT;
static const int GRAB_JUMP    = 100; // pixels; no hand moves as far in the first event after a grab

CInput* g_input = nullptr;

CInput::CInput()
{
	SDL_EnableUNICODE(0);
	if (!g_gameData)
		return;
	systemCursorMode = g_gameData->SystemCursorOn();
	speed            = g_gameData->GetMouseSpeed();
}

void CInput::Poll(CController* controller)
{
	SDL_Event event;
	while (SDL_PollEvent(&event))
		HandleEvent(controller, event);
}

void CInput::HandleEvent(CController* controller, const SDL_Event& event)
{
	switch (event.type) {
	case SDL_ACTIVEEVENT:
		if (event.active.gain == 1)
			g_display->Present(false);
		else if (event.active.state & (SDL_APPINPUTFOCUS | SDL_APPACTIVE))
			controller->OnFocusLost();
		break;
	case SDL_KEYDOWN:
		HandleKeyDown(controller, event.key.keysym);
		break;
	case SDL_KEYUP:
		HandleKeyUp(controller, event.key.keysym);
		break;
	case SDL_MOUSEMOTION:
		HandleMotion(controller, event.motion);
		break;
	case SDL_MOUSEBUTTONDOWN:
	case SDL_MOUSEBUTTONUP:
		HandleButton(controller, event.button.button, event.type == SDL_MOUSEBUTTONUP);
		break;
	case SDL_QUIT:
		RequestQuit(controller);
		break;
	}
}

void CInput::HandleKeyDown(CController* controller, const SDL_keysym& key)
{
	if (key.sym == SDLK_RETURN) {
		swallowReturn = false;
		if (key.mod & ALT_KEYS) {
			g_display->ToggleFullscreen();
			swallowReturn = swallowAlt = true;
			return;
		}
	}
	controller->OnKey(false, key.sym);
}

void CInput::HandleKeyUp(CController* controller, const SDL_keysym& key)
{
	if (key.sym == SDLK_RETURN) {
		const bool belongsToToggle = swallowReturn || (key.mod & ALT_KEYS);
		swallowReturn              = false;
		if (belongsToToggle)
			return;
	}
	if (swallowAlt && (key.sym == SDLK_LALT || key.sym == SDLK_RALT)) {
		swallowAlt = false;
		return;
	}
	controller->OnKey(true, key.sym);
}

void CInput::HandleButton(CController* controller, int button, bool released)
{
	if (button == LEFT_BUTTON || button == RIGHT_BUTTON)
		controller->OnMouseButton(button == LEFT_BUTTON, button == RIGHT_BUTTON, released);
}

static float HeldTo(float value, float highest)
{
	if (value > highest)
		value = highest;
	return value < 0 ? 0 : value;
}

void CInput::HandleMotion(CController* controller, const SDL_MouseMotionEvent& motion)
{
	if (systemCursorMode) {
		if (motion.x == x && motion.y == y)
			return;
		x = motion.x;
		y = motion.y;
	} else {
		if (motion.xrel == 0 && motion.yrel == 0)
			return;
		const bool first = dropFirstMotion;
		dropFirstMotion  = false;
		if (first && (abs(motion.xrel) >= GRAB_JUMP || abs(motion.yrel) >= GRAB_JUMP))
			return;
		positionX = HeldTo(positionX + motion.xrel * speed, SCREEN_WIDTH);
		positionY = HeldTo(positionY + motion.yrel * speed, SCREEN_HEIGHT);
		x         = static_cast<int>(positionX);
		y         = static_cast<int>(positionY);
	}
	controller->OnMouseMove(x, y);
}

void CInput::Warp(int newX, int newY)
{
	newX            = static_cast<int>(HeldTo(static_cast<float>(newX), SCREEN_WIDTH));
	newY            = static_cast<int>(HeldTo(static_cast<float>(newY), SCREEN_HEIGHT));
	SDL_Event event = {};
	event.type      = SDL_MOUSEMOTION;
	event.motion.x  = static_cast<Uint16>(newX);
	event.motion.y  = static_cast<Uint16>(newY);
	if (systemCursorMode) {
		SDL_WarpMouse(event.motion.x, event.motion.y);
	} else {
		x         = newX;
		y         = newY;
		positionX = static_cast<float>(newX);
		positionY = static_cast<float>(newY);
		// A motion of nothing would be passed over; this one makes the place known.
		event.motion.xrel = 1;
		event.motion.yrel = 1;
	}
	SDL_PushEvent(&event);
}

void CInput::Grab(bool on)
{
	SDL_WM_GrabInput(on ? SDL_GRAB_ON : SDL_GRAB_OFF);
	dropFirstMotion = on && !systemCursorMode;
}
