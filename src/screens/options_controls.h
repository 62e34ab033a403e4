// The control keys.
#pragma once

#include "screens/screen.h"
#include "state/game_data.h"

class CCard;
class CGuiButton;
class CSprite;

// Four inputs: one that is opened takes the next key released, whatever it is, also one that is in
// use. Nothing is stored before Save.
class CControllerOptionsControls : public CScreen
{
public:
	// Widget ids; the inputs come first.
	enum { BUTTON_RESET = CONTROL_KEYS, BUTTON_SAVE, BUTTON_CANCEL, WIDGETS };

	CControllerOptionsControls();
	~CControllerOptionsControls() override;

	void OnKey(bool released, int key) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerOptionsControls"; }

	int pendingKeys[CONTROL_KEYS]; // SDL key symbols, as edited
	int editing = 0;               // 1 to 4: the input that waits for a key

private:
	void Build() override;
	void TearDown() override;
	void Step() override;
	void OnOtherKey(bool released, int key) override;
	void OpenInput(int input);
	void TakeKey(int key);
	void ResetKeys();
	void SaveKeys();
	void DrawInput(int input, const std::string& text);

	int blink                    = 0;       // frames; the cursor shows from 1 up
	CCard* card                  = nullptr; // owned, as are all below
	CGuiButton* widgets[WIDGETS] = {};
	CSprite* cursor              = nullptr;
};
