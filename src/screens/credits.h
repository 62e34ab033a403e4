// Who made the game.
#pragma once

#include "screens/screen.h"

class CCard;
class CGuiButton;

// Any key closes the page, but two letters that, typed in their order, arm a test sequence: from
// then on digits open levels, give species, lives and money.
class CControllerCredits : public CScreen
{
public:
	CControllerCredits();
	~CControllerCredits() override;

	void OnKey(bool released, int key) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerCredits"; }

	bool IsArmed() const;

private:
	void Build() override;
	void TearDown() override;
	bool TypeSequence(int key); // true for the two letters
	bool RunTest(int key);      // true for a digit that does something

	int typed        = 0;       // letters of the sequence so far
	CCard* card      = nullptr; // owned
	CGuiButton* exit = nullptr; // owned
};
