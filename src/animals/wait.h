// The waiting of species that have a small machine of their own in place of an action list.
#pragma once

#include "frame/random.h"

// A number of frames drawn at the first frame of a state and counted down from then on.
struct Wait {
	int left = -1; // frames; -1: not yet drawn

	void Restart() { left = -1; }
	void EndNow() { left = 0; }

	// Called once a frame; true from the frame on in which it is over.
	bool Over(int min, int max)
	{
		if (left == -1)
			left = RandomWhole(static_cast<float>(min), static_cast<float>(max));
		if (left > 0)
			left--;
		return left == 0;
	}
};
