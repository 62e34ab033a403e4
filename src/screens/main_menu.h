// The main menu, the front door of the game.
#pragma once

#include "screens/screen.h"

class CControllerDialog;
class CControllerGameContinue;
class CControllerGameType;
class CGuiButton;
class CMenuButton;
class CMenuPicture;
class CSprite;

// What the menu is doing. A press on one of the three pages stands at the page's first press state
// plus the button, until the button has played it out.
enum MenuState {
	MENU_CLOSED,
	MENU_ROOT,
	MENU_ACHIEVEMENTS,
	MENU_OPTIONS,
	MENU_TO_ACHIEVEMENTS, // the small buttons turn, as in the three below
	MENU_TO_OPTIONS,
	MENU_FROM_ACHIEVEMENTS,
	MENU_FROM_OPTIONS,
	MENU_ROOT_PLAY,
	MENU_MORE_GAMES        = 11,
	MENU_QUIT              = 12,
	MENU_ACHIEVEMENTS_PLAY = 13,
	MENU_SANCTUARY         = 14,
	MENU_TROPHIES          = 15,
	MENU_HIGH_SCORES       = 16,
	MENU_OPTIONS_PLAY      = 18,
	MENU_INSTRUCTIONS      = 19,
	MENU_SETTINGS          = 20,
	MENU_CREDITS           = 21,
};

// A living picture, one large button and four small ones that turn between three pages, and the
// button with the player's name. It owns the screens that it opens; while one is open its own
// sprites are gone.
class CControllerMain : public CScreen
{
public:
	static constexpr int BUTTONS = 5, PROFILE_PLACE = BUTTONS, PLACES = BUTTONS + 1;

	CControllerMain();
	~CControllerMain() override;

	void Enter() override;
	void OnKey(bool released, int key) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerMain"; }

	void StartLevel(int number); // without the map, as the driver needs it

	int menuState  = MENU_CLOSED;
	int menuFocus  = -1;        // 0 to 4, 5 for the player's button, -1 for none
	bool busy      = false;     // the buttons are still opening: presses are ignored
	MenuState page = MENU_ROOT; // the page shown, or the one that the buttons turn to

private:
	void Build() override;
	void TearDown() override;
	void Step() override;
	void BuildPlayer();
	bool IsTurning() const;
	bool AcceptsInput() const;
	void StepState();
	void StepFocus();
	int PlaceUnderPointer() const;
	void MoveFocus(int step);
	void Press(int place);
	void PressButton(int button);
	void Turn(MenuState turning, MenuState newPage);
	void Act();
	void Play();
	void MakeRoomForChild();
	void OpenMap(int goToCurrentGroup);
	void DeleteChildren();

	bool opened    = false; // the opening has run once; a later rebuild shows the faces at once
	int focusHeld  = 0;     // frames in which the focus does not follow the pointer
	int firstPress = MENU_ROOT_PLAY; // state of a press on button 0 of the page

	CMenuPicture* picture         = nullptr; // owned, as are all below
	CMenuButton* buttons[BUTTONS] = {};
	CGuiButton* playerButton      = nullptr;
	CSprite* playerName           = nullptr;

	CControllerDialog* dialog             = nullptr; // owned, as are all below
	CControllerGameType* gameType         = nullptr;
	CControllerGameContinue* gameContinue = nullptr;
	CController* child                    = nullptr; // one that leaves no answer
};
