// Weather and night as stereo loops, and two claps of thunder.
#include "art/families.h"

#include "art/sounds/chance.h"
#include "art/sounds/effect.h"
#include "art/sounds/loudness.h"
#include "art/sounds/ring.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

#include <cmath>

// A drop on a leaf: a few milliseconds of a high tone.
static Wave Drop(double hz, double seconds)
{
	const double RISE = 12; // samples
	Wave drop(SampleCount(seconds));
	for (size_t i = 0; i < drop.size(); i++)
		drop[i] = std::sin(TAU * hz * i / SAMPLE_RATE) * std::exp(-5.0 * i / drop.size()) *
		          std::min(1.0, i / RISE);
	return drop;
}

static void MakeRain(Sink& sink)
{
	const double SECONDS = 7;
	const int DROPS = 5200, BUBBLES = 90;
	Ring ring(SECONDS);
	ring.AddBed(3400, .45, .09, 1);
	ring.AddBed(900, .4, .12, 5);
	Chance chance(9);
	for (int i = 0; i < DROPS; i++) {
		double hz = chance.Between(1300, 6500), seconds = chance.Between(.002, .007);
		double gain = .5 * std::pow(chance.Unit(), 3), at = chance.Between(0, SECONDS);
		ring.Add(Drop(hz, seconds), at, gain, chance.Signed());
	}
	for (int i = 0; i < BUBBLES; i++) {
		double hz = chance.Between(700, 2600), rise = chance.Between(.2, .7);
		double seconds = chance.Between(.015, .04), at = chance.Between(0, SECONDS);
		double gain = .12 * chance.Unit();
		ring.Add(Bubble(hz, rise, seconds, .001), at, gain, chance.Signed());
	}
	AddLoop(sink, "background_rain", ring.sound, -34);
}

static void MakeHail(Sink& sink)
{
	const double SECONDS = 7;
	const int STONES = 520, BLOWS_ON_WOOD = 26;
	Ring ring(SECONDS);
	ring.AddBed(2600, .4, .05, 11);
	Chance chance(10);
	for (int i = 0; i < STONES; i++) {
		double hz = chance.Between(1500, 4200), decay = chance.Between(.012, .03);
		Wave stone  = Struck({{hz, decay, 1}, {hz * 1.63, .012, .6}, {hz * 2.41, .008, .4}},
		                     {8000, .0005, .3}, 900 + i);
		double gain = .5 * std::pow(chance.Unit(), 3), at = chance.Between(0, SECONDS);
		ring.Add(stone, at, gain, chance.Signed());
	}
	for (int i = 0; i < BLOWS_ON_WOOD; i++) {
		Wave board  = Plank(chance.Between(380, 800), .05, 40 + i, 5000);
		double gain = .22 * chance.Unit(), at = chance.Between(0, SECONDS);
		ring.Add(board, at, gain, chance.Signed());
	}
	AddLoop(sink, "background_hail", ring.sound, -33);
}

// Four crickets, near and far, each at a rate that closes with the loop.
static void MakeCrickets(Sink& sink)
{
	const double SECONDS = 8, PULSE = .017, PULSE_PACE = .029, LEFT_OUT = .12;
	struct Cricket {
		double hz;
		int chirps, pulses; // chirps in a loop, pulses in a chirp
		double gain, side;
	};
	// clang-format off
	static const Cricket CRICKETS[] = {
		{4450, 18, 3,  1,  -.6},
		{4780, 15, 4, .7,   .7},
		{4120, 21, 3, .35,  .1},
		{5060, 13, 4, .18, -.1},
	};
	// clang-format on
	Ring ring(SECONDS);
	Chance chance(12);
	for (const Cricket& c : CRICKETS) {
		Wave pulse =
		    Tone(PULSE, {{0, c.hz * 1.01}, {1, c.hz * .985}}, {{0, 0}, {.35, 1}, {1, 0}}, {1, .06});
		for (int i = 0; i < c.chirps; i++) {
			bool silent = chance.Unit() < LEFT_OUT;
			for (int p = 0; p < c.pulses && !silent; p++) {
				double at = SECONDS * i / c.chirps + p * PULSE_PACE + chance.Between(0, .004);
				ring.Add(pulse, at, c.gain * (.7 + .15 * p), c.side);
			}
		}
	}
	ring.AddBed(700, .4, .012, 21);
	AddLoop(sink, "background_crikets", ring.sound, -39);
}

// One side of a clap. Both sides draw the same chances for the rolls, over other noise: wide, but
// one event.
static Wave ThunderSide(double seconds, bool cracks, uint64_t seed, int side)
{
	const int CRACKLES = 7, ROLLS = 12;
	Wave out(SampleCount(seconds));
	Chance chance(seed);
	if (cracks) {
		MixAt(out,
		      NoiseBand(.5, {{0, 2600}, {1, 500}}, .4, {{0, 0}, {.01, 1}, {.15, .3}, {1, 0}},
		                seed + 7 + side),
		      0);
		for (int i = 0; i < CRACKLES; i++) {
			double at = chance.Between(0, .35), gain = chance.Between(.3, .9);
			MixAt(out,
			      NoiseBand(.09, {{0, 3800}, {1, 900}}, .5, {{0, 0}, {.04, 1}, {1, 0}},
			                seed + 70 + i + 20 * side),
			      at, gain);
		}
	}
	for (int i = 0; i < ROLLS; i++) {
		double at = i ? chance.Between(0, seconds * .6) : 0, length = chance.Between(.7, 1.6);
		double hz = chance.Between(90, 300) * (1 - .5 * at / seconds);
		MixAt(out,
		      NoiseBand(length, {{0, hz * 1.6}, {1, hz * .6}}, .6,
		                {{0, 0}, {.12, 1}, {.4, .5}, {1, 0}}, seed + 11 * i + 999 * side),
		      at, chance.Between(.5, 1.3) * (1 - .6 * at / seconds));
	}
	out.resize(SampleCount(seconds));
	return out;
}

static void MakeThunder(Sink& sink, const char* name, double seconds, bool cracks, uint64_t seed)
{
	const Room SKY     = {-12, 1.6, 3, 1800};
	const double AFTER = .6; // seconds of echo kept
	Sound clap;
	for (int side = 0; side < 2; side++) {
		Wave& wave = side ? clap.right : clap.left;
		wave       = InRoom(ThunderSide(seconds, cracks, seed, side), SKY);
		wave.resize(SampleCount(seconds + AFTER));
		HighPass(wave, 38);
		Fade(wave, .004, 1.2);
	}
	AddStereo(sink, name, clap, -18);
}

void AddWeatherSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/rain", __FILE__, MakeRain);
	catalogue.Add("sounds/hail", __FILE__, MakeHail);
	catalogue.Add("sounds/crickets", __FILE__, MakeCrickets);
	catalogue.Add("sounds/thunder", __FILE__, [](Sink& sink) {
		MakeThunder(sink, "background_thunder", 3.2, true, 3);
		MakeThunder(sink, "background_thunder2", 4.2, false, 8);
	});
}
