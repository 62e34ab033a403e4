// Mammals that hop and bound: pear body, long hind feet, short arms or fore legs.
#pragma once

#include "art/animals/head.h"

enum class HopperTail { Ball, Heavy, Bush };

// Where a body is at one moment, in model units from the point on the ground below its middle.
// Feet and hands are given by the height of their soles.
struct HopKey {
	float hipX, hipY, pitch, stretch; // pitch: degrees, chest up; stretch: of the torso, 1 at rest
	float heelX, heelY, toeX, toeY, handX, handY;
	float ears, tail, headTip; // laid back, 1 full; tail lifted, 1 level; angle, nose up
};
const int HOP_KEYS = 8; // of a gait, evenly spaced in time

// The kangaroo's, on hind feet alone; its hands are given from the shoulder.
extern const HopKey BOUNCE[HOP_KEYS];
// The rabbit's: lands on its fore feet first.
extern const HopKey BOUND[HOP_KEYS];
// The squirrel's: low and long.
extern const HopKey SCURRY[HOP_KEYS];

// Lengths in model units unless said otherwise.
struct Hopper {
	HopKey stand;
	const HopKey* gait = BOUND;
	float gaitWide = 1, gaitHigh = 1; // its keys are multiplied by these
	bool armsHang = false;            // hands are given from the shoulder

	float torso = 8.2f, hipRadius = 6, chestRadius = 4.7f, arch = .5f; // arch: of the back
	float thigh = 3.8f, shank = 2, leg = 11, hindSpread = 4;
	float footRadius = 1.5f, toes = 1.1f; // toes: width, in foot radii
	float armRadius = 1.4f, arm = 8, foreSpread = 2.4f;
	float headForward = 4.2f, headUp = 6, neckRadius = 3.4f; // from the chest
	float restTurn = 16;                                     // degrees
	Head head;

	HopperTail tail  = HopperTail::Ball;
	float tailLength = 3, tailRadius = 2.6f;
	bool flankStripes = false; // pale between dark ones, lengthwise
	bool pouch        = false; // its lip
	uint32_t coat = 0xa98a6c, belly = 0xf2e6d4;
	uint32_t feet = 0, tailColour = 0, tailTip = 0; // 0: as the coat
	float gloss = .10f;
};

void AddHopper(Model& model, const Hopper& animal, const View& view, const Pose& pose);
