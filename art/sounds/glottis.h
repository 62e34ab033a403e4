// The source of a voice: one cycle of air through vocal folds, and the rate it is made at.
#pragma once

#include "art/sounds/wave.h"

// Voices are made at four times the rate: at 44100 Hz the upper harmonics of a moving pitch would
// come back as mirrored lines.
constexpr int OVERSAMPLING = 4;

// Derivative of the flow after Liljencrants and Fant, in `size` points, at a power of its own.
// pressed: 0.35 harsh and bright, 1 normal, 1.4 soft.
Wave GlottalCycle(double pressed, size_t size);
// Down to SAMPLE_RATE, with all above 19 kHz taken off.
Wave Decimated(const Wave& wave);
