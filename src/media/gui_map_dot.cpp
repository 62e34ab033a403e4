// Dots of the campaign map: their pictures, their animations, clicks on them.
#include "media/gui_map_dot.h"

#include "frame/controller.h"
#include "frame/random.h"
#include "media/cursor.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

static const int CLICK_GUARD   = 15; // frames
static const int CLICK_FRAME   = 2;  // of the shrinking: there it clicks
static const int REACH_LEFT    = 9;  // pixels from the centre
static const int REACH_RIGHT   = 7;
static const int REACH_UP_DOWN = 8;

static const int PULSE_PERIOD      = 7; // frames
static const float PULSE_POWER     = 3;
static const float PULSE_AMPLITUDE = 2.2f; // pixels
static const int PULSE_PHASES      = 24;

CGuiButtonMapDot::CGuiButtonMapDot(int newX, int newY, int newId, CController* newOwner,
                                   DotKind newKind, DotState newState, DotAnimation start,
                                   int startDelay, bool newIsDefault)
    : CGuiButtonBase(newX, newY, newId, newOwner, newIsDefault), kind(newKind), state(newState),
      animation(start), animationDelay(startDelay), art(new CDotArt(newX, newY, newKind, newState)),
      clickSound(new CSound("map_dot.ogg")),
      pulseWave(0, PULSE_PERIOD, PULSE_POWER, PULSE_AMPLITUDE, Rand() % PULSE_PHASES)
{
	disabled = state < DOT_COMPLETED;
	current  = art->plain;
	if (start == DOT_SHRINK)
		ShowSprite(art->shrink);
	else if (start == DOT_GROW_SELECTED)
		g_selectedMapDot = index;
	else if (start != DOT_GROW)
		ShowSprite(art->plain);
}

CGuiButtonMapDot::~CGuiButtonMapDot()
{
	g_selectedMapDot = -1;
	delete art;
	delete clickSound;
}

void CGuiButtonMapDot::ShowSprite(CSprite* sprite)
{
	current->Hide();
	current = sprite;
	if (!hidden)
		current->Show();
}

void CGuiButtonMapDot::ComeBackCompleted()
{
	delete art;
	state          = DOT_COMPLETED;
	art            = new CDotArt(x, y, kind, state);
	current        = art->plain;
	animation      = DOT_GROW;
	animationDelay = 0;
}

void CGuiButtonMapDot::Select()
{
	if (animation == DOT_SHRINK)
		ComeBackCompleted();
	g_selectedMapDot = index;
	animation        = DOT_SELECTED;
	if (current != art->selected)
		ShowSprite(art->selected);
}

void CGuiButtonMapDot::Step()
{
	if (hidden)
		return;
	if (clickGuard > 0)
		clickGuard--;
	if (animation == DOT_SHRINK)
		StepShrink();
	if (animation == DOT_GROW)
		StepGrow(art->grow);
	if (animation == DOT_GROW_SELECTED)
		StepGrow(art->selectedGrow);
	if (animation == DOT_SELECTED)
		StepSelected();
	StepMouse();
}

void CGuiButtonMapDot::StepShrink()
{
	if (current->Frame() == CLICK_FRAME && !current->IsAtLastFrameEnd())
		clickSound->Play();
	if (current->IsAtLastFrameEnd())
		ComeBackCompleted();
}

void CGuiButtonMapDot::StepGrow(CSprite* grow)
{
	const bool wasSelected = animation == DOT_GROW_SELECTED;
	if (wasSelected && !IsSelected()) {
		animation = DOT_IDLE;
		ShowSprite(art->plain);
	} else if (animationDelay > 0) {
		animationDelay--;
	} else if (current != grow) {
		grow->Rewind();
		grow->Forward();
		ShowSprite(grow);
	} else if (grow->IsAtLastFrameEnd()) {
		animation = wasSelected ? DOT_SELECTED : DOT_IDLE;
		ShowSprite(wasSelected ? art->selected : art->plain);
	}
}

void CGuiButtonMapDot::StepSelected()
{
	if (IsSelected()) {
		current->SetPos(current->X(), art->plain->Y() + pulseWave.StepValue());
		return;
	}
	animation = DOT_IDLE;
	ShowSprite(art->plain);
}

void CGuiButtonMapDot::StepMouse()
{
	if (!IsMouseOver() || g_focusedWidget >= 0) {
		pointerInside = false;
		if (animation == DOT_ROLLOVER) {
			animation = DOT_IDLE;
			ShowSprite(art->plain);
		}
		return;
	}
	if (!pointerInside && g_mouseOverSound)
		g_mouseOverSound->Play();
	pointerInside   = true;
	g_focusedWidget = index;
	if (animation == DOT_IDLE) {
		animation = DOT_ROLLOVER;
		ShowSprite(art->rollover);
	}
}

bool CGuiButtonMapDot::Press(bool keyboard, bool)
{
	if (!HasFocus())
		return false;
	if (!art->selected) {
		owner->OnGuiEvent(id, -1); // may delete this dot
		return true;
	}
	Select();
	if (!keyboard && clickGuard == 0) {
		if (g_mouseSelectionSound)
			g_mouseSelectionSound->Play();
		clickGuard = CLICK_GUARD;
		return true;
	}
	owner->OnGuiEvent(id, state == DOT_COMPLETED ? 1 : 0); // may delete this dot
	return true;
}

void CGuiButtonMapDot::HideWidget()
{
	hidden = true;
	current->Hide();
}

// A dot that waits to grow shows nothing yet.
void CGuiButtonMapDot::ShowWidget()
{
	hidden = false;
	if ((animation != DOT_GROW && animation != DOT_GROW_SELECTED) || current != art->plain)
		current->Show();
}

bool CGuiButtonMapDot::IsMouseOver()
{
	if (hidden || animation == DOT_GROW)
		return false;
	const int right = CursorX() - (current->X() + current->Width() / 2);
	const int below = CursorY() - (current->Y() + current->Height() / 2);
	return right >= -REACH_LEFT && right <= REACH_RIGHT && below >= -REACH_UP_DOWN &&
	       below <= REACH_UP_DOWN;
}

// The guard of an earlier visit would make this press fire: moving the focus only selects.
void CGuiButtonMapDot::TakeFocus()
{
	WarpCursor(current->X() + current->Width() / 2, current->Y() + current->Height() / 2);
	HideCursor(1);
	clickGuard = 0;
	Press(false, false);
}
