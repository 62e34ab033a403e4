// Renders a syllable sample by sample at the oversampled rate.
#include "art/sounds/voice.h"

#include "art/sounds/chance.h"
#include "art/sounds/filters.h"
#include "art/sounds/glottis.h"

static const double RATE       = (double)SAMPLE_RATE * OVERSAMPLING;
static const size_t CYCLE_SIZE = 4096;
static const size_t STEP       = 32; // samples from one look at the curves to the next
static const double FADE_IN = .003, FADE_OUT = .008; // seconds
static const double NOSE_RING = 260, NOSE_GAP = 850; // Hz: what a nose lifts and swallows
static const double TONE_LEVEL = .4;
static const double HIGHEST    = 18000; // Hz; harmonics above are left out

namespace
{
// Phase of the voice, with each cycle a little other than the last.
class Folds
{
public:
	Folds(const Syllable& s, Chance& chance) : syllable(s), chance(chance) {}

	// Moves on by one sample at `hz`.
	void Step(double hz, double rough, double sub)
	{
		frequency = std::max(5.0, hz * stretch);
		phase += frequency / RATE;
		if (phase < 1)
			return;
		phase -= 1;
		odd           = !odd;
		wander        = .8 * wander + .2 * chance.Normal();
		stretch       = std::clamp(1 + syllable.jitter * chance.Normal() +
		                               rough * (.10 * chance.Normal() + .12 * wander) +
		                               (odd ? 1 : -1) * .03 * sub,
		                           .5, 1.8);
		double uneven = 1 + syllable.shimmer * chance.Normal() + .35 * rough * chance.Normal();
		size          = std::max(.05, std::min(1.6, uneven) * (odd ? 1 - sub : 1));
	}

	double phase = 0, frequency = 0, size = 1, wander = 0;

private:
	const Syllable& syllable;
	Chance& chance;
	double stretch = 1;
	bool odd       = false;
};

// Slow beats of loudness and pitch: bleat, whinny, purr and growl.
class Beats
{
public:
	Beats(const Syllable& s, Chance& chance) : syllable(s), chance(chance), drift(30, RATE) {}

	void Step(double wander)
	{
		loud = 1;
		wave = 0;
		if (syllable.tremolo > 0) {
			// The rate wanders; a wandering phase would wash the bleat out.
			phase += syllable.tremolo * (1 + .12 * wander) / RATE;
			wave = std::sin(TAU * phase);
			loud = 1 - syllable.tremoloLoud * (.5 - .5 * wave);
		}
		if (syllable.growl > 0) {
			growlPhase += syllable.growl * (1 + 12.5 * drift.Low(chance.Normal())) / RATE;
			loud *= 1 - syllable.growlDepth * (.5 - .5 * std::sin(TAU * growlPhase));
		}
	}

	double wave = 0; // of the tremolo, -1..1
	double loud = 1;

private:
	const Syllable& syllable;
	Chance& chance;
	OnePole drift;
	double phase = 0, growlPhase = 0;
};

// Throat, nose and lips.
class Tract
{
public:
	explicit Tract(const Syllable& s)
	    : syllable(s), formants(s.formants), moving(formants.size()), lips(HIGHEST, .7, RATE),
	      outerLips(HIGHEST, .7, RATE), noseRing(NOSE_RING, 1.5, RATE), noseGap(NOSE_GAP, .9, RATE)
	{
		if (moving) {
			double last    = formants.back().RatioAt(.5);
			double spacing = moving > 1 ? (last - formants[0].RatioAt(.5)) / (moving - 1) : 1000;
			for (double hz = last + spacing; hz < s.fillTo; hz += spacing)
				formants.push_back(hz);
		}
		chain.resize(formants.size());
		hasNose = !s.nose.IsZero();
	}

	void MoveTo(double t)
	{
		for (size_t i = 0; i < chain.size(); i++) {
			double hz    = formants[i].RatioAt(t);
			double share = syllable.bandwidthShare * (i < moving ? 1 : 1.6);
			chain[i].Set(hz, syllable.bandwidth + share * hz, RATE);
		}
		double open = syllable.mouth.RatioAt(t);
		lips.Set(open, .7);
		outerLips.Set(open * 1.2, .7);
		nose = syllable.nose.At(t);
	}
	double Run(double x)
	{
		for (Resonator& formant : chain)
			x = formant.Run(x);
		x = outerLips.Low(lips.Low(x));
		if (hasNose)
			x += nose * (.6 * noseRing.Band(x) - .9 * noseGap.Band(x));
		return x;
	}

private:
	const Syllable& syllable;
	std::vector<Curve> formants;
	size_t moving; // those given; the others stand still
	std::vector<Resonator> chain;
	StateFilter lips, outerLips, noseRing, noseGap;
	double nose  = 0;
	bool hasNose = false;
};

// The air itself: what folds give, or a whistle, with the breath that goes with it.
class Air
{
public:
	Air(const Syllable& s, Chance& chance)
	    : syllable(s), chance(chance), colour(s.breathHz, RATE), low(1000, 3, RATE),
	      high(1000, 2, RATE), cycle(s.tone.empty() ? GlottalCycle(s.pressed, CYCLE_SIZE) : Wave())
	{
		level = std::sqrt(10000 / s.breathHz);
	}

