// Tests of the parts that effects are built of.
#include "art/sounds/chance.h"
#include "art/sounds/curve.h"
#include "art/sounds/glottis.h"
#include "art/sounds/ring.h"
#include "art/sounds/room.h"
#include "art/sounds/spectrum.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"
#include "art/sounds/voice.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

static Wave Sine(double hz, double seconds, int rate = SAMPLE_RATE)
{
	Wave wave((size_t)(seconds * rate));
	for (size_t i = 0; i < wave.size(); i++)
		wave[i] = std::sin(TAU * hz * (double)i / rate);
	return wave;
}

static double Power(const Wave& wave, double from, double to)
{
	double sum = 0;
	size_t end = std::min(wave.size(), SampleCount(to));
	for (size_t i = SampleCount(from); i < end; i++)
		sum += wave[i] * wave[i];
	return sum;
}

// The strongest frequency around a moment.
static double StrongestHz(const Wave& wave, double at)
{
	const size_t SIZE          = 4096;
	std::vector<double> powers = PowerSpectrum(wave, (long)SampleCount(at), SIZE);
	auto best                  = std::max_element(powers.begin(), powers.end());
	return (double)(best - powers.begin()) * SAMPLE_RATE / SIZE;
}

TEST(Curve, PassesItsPointsAndIsFlatOutside)
{
	Curve c = {{.2, 100}, {.6, 400}, {1, 200}};
	for (auto [at, value] : {std::pair(0.0, 100.0), {.2, 100}, {.6, 400}, {1, 200}, {3, 200}}) {
		EXPECT_NEAR(c.At(at), value, 1e-9);
		EXPECT_NEAR(c.RatioAt(at), value, 1e-9);
	}
	EXPECT_NEAR(c.At(.4), 250, 1e-9);
	EXPECT_NEAR(c.RatioAt(.4), 200, 1e-9) << "half way in ratio: an octave of two";
	EXPECT_NEAR((c * .5).At(.6), 200, 1e-9);
}

TEST(Notes, NamesGiveTheirPitch)
{
	EXPECT_NEAR(NoteHz("a4"), 440, 1e-9);
	EXPECT_NEAR(NoteHz("c4"), 261.63, .01);
	EXPECT_NEAR(NoteHz("f#5"), NoteHz("gb5"), 1e-9);
	EXPECT_NEAR(NoteHz("b3") * std::pow(2, 1 / 12.0), NoteHz("c4"), 1e-6);
	EXPECT_NEAR(CommonNoteHz(4, 0), NoteHz("c4"), 1e-9);
	EXPECT_NEAR(CommonNoteHz(4, 9), NoteHz("a5"), 1e-9);
}

TEST(Chance, SameSeedSameNumbersAndEvenSpread)
{
	Chance a(5), b(5), other(6);
	double sum = 0, square = 0;
	bool differs = false;
	for (int i = 0; i < 20000; i++) {
		double v = a.Normal();
		EXPECT_EQ(v, b.Normal());
		differs |= v != other.Normal();
		sum += v;
		square += v * v;
	}
	EXPECT_TRUE(differs);
	EXPECT_NEAR(sum / 20000, 0, .03);
	EXPECT_NEAR(square / 20000, 1, .03);
}

TEST(Struck, ModesRingAtTheirPitchForTheirTime)
{
	Wave bar = Struck({{1000, .4, 1}}, {8000, .0005, 0}, 3);
	EXPECT_NEAR(StrongestHz(bar, .1), 1000, 12);
	// 60 dB in 0.4 s are 15 dB in 0.1 s
	double fall = 10 * std::log10(Power(bar, .05, .1) / Power(bar, .15, .2));
	EXPECT_NEAR(fall, 15, 1);
}

TEST(Bubble, RisesWhileItDies)
{
	Wave bubble = Bubble(600, 1, .3);
	EXPECT_LT(StrongestHz(bubble, .02), 800);
	EXPECT_GT(StrongestHz(bubble, .22), 900);
	EXPECT_GT(Power(bubble, 0, .1), 20 * Power(bubble, .15, .25));
}

