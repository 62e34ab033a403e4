// What the run would sound like, written to a file while the driver plays.
#pragma once

#include "frame/program.h"

#include <sndfile.h>
#include <string>

// Goes between the program and its driver: after each frame it captures the sound of that frame's
// time. A file that cannot be written leaves the run as it is.
class CRecorder : public CFrameHook
{
public:
	CRecorder(CFrameHook* newInner, const std::string& path);
	~CRecorder();

	void BeforeFrame() override;
	void AfterFrame() override;
	bool IsOpen() const { return file != nullptr; }

private:
	CFrameHook* inner; // not owned
	SNDFILE* file = nullptr;
	int frames    = 0;
};
