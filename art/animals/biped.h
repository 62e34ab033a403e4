// Sitting and upright figures: hips, chest, head, two-bone arms and legs, a tail.
#pragma once

#include "art/animals/head.h"

enum class BipedTail { None, Monkey, Squirrel };

// Lengths in model units unless said otherwise.
struct Biped {
	float hipHeight = 4, torso = 7.4f, hip = 5, chest = 4.4f, lean = 1.2f;
	float headUp = .95f, headForward = 1.0f; // head centre from the chest: in head radii, in units
	float arm = 10, armRadius = 1.8f, leg = 8, legRadius = 2.2f, hand = 1.9f, foot = 2.2f;
	float handForward = 5.4f, handHeight = 2.0f; // from the hips, where hands rest when it sits
	// On a trunk, from the shoulders and the hips, half way of their reach.
	Vec3 climbHand = {1.5f, 6.5f, 6.6f}, climbFoot = {2.6f, -2.8f, 3.4f};
	bool standing  = false; // on straight legs, walks upright
	float restTurn = 6;     // of the head, degrees
	Head head;
	BipedTail tail    = BipedTail::None;
	float tailSize    = 1;
	float backStripes = 0; // pale stripes with dark edges; 0 or 1
	uint32_t coat = 0xa56a38, belly = 0xe8bc88, skin = 0xf8d2a0;
	uint32_t tailTip = 0, suit = 0, rump = 0; // 0: as the coat
	float gloss = .10f;
};

// A pose with a stride runs on all fours, or upright if the figure stands.
void AddBiped(Model& model, const Biped& figure, const View& view, const Pose& pose);
