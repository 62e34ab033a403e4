// The box that asks for a player's name.
#pragma once

#include "screens/screen.h"

#include <string>

class CCard;
class CGuiButton;
class CGuiTextInput;

// Starts empty, for a new player and for another name of an old one. Letters go to the field, so
// Space presses nothing here. The box does not close on a name of nothing but blanks.
class CControllerName : public CScreen
{
public:
	enum { BUTTON_OKAY, BUTTON_CANCEL }; // widget ids

	explicit CControllerName(bool forNewProfile);
	~CControllerName() override;

	void OnKey(bool released, int key) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerName"; }

	bool newProfile;       // opened to create one, not to rename one
	bool cancelled = true; // unless Okay has taken a name
	std::string text;      // 1 to 15 characters once it has

private:
	void Build() override;
	void TearDown() override;
	void Step() override;

	CCard* card          = nullptr; // owned, as are all below
	CGuiTextInput* input = nullptr;
	CGuiButton* okay     = nullptr;
	CGuiButton* cancel   = nullptr;
};
