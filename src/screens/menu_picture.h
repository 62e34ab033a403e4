// The living picture of the main menu.
#pragma once

#include "screens/menu_animals.h"
#include "screens/menu_bubbles.h"

class CSprite;

// An island at the shore: still pictures from the sky to the sand, clouds that drift, leaves that
// sway, three rows of waves that roll, and what lives there. It only shows; it takes no input.
class CMenuPicture
{
public:
	static constexpr int STILLS = 8, ROWS = 3, CLOUDS = 4, LEAVES = 3;

	CMenuPicture();
	~CMenuPicture();
	CMenuPicture(const CMenuPicture&)            = delete;
	CMenuPicture& operator=(const CMenuPicture&) = delete;

	void Step(); // once a frame

	CMenuAnimals animals;
	CMenuBubbles bubbles;

private:
	struct Cloud {
		CSprite* sprite = nullptr; // owned
		float x         = 0;       // pixels
	};

	void StepWaves();
	void StepClouds();
	void StepLeaves();

	CSprite* stills[STILLS] = {}; // owned, as are the others
	CSprite* crests[ROWS]   = {};
	float rowPhase[ROWS]    = {}; // radians
	Cloud clouds[CLOUDS];
	CSprite* leaves[LEAVES] = {};
	float leafPhase         = 0; // radians
};
