// Walks through every level that exists: prints what stands in it, or paints its picture.
#pragma once

#include "frame/clock.h"
#include "frame/program.h"

#include <string>
#include <vector>

// Plays the program by itself: from the menu into each level, until play is open, and out again.
class CRoster : public CFrameHook
{
public:
	// With a folder it saves each level's picture there as level_NNN.png, without one it prints a
	// row of counts for each. clock is moved on a frame at a time.
	CRoster(CVirtualClock* newClock, const std::string& newFolder);

	void BeforeFrame() override;
	void AfterFrame() override;

	bool failed = false; // a picture could not be written

private:
	void PrintRow() const;
	bool OpenedForPlay();

	CVirtualClock* clock; // not owned
	std::string folder;
	std::vector<int> levels;
	size_t next              = 0; // level
	bool printed             = false;
	int frames               = 0;
	int playFrames           = 0; // since the greeting of this level ended
	unsigned int ticksBefore = 0;
};
