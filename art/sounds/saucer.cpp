// The saucer and its pilot: charge, shots, wreck, laughter.
#include "art/families.h"

#include "art/sounds/chance.h"
#include "art/sounds/effect.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

#include <algorithm>
#include <cmath>

static const Curve FLASH = {{0, 0}, {.03, 1}, {1, 0}};

// Bubbles come ever faster; it is over just before the shot falls.
static void MakeCharge(Sink& sink)
{
	const double SECONDS = 2.75, SLOWEST = .28, FASTEST = .055;
	Wave charge = Glide(SECONDS, {{0, 110}, {.5, 220}, {1, 660}},
	                    {{0, 0}, {.1, .4}, {.95, 1}, {1, 0}}, 0, {31, .004});
	double pace = SLOWEST;
	for (double at = 0; at < SECONDS - .05; at += pace, pace = std::max(FASTEST, pace * .9))
		MixAt(charge, Bubble(500 + 350 * at, .4, .08), at, .5);
	AddHit(sink, "ufo_antenna_charge", charge, -24);
}

static void MakeShots(Sink& sink)
{
	AddHit(sink, "ufo_laser",
	       Glide(.32, {{0, 1900}, {.4, 700}, {1, 260}}, {{0, 0}, {.02, 1}, {.5, .5}, {1, 0}}), -22,
	       {-15, .4});

	const int SPARKS = 20;
	Wave dissipate =
	    NoiseBand(.55, {{0, 5200}, {1, 1100}}, .8, {{0, 0}, {.03, 1}, {.4, .4}, {1, 0}}, 5);
	Chance chance(3);
	for (int i = 0; i < SPARKS; i++) {
		Wave spark = Struck({{chance.Between(2500, 7000), .01, 1}}, {12000, .0004}, i);
		double at  = chance.Between(0, .45);
		MixAt(dissipate, spark, at, .4 * chance.Unit());
	}
	AddHit(sink, "ufo_laser_dissipate", dissipate, -25);

	Wave stun = Glide(.6, {{0, 140}, {.5, 190}, {1, 90}}, {{0, 0}, {.03, 1}, {.7, .7}, {1, 0}}, 23,
	                  {31, .35});
	MixAt(stun, NoiseBand(.6, {{0, 3500}, {1, 2200}}, 1, FLASH, 5), 0, .5);
	AddHit(sink, "ufo_laser_stun", stun, -21);
}

// A loop of one second: all its rates are whole numbers.
static void MakeFlyingShot(Sink& sink)
{
	const double HUM = 196, WARBLE = 9; // Hz
	Wave shot(SampleCount(1));
	for (size_t i = 0; i < shot.size(); i++) {
		double turn = TAU * i / SAMPLE_RATE, slow = std::sin(turn * WARBLE);
		double sum = std::cos(turn * HUM + 2.2 * slow) + .5 * std::cos(turn * 2 * HUM + 3 * slow) +
		             .25 * std::cos(turn * 6 * HUM + 4 * std::sin(turn * 2 * WARBLE));
		shot[i] = sum * (.75 + .25 * slow);
	}
	AddLoop(sink, "ufo_laser_flying", {shot, {}}, -28);
}

