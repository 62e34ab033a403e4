// Four-footed mammals: torso, four legs of two bones, neck, head, tail.
#pragma once

#include "art/animals/coat.h"
#include "art/animals/head.h"

enum class TailKind { None, Stub, Rope, Thick, Hair, Curl, Bush, Plume, Ringed, Whip, Hang };
enum class ManeKind { None, Crest, Ring, Bristle, Dewlap };

// Lengths in model units unless said otherwise; the parts that a species hasn't are 0.
struct Quadruped {
	// Torso. Hips sit lower than said, since the raised camera lifts the far end.
	float length = 22, shoulderHeight = 15, hipHeight = 15, chest = 9, hip = 8.5f, belly = 8.5f;
	float shoulderHump = 0, backHump = 0;
	bool wool   = false;
	bool armour = false; // folds behind the shoulder and before the hip

	float thigh = 3.6f, shin = 2.8f, paw = 3.2f, pawStretch = 1.25f, spread = 4.6f;
	// Of a walk: half the way of a foot on the ground, and the part of a stride that it stays
	// there. Should answer to the pace at which the game moves the animal. step 0: a part of the
	// leg.
	float step = 0, stance = .6f;
	bool hooved        = false;
	bool patternedLegs = false;

	// Head centre from the shoulder. neckDip: the neck hangs before it rises.
	float neckForward = 5, neckUp = 5, neckRadius = 6.5f, neckDip = 0;
	float restTurn = 16, headPitch = 0; // degrees
	Head head;

	TailKind tail    = TailKind::Stub;
	float tailLength = 3, tailRadius = 2;
	ManeKind mane = ManeKind::None;
	Coat coat;
	uint32_t legs = 0, feet = 0, tailTip = 0; // 0: as the coat, the legs, the mane
	uint32_t maneColour = 0x3c2418;
};

void AddQuadruped(Model& model, const Quadruped& animal, const View& view, const Pose& pose);
