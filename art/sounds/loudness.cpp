// K-weighting, the limiter and the level.
#include "art/sounds/loudness.h"

#include "art/sounds/filters.h"

static const double CEILING    = -2;   // dB; coding adds up to 0.8
static const double LOOK_AHEAD = .004; // seconds
static const int LEVEL_PASSES  = 3;    // the limiter takes a little of the level each time
static const double K_OFFSET = -.691, K_SHELF_DB = 3.99984;

namespace
{
struct Biquad {
	double b0, b1, b2, a1, a2, x1 = 0, x2 = 0, y1 = 0, y2 = 0;

	double Run(double x)
	{
		double y  = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2;
		x2        = x1;
		x1        = x;
		y2        = y1;
		return y1 = y;
	}
};
} // namespace

// The two filters of the K curve, worked out from their analog form.
static Biquad KShelf()
{
	double k = std::tan(TAU / 2 * 1681.97 / SAMPLE_RATE), q = .70717, a0 = 1 + k / q + k * k;
	double high = FromDb(K_SHELF_DB), band = std::pow(high, .4997);
	return {(high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0,
	        (high - band * k / q + k * k) / a0, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

static Biquad KHighPass()
{
	double k = std::tan(TAU / 2 * 38.1355 / SAMPLE_RATE), q = .50033, a0 = 1 + k / q + k * k;
	return {1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

Wave KWeighted(const Wave& wave)
{
	Biquad shelf = KShelf(), highPass = KHighPass();
	Wave weighted(wave.size());
	for (size_t i = 0; i < wave.size(); i++)
		weighted[i] = highPass.Run(shelf.Run(wave[i]));
	return weighted;
}

// Weighted power of the loudest window; the whole wave when the window is 0.
static double WeightedPower(const Wave& wave, size_t window)
{
	Wave power = KWeighted(wave);
	for (double& v : power)
		v *= v;
	double sum = 0, most = 0;
	for (size_t i = 0; i < power.size(); i++) {
		sum += power[i];
		if (window && i >= window)
			sum -= power[i - window];
		most = std::max(most, sum);
	}
	return most / std::max<size_t>(1, window ? window : wave.size());
}

static double LoudnessOf(const Sound& sound, size_t window)
{
	double power = WeightedPower(sound.left, window);
	if (sound.IsStereo())
		power = (power + WeightedPower(sound.right, window)) / 2;
	return K_OFFSET + 10 * std::log10(std::max(1e-12, power));
}

double Loudness(const Sound& sound, double window)
{
	return LoudnessOf(sound, SampleCount(window));
}

double MeanLoudness(const Sound& sound)
{
	return LoudnessOf(sound, 0);
}

void HighPass(Wave& wave, double hz)
{
	StateFilter filter(hz);
	for (double& v : wave)
		v = filter.High(v);
}

void HighShelf(Wave& wave, double hz, double db)
{
	StateFilter filter(hz, .6);
	double gain = FromDb(db) - 1;
	for (double& v : wave)
		v += gain * filter.High(v);
}

void PeakFilter(Wave& wave, double hz, double q, double db)
{
	StateFilter filter(hz, q);
	double gain = FromDb(db) - 1;
	for (double& v : wave)
		v += gain * filter.Band(v);
}

void Limit(Wave& wave, double ceilingDb)
{
	double ceiling = FromDb(ceilingDb);
	if (PeakOf(wave) <= ceiling)
		return;
	long ahead = (long)SampleCount(LOOK_AHEAD), length = (long)wave.size();
	// Each peak holds its gain for the whole of its neighbourhood; the mean of that is smooth and
	// nowhere above what any peak needs.
	std::vector<double> held(wave.size() + 2 * ahead, 1.0);
	for (long i = 0; i < length; i++) {
		double need = ceiling / std::max(ceiling, std::fabs(wave[i]));
		for (long j = i; need < 1 && j <= i + 2 * ahead; j++)
			held[j] = std::min(held[j], need);
	}
	double sum = 0;
	for (long i = 0; i < ahead; i++)
		sum += held[i + ahead / 2];
	for (long i = 0; i < length; i++) {
		wave[i] = std::clamp(wave[i] * std::min(1.0, sum / ahead), -ceiling, ceiling);
		sum += held[i + ahead / 2 + ahead] - held[i + ahead / 2];
	}
}

void BringToLevel(Sound& sound, double level, double window)
{
	for (int pass = 0; pass < LEVEL_PASSES; pass++) {
		double factor = FromDb(level - Loudness(sound, window));
		Scale(sound.left, factor);
		Scale(sound.right, factor);
		Limit(sound.left, CEILING);
		Limit(sound.right, CEILING);
	}
}
