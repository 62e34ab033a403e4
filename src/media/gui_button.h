// A button of pictures: base, shadow, rollover and, if it has one, a pressed picture.
#pragma once

#include "media/gui.h"

#include <string>

class CSprite;

// Fires OnGuiEvent(id, 0) on the release of the left button over it, or by the keyboard.
class CGuiButton : public CGuiButtonBase
{
public:
	// Empty names leave shadow or pressed out. Shadow offsets are in pixels from x, y.
	CGuiButton(int x, int y, int id, CController* owner, const std::string& baseFile,
	           const std::string& shadowFile, const std::string& rolloverFile,
	           const std::string& pressedFile, bool isDefault, bool overlay, int shadowOffsetX,
	           int shadowOffsetY);
	~CGuiButton() override;

	void Step() override;
	bool Press(bool keyboard, bool force) override;
	void HideWidget() override;
	void ShowWidget() override;
	bool IsMouseOver() override;
	void TakeFocus() override;

	CSprite* shadow;   // owned, may be null
	CSprite* base;     // owned
	CSprite* rollover; // owned
	CSprite* pressed;  // owned, may be null
};
