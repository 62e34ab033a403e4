// Lays events and beds on a ring.
#include "art/sounds/ring.h"

#include "art/sounds/tones.h"

#include <cmath>

static const double BED_OVERLAP = .8; // seconds

Ring::Ring(double seconds) : seconds(seconds)
{
	sound.left.assign(SampleCount(seconds), 0.0);
	sound.right = sound.left;
}

void Ring::Add(const Wave& wave, double at, double gain, double side)
{
	double angle = (side + 1) * TAU / 8;
	double left = gain * std::cos(angle), right = gain * std::sin(angle);
	size_t place = SampleCount(at) % sound.left.size();
	for (double v : wave) {
		sound.left[place] += left * v;
		sound.right[place] += right * v;
		if (++place == sound.left.size())
			place = 0;
	}
}

void Ring::AddBed(double centreHz, double q, double gain, uint64_t seed)
{
	MixAt(sound.left, NoiseLoop(seconds, centreHz, q, seed), 0, gain);
	MixAt(sound.right, NoiseLoop(seconds, centreHz, q, seed + 1), 0, gain);
}

Wave NoiseLoop(double seconds, double centreHz, double q, uint64_t seed)
{
	Wave loop = NoiseBand(seconds + BED_OVERLAP, centreHz, q, 1, seed);
	CloseLoop(loop, BED_OVERLAP);
	return loop;
}
