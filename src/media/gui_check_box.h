// A check box: two pairs of pictures and a value.
#pragma once

#include "media/gui.h"

class CSprite;

// Fires OnGuiEvent(id, value) with the new value, 0 or 1.
class CGuiCheckBox : public CGuiButtonBase
{
public:
	CGuiCheckBox(int x, int y, int id, CController* owner);
	~CGuiCheckBox() override;

	void Step() override;
	bool Press(bool keyboard, bool force) override;
	void HideWidget() override;
	void ShowWidget() override;
	bool IsMouseOver() override;
	void TakeFocus() override;
	void SetChecked(bool checked); // shows it, without an event

	CSprite* base[2];     // owned: unchecked, checked
	CSprite* rollover[2]; // owned
	bool value = true;

private:
	void HidePictures();
};