	// A whistle's breath lies around its pitch; over the whole band it would be hiss.
	void MoveTo(double hz)
	{
		low.Set(hz * 1.2, 3);
		high.Set(hz * 1.5, 2);
	}
	double At(const Folds& folds, double breath)
	{
		double noise = colour.Low(chance.Normal()) * level;
		double x, open = 1;
		if (syllable.tone.empty()) {
			x    = Cycle(folds.phase);
			open = .3 + .7 * std::sin(TAU / 2 * std::min(1.0, folds.phase / .75));
		} else {
			x     = Whistle(folds);
			noise = 5 * low.Band(high.Band(noise));
		}
		return x * folds.size * (1 - .5 * breath) + breath * 2.2 * noise * open;
	}

private:
	double Cycle(double phase) const
	{
		double place = phase * CYCLE_SIZE;
		size_t i     = (size_t)place % CYCLE_SIZE;
		return cycle[i] + (place - std::floor(place)) * (cycle[(i + 1) % CYCLE_SIZE] - cycle[i]);
	}
	double Whistle(const Folds& folds) const
	{
		double x = 0;
		for (size_t h = 0; h < syllable.tone.size(); h++)
			if (folds.frequency * (h + 1) < HIGHEST)
				x += syllable.tone[h] * std::sin(TAU * folds.phase * (h + 1));
		return TONE_LEVEL * x;
	}

	const Syllable& syllable;
	Chance& chance;
	OnePole colour;
	StateFilter low, high;
	Wave cycle;
	double level;
};
} // namespace

Syllable Again(Syllable s, double at, double pitch, double gain, double stretch)
{
	s.at    = at;
	s.pitch = s.pitch * pitch;
	s.gain *= gain;
	s.seconds *= stretch;
	return s;
}

Syllable Sized(Syllable s, double factor)
{
	for (Curve& formant : s.formants)
		formant = formant * factor;
	return s;
}

// The values of one step's curves, and how they go on to the next.
namespace
{
struct Course {
	double pitch, loud, breath, rough, sub;

	Course(const Syllable& s, double t)
	    : pitch(s.pitch.RatioAt(t)), loud(s.loud.At(t)), breath(s.breath.At(t)),
	      rough(s.rough.At(t)), sub(s.sub.At(t))
	{
	}
};
} // namespace

Wave RenderSyllable(const Syllable& s, uint64_t seed)
{
	Chance chance(seed);
	Folds folds(s, chance);
	Beats beats(s, chance);
	Tract tract(s);
	Air air(s, chance);
	Wave out(SampleCount(s.seconds) * OVERSAMPLING);
	Course here(s, 0), next(s, 0);
	for (size_t i = 0; i < out.size(); i++) {
		size_t within = i % STEP;
		if (within == 0) {
			here = next;
			next = Course(s, (double)(i + STEP) / out.size());
			tract.MoveTo((double)i / out.size());
			air.MoveTo(std::max(5.0, folds.frequency));
		}
		double u = (double)within / STEP, hz = here.pitch + (next.pitch - here.pitch) * u;
		beats.Step(folds.wander);
		folds.Step(hz * (1 + s.tremoloPitch * beats.wave), here.rough, here.sub);
		double x = tract.Run(air.At(folds, here.breath) * beats.loud);
		out[i]   = x * (here.loud + (next.loud - here.loud) * u);
	}
	Wave done = Decimated(out);
	Fade(done, FADE_IN, FADE_OUT);
	double peak = PeakOf(done);
	if (peak > 0)
		Scale(done, s.gain / peak);
	return done;
}

Wave RenderCall(const Call& call, uint64_t seed)
{
	Wave out;
	uint64_t number = seed * 977;
	for (const Syllable& s : call)
		MixAt(out, RenderSyllable(s, ++number), s.at);
	return out;
}
