// The modal box with which the game asks before it acts, or says why it does not.
#pragma once

#include "screens/screen.h"

#include <string>

class CCard;
class CGuiButton;

enum DialogKind {
	DIALOG_MORE_GAMES        = 0,
	DIALOG_CHANGE_MODE       = 1,
	DIALOG_RESET_MAP         = 2,
	DIALOG_LEVEL_LOCKED      = 3,
	DIALOG_LEVEL_PLAYED      = 4,
	DIALOG_ISLANDS_LOCKED    = 5,
	DIALOG_RESET_TROPHIES    = 6,
	DIALOG_DISABLE_SHIELD    = 7,
	DIALOG_DELETE_USER       = 8,
	DIALOG_RESET_HIGH_SCORES = 9,
	DIALOG_NAME_IN_USE       = 10,
	DIALOG_SCORE_NAME_IN_USE = 11,
	DIALOG_SLOW_MACHINE      = 12,
	DIALOG_SERVER_ERROR      = 15,
};

// A box over a copy of the screen, with one button or two. Its parent reads kind and answer. A
// kind that is not listed is fatal: a fault of the caller.
class CControllerDialog : public CScreen
{
public:
	// fader dims what lies behind; text is read by DIALOG_SERVER_ERROR alone.
	CControllerDialog(int newKind, bool newFader, const std::string& newText = "");
	~CControllerDialog() override;

	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerDialog"; }

	int kind;
	int answer = 1; // 0 once the first button was pressed; closing the window leaves it at 1

private:
	void Build() override;
	void TearDown() override;

	bool fader;
	std::string text;
	CCard* card           = nullptr; // owned, as are the buttons
	CGuiButton* okay      = nullptr;
	CGuiButton* cancelled = nullptr; // null for a box with one button
};
