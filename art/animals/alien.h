// The alien: a big head with one eye and two feelers on a small body in a flying suit.
#pragma once

#include "art/animals/pose.h"
#include "art/core/model.h"

// pose.raisePaw aims the ray gun, pose.kick is its flash. pose.lie seats it on the ground, with
// stars round its head at phase pose.fit; pose.breath puts the hands on a shaking belly.
// seated: in the saucer, without legs.
void AddAlien(Model& model, const View& view, const Pose& pose, bool seated = false);
