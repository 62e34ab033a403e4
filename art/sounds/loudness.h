// How loud a sound is to ears, and what brings it to a level.
#pragma once

#include "art/sounds/wave.h"

// Loudness of the loudest `window` seconds in dB, K-weighted after ITU-R BS.1770. Two sides count
// with their mean power, so that a stereo sound and a mono one of the same figure sound alike.
double Loudness(const Sound& sound, double window = .1);
// The same for the sound as a whole.
double MeanLoudness(const Sound& sound);

// The wave as the measure hears it.
Wave KWeighted(const Wave& wave);

void HighPass(Wave& wave, double hz);
// Lifts (or lowers) what lies above `hz`.
void HighShelf(Wave& wave, double hz, double db);
// Lifts or lowers what lies around `hz`.
void PeakFilter(Wave& wave, double hz, double q, double db);
// Keeps the peak under the ceiling by a gain that looks 4 ms ahead; no wave is bent.
void Limit(Wave& wave, double ceilingDb);
// Scales to `level` dB of Loudness under the ceiling that leaves the coder room.
void BringToLevel(Sound& sound, double level, double window = .1);
