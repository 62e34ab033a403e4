// Calls of the wild: wolf, bear, tiger, elephant, monkey, hyena.
#include "art/families.h"

#include "art/sounds/effect.h"

// clang-format off
static const Syllable HOWL = {
	.seconds  = 2.7,
	.pitch    = {{0, 215}, {.12, 330}, {.2, 405}, {.6, 415}, {.8, 385}, {1, 250}},
	.loud     = {{0, 0}, {.12, .6}, {.3, 1}, {.75, .8}, {1, 0}},
	.formants = {{{0, 350}, {.3, 520}, {.8, 480}, {1, 360}},
	             {{0, 800}, {.3, 950}, {1, 800}}, 2300, 3300},
	.pressed  = 1.1, .breath = .03, .jitter = .004, .shimmer = .02,
	.tremolo  = 5.2, .tremoloPitch = .008,
	.mouth    = {{0, 900}, {.3, 4000}, {1, 1000}},
};

// The bear: all gravel, hardly a pitch, from a mouth half shut; a huff goes before and one after.
static const Syllable BEAR_ROAR = {
	.at = .12, .seconds = 1.05,
	.pitch    = {{0, 85}, {.25, 122}, {.5, 112}, {1, 68}},
	.loud     = {{0, 0}, {.1, .8}, {.3, 1}, {.6, .8}, {1, 0}},
	.formants = {{{0, 320}, {.3, 540}, {1, 350}},
	             {{0, 820}, {.3, 1020}, {1, 800}}, 1850, 2600, 3400},
	.pressed  = .55, .breath = {{0, .35}, {.4, .3}, {1, .55}}, .breathHz = 2600,
	.rough    = .85, .sub = .45, .growl = 27, .growlDepth = .8,
	.mouth    = {{0, 700}, {.25, 3200}, {.7, 2200}, {1, 800}},
};
static const Syllable BEAR_HUFF = {
	.seconds  = .2, .gain = .32, .pitch = 70,
	.loud     = {{0, 0}, {.3, 1}, {1, 0}},
	.formants = {{{0, 380}, {1, 520}}, 1150, 2100},
	.breath   = 1, .breathHz = 2200, .growl = 24, .growlDepth = .6,
};

// The tiger: "aa-oom", a pitch that is heard through the roar, and a mouth that opens wide and
// closes on it.
static const Syllable TIGER_ROAR = {
	.seconds  = 1.75,
	.pitch    = {{0, 95}, {.15, 175}, {.35, 205}, {.6, 160}, {1, 75}},
	.loud     = {{0, 0}, {.07, .6}, {.22, 1}, {.6, .85}, {1, 0}},
	.formants = {{{0, 380}, {.25, 820}, {.5, 700}, {.75, 450}, {1, 340}},
	             {{0, 1000}, {.25, 1420}, {.5, 1150}, {.75, 820}, {1, 720}}, 2050, 2900, 3700},
	.pressed  = .40, .breath = {{0, .2}, {.3, .14}, {1, .4}}, .breathHz = 4500,
	.rough    = {{0, .5}, {.25, .28}, {.6, .4}, {1, .9}},
	.sub      = {{0, .5}, {.3, .2}, {.6, .45}, {1, .6}}, .growl = 22, .growlDepth = .25,
	.mouth    = {{0, 900}, {.2, 9000}, {.5, 7000}, {.78, 1800}, {1, 600}},
};

static const Syllable TRUMPET = {
	.seconds  = 1.25,
	.pitch    = {{0, 300}, {.1, 420}, {.3, 480}, {.7, 455}, {.9, 510}, {1, 330}},
	.loud     = {{0, 0}, {.05, .9}, {.3, 1}, {.8, .95}, {1, 0}},
	.formants = {{{0, 600}, {.3, 850}, {1, 700}}, {{0, 1300}, {.3, 1650}}, 2500, 3300, 4100},
	.pressed  = .36, .breath = .1,
	.rough    = {{0, .3}, {.15, .12}, {.7, .16}, {1, .4}},
	.sub      = {{0, 0}, {.5, .05}, {.7, .3}, {1, .3}},
	.tremolo  = 24, .tremoloLoud = .25, .tremoloPitch = .012,
	.bandwidth = 90, .bandwidthShare = .1, .fillTo = 12000,
};

