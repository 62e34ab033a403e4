// What all screens of widgets share.
#include "screens/screen.h"

#include "media/cursor.h"
#include "media/gui.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

void CScreen::Open()
{
	if (built)
		return;
	built = true;
	Build();
}

void CScreen::Close()
{
	if (!built)
		return;
	built = false;
	TearDown();
}

// Handlers run inside the pump and may have handed control on.
void CScreen::Update()
{
	PollInput(this);
	if (!active)
		return;
	GuiStepAll();
	Step();
}

void CScreen::OnKey(bool released, int key)
{
	if (!active || (released && GuiKey(key)))
		return;
	OnOtherKey(released, key);
}

void CScreen::OnMouseMove(int, int)
{
	if (active)
		CursorActivity();
}

void CScreen::OnMouseButton(bool left, bool, bool released)
{
	if (!active)
		return;
	CursorActivity();
	if (left)
		GuiMouseEdge(released);
}

void CScreen::EndByKey()
{
	g_mouseSelectionSound->Play();
	SetResult(RESULT_RETURN);
}
