// The options screen.
#pragma once

#include "screens/screen.h"

class CCard;
class CControllerDialog;
class CControllerOptionsControls;
class CGuiButton;
class CGuiCheckBox;
class CGuiSlider;
class CSound;

// The twelve speeds of the mouse slider: times the mouse's own motion.
extern const float mouseSpeedSteps[12];

// Volumes, mouse and switches, each felt at once. It opens from the main menu and over a running
// level, whose shield it takes down and brings up.
class CControllerOptions : public CScreen
{
public:
	// Widget ids, in the order of the keyboard's focus.
	enum {
		SOUND_LOWER,
		SOUND_RAISE,
		MUSIC_LOWER,
		MUSIC_RAISE,
		MOUSE_LOWER,
		MOUSE_RAISE,
		BOX_SYSTEM_CURSOR,
		BOX_FULLSCREEN,
		BOX_EFFECTS,
		BOX_HINT_PAGES,
		BOX_QUIZ,
		BOX_BARRIER,
		BUTTON_CONTROLS,
		BUTTON_BACK,
		WIDGETS,
	};
	static constexpr int BUTTONS = 8, BOXES = 6;

	CControllerOptions();
	~CControllerOptions() override;

	void Enter() override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerOptions"; }

	CGuiSlider* soundSlider    = nullptr; // owned
	CGuiSlider* musicSlider    = nullptr; // owned
	CGuiSlider* mouseSlider    = nullptr; // owned
	CGuiCheckBox* boxes[BOXES] = {};      // owned; from BOX_SYSTEM_CURSOR on

private:
	void Build() override;
	void TearDown() override;
	void OnOtherKey(bool released, int key) override;
	void BuildSliders();
	void BuildBoxes();
	void TurnSlider(int id);
	void TurnBox(int id);
	void ToggleSystemCursor();
	void ToggleBarrier();
	void MakeRoomForChild();

	CCard* card;                                    // owned; stays while a child is open
	CSound* cluck;                                  // owned; what a volume is judged by
	CGuiButton* buttons[BUTTONS]         = {};      // owned
	CControllerDialog* dialog            = nullptr; // owned
	CControllerOptionsControls* controls = nullptr; // owned
};
