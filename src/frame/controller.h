// The chain of controllers: every screen of the game is one, and exactly one is current.
#pragma once

// Result codes. A code above 0 leaves that many further levels, one a frame.
const int RESULT_NONE   = -2; // nothing pending
const int RESULT_QUIT   = -1; // unwinds to the root and ends the program
const int RESULT_RETURN = 0;  // back to the parent

// A screen. Its parent makes it with new, pushes it, and deletes it in Enter when it has returned,
// after reading what it left in its fields. Constructors do all first-time set-up: Enter is called
// only when a child has come back.
class CController
{
public:
	virtual ~CController() = default;

	virtual void Enter()  = 0; // a child has returned; still intact, to be deleted here
	virtual void Update() = 0; // once a frame while current; begins with PollInput(this)
	virtual void OnKey(bool released, int key)                       = 0; // SDL key symbol
	virtual void OnMouseMove(int x, int y)                           = 0; // pixels of the surface
	virtual void OnMouseButton(bool left, bool right, bool released) = 0;
	virtual void OnGuiEvent(int id, int value); // a widget of this screen has fired
	virtual void OnFocusLost() {}               // the window no longer gets the keys
	virtual const char* Name() const = 0;       // class name, for the driver and the debug overlay

	// Makes this the current controller. Without a parent Enter runs too, unless quiet.
	void Activate(CController* newParent, bool quiet);
	// Hands control to the child; its Enter is not called.
	void Push(CController* child);
	// The chain acts on it after the present Update has returned.
	void SetResult(int code);

	CController* parent = nullptr; // not owned; null at the root
	int result          = RESULT_NONE;
	bool active         = false;
};

extern CController* g_currentController; // not owned
extern bool g_running;                   // the main loop goes on while set

// One frame of the chain: Update of the current controller, then its result is acted on.
void ControllerChainTick();

// The window was closed: result -1 on the given controller, or on the current one.
void RequestQuit(CController* controller);
void RequestQuit();

// Runs the event pump with this controller as the target of all handlers.
void PollInput(CController* controller);
