// Solves the shape of the glottal cycle, and takes oversampled sound down.
#include "art/sounds/glottis.h"

#include <cmath>

static const double SOURCE_LEVEL = .3;    // mean level of a cycle
static const double CUTOFF       = 19000; // Hz
static const int HALF_TAPS       = 64;
static const int AREA_STEPS      = 1000;

namespace
{
// Times as shares of the cycle.
struct CycleShape {
	double closing, returning, opening, decay; // opening: angular speed; decay: of the return

	explicit CycleShape(double rd)
	{
		double ra = (-1 + 4.8 * rd) / 100, rk = (22.4 + 11.8 * rd) / 100;
		double rg   = rk / (4 * (.11 * rd / (.5 + 1.2 * rk) - ra));
		double peak = 1 / (2 * rg);
		closing     = peak * (1 + rk);
		returning   = ra > 1e-4 ? ra : 1e-4;
		opening     = TAU / 2 / peak;
		decay       = 1 / returning;
		for (int i = 0; i < 50; i++) // fixed point of: decay * returning = 1 - exp(-decay * rest)
			decay = (1 - std::exp(-decay * (1 - closing))) / returning;
	}
	double At(double t, double growth) const
	{
		if (t < closing)
			return -std::exp(growth * (t - closing)) * std::sin(opening * t) /
			       std::sin(opening * closing);
		return -(std::exp(-decay * (t - closing)) - std::exp(-decay * (1 - closing))) /
		       (decay * returning);
	}
	// The growth for which no air is left over at the end of a cycle.
	double BalancedGrowth() const
	{
		double low = -30, high = 60;
		for (int i = 0; i < 60; i++) {
			double middle = (low + high) / 2, area = 0;
			for (int j = 0; j < AREA_STEPS; j++)
				area += At((j + .5) / AREA_STEPS, middle);
			(area > 0 ? low : high) = middle;
		}
		return low;
	}
};
} // namespace

Wave GlottalCycle(double pressed, size_t size)
{
	CycleShape shape(pressed);
	double growth = shape.BalancedGrowth(), power = 0;
	Wave cycle(size);
	for (size_t i = 0; i < size; i++) {
		cycle[i] = shape.At((double)i / size, growth);
		power += cycle[i] * cycle[i];
	}
	Scale(cycle, SOURCE_LEVEL / std::sqrt(power / size));
	return cycle;
}

// Windowed sinc.
static Wave DecimatorTaps()
{
	Wave taps(2 * HALF_TAPS + 1);
	double cut = CUTOFF / (SAMPLE_RATE * OVERSAMPLING), sum = 0;
	for (int i = -HALF_TAPS; i <= HALF_TAPS; i++) {
		double sinc                = i ? std::sin(TAU * cut * i) / (TAU / 2 * i) : 2 * cut;
		double angle               = TAU / 2 * i / HALF_TAPS;
		double window              = .42 + .5 * std::cos(angle) + .08 * std::cos(2 * angle);
		sum += taps[i + HALF_TAPS] = sinc * window;
	}
	Scale(taps, 1 / sum);
	return taps;
}

Wave Decimated(const Wave& wave)
{
	static const Wave taps = DecimatorTaps();
	Wave out(wave.size() / OVERSAMPLING);
	long length = (long)wave.size();
	for (size_t n = 0; n < out.size(); n++) {
		double sum = 0;
		long from  = (long)n * OVERSAMPLING - HALF_TAPS;
		for (int i = 0; i <= 2 * HALF_TAPS; i++)
			if (from + i >= 0 && from + i < length)
				sum += wave[from + i] * taps[i];
		out[n] = sum;
	}
	return out;
}
