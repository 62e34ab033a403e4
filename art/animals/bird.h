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
	float drumstick   = 0; // radius of a bare, muscular thigh; 0: as the leg
	float legSlack    = 0; // how much longer than its height the leg is, so that it bends
	bool webbed       = false;
	BeakKind beakKind = BeakKind::Cone;
	float beakLength = 3.4f, beakRadius = 1.5f, beakTip = .3f;
	float tailLength = 6, tailWidth = 2.6f, tailUp = .4f, tailThick = .38f;
	float tailCurl   = 0;   // the curled feathers of a drake
	float nod        = .8f; // of the head against each step
	float wingLength = 7.5f, wingWidth = 3.6f;
	float shoulder = .18f;           // height of the folded wing on the body, part of its radius
	float span = 8.5f, chord = 4.4f; // of each half of a spread wing
	float fingers = 0; // how far the long feathers of a spread wing part: 1 for soarers
	float point   = 0; // 1: they shorten quickly, so that the wing ends in a point
	bool owlFace = false, flippers = false;
	float thigh = 0; // radius of feathered legs; 0: bare ones
	float brow  = 0; // ridge over the eyes that makes a stern look, part of the eye
	float crest = 0, comb = 0, wattle = 0, earTufts = 0, ruffCollar = 0, neckRing = 0,
	      tailPlume  = 0;
	float knob       = 0; // on the root of a bill
	float faceBack   = 0; // how far the face's colour lies behind the bill, as a bar on the cheek
	float tuft       = 0; // a few feathers that stand up on the crown
	float spots      = 0; // fleck threshold
	float fleckSize  = 1; // against the usual one
	bool bellySpots  = false; // flecks on the belly only
	float bellyLine  = .25f;  // higher: more of the belly's colour
	float breastLine = 0;     // how far back the breast's colour reaches, part of the length
	float blush      = 0;     // strength of rosy cheeks, 0..1
	Eye eye{1.7f, .60f, .26f, .62f, .55f, 0, 0, .55f};
	uint32_t body = 0x3f78d0, belly = 0xf0a868, wing = 0x2f5cb0, wingTip = 0x274a8c;
	uint32_t beak = 0xf0b040, leg = 0x7a5a40, collar = 0xffffff, fleck = 0x6a5440, breast = 0;
	uint32_t head = 0, face = 0, beakEnd = 0, tail = 0, neck = 0; // 0: as what they grow from
	uint32_t knobColour  = 0x2c2a30;
	uint32_t crestColour = 0; // 0: as the head
	uint32_t lid         = 0; // of the eyes; 0: as the head around them
	uint32_t wingBar     = 0; // patch on the folded wing; 0 for none
	int bands            = 0; // bands across the folded wing in its stead
	uint32_t trail       = 0; // feathers along the rear of a spread wing; 0: as the wing
	uint32_t sheen       = 0; // lower half of a long neck; 0: all in one colour
	uint32_t tailEnd     = 0; // last third of the tail; 0: as the tail
};

void AddBird(Model& model, const Bird& bird, const View& view, const Pose& pose);
