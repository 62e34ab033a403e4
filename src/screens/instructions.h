// The instructions page.
#pragma once

#include "screens/screen.h"

class CCard;
class CGuiButton;
class CSprite;

// How the game is played, and what each power-up does: the one under the pointer is told. Any key
// closes the page.
class CControllerInstructions : public CScreen
{
public:
	static constexpr int DISCS = 16;

	CControllerInstructions();
	~CControllerInstructions() override;

	void OnKey(bool released, int key) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerInstructions"; }

	int ShownDisc() const; // whose text is shown, -1 for none

private:
	struct Disc {
		CSprite* glow        = nullptr; // owned, as are all below
		CSprite* name        = nullptr;
		CSprite* information = nullptr;
	};

	void Build() override;
	void TearDown() override;
	void Step() override;
	void BuildDiscs();

	Disc discs[DISCS];
	CCard* card      = nullptr; // owned
	CGuiButton* exit = nullptr; // owned
};
