// Buttons of pictures.
#include "media/gui_button.h"

#include "frame/controller.h"
#include "media/cursor.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

static const int SHADOW_DEPTH   = 900000;
static const int BASE_DEPTH     = 900100;
static const int ROLLOVER_DEPTH = 900200;
static const int PRESSED_SHIFT  = 2; // pixels, for a button without a pressed picture

static CSprite* NewPicture(int x, int y, int depth, bool overlay, const std::string& file)
{
	if (file.empty())
		return nullptr;
	CSprite* sprite = new CSprite(x, y, depth, overlay ? SPRITE_OVERLAY : SPRITE_PLAIN);
	sprite->AddFile(file);
	return sprite;
}

CGuiButton::CGuiButton(int newX, int newY, int newId, CController* newOwner,
                       const std::string& baseFile, const std::string& shadowFile,
                       const std::string& rolloverFile, const std::string& pressedFile,
                       bool newIsDefault, bool overlay, int shadowOffsetX, int shadowOffsetY)
    : CGuiButtonBase(newX, newY, newId, newOwner, newIsDefault)
{
	shadow   = NewPicture(x + shadowOffsetX, y + shadowOffsetY, SHADOW_DEPTH, overlay, shadowFile);
	base     = NewPicture(x, y, BASE_DEPTH, overlay, baseFile);
	rollover = NewPicture(x, y, ROLLOVER_DEPTH, overlay, rolloverFile);
	pressed  = NewPicture(x, y, ROLLOVER_DEPTH, overlay, pressedFile);
	rollover->Hide();
	if (pressed)
		pressed->Hide();
}

CGuiButton::~CGuiButton()
{
	delete shadow;
	delete base;
	delete rollover;
	delete pressed;
}

void CGuiButton::Step()
{
	if (hidden)
		return;
	if (!IsMouseOver() || g_focusedWidget >= 0) {
		base->Show();
		rollover->Hide();
		if (pressed)
			pressed->Hide();
		return;
	}
	if (rollover->IsHidden() && (!pressed || pressed->IsHidden()) && g_mouseOverSound)
		g_mouseOverSound->Play();
	g_focusedWidget = index;
	base->Hide();
	if (pressed) {
		pressed->hidden  = !g_leftButtonDown;
		rollover->hidden = g_leftButtonDown;
		return;
	}
	const int shift = g_leftButtonDown ? PRESSED_SHIFT : 0;
	rollover->Show();
	rollover->SetPos(x + shift, y + shift);
}

bool CGuiButton::Press(bool, bool force)
{
	if (!HasFocus() && !force)
		return false;
	if (g_mouseSelectionSound)
		g_mouseSelectionSound->Play();
	owner->OnGuiEvent(id, 0); // may delete this button
	return true;
}

void CGuiButton::HideWidget()
{
	hidden = true;
	base->Hide();
	rollover->Hide();
	if (shadow)
		shadow->Hide();
	if (pressed)
		pressed->Hide();
}

void CGuiButton::ShowWidget()
{
	hidden = false;
	base->Show();
	if (shadow)
		shadow->Show();
}

// By the base's place even while the base is hidden under the rollover.
bool CGuiButton::IsMouseOver()
{
	return !hidden && base->MouseOver(0, 0);
}

void CGuiButton::TakeFocus()
{
	WarpCursor(base->x + base->width / 2, base->y + base->height / 2);
	HideCursor(1);
}
