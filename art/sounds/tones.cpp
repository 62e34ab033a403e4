// Oscillators and coloured noise.
#include "art/sounds/tones.h"

#include "art/sounds/chance.h"
#include "art/sounds/filters.h"

static const double HIGHEST    = 16000; // Hz; harmonics above are left out
static const size_t STEP       = 16;    // samples from one look at a filter's curve to the next
static const int SAW_HARMONICS = 11;
static const double SAWS_APART = 1.007;

double NoteHz(const std::string& note)
{
	static const int ABOVE_C[] = {9, 11, 0, 2, 4, 5, 7}; // a to g
	size_t at                  = 1;
	int key                    = ABOVE_C[note[0] - 'a'];
	for (; note[at] == '#' || note[at] == 'b'; at++)
		key += note[at] == '#' ? 1 : -1;
	key += 12 * (note[at] - '0' + 1);
	return 440 * std::pow(2.0, (key - 69) / 12.0);
}

double CommonNoteHz(int octave, int step)
{
	static const char* const NAMES[] = {"c", "d", "e", "g", "a"};
	return NoteHz(NAMES[step % 5] + std::to_string(octave + step / 5));
}

Wave Tone(double seconds, const Curve& pitch, const Curve& loud,
          const std::vector<double>& harmonics, Wobble wobble)
{
	Wave out(SampleCount(seconds));
	double phase = 0;
	for (size_t i = 0; i < out.size(); i++) {
		double t  = (double)i / out.size();
		double hz = pitch.RatioAt(t);
		hz *= 1 + wobble.depth * std::sin(TAU * wobble.hz * i / SAMPLE_RATE);
		phase += hz / SAMPLE_RATE;
		double sum = 0;
		for (size_t h = 0; h < harmonics.size(); h++)
			if (harmonics[h] != 0 && hz * (h + 1) < HIGHEST)
				sum += harmonics[h] * std::sin(TAU * phase * (h + 1));
		out[i] = sum * loud.At(t);
	}
	return out;
}

Wave NoiseBand(double seconds, const Curve& centre, const Curve& q, const Curve& loud,
               uint64_t seed)
{
	Wave out(SampleCount(seconds));
	Chance chance(seed);
	StateFilter first, second;
	for (size_t i = 0; i < out.size(); i++) {
		double t = (double)i / out.size();
		if (i % STEP == 0) {
			double hz = centre.RatioAt(t), sharp = q.At(t);
			first.Set(hz, sharp);
			second.Set(hz * 1.08, sharp);
		}
		out[i] = second.Band(first.Band(chance.Normal())) * loud.At(t);
	}
	return out;
}

Wave Bubble(double hz, double rise, double seconds, double attack)
{
	Wave out(SampleCount(seconds));
	double phase = 0;
	for (size_t i = 0; i < out.size(); i++) {
		double t = (double)i / SAMPLE_RATE, share = t / seconds;
		phase += hz * (1 + rise * share) / SAMPLE_RATE;
		out[i] = std::sin(TAU * phase) * std::exp(-6.9 * share);
	}
	Fade(out, attack, .01);
	return out;
}

Wave Thud(double hz, double seconds, double grit, uint64_t seed)
{
	Wave out = Tone(seconds, {{0, hz * 1.7}, {.15, hz}, {1, hz * .8}},
	                {{0, 0}, {.02, 1}, {.3, .4}, {1, 0}}, {1, .6, .45, .3, .18});
	if (grit > 0)
		MixAt(out,
		      NoiseBand(seconds * .6, {{0, hz * 11}, {1, hz * 4}}, .7,
		                {{0, 0}, {.02, 1}, {.25, .25}, {1, 0}}, seed),
		      0, grit * 1.6);
	return out;
}

Wave Glide(double seconds, const Curve& pitch, const Curve& loud, double ring, Wobble wobble)
{
	Wave out(SampleCount(seconds));
	double first = 0, second = 0;
	StateFilter filter;
	for (size_t i = 0; i < out.size(); i++) {
		double t = (double)i / out.size(), time = (double)i / SAMPLE_RATE;
		double hz = pitch.RatioAt(t) * (1 + wobble.depth * std::sin(TAU * wobble.hz * time));
		first += hz / SAMPLE_RATE;
		second += hz * SAWS_APART / SAMPLE_RATE;
		double sum = 0;
		for (int h = 1; h <= SAW_HARMONICS && hz * h < HIGHEST; h++)
			sum += (std::sin(TAU * first * h) + std::sin(TAU * second * h)) / (h * std::sqrt(h));
		if (i % STEP == 0)
			filter.Set(std::min(9000.0, hz * 5 + 600), 1.2);
		double beat = ring > 0 ? .65 + .35 * std::sin(TAU * ring * time) : 1;
		out[i]      = filter.Low(sum) * loud.At(t) * beat;
	}
	return out;
}
