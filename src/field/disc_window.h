// What the side panel's lower door opens on: the disc of the power-up caught last, and its name.
#pragma once

#include "field/sidebar.h"

class CBobber;
class CSprite;

// Owned by the panel.
class CDiscWindow
{
public:
	CDiscWindow();
	~CDiscWindow();
	CDiscWindow(const CDiscWindow&)            = delete;
	CDiscWindow& operator=(const CDiscWindow&) = delete;

	void ShowDisc(int newIndex); // a timer index; in place of what showed
	void HideDisc();
	void Step(); // once a frame

	int index = -1; // of the timer whose disc shows, -1 without one

	// sprites, owned
	CSprite* back;
	CSprite* discs[POWERUP_TIMERS];
	CSprite* names[POWERUP_TIMERS];
	CBobber* bobber; // owned; moves disc and back
};
