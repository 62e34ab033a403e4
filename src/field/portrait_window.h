// What the side panel's upper door opens on: the portrait of what was taken last, and its names.
#pragma once

#include "field/portraits.h"

class CSprite;

// Owned by the panel. Pictures are loaded when they are shown for the first time.
class CPortraitWindow
{
public:
	static const int FIRST_NAMES = 150;

	CPortraitWindow();
	~CPortraitWindow();
	CPortraitWindow(const CPortraitWindow&)            = delete;
	CPortraitWindow& operator=(const CPortraitWindow&) = delete;

	void ShowPortrait(int newNumber); // 0 to 65, others do nothing; draws a first name
	void Step();                      // once a frame

	int number    = -1; // -1 before the first
	int firstName = -1; // -1 when it has none

	// sprites, owned
	CSprite* swirls;
	CSprite* textBase;
	CSprite* nameThe;
	CSprite* portraits[PORTRAIT_COUNT] = {};
	CSprite* eyes[PORTRAIT_COUNT]      = {}; // closed; none for the egg
	CSprite* names[PORTRAIT_COUNT]     = {};
	CSprite* firstNames[FIRST_NAMES]   = {};

private:
	void Load(int n);
	void HideShown();
	void LayOutNames();
	int Bob();

	int bobStep = 0, bobDirection = 1;
	int blinkCountdown; // frames; below 0 the eyes are closed
};
