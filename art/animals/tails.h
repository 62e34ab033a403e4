// Tails of four-footed mammals.
#pragma once

#include "art/animals/quadruped.h"

struct TailPlace {
	Vec3 root;
	float swing, raise;             // sideways and upward
	int coat, plainCoat, mane, tip; // materials
	float nearSide;                 // sign of z on the viewer's side
};

void AddTail(Model& model, const Quadruped& animal, const TailPlace& place);
