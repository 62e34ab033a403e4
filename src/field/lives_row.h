// The side panel's bubbles in their sockets: the balls left.
#pragma once

class CSprite;

// Two rows of five sockets: nine bubbles, and a small one for ten or more. A bubble bursts when its
// ball goes and blows up when it comes. Owned by the panel.
class CLivesRow
{
public:
	static const int BUBBLES = 10; // the last is the small one

	CLivesRow();
	~CLivesRow();
	CLivesRow(const CLivesRow&)            = delete;
	CLivesRow& operator=(const CLivesRow&) = delete;

	void Step(int lives); // once a frame

	CSprite* bubbles[BUBBLES]; // owned
	bool there[BUBBLES] = {};
};
