// What is done to a recording: tone, loudness, ceiling; and the figures to judge it by.
#pragma once

#include "art/sounds/wave.h"

// Takes out what small speakers can't give, thins the boxy middle and lifts the font's dark top.
void Equalise(Sound& sound);
// Brings the recording to `loudness` LUFS and its peaks under the ceiling, both sides alike. A
// recording that loops is limited around its seam.
void Finish(Sound& sound, double loudness, bool loops);

struct Figures {
	double loudness; // LUFS, gated after ITU-R BS.1770
	double range;    // LU between the quiet and the loud tenth of 3-second windows
	double peak;     // dB full scale
};
Figures Measure(const Sound& sound);
