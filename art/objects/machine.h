// The professor's machine: body, wheels, fans and lights, each at its place.
#pragma once

#include "art/core/renderer.h"

// Lengths are in machine units: x is counted from the middle of the body (38 pixels right of the
// paddle's anchor), y upward from the line y 566 of the field. A window is a rectangle of the field
// (left edge relative to the anchor) that a part's picture covers.
struct PartWindow {
	int left, top, width, height;
};

extern const PartWindow BODY_WINDOW;

// zoom 1 is the size on the field; screens ask for more.
Image MachineBody(float zoom = 1);
Image MachineWheel(int frame, float zoom = 1); // frames 0..2
Image MachineFan(int frame, float zoom = 1);   // frames 0..2
Image MachineLight(int frame, float zoom = 1); // frames 0..7, dark to bright

// The whole machine with the professor at rest, over `target`; (anchorX, top) is where the paddle's
// anchor and the line y 496 of the field fall, in pixels of the target.
// Without him when not `driven`.
void DrawMachine(Image& target, float anchorX, float top, float zoom = 1, bool driven = true);

// Renders one part of the machine into its window.
Image RenderPart(Model& model, const PartWindow& window, float zoom);
