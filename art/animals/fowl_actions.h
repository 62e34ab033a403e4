// Gestures of water birds and waders: functions to a list of poses.
#pragma once

#include "art/animals/actions.h"

// The head goes back, then up and forward; the game plays it back.
Poses MoveHead(int count, float reach = 1);
// Lifts the wings, shakes them into place and wags the tail.
Poses AdjustWings(int count, float lift);
// Beats its spread wings and cries with a stretched neck. low: how far the neck goes down and
// forward for it, 1 to the ground.
Poses HonkAndFlap(int count, float low);
