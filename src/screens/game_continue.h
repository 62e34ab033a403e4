// The choice between going on with a run and a new one.
#pragma once

#include "screens/screen.h"

class CCard;
class CGuiButton;

// Opens when the profile has a run with a score. Its parent reads newGame; a closed window leaves
// it clear.
class CControllerGameContinue : public CScreen
{
public:
	enum { BUTTON_CONTINUE, BUTTON_NEW_GAME }; // widget ids

	CControllerGameContinue();
	~CControllerGameContinue() override;

	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerGameContinue"; }

	bool newGame = false;

private:
	void Build() override;
	void TearDown() override;

	CCard* card           = nullptr; // owned, as are the buttons
	CGuiButton* goOn      = nullptr;
	CGuiButton* startOver = nullptr;
};
