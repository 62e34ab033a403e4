// The choice of a player.
#pragma once

#include "screens/screen.h"

#include <string>

class CCard;
class CControllerDialog;
class CControllerName;
class CGuiButton;
class CSprite;

// Four rows of the list of profiles at a time, with widgets to scroll, choose, delete, rename and
// add. The keyboard's focus runs over the rows first, then over the widgets.
class CControllerProfile : public CScreen
{
public:
	// Widget ids, in the order of the focus.
	enum {
		BUTTON_UP,
		BUTTON_DOWN,
		BUTTON_SELECT,
		BUTTON_DELETE,
		BUTTON_RENAME,
		BUTTON_ADD,
		WIDGETS,
	};
	static constexpr int ROWS = 4, PLACES = ROWS + WIDGETS;

	CControllerProfile();
	~CControllerProfile() override;

	void Enter() override;
	void OnKey(bool released, int key) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerProfile"; }

	int firstRow     = 0; // index at the top of the list
	int profileCount = 0;
	int selectedRow  = 0;
	int focus        = 0; // place of the keyboard's focus
	int clickGuard   = 0; // frames left in which a second click is a double click
	int lastClicked  = -1;

private:
	void Build() override;
	void TearDown() override;
	void Step() override;
	void OnOtherKey(bool released, int key) override;
	void LoadList();
	void ShowCurrent();
	void Scroll(int rows);
	void Choose(int row);
	void DrawList();
	void ClickRow(int row);
	int RowUnderPointer() const;
	void MoveFocus(int step);
	void Select();
	void AskName(bool forNewProfile);
	bool AnswerName();
	void MakeRoomForChild();
	std::string SelectedName() const;

	bool newlyBuilt              = true;
	CCard* card                  = nullptr; // owned, as are all below; stays while a child is open
	CSprite* list                = nullptr;
	CGuiButton* widgets[WIDGETS] = {};
	CControllerDialog* dialog    = nullptr;
	CControllerName* nameBox     = nullptr;
};
