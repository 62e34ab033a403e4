// The choice between the regular game and the one for kids.
#pragma once

#include "screens/screen.h"

class CCard;
class CGuiButton;

// Two buttons; the one pressed sets the profile's mode before the screen returns. Closing the
// window leaves the mode as it was.
class CControllerGameType : public CScreen
{
public:
	enum { BUTTON_REGULAR, BUTTON_KIDS }; // widget ids

	CControllerGameType();
	~CControllerGameType() override;

	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerGameType"; }

private:
	void Build() override;
	void TearDown() override;

	CCard* card         = nullptr; // owned, as are the buttons
	CGuiButton* regular = nullptr;
	CGuiButton* kids    = nullptr;
};
