// Filters that run sample by sample; kept inline, since voices call them millions of times.
#pragma once

#include "art/sounds/wave.h"

#include <algorithm>
#include <cmath>

// State variable filter in trapezoidal form: stays calm while its frequency sweeps.
struct StateFilter {
	double rate, g = 0, damping = 1, gain = 0, state1 = 0, state2 = 0, low = 0, band = 0, high = 0;

	explicit StateFilter(double hz = 1000, double q = .7, double rate = SAMPLE_RATE) : rate(rate)
	{
		Set(hz, q);
	}
	void Set(double hz, double q)
	{
		g       = std::tan(TAU / 2 * std::min(hz, rate * .45) / rate);
		damping = 1 / q;
		gain    = 1 / (1 + g * (g + damping));
	}
	void Run(double x)
	{
		double rest = x - state2, v1 = gain * (state1 + g * rest), v2 = state2 + g * v1;
		state1 = 2 * v1 - state1;
		state2 = 2 * v2 - state2;
		low    = v2;
		band   = v1 * damping; // unit gain at the centre
		high   = x - band - v2;
	}
	double Low(double x)
	{
		Run(x);
		return low;
	}
	double Band(double x)
	{
		Run(x);
		return band;
	}
	double High(double x)
	{
		Run(x);
		return high;
	}
};

struct OnePole {
	double share, level = 0;

	explicit OnePole(double hz = 1000, double rate = SAMPLE_RATE)
	    : share(1 - std::exp(-TAU * hz / rate))
	{
	}
	double Low(double x) { return level += share * (x - level); }
};

// A formant: unit gain at 0 Hz, so that a chain of them gives the levels of a vowel by itself.
struct Resonator {
	double a = 1, b = 0, c = 0, y1 = 0, y2 = 0;

	void Set(double hz, double bandwidth, double rate)
	{
		double radius = std::exp(-TAU / 2 * bandwidth / rate);
		c             = -radius * radius;
		b             = 2 * radius * std::cos(TAU * hz / rate);
		a             = 1 - b - c;
	}
	double Run(double x)
	{
		double y  = a * x + b * y1 + c * y2;
		y2        = y1;
		return y1 = y;
	}
};
