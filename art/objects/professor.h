// The professor at the wheel of his machine.
#pragma once

#include "art/objects/machine.h"

// Directions are positive to the right. All values are 0 when he sits at rest.
struct ProfessorPose {
	float lean    = 0; // head aside, pixels, at most 6
	float duck    = 0; // head down, pixels
	float tilt    = 0; // of the head, radians
	float turn    = 0; // of the face, radians
	float steer   = 0; // of the wheel and the hands on it, radians
	float wind    = 0; // where hair and tie fly to, -1..1
	float flutter = 0; // phase of the flying ends, radians
	float alarm   = 0; // 0 calm, 1 eyes wide and mouth open
	float glee    = 0; // 1: laughs
	float lid     = 0; // 1 closed
	float reach   = 0; // 1: the hand on the right has left the wheel and is at `hand`
	Vec3 hand;         // from the middle of his head
};

extern const PartWindow PROFESSOR_WINDOW; // at rest

Image Professor(const ProfessorPose& pose, const PartWindow& window, float zoom = 1);
