// What is struck: bars, boards, sheet metal, by the modes in which they ring.
#pragma once

#include "art/sounds/wave.h"

#include <cstdint>
#include <vector>

struct Mode {
	double hz, decay, gain; // decay: seconds to fall by 60 dB
};

// How hard and for how long it is struck; longer than a millisecond leaves only a thump.
struct Strike {
	double hardness; // Hz up to which the blow reaches
	double seconds;
	double click = .25; // share of the blow itself in the sound
};

// Both with a peak of about 1.
Wave Struck(const std::vector<Mode>& modes, const Strike& strike, uint64_t seed);
// Wooden mallet on a rosewood bar, with a small bell an octave above at `chime` (0..1).
Wave Mallet(double hz, double seconds, double chime, uint64_t seed);

// A board: bending modes that die soon, loudest in the middle, where small speakers still speak.
Wave Plank(double hz, double decay, uint64_t seed, double hardness = 3200);
// Sheet metal: pairs of modes that beat, loudest near 500 Hz.
Wave Shell(double hz, double decay, int pairs, uint64_t seed, double hardness = 5000);
