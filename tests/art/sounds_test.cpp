// Tests of the effects as the game will decode them: level, length, ends, seams, pitch, rhythm.
#include "art/core/workshop.h"
#include "art/families.h"
#include "art/sounds/loudness.h"
#include "art/sounds/spectrum.h"
#include "art/sounds/vorbis_file.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <span>

namespace
{
struct Expected {
	const char* name;
	double seconds, level; // dB
	int count     = 0;     // not 0: a family, numbered from 1
	double window = .1;    // seconds that the level is taken over
};

// Where a call is asked for its pitch.
struct PitchPoint {
	const char* name;
	double at, hz;       // seconds
	double window = .05; // seconds; short where the pitch moves fast
};

struct Rhythm {
	const char* name;
	double hz;               // beats of loudness
	double from = 0, to = 9; // seconds
};
} // namespace

// clang-format off
static const Expected ONE_SHOTS[] = {
	// farm and yard
	{ "cow_moo", 1.7, -20 },        { "cow_moo2", 1.4, -20 },       { "sheep_baa", 1.0, -20 },
	{ "sheep_baa2", 1.1, -20 },     { "sheep_baa3", .8, -20 },      { "goat_bleat", .9, -20 },
	{ "pig_squeal", 1.5, -20 },     { "pig_squeal2", 1.0, -20 },    { "horse_whinny", 2.1, -20 },
	{ "horse_feet", .3, -22 },      { "donkey_bray", 2.9, -20 },    { "dog_bark", .6, -19 },
	{ "cat_meow", .9, -20 },        { "chicken_cluck1", .2, -22 },  { "chicken_cluck2", .4, -22 },
	{ "chicken_cluck3", .5, -22 },  { "chicken_cluck4", .6, -22 },  { "chicken_squawk", 1.1, -20 },
	{ "duck_quack", .8, -20 },      { "duck_quack2", .3, -20 },     { "duckling_quack", .6, -24 },
	{ "goose_honk", .95, -20 },     { "mouse_squeak", .5, -25 },    { "turtle_appear", .2, -24 },
	// wild
	{ "wolf_howl", 3.4, -21 },      { "bear_roar", 1.4, -19 },      { "tiger_roar", 1.8, -19 },
	{ "elephant_trumpet", 1.7, -19 },
	{ "monkey_screech1", 1.2, -20 },
	{ "monkey_screech2", 1.7, -20 },                                { "hyena_laugh", 1.6, -20 },
	{ "seal_bark", 1.0, -20 },      { "walrus_grunt", 1.0, -19 },   { "hippo_snort", 1.4, -19 },
	{ "moose_grunt", .6, -20 },     { "moose_grunt2", .9, -20 },    { "camel_grunt", 1.0, -20 },
	{ "frog_ribbit", 1.0, -20 },    { "kangaroo_bounce", .7, -23 }, { "skunk_spray", .7, -27 },
	{ "camel_fall", .6, -21 },
	// birds
	{ "crow_caw", 1.4, -20 },       { "crow_caw2", .6, -20 },       { "owl_hoot", 2.9, -21 },
	{ "bluebird_chirp", 1.1, -23 }, { "eagle_screech", 1.6, -23 },  { "vulture_screech", .8, -22 },
	{ "pigeon_coo", 1.5, -21 },     { "penguin_squawk", .85, -20 }, { "penguin_shake", .7, -26 },
	{ "ostrich_squawk", .8, -20 },  { "ostrich_head", .3, -23 },
	// ball, prizes, machine
	{ "ball_rebound", .2, -23, 4 }, { "ball_grow", 1.0, -21 },      { "ball_lost", 1.2, -20 },
	{ "change_ball_type", .7, -22 },
	{ "coin_collection", .75, -23, 4 },
	{ "collect_animal", .8, -20, 9 },
	{ "collect_animal10", 1.4, -20 },
	{ "collect_moneybag", .7, -22 },                                { "collect_powerup", .8, -21 },
	{ "score_count", .1, -28 },     { "score_tally", .3, -26 },     { "map_dot", .4, -24 },
	{ "ballons", .9, -24 },         { "destructoray", .7, -19 },
	{ "energy_shield_appear", 1.1, -22 },
	{ "energy_shield_disappear", .9, -22 },
	{ "score_flyaway", .37, -23, 16 },
	// wood, drums, falls
	{ "damage_object_wood", .2, -21, 3 },
	{ "destroy_object_wood1", 1.0, -19 },
	{ "destroy_object_wood2", .5, -19 },
	{ "destroy_object_wood3", .65, -19 },                           { "damage_drum", .4, -21 },
	{ "drum_spewing", 1.3, -22 },   { "subtle_thud", .2, -27 },     { "animal_jump", .3, -25 },
	{ "animal_jump_landing", .2, -25 },
	{ "animal_land_from_tree", .5, -23 },
	{ "background_thunder", 3.8, -18 },
	{ "background_thunder2", 4.8, -18 },
	// saucer, robot
	{ "ufo_antenna_charge", 2.9, -24 },                             { "ufo_laser", .5, -22 },
	{ "ufo_laser_dissipate", .5, -25 },                             { "ufo_laser_stun", .6, -21 },
	{ "ufo_metal_crumpling", .6, -20 },                             { "ufo_explode", 1.6, -17 },
	{ "alien_laugh", 1.1, -21 },    { "alien_fall_grunt", .5, -20 },
	{ "alien_fall_on_ground", .3, -21 },                            { "alien_capture", 1.4, -21 },
	{ "bot_hit", .4, -21 },         { "bot_look", .7, -24 },
	// signs and signals
	{ "mouse_over", .1, -31 },      { "mouse_selection", .2, -24 }, { "action_failed", .4, -22 },
	{ "extra_quorblet", 3.5, -18 }, { "trophy_unlocked", 4.2, -18 },
	{ "level_start", 2.8, -19 },    { "level_complete", 4.5, -18 }, { "lose_game", 5.9, -19 },
	{ "quiz_correct_answer", 2.6, -19 },
	{ "quiz_wrong_answer", 2.9, -20 },
};
// Steady ones are measured over more of their time.
static const Expected LOOPS[] = {
	{ "background_rain", 7, -34, 0, .4 },    { "background_hail", 7, -33, 0, .4 },
	{ "background_crikets", 8, -39, 0, .4 }, { "fan_loop", 2, -30, 0, .4 },
	{ "snake_rattle", 1.5, -26, 0, .4 },     { "ufo_laser_flying", 1, -28, 0, .4 },
	{ "dog_pant", 1.92, -28 },
};

