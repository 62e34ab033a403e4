// Mixing, fading and cutting of sampled sound.
#include "art/sounds/wave.h"

#include <algorithm>
#include <cmath>

double FromDb(double db)
{
	return std::pow(10.0, db / 20);
}

double ToDb(double factor)
{
	return 20 * std::log10(std::max(1e-9, factor));
}

size_t SampleCount(double seconds)
{
	return (size_t)(seconds * SAMPLE_RATE + .5);
}

double PeakOf(const Wave& wave)
{
	double peak = 0;
	for (double v : wave)
		peak = std::max(peak, std::fabs(v));
	return peak;
}

void Scale(Wave& wave, double factor)
{
	for (double& v : wave)
		v *= factor;
}

void MixAt(Wave& target, const Wave& source, double seconds, double gain)
{
	size_t from = SampleCount(seconds);
	if (target.size() < from + source.size())
		target.resize(from + source.size(), 0.0);
	for (size_t i = 0; i < source.size(); i++)
		target[from + i] += gain * source[i];
}

void Fade(Wave& wave, double in, double out)
{
	size_t rising = std::min(wave.size(), SampleCount(in));
	for (size_t i = 0; i < rising; i++)
		wave[i] *= .5 - .5 * std::cos(TAU / 2 * i / rising);
	size_t falling = std::min(wave.size(), SampleCount(out));
	for (size_t i = 0; i < falling; i++)
		wave[wave.size() - 1 - i] *= .5 - .5 * std::cos(TAU / 2 * i / falling);
}

void TrimTail(Wave& wave, double floorDb)
{
	double floor = PeakOf(wave) * FromDb(floorDb);
	while (wave.size() > 1 && std::fabs(wave.back()) < floor)
		wave.pop_back();
}

void CloseLoop(Wave& wave, double seconds)
{
	size_t overlap = SampleCount(seconds), length = wave.size() - overlap;
	for (size_t i = 0; i < overlap; i++) {
		double angle = TAU / 4 * i / overlap;
		wave[i]      = wave[i] * std::sin(angle) + wave[length + i] * std::cos(angle);
	}
	wave.resize(length);
}
