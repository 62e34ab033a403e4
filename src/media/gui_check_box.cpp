// Check boxes.
#include "media/gui_check_box.h"

#include "frame/controller.h"
#include "media/cursor.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "sound/sound_manager.h"

static const int BASE_DEPTH     = 900100;
static const int ROLLOVER_DEPTH = 900200;

static CSprite* NewPicture(int x, int y, int depth, const char* file)
{
	CSprite* sprite = new CSprite(x, y, depth);
	sprite->AddFile(file);
	sprite->Hide();
	return sprite;
}

CGuiCheckBox::CGuiCheckBox(int newX, int newY, int newId, CController* newOwner)
    : CGuiButtonBase(newX, newY, newId, newOwner, false)
{
	base[0]     = NewPicture(x, y, BASE_DEPTH, "optionscheckboxuncheckedbase.png");
	rollover[0] = NewPicture(x, y, ROLLOVER_DEPTH, "optionscheckboxuncheckedrollover.png");
	base[1]     = NewPicture(x, y, BASE_DEPTH, "optionscheckboxcheckedbase.png");
	rollover[1] = NewPicture(x, y, ROLLOVER_DEPTH, "optionscheckboxcheckedrollover.png");
	SetChecked(true);
}

CGuiCheckBox::~CGuiCheckBox()
{
	for (int i = 0; i < 2; i++) {
		delete base[i];
		delete rollover[i];
	}
}

void CGuiCheckBox::Step()
{
	if (hidden)
		return;
	CSprite* lit = rollover[value];
	if (!IsMouseOver() || g_focusedWidget >= 0) {
		base[value]->Show();
		lit->Hide();
		return;
	}
	if (lit->IsHidden() && g_mouseOverSound)
		g_mouseOverSound->Play();
	g_focusedWidget = index;
	base[value]->Hide();
	lit->Show();
}

bool CGuiCheckBox::Press(bool, bool force)
{
	if (!HasFocus() && !force)
		return false;
	SetChecked(!value);
	if (g_mouseSelectionSound)
		g_mouseSelectionSound->Play();
	owner->OnGuiEvent(id, value); // may delete this box
	return true;
}

void CGuiCheckBox::SetChecked(bool checked)
{
	value = checked;
	HidePictures();
	if (!hidden)
		base[value]->Show();
}

void CGuiCheckBox::HidePictures()
{
	for (int i = 0; i < 2; i++) {
		base[i]->Hide();
		rollover[i]->Hide();
	}
}

void CGuiCheckBox::HideWidget()
{
	hidden = true;
	HidePictures();
}

void CGuiCheckBox::ShowWidget()
{
	hidden = false;
	base[value]->Show();
}

bool CGuiCheckBox::IsMouseOver()
{
	return !hidden && base[value]->MouseOver(0, 0);
}

void CGuiCheckBox::TakeFocus()
{
	const CSprite* box = base[value];
	WarpCursor(box->x + box->width / 2, box->y + box->height / 2);
	HideCursor(1);
}
