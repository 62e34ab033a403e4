// What frequencies a sound is made of.
#pragma once

#include "art/sounds/wave.h"

// Powers of `size` / 2 bands of SAMPLE_RATE / size Hz each, from a Hann window of `size` samples (a
// power of two) around `middle`; what lies outside of the wave is silence.
std::vector<double> PowerSpectrum(const Wave& wave, long middle, size_t size);
// Mean of the frequencies of the whole sound, weighted by power, in Hz.
double SpectralCentre(const Sound& sound);
