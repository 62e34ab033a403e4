// Turns SDL's events into calls on the current controller, and keeps the pointer's position.
#pragma once

#include <SDL.h>

class CController;

// Empties the event queue once a frame. In system cursor mode the pointer is the desktop's; in
// relative mode it is computed from the mouse's motion times speed.
class CInput
{
public:
	CInput(); // reads the two mouse options of the profile

	void Poll(CController* controller);
	void Warp(int newX, int newY); // held to the screen; reports itself as a motion
	void Grab(bool on);

	int x = 0, y = 0;                   // what the game sees, 0..800 and 0..600
	bool systemCursorMode = true;       // copy of the profile's option
	float speed           = 1;          // copy of the profile's option
	float positionX = 0, positionY = 0; // exact position in relative mode

private:
	void HandleEvent(CController* controller, const SDL_Event& event);
	void HandleKeyDown(CController* controller, const SDL_keysym& key);
	void HandleKeyUp(CController* controller, const SDL_keysym& key);
	void HandleButton(CController* controller, int button, bool released);
	void HandleMotion(CController* controller, const SDL_MouseMotionEvent& motion);

	bool swallowReturn   = false; // the Return of a mode toggle comes up without its Alt
	bool swallowAlt      = false; // and its Alt would count as a key of its own
	bool dropFirstMotion = false; // the first motion after a grab can carry the absolute place
};

extern CInput* g_input;
