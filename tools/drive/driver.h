// Plays a script against the running program, frame by frame.
#pragma once

#include "drive/bot.h"
#include "drive/script.h"
#include "frame/clock.h"
#include "frame/program.h"

#include <SDL.h>
#include <string>
#include <vector>

const int EXIT_FAILED_EXPECTATION = 1;
const int EXIT_SCRIPT_ERROR       = 2;

// Before each frame it carries out commands until one has to wait for frames to pass.
class CDriver : public CFrameHook
{
public:
	// clock is null in real time. folder is put before the relative names of files.
	CDriver(const std::vector<ScriptCommand>& newScript, CVirtualClock* newClock,
	        const std::string& newFolder);

	void BeforeFrame() override;
	void AfterFrame() override;

	int exitCode = 0;
	bool Finished() const { return next >= script.size(); }
	const ScriptCommand* Pending() const; // the command that never came to its turn

private:
	// True when the command is done and the next may follow in the same frame.
	bool Execute(const ScriptCommand& command);
	bool StepMouse(const ScriptCommand& command);
	bool StepClick(const ScriptCommand& command);
	bool StepKey(const ScriptCommand& command);
	bool StepUntil(const ScriptCommand& command);
	bool StepLevel(const ScriptCommand& command);
	bool StepStart(const ScriptCommand& command, int level);
	bool StepZoo(const ScriptCommand& command);
	bool StepFilm(const ScriptCommand& command);
	void Act(const ScriptCommand& command);
	void Expect(const ScriptCommand& command);
	void Show(const ScriptCommand& command);
	void RunBot();
	void Stop(int code, const ScriptCommand& command, const std::string& reason);
	bool ParseInt(const ScriptCommand& command, size_t argument, int& value);
	std::string PathOf(const std::string& name) const;

	void PushMotion(int x, int y);
	void PushButton(bool left, bool down);
	void PushKey(SDLKey key, bool down);

	std::vector<ScriptCommand> script;
	CVirtualClock* clock; // not owned
	std::string folder;
	size_t next              = 0; // command
	int waited               = 0; // frames spent in it
	bool botOn               = false;
	bool botPressed          = false;
	bool stopped             = false;
	int modifiers            = 0; // SDL key modifiers now held
	unsigned int ticksBefore = 0;
	CBot bot;
};
