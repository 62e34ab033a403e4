// The mammal head: one builder for quadrupeds, hoppers and sitting animals.
#pragma once

#include "art/animals/eyes.h"

enum class EarKind { None, Round, Flop, Point, Fan, Long, Tube, Side };
enum class HornKind { None, Cow, Rhino, Curl, Antler, Single, Palm, Swept };
enum class FaceMark {
	None,
	Blaze,
	PandaEyes,
	Bandit,
	SkunkStripe,
	PaleCheeks,
	Bars,
	CheekStripe,
	DarkMask,
	EyeRings
};

// Lengths in model units unless said otherwise; the parts that a species hasn't are 0.
struct Head {
	float radius       = 8;
	Vec3 shape         = {1, 1, 1}; // half sizes of the skull, in radii
	float cheeks       = .48f;      // in radii
	float muzzleLength = 5, muzzleRoot = 3.8f, muzzleTip = 3.2f, muzzleDrop = -2.2f;
	float muzzleWide = 0;     // two half muzzles this far apart
	bool disc        = false; // a pig's snout
	bool mouthLine   = true;
	float teeth      = 0; // pegs in the lower jaw, seen when the mouth is open
	float nose       = 1.6f;
	Eye eye;
	EarKind ear     = EarKind::Round;
	float earRadius = 2.8f, earLength = 5, earUp = .80f, earAside = .70f;
	HornKind horn    = HornKind::None;
	float hornLength = 5, hornGloss = .4f;
	float tusk      = 0;
	bool trunk      = false;
	bool facePlate  = false; // bare primate face
	float ruff      = 0;     // pointed fur on the cheeks
	float forelock  = 0;
	float tuft      = 0; // hair that stands up on the crown
	float curls     = 0; // cap of wool on the brow
	float beard     = 0;
	float blush     = 0; // strength of rosy cheeks, 0..1
	FaceMark mark   = FaceMark::None;
	uint32_t coat   = 0; // 0: that of the body
	uint32_t muzzle = 0xc79a68, noseColour = 0x2c1c18, innerEar = 0xd8a488, horns = 0xe9dcc0;
	uint32_t markColour = 0xffffff, hair = 0x3c2418;
	uint32_t ruffColour = 0, earColour = 0, earTip = 0; // 0: as the coat
	float gloss = .10f;
};

// Skull, cheeks, muzzle or trunk, nose, mouth, eyes, ears, horns, face markings. skullBlend: how
// softly the skull grows out of the neck.
void AddHead(Model& model, const Head& head, const HeadFrame& frame, const View& view,
             const Pose& pose, float skullBlend);
// The tip of the muzzle, where nose and horns are fixed.
Vec3 MuzzleTip(const Head& head, const HeadFrame& frame, const Pose& pose);
