// Turtles: a dome of plates on four stout legs, a head that can be drawn in.
#pragma once

#include "art/animals/eyes.h"

// Lengths in model units.
struct Shell {
	float length = 11, width = 9, dome = 7, height = 4.6f; // half sizes; height of the rim
	float headRadius = 5, neckForward = 3, neckUp = 3.4f;  // head from the front edge of the shell
	float legRadius = 2.4f, legSpread = .74f;
	bool flippers = false; // paddles instead of stumps
	bool knobs    = false; // every plate rises to a knob
	uint32_t skin = 0xc8d860, shell = 0x2f8f6a, seam = 0x1c5a4a, edge = 0xe8dc8a;
	uint32_t belly = 0xf4e4a0, freckle = 0; // 0: none
	Eye eye;
};

// pose.tuck draws the legs in, a negative pose.neckReach the head; both together shut the shell.
void AddShell(Model& model, const Shell& shell, const View& view, const Pose& pose);