static const Syllable MONKEY_OO = {
	.seconds  = .17,
	.pitch    = {{0, 330}, {.5, 440}, {1, 360}},
	.loud     = {{0, 0}, {.3, 1}, {1, 0}},
	.formants = {{{0, 400}, {.5, 480}}, 950, 2700, 3900},
	.pressed  = 1.4, .breath = .12, .mouth = 2200,
};
static const Syllable MONKEY_AA = {
	.seconds  = .2,
	.pitch    = {{0, 620}, {.35, 1000}, {1, 700}},
	.loud     = {{0, 0}, {.12, 1}, {.7, .8}, {1, 0}},
	.formants = {{{0, 800}, {.4, 1250}, {1, 900}}, {{0, 1700}, {.4, 2200}}, 3400, 4700},
	.pressed  = .5, .breath = .14, .rough = .3, .sub = .2,
};
static const Syllable MONKEY_EE = {
	.seconds  = .34,
	.pitch    = {{0, 1100}, {.3, 1750}, {.8, 1600}, {1, 1100}},
	.loud     = {{0, 0}, {.1, 1}, {.8, .8}, {1, 0}},
	.formants = {{{0, 1300}, {.3, 1800}}, 3100, 4400},
	.pressed  = .5, .breath = .2, .rough = .3, .sub = {{0, .1}, {.6, .45}, {1, .3}},
};

// A giggle of "hee" with drawn lips: the voice breaks up an octave and back in every note, and
// between the notes the breath is heard going in.
static const Syllable GIGGLE = {
	.seconds  = .13,
	.pitch    = {{0, 430}, {.16, 450}, {.24, 780}, {.6, 700}, {1, 520}},
	.loud     = {{0, 0}, {.1, .5}, {.25, 1}, {.6, .75}, {1, 0}},
	.formants = {{{0, 480}, {.3, 720}, {1, 560}}, {{0, 1900}, {.3, 2350}, {1, 2100}}, 3100, 4200},
	.pressed  = .62, .breath = {{0, .45}, {.22, .08}, {.7, .1}, {1, .4}}, .rough = .1,
};
static const Syllable GASP = {
	.seconds  = .07, .gain = .22,
	.pitch    = {{0, 900}, {1, 1150}},
	.loud     = {{0, 0}, {.4, 1}, {1, 0}},
	.formants = {{{0, 700}, {1, 900}}, 2300, 3400},
	.pressed  = .9, .breath = .8, .breathHz = 6000,
};
// clang-format on

static const Place VALLEY = {{-11, 1.3, 2.2}, 8}; // the howl
static const Place FOREST = {{-15, .5, 1.5}, 6};
static const Place JUNGLE = {{-14, .7, 1.8}, 7};
static const Place PLAIN  = {{-13, .6, 1.6}, 4};

static void MakeWolf(Sink& sink)
{
	AddCall(sink, "wolf_howl", {HOWL}, -21, VALLEY);
}

static void MakeBear(Sink& sink)
{
	AddCall(sink, "bear_roar", {BEAR_HUFF, BEAR_ROAR, Again(BEAR_HUFF, 1.12, 1, .7, .9)}, -19,
	        FOREST);
}

static void MakeTiger(Sink& sink)
{
	AddCall(sink, "tiger_roar", {TIGER_ROAR}, -19, JUNGLE);
}

static void MakeElephant(Sink& sink)
{
	AddCall(sink, "elephant_trumpet", {Again(TRUMPET, 0, .8, .5, .22), Again(TRUMPET, .22)}, -19,
	        PLAIN);
}

static void MakeMonkey(Sink& sink)
{
	AddCall(sink, "monkey_screech1",
	        {MONKEY_AA, Again(MONKEY_AA, .23, 1.1), Again(MONKEY_AA, .46, 1.22),
	         Again(MONKEY_EE, .7, .95)});
	AddCall(sink, "monkey_screech2",
	        {Again(MONKEY_OO, 0, .95, .6), Again(MONKEY_OO, .22, 1.02, .7),
	         Again(MONKEY_OO, .44, 1.1, .8), Again(MONKEY_AA, .67), Again(MONKEY_AA, .9, 1.12),
	         Again(MONKEY_AA, 1.12, 1.2), Again(MONKEY_AA, 1.34, 1.05, .8)});
}

// The fourth note is drawn out and the highest; from there the laugh runs down.
static void MakeHyena(Sink& sink)
{
	const double PITCH[] = {.8, .92, 1.05, 1.2, 1.12, 1.02, .95, .88};
	const double PACE = .185, LONG_PACE = .27; // seconds
	const int LONG_NOTE = 3;
	Call laugh;
	double at = 0;
	for (int i = 0; i < 8; i++) {
		double gain = i < 6 ? 1 : .75 - .1 * (i - 6);
		laugh.push_back(Again(GIGGLE, at, PITCH[i], gain, i == LONG_NOTE ? 1.75 : 1));
		at += i == LONG_NOTE ? LONG_PACE : PACE;
		if (i < 7)
			laugh.push_back(Again(GASP, at - .06, PITCH[i]));
	}
	AddCall(sink, "hyena_laugh", laugh);
}

void AddWildSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/wolf", __FILE__, MakeWolf);
	catalogue.Add("sounds/bear", __FILE__, MakeBear);
	catalogue.Add("sounds/tiger", __FILE__, MakeTiger);
	catalogue.Add("sounds/elephant", __FILE__, MakeElephant);
	catalogue.Add("sounds/monkey", __FILE__, MakeMonkey);
	catalogue.Add("sounds/hyena", __FILE__, MakeHyena);
}
