// Actions of birds that fly: wing beats, gliding, ruffling, and the pictures they all have.
#pragma once

#include "art/animals/bird.h"
#include "art/animals/figure.h"

// How a bird moves in the air. Lengths are in model units.
struct FlightStyle {
	int beatFrames = 6;                  // pictures of one beat
	float up = .85f, down = -.75f;       // reach of the wings, 1 and -1 are the most
	float lift  = 6;                     // of the body above the place where it stands
	float bob   = 1.2f;                  // rise and fall against the wings
	float glide = .15f, glideTip = .35f; // how high they are held without beating
	float rock = 0;                      // angle of the swaying of a glide
};

Poses Flap(const FlightStyle& style, Heading heading);
Poses Glide(const FlightStyle& style, Heading heading);
Poses Ruffle(int count);
Poses Peck(int count);     // down to the ground
Poses LookBothWays();      // four to the viewer, then two away with the head cocked
Poses Startled(int count); // wings half open, eyes wide

Species BirdSpecies(const char* prefix, float width, float height, Bird (*shape)());
// Flight both ways, the standing picture under `idleWord`, the two in the bubble, and `sequences`.
void AddFlier(Catalogue& catalogue, const char* source, Species (*species)(),
              const FlightStyle& style, const char* idleWord,
              const std::vector<Sequence>& sequences);
