// The pause menu.
#pragma once

#include "frame/controller.h"

class CSound;
class CSprite;

// Eight buttons over the frozen level. Result 0 goes on, 1 leaves the level, 3 goes to the main
// menu. While one of its screens is open its own sprites are gone.
class CControllerInGame : public CController
{
public:
	CControllerInGame();
	~CControllerInGame() override;

	void Enter() override;
	void Update() override;
	void OnKey(bool released, int key) override;
	void OnMouseMove(int x, int y) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	const char* Name() const override { return "CControllerInGame"; }

	enum {
		RESUME,
		INSTRUCTIONS,
		SETTINGS,
		SANCTUARY,
		TROPHIES,
		HIGH_SCORES,
		MAP,
		MAIN_MENU,
		BUTTON_COUNT
	};
	int selected = -1; // the button with the highlight

private:
	struct Button {
		CSprite* base     = nullptr; // owned, as are all below
		CSprite* rollover = nullptr;
		CSprite* shadow   = nullptr;
	};
	void Build();
	void TearDown();
	void StepButtons();
	void MoveFocus(int step);
	void Activate(int button);
	void OpenChild(int button);

	Button buttons[BUTTON_COUNT];
	CSprite* fader     = nullptr; // owned
	CSprite* panel     = nullptr; // owned
	CSprite* professor = nullptr; // owned
	CController* child = nullptr; // owned
	bool built         = false;
	bool leftHeld      = false;
	int quietMotions   = 0; // motions of our own warping, no sign of the player's hand
};
