// The pointer's two sprites.
#include "media/cursor.h"

#include "media/input.h"
#include "media/sprite.h"

static const int CURSOR_DEPTH       = 9000000;
static const int HOURGLASS_OFFSET_X = 4; // pixels from the pointer to the hourglass's middle
static const int HOURGLASS_OFFSET_Y = 3;

CCursor* g_cursor = nullptr;

CCursor::CCursor()
{
	arrow = new CSprite(CURSOR_DEPTH, SPRITE_OVERLAY);
	arrow->AddFile("mouse_cursor.tga");
	hourglass = new CSprite(CURSOR_DEPTH, SPRITE_OVERLAY);
	hourglass->AddFile("mouse_hourglass.tga");
	hourglass->Hide();
}

CCursor::~CCursor()
{
	delete arrow;
	delete hourglass;
}

void PlaceCursor()
{
	if (!g_cursor)
		return;
	const CSprite* glass = g_cursor->hourglass;
	g_cursor->arrow->SetPos(CursorX(), CursorY());
	g_cursor->hourglass->SetPos(CursorX() - glass->width / 2 + HOURGLASS_OFFSET_X,
	                            CursorY() - glass->height / 2 + HOURGLASS_OFFSET_Y);
}

void HideCursor(int motions)
{
	if (!g_cursor)
		return;
	g_cursor->arrow->Hide();
	g_cursor->hourglass->Hide();
	g_cursor->hideCounter = motions;
}

void CursorActivity()
{
	if (!g_cursor)
		return;
	if (g_cursor->hideCounter >= 0) {
		g_cursor->hideCounter--;
		return;
	}
	g_cursor->arrow->Show();
	g_cursor->hourglass->Hide();
}

void ShowHourglass(bool drawNow)
{
	if (!g_cursor)
		return;
	g_cursor->hourglass->Show();
	if (g_cursor->arrow->IsHidden())
		return;
	g_cursor->arrow->Hide();
	if (drawNow)
		g_cursor->hourglass->DrawNowAndUpdate();
}

bool IsCursorHidden()
{
	return !g_cursor || (g_cursor->arrow->IsHidden() && g_cursor->hourglass->IsHidden());
}

int CursorX()
{
	return g_input ? g_input->x : 0;
}

int CursorY()
{
	return g_input ? g_input->y : 0;
}

void WarpCursor(int x, int y)
{
	if (g_input)
		g_input->Warp(x, y);
}
