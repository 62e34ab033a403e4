// Actions that many species share: functions to a list of poses.
#pragma once

#include "art/animals/pose.h"

// Every list starts and ends near the standing pose, unless the game holds or reverses its last
// picture. Facings are the business of whoever draws the list.

Pose Blinking();
Pose EyesWide();
Pose Captured(); // legs tucked, in the bubble

Poses Look(int count, float way = 1);
Poses Walk(int count, Heading heading = Heading::Side, float strideSize = 1);
Poses Waddle(int count, Heading heading, float sway, float strideSize = 1);
Poses LowerHead(int count);
Poses Graze(int count);   // chews with the head down
Poses Stagger(int count); // the bump of those that have no gesture of their own
Poses Squawk(int count);  // wings up, bill open, a hop

float Ease(float t);
// t of picture i of count: 0 for the first, 1 for the last.
float Part(int i, int count);
