// A loop as a ring: events that run over its end go on at its start.
#pragma once

#include "art/sounds/curve.h"
#include "art/sounds/wave.h"

#include <cstdint>

class Ring
{
public:
	explicit Ring(double seconds); // whole tenths

	// side: -1 left .. 1 right, at equal power.
	void Add(const Wave& wave, double at, double gain, double side);
	// Noise that is blended into itself, other on each side.
	void AddBed(double centreHz, double q, double gain, uint64_t seed);

	Sound sound; // stereo

private:
	double seconds;
};

// A bed of noise that runs on into itself; seconds: whole tenths.
Wave NoiseLoop(double seconds, double centreHz, double q, uint64_t seed);
