// The step of the chain: who is current, and what a result does to the parents.
#include "frame/controller.h"

#include "media/display.h"
#include "media/input.h"

CController* g_currentController = nullptr;
bool g_running                   = true;

void CController::OnGuiEvent(int, int) {}

void CController::Activate(CController* newParent, bool quiet)
{
	active              = true;
	g_currentController = this;
	if (newParent)
		parent = newParent;
	else if (!quiet)
		Enter();
}

void CController::Push(CController* child)
{
	active              = false;
	result              = RESULT_NONE;
	child->active       = true;
	child->parent       = this;
	g_currentController = child;
}

void CController::SetResult(int code)
{
	result = code;
}

// What a parent inherits from a child that returned with code; RESULT_NONE leaves it alone.
static int InheritedCode(int code)
{
	if (code == RESULT_QUIT)
		return RESULT_QUIT;
	return code > 0 ? code - 1 : RESULT_NONE;
}

void ControllerChainTick()
{
	if (!g_currentController)
		return;
	g_currentController->Update();

	CController* controller = g_currentController; // Update may have pushed a child
	const int code          = controller->result;
	// A frame in which the chain passes through would show half-built screens.
	if (g_display)
		g_display->SetPresentAllowed(code == RESULT_RETURN || code == RESULT_NONE);
	if (code == RESULT_NONE)
		return;

	controller->result = RESULT_NONE;
	controller->active = false;
	CController* above = controller->parent;
	if (!above) {
		g_running = false;
		return;
	}
	const int inherited = InheritedCode(code);
	if (inherited != RESULT_NONE)
		above->result = inherited;
	above->active       = true;
	g_currentController = above;
	above->Enter();
}

void RequestQuit(CController* controller)
{
	if (controller)
		controller->SetResult(RESULT_QUIT);
}

void RequestQuit()
{
	RequestQuit(g_currentController);
}

void PollInput(CController* controller)
{
	g_input->Poll(controller);
}
