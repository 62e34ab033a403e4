// The list of widgets, and focus by pointer and keyboard.
#include "media/gui.h"

#include <SDL.h>

std::vector<CGuiButtonBase*> GuiWidgets;
int g_focusedWidget   = -1;
bool g_leftButtonDown = false;
int g_selectedMapDot  = -1;

// Counted on from the last widget: after a deletion the length of the list could be a number that
// another widget still has.
CGuiButtonBase::CGuiButtonBase(int newX, int newY, int newId, CController* newOwner,
                               bool newIsDefault)
    : index(GuiWidgets.empty() ? 0 : GuiWidgets.back()->index + 1), owner(newOwner),
      isDefault(newIsDefault), x(newX), y(newY), id(newId)
{
	GuiWidgets.push_back(this);
	g_focusedWidget = -1;
}

CGuiButtonBase::~CGuiButtonBase()
{
	std::erase(GuiWidgets, this);
}

bool CGuiButtonBase::HasFocus() const
{
	return g_focusedWidget == index;
}

void GuiStepAll()
{
	g_focusedWidget = -1;
	for (CGuiButtonBase* widget : GuiWidgets)
		widget->Step();
}

// A press may delete any widget, the list is not touched after one has fired.
void GuiPress(bool keyboard)
{
	for (CGuiButtonBase* widget : GuiWidgets)
		if (widget->Press(keyboard, false))
			return;
	if (!keyboard)
		return;
	for (CGuiButtonBase* widget : GuiWidgets)
		if (widget->isDefault) {
			widget->Press(true, true);
			return;
		}
}

void GuiMouseEdge(bool released)
{
	if (g_leftButtonDown && released)
		GuiPress(false);
	g_leftButtonDown = !released;
}

static CGuiButtonBase* WidgetOfIndex(int index)
{
	for (CGuiButtonBase* widget : GuiWidgets)
		if (widget->index == index)
			return widget;
	return nullptr;
}

// Stops after one round, in case no widget can be reached.
void GuiFocusNext(bool previous)
{
	if (GuiWidgets.empty())
		return;
	const int last = GuiWidgets.back()->index;
	for (int tries = 0; tries <= last; tries++) {
		g_focusedWidget += previous ? -1 : 1;
		if (g_focusedWidget < 0)
			g_focusedWidget = last;
		if (g_focusedWidget > last)
			g_focusedWidget = 0;
		CGuiButtonBase* widget = WidgetOfIndex(g_focusedWidget);
		if (widget && !widget->hidden && !widget->disabled) {
			widget->TakeFocus();
			return;
		}
	}
}

bool GuiKey(int key)
{
	switch (key) {
	case SDLK_LEFT:
	case SDLK_UP:
		GuiFocusNext(true);
		return true;
	case SDLK_RIGHT:
	case SDLK_DOWN:
		GuiFocusNext(false);
		return true;
	case SDLK_RETURN:
	case SDLK_KP_ENTER:
	case SDLK_SPACE:
		GuiPress(true);
		return true;
	}
	return false;
}
