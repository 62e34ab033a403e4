// Tone, programme loudness and the limiter of the music.
#include "art/music/mix.h"

#include "art/sounds/loudness.h"

#include <algorithm>
#include <cmath>

static const double LOWEST = 42; // Hz
static const double BOX = 300, BOX_WIDTH = .7, BOX_DB = -2;
static const double TOP = 3500, TOP_DB = 5;
static const double CEILING    = -2.5; // dB; coding adds up to one
static const double LOOK_AHEAD = .004; // seconds
static const int PASSES        = 2;    // the limiter takes a little of the loudness
static const double K_OFFSET   = -.691;
static const double SILENCE    = -70;             // LUFS; windows below don't count
static const double GATE = -10, RANGE_GATE = -20; // LU under the mean

void Equalise(Sound& sound)
{
	for (Wave* side : {&sound.left, &sound.right}) {
		HighPass(*side, LOWEST);
		PeakFilter(*side, BOX, BOX_WIDTH, BOX_DB);
		HighShelf(*side, TOP, TOP_DB);
	}
}

static double Lufs(double power)
{
	return K_OFFSET + 10 * std::log10(std::max(1e-12, power));
}

// Power of both sides in windows of `seconds`, a new one each `step`.
static std::vector<double> Windows(const Sound& sound, double seconds, double step)
{
	const double HOP = .1; // all windows are whole numbers of it
	size_t hop       = SampleCount(HOP);
	std::vector<double> hops(sound.left.size() / hop, 0.0);
	for (const Wave* side : {&sound.left, &sound.right}) {
		Wave weighted = KWeighted(*side);
		for (size_t i = 0; i < hops.size() * hop; i++)
			hops[i / hop] += weighted[i] * weighted[i] / (double)hop;
	}
	size_t width = (size_t)std::lround(seconds / HOP), stride = (size_t)std::lround(step / HOP);
	std::vector<double> powers;
	for (size_t at = 0; at + width <= hops.size(); at += stride) {
		double sum = 0;
		for (size_t i = 0; i < width; i++)
			sum += hops[at + i];
		powers.push_back(sum / (double)width);
	}
	return powers;
}

static double MeanAbove(const std::vector<double>& powers, double lufs)
{
	double sum = 0;
	int count  = 0;
	for (double power : powers)
		if (Lufs(power) > lufs) {
			sum += power;
			count++;
		}
	return count ? sum / count : 0;
}

static double Integrated(const Sound& sound)
{
	std::vector<double> powers = Windows(sound, .4, .1);
	return Lufs(MeanAbove(powers, Lufs(MeanAbove(powers, SILENCE)) + GATE));
}

Figures Measure(const Sound& sound)
{
	Figures figures            = {Integrated(sound), 0, 0};
	std::vector<double> powers = Windows(sound, 3, 1), loud;
	double floor               = Lufs(MeanAbove(powers, SILENCE)) + RANGE_GATE;
	for (double power : powers)
		if (Lufs(power) > floor)
			loud.push_back(Lufs(power));
	std::sort(loud.begin(), loud.end());
	if (!loud.empty())
		figures.range = loud[loud.size() * 95 / 100] - loud[loud.size() / 10];
	figures.peak = ToDb(std::max(PeakOf(sound.left), PeakOf(sound.right)));
	return figures;
}

// One gain for both sides, so that the picture between them stands still. It falls ahead of a
// peak and is the mean of what the neighbourhood needs.
static void LimitBoth(Sound& sound, bool around)
{
	double ceiling = FromDb(CEILING);
	long length = (long)sound.left.size(), ahead = (long)SampleCount(LOOK_AHEAD);
	auto place  = [&](long i) { return around ? (i + length) % length : i; };
	auto inside = [&](long i) { return around || (i >= 0 && i < length); };
	Wave held(sound.left.size(), 1.0);
	for (long i = 0; i < length; i++) {
		double peak = std::max(std::fabs(sound.left[i]), std::fabs(sound.right[i]));
		if (peak <= ceiling)
			continue;
		for (long j = i - ahead; j <= i + ahead; j++)
			if (inside(j))
				held[place(j)] = std::min(held[place(j)], ceiling / peak);
	}
	auto need  = [&](long i) { return inside(i) ? held[place(i)] : 1.0; };
	double sum = 0;
	for (long j = -ahead; j <= ahead; j++)
		sum += need(j);
	for (long i = 0; i < length; i++) {
		double gain = std::min(1.0, sum / (double)(2 * ahead + 1));
		for (Wave* side : {&sound.left, &sound.right})
			(*side)[i] = std::clamp((*side)[i] * gain, -ceiling, ceiling);
		sum += need(i + ahead + 1) - need(i - ahead);
	}
}

void Finish(Sound& sound, double loudness, bool loops)
{
	for (int pass = 0; pass < PASSES; pass++) {
		double factor = FromDb(loudness - Integrated(sound));
		Scale(sound.left, factor);
		Scale(sound.right, factor);
		LimitBoth(sound, loops);
	}
}
