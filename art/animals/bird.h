// Birds: egg body with a tilt, neck, head, beak or bill, folded or spread wings, tail, two legs.
#pragma once

#include "art/animals/eyes.h"

enum class BeakKind { Cone, Hook, Flat, Bent };

// Lengths in model units unless said otherwise; the parts that a species hasn't are 0.
struct Bird {
	float bodyLength = 7.2f, bodyRadius = 5.4f; // half length, radius
	float tilt       = .5f;                     // radians, breast up
	float headRadius = 5;
	// Head centre from the neck's base. neckCurve: the S of a swan.
	float neckForward = .9f, neckUp = 3.1f, neckRadius = 3.2f, neckCurve = 0;
	bool longNeck   = false;
	float legLength = 4, legRadius = .75f;
	bool webbed       = false;
	BeakKind beakKind = BeakKind::Cone;
	float beakLength = 3.4f, beakRadius = 1.5f, beakTip = .3f;
	float tailLength = 6, tailWidth = 2.6f, tailUp = .4f, tailThick = .38f;
	float tailCurl   = 0; // the curled feathers of a drake
	float wingLength = 7.5f, wingWidth = 3.6f;
	float span = 8.5f, chord = 4.4f; // of each half of a spread wing
	bool owlFace = false, flippers = false;
	float crest = 0, comb = 0, wattle = 0, earTufts = 0, ruffCollar = 0, neckRing = 0,
	      tailPlume  = 0;
	float tuft       = 0;    // a few feathers that stand up on the crown
	float spots      = 0;    // fleck threshold
	float bellyLine  = .25f; // higher: more of the belly's colour
	float breastLine = 0;    // how far back the breast's colour reaches, part of the length
	float blush      = 0;    // strength of rosy cheeks, 0..1
	Eye eye{1.7f, .60f, .26f, .62f, .55f, 0, 0, .55f};
	uint32_t body = 0x3f78d0, belly = 0xf0a868, wing = 0x2f5cb0, wingTip = 0x274a8c;
	uint32_t beak = 0xf0b040, leg = 0x7a5a40, collar = 0xffffff, fleck = 0x6a5440, breast = 0;
	uint32_t head = 0, face = 0, beakEnd = 0, tail = 0, neck = 0; // 0: as what they grow from
	uint32_t wingBar = 0; // patch on the folded wing; 0 for none
};

void AddBird(Model& model, const Bird& bird, const View& view, const Pose& pose);