TEST(Room, DecaysInItsTime)
{
	Wave click(1, 1.0);
	Wave wet = InRoom(click, {-12, .5, 1, 20000});
	EXPECT_EQ(wet.size(), 1 + SampleCount(.5));
	EXPECT_NEAR(wet[0], 1, 1e-9) << "the dry sound stays as it is";
	double fall = 10 * std::log10(Power(wet, .1, .2) / Power(wet, .3, .4));
	EXPECT_NEAR(fall, 24, 4) << "60 dB in 0.5 s";
}

TEST(Ring, EventsRunOverTheEnd)
{
	Ring ring(.1);
	ring.Add(Wave(SampleCount(.02), 1.0), .09, 1, 0);
	EXPECT_EQ(ring.sound.left.size(), SampleCount(.1));
	EXPECT_GT(ring.sound.left.back(), 0);
	EXPECT_EQ(ring.sound.left.front(), ring.sound.left.back());
	EXPECT_EQ(ring.sound.left[SampleCount(.05)], 0);
	EXPECT_NEAR(ring.sound.left[0], std::sqrt(.5), 1e-9) << "equal power in the middle";
}

TEST(Loop, ClosedNoiseKeepsItsPower)
{
	Wave noise = NoiseLoop(1, 2000, .5, 4);
	EXPECT_EQ(noise.size(), SampleCount(1));
	double overlap = Power(noise, .2, .6), rest = Power(noise, .6, 1);
	EXPECT_NEAR(10 * std::log10(overlap / rest), 0, 1.5) << "a linear blend would dip by 3 dB";
}

// What folds back from above the audible range would be heard as mirrored lines.
TEST(Decimation, KeepsTheAudibleAndDropsTheRest)
{
	const int FAST = SAMPLE_RATE * OVERSAMPLING;
	Wave low = Decimated(Sine(5000, .2, FAST)), high = Decimated(Sine(30000, .2, FAST));
	EXPECT_NEAR(PeakOf(low), 1, .02);
	EXPECT_NEAR(StrongestHz(low, .1), 5000, 12);
	EXPECT_LT(Power(high, .02, .18), 1e-6 * Power(low, .02, .18));
}

TEST(Glottis, CycleHasNoNetFlow)
{
	for (double pressed : {.35, .65, 1.0, 1.4}) {
		double sum = 0;
		for (double v : GlottalCycle(pressed, 4096))
			sum += v;
		EXPECT_NEAR(sum / 4096, 0, .002) << pressed;
	}
}

TEST(Voice, FormantsStandWhereTheyAreSet)
{
	Syllable s = {.seconds = .3, .pitch = 100, .formants = {700, 1500}, .breath = 0, .jitter = 0};
	Wave wave  = RenderSyllable(s, 1);
	EXPECT_NEAR(PeakOf(wave), 1, 1e-9);
	std::vector<double> powers = PowerSpectrum(wave, (long)wave.size() / 2, 4096);
	auto around                = [&](double hz) {
        size_t middle = (size_t)(hz * 4096 / SAMPLE_RATE);
        return *std::max_element(powers.begin() + (long)middle - 5,
		                                        powers.begin() + (long)middle + 6);
	};
	EXPECT_GT(around(700), 4 * around(1100));
	EXPECT_GT(around(1500), 2 * around(1100));
}

TEST(Voice, AgainMovesPitchGainAndLength)
{
	Syllable s = Again({.seconds = 2, .gain = .5, .pitch = {{0, 100}, {1, 200}}}, .3, 1.5, .8, .5);
	EXPECT_DOUBLE_EQ(s.at, .3);
	EXPECT_DOUBLE_EQ(s.seconds, 1);
	EXPECT_DOUBLE_EQ(s.gain, .4);
	EXPECT_DOUBLE_EQ(s.pitch.At(1), 300);
	EXPECT_EQ(Sized({.formants = {500, 1000}}, 1.2).formants[1].At(0), 1200);
}
