// Sampled sound and the small operations on it.
#pragma once

#include <cstddef>
#include <vector>

constexpr int SAMPLE_RATE = 44100;
constexpr double TAU      = 6.283185307179586;

using Wave = std::vector<double>; // samples of one side; full scale is 1

// A finished sound: one side, or two of the same length.
struct Sound {
	Wave left, right; // right is empty when the sound is mono

	bool IsStereo() const { return !right.empty(); }
	double Seconds() const { return (double)left.size() / SAMPLE_RATE; }
};

double FromDb(double db);
double ToDb(double factor); // -180 for silence
size_t SampleCount(double seconds);

double PeakOf(const Wave& wave);
void Scale(Wave& wave, double factor);
// Adds `source` from `seconds` on; the target grows as needed.
void MixAt(Wave& target, const Wave& source, double seconds, double gain = 1);
// Raised-cosine fades at both ends, in seconds; 0 for none.
void Fade(Wave& wave, double in, double out);
// Cuts the tail that stays `floorDb` under the peak.
void TrimTail(Wave& wave, double floorDb);
// Blends the last `seconds` into the start at equal power, which shortens the wave by as much: its
// end then runs on into its start.
void CloseLoop(Wave& wave, double seconds);
