// The program's life outside the screens: start-up, main loop, shut-down.
#pragma once

#include <string>

class CControllerIntro;

// What the one command-line argument chooses.
struct ProgramMode {
	bool windowed  = false;
	bool soundOff  = false;
	bool askDevice = false;
};

// Exactly one argument is read as an integer in base 0; anything else, and values outside 1 to 7,
// give the defaults.
ProgramMode ParseMode(int argc, char** argv);

// Called by the main loop around each frame; the driver and the tests hook in here.
class CFrameHook
{
public:
	virtual ~CFrameHook()      = default;
	virtual void BeforeFrame() = 0; // before the chain's tick: the place to push input events
	virtual void AfterFrame()  = 0; // after the frame has been presented
};

// Starts the services in their fixed order, runs the main loop until the chain has run out, takes
// all down again. The working directory must hold the data files. hook may be null.
// Returns the exit code.
int RunProgram(const ProgramMode& mode, unsigned int seed, CFrameHook* hook);

extern bool g_fullscreen;              // the wanted screen mode
extern std::string g_moreGamesAddress; // text of data1.dat, at most 255 characters, may be empty