static const PitchPoint PITCHES[] = {
	{ "cow_moo", .23, 128, .08 },   { "cow_moo", .74, 152, .08 },  { "cow_moo", 1.29, 142, .08 },
	{ "cow_moo2", .40, 126, .08 },  { "cow_moo2", .92, 112, .08 }, { "moose_grunt", .22, 142, .08 },
	{ "sheep_baa", .66, 205, .1 },  { "sheep_baa2", .73, 148, .1 }, { "sheep_baa3", .5, 348, .1 },
	{ "goat_bleat", .64, 310, .09 }, { "cat_meow", .15, 640 },     { "cat_meow", .34, 720 },
	{ "cat_meow", .64, 590 },       { "dog_bark", .1, 400, .02 },  { "pig_squeal", .86, 1380 },
	{ "donkey_bray", .336, 610 },   { "donkey_bray", .86, 205 },   { "duck_quack", .06, 250 },
	{ "goose_honk", .07, 350 },     { "goose_honk", .256, 488 },   { "chicken_squawk", .57, 960 },
	{ "wolf_howl", .54, 405 },      { "wolf_howl", 1.62, 415 },    { "wolf_howl", 2.16, 385 },
	{ "elephant_trumpet", 1.095, 455 }, { "monkey_screech2", .525, 484 },
	{ "hyena_laugh", .69, 840, .03 },
	{ "seal_bark", .154, 305 },     { "owl_hoot", .06, 345 },      { "owl_hoot", 1.0, 347 },
	{ "pigeon_coo", 1.025, 399 },   { "bluebird_chirp", .065, 3100, .012 },
	{ "bluebird_chirp", .636, 3500, .012 }, { "eagle_screech", .375, 2800, .02 },
	{ "eagle_screech", .875, 2350, .02 }, { "mouse_squeak", .034, 4000, .008 },
	{ "duckling_quack", .035, 4300, .008 }, { "alien_laugh", .045, 850, .02 },
	{ "ball_grow", .443, 587 }, { "ball_lost", .478, 330 }, { "ufo_antenna_charge", 1.378, 220 },
};

