// The widget layer: the list of all widgets, focus by pointer and keyboard, the base class.
#pragma once

#include <vector>

class CController;

// A widget of a screen: a group of sprites and a little logic. It stands in GuiWidgets from
// construction to destruction; the screen that made it deletes it.
class CGuiButtonBase
{
public:
	CGuiButtonBase(int newX, int newY, int newId, CController* newOwner, bool isDefault);
	virtual ~CGuiButtonBase();

	virtual void Step() = 0; // once a frame
	// Tries to fire; true if it did. With force it fires without having focus.
	virtual bool Press(bool keyboard, bool force) = 0;
	virtual void HideWidget()                     = 0;
	virtual void ShowWidget()                     = 0;
	virtual bool IsMouseOver()                    = 0;
	virtual void TakeFocus()                      = 0; // keyboard focus arrives here

	bool HasFocus() const;

	int index;          // place in the list when it was made
	CController* owner; // not owned; receives OnGuiEvent
	bool hidden   = false;
	bool disabled = false; // keyboard focus passes it over
	bool isDefault;        // Return presses it when no widget has focus
	int x, y, id;
};

extern std::vector<CGuiButtonBase*> GuiWidgets; // in order of creation
extern int g_focusedWidget;                     // index of the widget with focus, -1
extern bool g_leftButtonDown;
extern int g_selectedMapDot; // index of the selected dot of the map, -1

void GuiStepAll();
void GuiPress(bool keyboard);
void GuiMouseEdge(bool released);
void GuiFocusNext(bool previous);

// The keys that every screen with widgets shares: arrows move the focus, Return, Enter and Space
// press. True when the key was one of them. Call it on the key's release.
bool GuiKey(int key);