static void MakeWreck(Sink& sink)
{
	const int DENTS = 9, PIECES = 14;
	Wave crumple;
	Chance chance(5);
	double at = 0;
	for (int i = 0; i < DENTS; i++) {
		double hz = chance.Between(130, 420), decay = chance.Between(.12, .35);
		Wave dent = Shell(hz, decay, 12, 30 + i, chance.Between(2500, 7000));
		MixAt(crumple, dent, at, (i ? .6 : 1) * chance.Between(.5, 1));
		at += chance.Between(.02, .1);
	}
	MixAt(crumple, Thud(80, .2, .4, 2), 0, .4);
	AddHit(sink, "ufo_metal_crumpling", crumple, -20);

	Wave blast = Thud(48, .9, 1, 3);
	MixAt(blast,
	      NoiseBand(1.7, {{0, 2400}, {.3, 600}, {1, 160}}, .4, {{0, 0}, {.01, 1}, {.2, .5}, {1, 0}},
	                4),
	      0, 1.8);
	for (int i = 0; i < PIECES; i++) {
		double hz = chance.Between(200, 900), decay = chance.Between(.15, .5);
		double when = .1 + chance.Between(0, 1.1), gain = .3 * chance.Unit();
		MixAt(blast, Shell(hz, decay, 8, 80 + i), when, gain);
	}
	MixAt(blast, Glide(.7, {{0, 900}, {1, 90}}, FLASH, 40, {31, .05}), 0, .3);
	AddHit(sink, "ufo_explode", blast, -17, {-13, .9, 1.8});
}

// clang-format off
static const Syllable HA = {
	.seconds  = .15,
	.pitch    = {{0, 520}, {.3, 680}, {1, 470}},
	.loud     = {{0, 0}, {.12, 1}, {.6, .7}, {1, 0}},
	.formants = {{{0, 700}, {.4, 1150}, {1, 800}}, {{0, 2100}, {.4, 2600}}, 4000, 5300},
	.pressed  = .7, .breath = .08, .tremolo = 55, .tremoloLoud = .35, .tremoloPitch = .02,
};
static const Syllable UGH = {
	.seconds  = .4,
	.pitch    = {{0, 620}, {.3, 480}, {1, 260}},
	.loud     = {{0, 0}, {.05, 1}, {.5, .7}, {1, 0}},
	.formants = {{{0, 1000}, {1, 600}}, {{0, 2200}, {1, 1300}}, 3600},
	.pressed  = .6, .breath = .15, .rough = .2, .tremolo = 48, .tremoloLoud = .4,
};
// clang-format on

static void MakeAlienVoice(Sink& sink)
{
	Call laugh;
	for (int i = 0; i < 6; i++)
		laugh.push_back(Again(HA, .17 * i, 1.25 - .07 * i, 1 - .06 * i));
	AddCall(sink, "alien_laugh", laugh, -21);
	AddCall(sink, "alien_fall_grunt", {UGH});
}

static void MakeAlienFall(Sink& sink)
{
	Wave ground = Thud(85, .25, .5, 4);
	MixAt(ground, NoiseBand(.18, {{0, 1400}, {1, 500}}, .7, {{0, 0}, {.1, 1}, {1, 0}}, 3), .01, .8);
	MixAt(ground, Bubble(210, .8, .16), .05, .5);
	AddHit(sink, "alien_fall_on_ground", ground, -21);

	const int BUBBLES = 8;
	Wave capture = Tone(.7, {{0, 262}, {.7, 1047}, {1, 1175}}, {{0, 0}, {.1, 1}, {.7, .8}, {1, 0}},
	                    {1, .35, .2, .1}, {13, .05});
	for (int i = 0; i < BUBBLES; i++)
		MixAt(capture, Bubble(300 + 140 * i, .8, .09), .06 + .07 * i, .35);
	double at = .6;
	for (const char* note : {"c6", "e6", "g6"}) {
		MixAt(capture, Mallet(NoteHz(note), .6, .5, 1), at, .7);
		at += .06;
	}
	AddHit(sink, "alien_capture", capture, -21, {-14, .5});
}

void AddSaucerSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/charge", __FILE__, MakeCharge);
	catalogue.Add("sounds/shots", __FILE__, MakeShots);
	catalogue.Add("sounds/flyingshot", __FILE__, MakeFlyingShot);
	catalogue.Add("sounds/wreck", __FILE__, MakeWreck);
	catalogue.Add("sounds/alien", __FILE__, MakeAlienVoice);
	catalogue.Add("sounds/alienfall", __FILE__, MakeAlienFall);
}