static const std::pair<const char*, int> SYLLABLES[] = {
	{ "dog_bark", 2 }, { "duck_quack", 3 }, { "duck_quack2", 1 }, { "duckling_quack", 3 },
	{ "goose_honk", 2 }, { "mouse_squeak", 3 }, { "chicken_cluck1", 1 }, { "chicken_cluck2", 2 },
	{ "chicken_cluck3", 3 }, { "chicken_cluck4", 3 }, { "chicken_squawk", 5 }, { "crow_caw", 3 },
	{ "owl_hoot", 5 }, { "hyena_laugh", 8 }, { "seal_bark", 3 }, { "monkey_screech1", 4 },
	{ "monkey_screech2", 7 }, { "frog_ribbit", 4 },  { "alien_laugh", 6 },    { "pig_squeal2", 3 },
	{ "dog_pant", 8 },      { "penguin_shake", 12 }, { "horse_feet", 2 },     { "score_tally", 4 },
	{ "action_failed", 2 }, { "cow_moo", 1 }, { "moose_grunt2", 2 }, { "bluebird_chirp", 4 },
};

static const Rhythm TREMOLOS[] = {
	{ "sheep_baa", 8.5 }, { "sheep_baa2", 7.2 }, { "sheep_baa3", 10 }, { "goat_bleat", 11.5 },
	{ "horse_whinny", 12.5, 0, 1.4 }, { "pigeon_coo", 27, .33, .8 },
	{ "penguin_squawk", 22, .05, .38 },
	{ "fan_loop", 27 },     { "snake_rattle", 72 },
};
// clang-format on

// Everything made once, through the forge's own work queue.
static const std::map<std::string, Sound>& Effects()
{
	static const std::map<std::string, Sound> effects = [] {
		Catalogue catalogue;
		AddSounds(catalogue);
		Workshop workshop(QUORBLET_SOURCE_DIR, "", 2);
		std::map<std::string, Sound> made;
		for (const Picture& p : workshop.Run(catalogue.groups)) {
			std::string stem = p.name.substr(0, p.name.rfind(".ogg"));
			EXPECT_TRUE(DecodeVorbis(p.bytes, made[stem])) << p.name;
		}
		return made;
	}();
	return effects;
}

static const Sound& Effect(const std::string& name)
{
	static const Sound silence;
	auto found = Effects().find(name);
	EXPECT_NE(found, Effects().end()) << name;
	return found == Effects().end() ? silence : found->second;
}

// Calls `look` for each effect of a table.
static void ForEach(std::span<const Expected> table,
                    const std::function<void(const Expected&, const std::string&)>& look)
{
	for (const Expected& e : table)
		for (int i = 1; i <= std::max(1, e.count); i++)
			look(e, e.name + (e.count ? std::to_string(i) : std::string()));
}

static double PeakOf(const Sound& sound)
{
	return std::max(PeakOf(sound.left), PeakOf(sound.right));
}

// Likeness of the wave around `at` to itself `lag` samples later, -1..1.
static double Likeness(const Wave& wave, double at, double window, int lag)
{
	double product = 0, here = 0, there = 0;
	long from = (long)((at - window / 2) * SAMPLE_RATE) - lag / 2;
	for (long i = std::max(0l, from); i < from + window * SAMPLE_RATE; i++) {
		if (i + lag >= (long)wave.size())
			break;
		product += wave[i] * wave[i + lag];
		here += wave[i] * wave[i];
		there += wave[i + lag] * wave[i + lag];
	}
	return product / std::sqrt(std::max(1e-12, here * there));
}

// The pitch within half an octave or so of `near`, and how clear it is.
static double PitchAt(const Wave& wave, double at, double near, double window, double& clear)
{
	const double REACH = 1.4;
	int best = 0, low = (int)(SAMPLE_RATE / (near * REACH)),
	    high = (int)(SAMPLE_RATE * REACH / near);
	clear    = -1;
	for (int lag = low; lag <= high; lag++) {
		double likeness = Likeness(wave, at, window, lag);
		if (likeness > clear) {
			clear = likeness;
			best  = lag;
		}
	}
	// The top of the parabola through three lags: whole lags are coarse for whistles.
	double a = Likeness(wave, at, window, best - 1), b = Likeness(wave, at, window, best + 1);
	double bend = a - 2 * clear + b;
	return SAMPLE_RATE / (best + (bend < 0 ? .5 * (a - b) / bend : 0));
}

// Level in steps of 5 ms over a window of `window` seconds.
static const double STEP = .005; // seconds
static std::vector<double> Envelope(const Wave& wave, double window)
{
	std::vector<double> levels;
	long half = (long)SampleCount(window / 2), step = (long)SampleCount(STEP);
	for (long middle = 0; middle < (long)wave.size(); middle += step) {
		double sum = 0;
		for (long i = std::max(0l, middle - half); i < std::min((long)wave.size(), middle + half);
		     i++)
			sum += wave[i] * wave[i];
		levels.push_back(std::sqrt(sum / (2 * half)));
	}
	return levels;
}

