// Modes as ringing filters, excited by a short blow of soft noise.
#include "art/sounds/struck.h"

#include "art/sounds/chance.h"
#include "art/sounds/filters.h"

static const double HIGHEST_MODE = 18000; // Hz
static const Strike MALLET_BLOW = {6000, .0008, .03}, BELL_BLOW = {12000, .0003, .02};

static Wave Blow(const Strike& strike, size_t length, uint64_t seed)
{
	Wave blow(length);
	Chance chance(seed);
	size_t count = std::min(length, SampleCount(strike.seconds));
	for (size_t i = 0; i < count; i++)
		blow[i] = std::sin(TAU / 2 * i / count) * (.5 + .5 * chance.Signed());
	StateFilter filter(strike.hardness, .6);
	for (double& v : blow)
		v = filter.Low(v);
	return blow;
}

static void AddMode(Wave& out, const Wave& blow, const Mode& mode)
{
	double radius = std::pow(10.0, -3 / (mode.decay * SAMPLE_RATE));
	double turn = TAU * mode.hz / SAMPLE_RATE, b = 2 * radius * std::cos(turn),
	       c    = -radius * radius;
	double gain = mode.gain * std::sin(turn), y1 = 0, y2 = 0;
	for (size_t i = 0; i < out.size(); i++) {
		double y = blow[i] + b * y1 + c * y2;
		y2       = y1;
		y1       = y;
		out[i] += gain * y;
	}
}

Wave Struck(const std::vector<Mode>& modes, const Strike& strike, uint64_t seed)
{
	double longest = .05;
	for (const Mode& mode : modes)
		longest = std::max(longest, mode.decay);
	Wave blow = Blow(strike, SampleCount(longest * 1.1), seed), out(blow.size());
	for (const Mode& mode : modes)
		if (mode.hz < HIGHEST_MODE)
			AddMode(out, blow, mode);
	Scale(out, 1 / std::max(1e-9, PeakOf(out)));
	MixAt(out, blow, 0, strike.click / std::max(1e-9, PeakOf(blow)));
	Fade(out, 0, .02);
	return out;
}

Wave Mallet(double hz, double seconds, double chime, uint64_t seed)
{
	Wave out = Struck({{hz, seconds, 1},
	                   {hz * 2.005, seconds * .6, .10},
	                   {hz * 3.93, seconds * .28, .16},
	                   {hz * 9.4, seconds * .1, .04}},
	                  MALLET_BLOW, seed);
	if (chime > 0)
		MixAt(out,
		      Struck({{hz * 2, seconds * 1.5, 1},
		              {hz * 2 * 2.76, seconds * .7, .3},
		              {hz * 2 * 5.4, seconds * .3, .12}},
		             BELL_BLOW, seed + 1),
		      0, chime);
	return out;
}

Wave Plank(double hz, double decay, uint64_t seed, double hardness)
{
	static const Mode BENDING[] = {{1, 1, .55},    {1.52, .77, .8}, {2.76, .62, 1}, {3.6, .53, .85},
	                               {5.4, .45, .6}, {7.2, .4, .45},  {8.93, .36, .3}};
	Chance chance(seed);
	std::vector<Mode> modes;
	for (const Mode& m : BENDING)
		modes.push_back({hz * m.hz * chance.Between(.96, 1.04), decay * m.decay,
		                 m.gain * chance.Between(.8, 1.2)});
	return Struck(modes, {hardness, .0006, .3}, seed);
}

Wave Shell(double hz, double decay, int pairs, uint64_t seed, double hardness)
{
	const double LOUDEST = 520, WIDTH = .9; // Hz, and in octaves of e
	Chance chance(seed);
	std::vector<Mode> modes;
	for (int i = 0; i < pairs; i++) {
		double distance = std::log(hz / LOUDEST) / WIDTH;
		double gain     = std::exp(-.5 * distance * distance) * chance.Between(.6, 1.2);
		double time     = decay / (1 + .1 * i);
		modes.push_back({hz, time, gain});
		modes.push_back({hz * chance.Between(1.003, 1.012), time * .9, gain * .6});
		hz *= chance.Between(1.16, 1.38);
	}
	return Struck(modes, {hardness, .00035, .15}, seed);
}
