// The profile's mouse options, carried out.
#include "screens/mouse_mode.h"

#include "media/cursor.h"
#include "media/input.h"
#include "state/game_data.h"

void ApplyMouseMode()
{
	const int x = CursorX(), y = CursorY();
	g_input->systemCursorMode = g_gameData->SystemCursorOn();
	g_input->speed            = g_gameData->GetMouseSpeed();
	WarpCursor(x, y);
	g_input->Grab(!g_gameData->SystemCursorOn());
}
