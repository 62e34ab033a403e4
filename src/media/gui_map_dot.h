// A dot of the campaign map: one level to click on.
#pragma once

#include "field/bobber.h"
#include "media/dot_art.h"
#include "media/gui.h"

class CSound;
class CSprite;

enum DotAnimation {
	DOT_IDLE          = 0,
	DOT_ROLLOVER      = 1,
	DOT_SHRINK        = 3, // shrinks away and comes back as completed
	DOT_GROW          = 4,
	DOT_SELECTED      = 5,
	DOT_GROW_SELECTED = 6,
};

// A click selects it, a second one soon after fires; the keyboard fires at once. It fires
// OnGuiEvent(id, value): -1 when locked, 1 when completed, else 0. At most one dot is selected.
class CGuiButtonMapDot : public CGuiButtonBase
{
public:
	// x, y is the upper left corner of its pictures. kind and state must have pictures: side dots
	// know no DOT_LOCKED_GHOSTED, alien dots are never locked, stars never completed. startDelay:
	// frames before it grows in. DOT_GROW_SELECTED selects it.
	CGuiButtonMapDot(int x, int y, int id, CController* owner, DotKind kind, DotState state,
	                 DotAnimation start, int startDelay, bool isDefault);
	~CGuiButtonMapDot() override;

	void Step() override;
	bool Press(bool keyboard, bool force) override; // only while it has focus, forced or not
	void HideWidget() override;
	void ShowWidget() override;
	bool IsMouseOver() override; // never while it is growing in unselected
	void TakeFocus() override;   // selects it too

	void Select(); // a dot that is not locked
	bool IsSelected() const { return g_selectedMapDot == index; }

	DotKind kind;
	DotState state;
	DotAnimation animation;
	int animationDelay; // frames until it grows
	int clickGuard = 0; // frames in which a second click fires
	CDotArt* art;       // owned
	CSprite* current;   // of art; not owned
	CSound* clickSound; // owned
	CBobber pulseWave;  // lifts and lowers the selected dot

private:
	void ShowSprite(CSprite* sprite);
	void ComeBackCompleted();
	void StepShrink();
	void StepGrow(CSprite* grow);
	void StepSelected();
	void StepMouse();

	bool pointerInside = false;
};