// Rises of the level out of a dip.
static int CountSyllables(const Wave& wave)
{
	const double RISE = 1.7, FLOOR = .25; // against the dip before, and of the loudest
	std::vector<double> levels = Envelope(wave, .03);
	double loudest = *std::max_element(levels.begin(), levels.end()), dip = 0, top = 0;
	int count   = 0;
	bool rising = false;
	for (double level : levels) {
		if (!rising && level > FLOOR * loudest && level > RISE * dip) {
			rising = true;
			count++;
			top = level;
		} else if (rising) {
			top = std::max(top, level);
			if (level < top / RISE) {
				rising = false;
				dip    = level;
			}
		}
		if (!rising)
			dip = std::min(dip, level);
	}
	return count;
}

// The strongest beat of loudness between 0.6 and 1.6 of `near`.
static double BeatNear(const Rhythm& r)
{
	const Wave& wave         = Effect(r.name).left;
	std::vector<double> fast = Envelope(wave, .2 / r.hz), slow = Envelope(wave, 1.5 / r.hz);
	double best = 0, bestPower = -1;
	for (double hz = r.hz * .6; hz < r.hz * 1.6; hz += r.hz * .01) {
		double re = 0, im = 0;
		for (size_t i = 0; i < fast.size(); i++) {
			double time = i * STEP;
			if (time < r.from || time > r.to || slow[i] < 1e-4)
				continue;
			double depth = fast[i] / slow[i] - 1;
			re += depth * std::cos(TAU * hz * time);
			im += depth * std::sin(TAU * hz * time);
		}
		if (re * re + im * im > bestPower) {
			bestPower = re * re + im * im;
			best      = hz;
		}
	}
	return best;
}

TEST(Sounds, EveryEffectOfTheGameIsMade)
{
	int made   = 0;
	auto count = [&](const Expected&, const std::string& name) { made += Effects().count(name); };
	ForEach(ONE_SHOTS, count);
	ForEach(LOOPS, count);
	EXPECT_EQ(made, 141);
	EXPECT_EQ(Effects().size(), 141u) << "one has a name that nobody asks for";
}

TEST(Sounds, LengthAndLevelAreThoseOfTheTable)
{
	ForEach(ONE_SHOTS, [](const Expected& e, const std::string& name) {
		EXPECT_NEAR(Effect(name).Seconds(), e.seconds, .05 + .06 * e.seconds) << name;
		EXPECT_NEAR(Loudness(Effect(name), e.window), e.level, .5) << name;
	});
	ForEach(LOOPS, [](const Expected& e, const std::string& name) {
		EXPECT_EQ(Effect(name).left.size(), SampleCount(e.seconds)) << name;
		EXPECT_NEAR(Loudness(Effect(name), e.window), e.level, .5) << name;
	});
}

TEST(Sounds, StereoIsKeptForWeatherAndSignals)
{
	for (auto& [name, sound] : Effects()) {
		bool wide = !name.compare(0, 11, "background_") || !name.compare(0, 5, "quiz_") ||
		            !name.compare(0, 6, "level_") || name == "extra_quorblet" ||
		            name == "trophy_unlocked" || name == "lose_game";
		EXPECT_EQ(sound.IsStereo(), wide) << name;
	}
}

TEST(Sounds, PeaksStayBelowFullScaleAfterDecoding)
{
	for (auto& [name, sound] : Effects())
		EXPECT_LT(ToDb(PeakOf(sound)), -1) << name;
}

// Coding spreads a blow over what lies before it: without silence in front it starts with a click.
TEST(Sounds, OneShotsStartAndEndInSilence)
{
	ForEach(ONE_SHOTS, [](const Expected&, const std::string& name) {
		for (const Wave* side : {&Effect(name).left, &Effect(name).right})
			if (!side->empty()) {
				EXPECT_LT(std::fabs(side->front()), .003) << name;
				EXPECT_LT(std::fabs(side->back()), .003) << name;
			}
	});
}

TEST(Sounds, LoopsHaveNoSeam)
{
	for (const Expected& e : LOOPS)
		for (const Wave* side : {&Effect(e.name).left, &Effect(e.name).right}) {
			if (side->empty())
				continue;
			const Wave& w = *side;
			std::vector<double> steps;
			for (size_t i = 1; i < w.size(); i++)
				steps.push_back(std::fabs(w[i] - w[i - 1]));
			auto usual = steps.begin() + (long)steps.size() * 99 / 100;
			std::nth_element(steps.begin(), usual, steps.end());
			EXPECT_LE(std::fabs(w.front() - w.back()), *usual) << e.name;
		}
}

