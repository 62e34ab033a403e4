// The bubbles that rise before the main menu's picture.
#pragma once

#include "field/bobber.h"

#include <memory>

class CSprite;

// One of each size of the ball. One at a time sets out from below the screen and rises, swaying,
// until it has left at the top.
class CMenuBubbles
{
public:
	static constexpr int BUBBLES = 19;

	CMenuBubbles();
	~CMenuBubbles();
	CMenuBubbles(const CMenuBubbles&)            = delete;
	CMenuBubbles& operator=(const CMenuBubbles&) = delete;

	void Step(); // once a frame

	CSprite* sprites[BUBBLES] = {}; // owned; hidden while it waits

private:
	void SetOneOut();
	void Rise(int i);

	float height[BUBBLES] = {};             // y of the sprite, pixels
	std::unique_ptr<CBobber> sway[BUBBLES]; // about the x at which it set out
};
