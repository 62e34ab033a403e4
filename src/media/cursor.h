// The pointer, drawn as two sprites; the system's own cursor stays hidden.
#pragma once

class CSprite;

// The arrow and the hourglass. Built once after the render manager, gone before it.
class CCursor
{
public:
	CCursor();
	~CCursor();

	CSprite* arrow;       // owned
	CSprite* hourglass;   // owned
	int hideCounter = -1; // motions for which the arrow stays hidden
};

extern CCursor* g_cursor;

void PlaceCursor();               // to the input's position, each frame before drawing
void HideCursor(int motions);     // -1: until the mouse moves
void CursorActivity();            // on each motion or button event
void ShowHourglass(bool drawNow); // drawNow when no frame comes before the work is done
bool IsCursorHidden();
int CursorX();
int CursorY();
void WarpCursor(int x, int y);