// A beep of a level that drops at the seam is heard even where the wave itself runs on.
TEST(Sounds, SteadyLoopsKeepTheirLevelOverTheSeam)
{
	const double WINDOW = .1;
	for (const char* name : {"background_rain", "background_hail", "fan_loop", "snake_rattle"}) {
		const Wave& w = Effect(name).left;
		size_t count  = SampleCount(WINDOW);
		Sound start{{w.begin(), w.begin() + (long)count}, {}};
		Sound end{{w.end() - (long)count, w.end()}, {}};
		EXPECT_NEAR(MeanLoudness(start), MeanLoudness(end), 3) << name;
	}
}

// Small speakers give nothing below 200 Hz.
TEST(Sounds, NothingIsLostOnSmallSpeakers)
{
	for (auto& [name, sound] : Effects()) {
		Sound small = sound;
		HighPass(small.left, 200);
		HighPass(small.right, 200);
		EXPECT_GT(Loudness(small) - Loudness(sound), -5) << name;
	}
}

TEST(Sounds, CallsFollowTheirPitch)
{
	for (const PitchPoint& p : PITCHES) {
		double clear, hz = PitchAt(Effect(p.name).left, p.at, p.hz, p.window, clear);
		EXPECT_NEAR(hz, p.hz, .05 * p.hz) << p.name << " at " << p.at << " s";
	}
}

TEST(Sounds, CallsHaveTheirSyllables)
{
	for (auto& [name, count] : SYLLABLES)
		EXPECT_EQ(CountSyllables(Effect(name).left), count) << name;
}

TEST(Sounds, TremoloRunsAtItsRate)
{
	for (const Rhythm& r : TREMOLOS)
		EXPECT_NEAR(BeatNear(r), r.hz, .06 * r.hz) << r.name;
}

static double ClearnessAt(const char* name, double at, double hz)
{
	double clear;
	PitchAt(Effect(name).left, at, hz, .06, clear);
	return clear;
}

// What a listener tells apart by the throat alone.
TEST(Sounds, LikeAnimalsHaveUnlikeVoices)
{
	EXPECT_GT(ClearnessAt("cow_moo", .74, 152), ClearnessAt("moose_grunt", .22, 142) + .1);
	EXPECT_GT(ClearnessAt("tiger_roar", .6, 205), ClearnessAt("bear_roar", .4, 118) + .1);
	EXPECT_GT(ClearnessAt("goose_honk", .25, 488), ClearnessAt("seal_bark", .13, 310) + .2);
	EXPECT_GT(SpectralCentre(Effect("goose_honk")), 1.8 * SpectralCentre(Effect("seal_bark")));
	EXPECT_GT(SpectralCentre(Effect("tiger_roar")), 1.4 * SpectralCentre(Effect("bear_roar")));
	EXPECT_GT(ClearnessAt("eagle_screech", .4, 2790), .8) << "a scream, no hiss";
}

// Seconds until the level has fallen by 25 dB.
static double RingTime(const char* name)
{
	std::vector<double> levels = Envelope(Effect(name).left, .02);
	double loudest             = *std::max_element(levels.begin(), levels.end());
	size_t last                = 0;
	for (size_t i = 0; i < levels.size(); i++)
		if (levels[i] > loudest * FromDb(-25))
			last = i;
	return last * STEP;
}

TEST(Sounds, DrumRingsWhereCratesKnock)
{
	for (const char* crate :
	     {"damage_object_wood1", "damage_object_wood2", "damage_object_wood3"}) {
		EXPECT_GT(RingTime("damage_drum"), 1.8 * RingTime(crate)) << crate;
		EXPECT_GT(SpectralCentre(Effect(crate)), 2 * SpectralCentre(Effect("damage_drum")))
		    << crate;
	}
}

// The strongest tone of the second half.
static double LastingTone(const Wave& wave)
{
	const size_t SIZE = 16384;
	long from         = (long)wave.size() / 2;
	Wave tail(wave.begin() + from, wave.end());
	std::vector<double> powers = PowerSpectrum(tail, (long)tail.size() / 2, SIZE);
	size_t best                = 1;
	for (size_t i = 1; i + 1 < powers.size(); i++)
		if (powers[i] > powers[best])
			best = i;
	double a = std::log(powers[best - 1] + 1e-30), b = std::log(powers[best] + 1e-30);
	double c = std::log(powers[best + 1] + 1e-30);
	return (best + .5 * (a - c) / (a - 2 * b + c)) * SAMPLE_RATE / SIZE;
}

