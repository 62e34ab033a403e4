// Coats: colour as a function of the model point.
#pragma once

#include "art/core/model.h"

enum class CoatKind {
	Plain,      // base above, belly colour below
	Stripes,    // upright stripes, tapering to the belly
	Patches,    // blots, large or small by frequency
	Bands,      // dark from the shoulders on
	BackStripe, // one broad stripe along the spine
	Saddle,     // dark back, pale flanks
};

// Patterns use |z|, so that both flanks match and both facings agree.
struct Coat {
	CoatKind kind = CoatKind::Plain;
	uint32_t base = 0x8a5a34, belly = 0xa87a4c, mark = 0x3c2418;
	float frequency = .95f, threshold = .25f, seed = 2.2f, bellyLine = 15;
	uint32_t rump = 0; // colour of everything behind rumpX; 0 for none
	float rumpX   = -8;
	float gloss   = .10f;
};

Colour CoatColour(const Coat& coat, const SurfacePoint& at);
// Adds the coat as a material and gives its number. lean: radians that the body is reared up; its
// belly is still the side that the legs are on.
int AddCoat(Model& model, const Coat& coat, float lean = 0);