// C D E G A: any other note would clash with one of the pieces of music.
TEST(Sounds, MusicalEffectsKeepToTheFiveCommonNotes)
{
	const double COMMON[] = {0, 2, 4, 7, 9, 12}, REACH = .3; // semitones
	for (auto& [name, sound] : Effects()) {
		bool musical = false;
		for (const char* start : {"ball_rebound", "coin_", "collect_", "score_", "map_dot",
		                          "mouse_over", "action_failed", "ball_grow"})
			musical |= !name.compare(0, std::char_traits<char>::length(start), start);
		if (!musical)
			continue;
		double key = 12 * std::log2(LastingTone(sound.left) / 440) + 69, step = std::fmod(key, 12);
		double off = 12;
		for (double common : COMMON)
			off = std::min(off, std::fabs(step - common));
		EXPECT_LT(off, REACH) << name << " rings at " << LastingTone(sound.left) << " Hz";
	}
}

// Points in a row are told by notes that climb; two in the wrong order would say the opposite.
TEST(Sounds, RowsOfNotesClimbTheScale)
{
	const double SCALE[] = {0, 2, 4, 7, 9}; // semitones
	struct Row {
		const char* stem;
		int count, key; // MIDI key of the first
	};
	for (const Row& row : {Row{"score_flyaway", 16, 60}, Row{"collect_animal", 9, 72}})
		for (int i = 0; i < row.count; i++) {
			std::string name = row.stem + std::to_string(i + 1);
			double key       = row.key + SCALE[i % 5] + 12 * (i / 5);
			double ratio = LastingTone(Effect(name).left) / (440 * std::pow(2, (key - 69) / 12));
			// the bell an octave above may outlast the bar
			EXPECT_NEAR(ratio > 1.5 ? ratio / 2 : ratio, 1, .02) << name;
		}
}

// The ruler itself: a full sine of 997 Hz on one side is -3.01 dB by definition.
TEST(Loudness, SineOfKnownLevel)
{
	Sound sine;
	for (int i = 0; i < SAMPLE_RATE; i++)
		sine.left.push_back(std::sin(TAU * 997 * i / SAMPLE_RATE));
	EXPECT_NEAR(MeanLoudness(sine), -3.01, .1);
	sine.right = Wave(sine.left.size(), 0.0);
	EXPECT_NEAR(MeanLoudness(sine), -6.02, .1) << "one silent side is half the power";
}

TEST(Loudness, LimiterHoldsTheCeilingAndLeavesTheRest)
{
	Wave wave(SAMPLE_RATE, 0.0);
	for (int i = 0; i < SAMPLE_RATE; i++)
		wave[i] = .3 * std::sin(TAU * 440 * i / SAMPLE_RATE);
	wave[20000] = 3;
	wave[30000] = -1.5;
	Wave before = wave;
	Limit(wave, -2);
	EXPECT_LE(PeakOf(wave), FromDb(-2) + 1e-9);
	EXPECT_GT(std::fabs(wave[20000]), FromDb(-2) - .02) << "no deeper than needed";
	EXPECT_DOUBLE_EQ(wave[10000], before[10000]);
	EXPECT_DOUBLE_EQ(wave[40000], before[40000]);
}

TEST(Vorbis, SameBytesEachTimeAndTheSameLengthBack)
{
	Sound sound{Effect("score_tally").left, Effect("score_tally").left}, back;
	std::string bytes = EncodeVorbis(sound, .4f);
	EXPECT_EQ(bytes, EncodeVorbis(sound, .4f));
	ASSERT_TRUE(DecodeVorbis(bytes, back));
	EXPECT_TRUE(back.IsStereo());
	EXPECT_EQ(back.left.size(), sound.left.size());
}

TEST(Vorbis, DamageIsToldOrDecodedAsFarAsItGoes)
{
	std::string bytes = EncodeVorbis({Effect("score_tally").left, {}}, .4f);
	Sound back;
	EXPECT_FALSE(DecodeVorbis("", back));
	EXPECT_FALSE(DecodeVorbis("no sound at all", back));
	EXPECT_FALSE(DecodeVorbis(bytes.substr(0, 2000), back));
	EXPECT_TRUE(back.left.empty());
}
