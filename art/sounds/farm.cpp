// Calls of the farm: cow, sheep, goat, pig, horse, donkey.
#include "art/families.h"

#include "art/sounds/effect.h"

// clang-format off
// "m-oo": a hum through the nose first, then the lips part.
static const Syllable MOO = {
	.seconds  = 1.65,
	.pitch    = {{0, 108}, {.14, 128}, {.45, 152}, {.78, 142}, {1, 96}},
	.loud     = {{0, 0}, {.06, .5}, {.17, .55}, {.32, 1}, {.78, .85}, {1, 0}},
	.formants = {{{0, 240}, {.17, 250}, {.34, 430}, {.7, 450}, {1, 270}},
	             {{0, 720}, {.17, 760}, {.38, 930}, {.8, 830}, {1, 640}}, 1500, 2150, 2800},
	.pressed  = .95, .breath = .05,
	.rough    = {{0, .05}, {.75, .05}, {1, .25}}, .jitter = .01,
	.mouth    = {{0, 420}, {.16, 460}, {.30, 3200}, {.8, 2800}, {1, 500}},
	.nose     = {{0, 1}, {.15, 1}, {.28, 0}, {1, .15}},
};
static const Curve LOW_MOO_PITCH = {{0, 128}, {.3, 126}, {.7, 112}, {1, 84}};

static const Syllable BAA = {
	.seconds  = .95,
	.pitch    = {{0, 205}, {.15, 232}, {.7, 205}, {1, 160}},
	.loud     = {{0, 0}, {.05, .9}, {.3, 1}, {.75, .7}, {1, 0}},
	.formants = {{{0, 350}, {.1, 760}, {1, 680}},
	             {{0, 1500}, {.1, 1780}, {1, 1650}}, 2650, 3600, 4400},
	.pressed  = .65, .breath = .09, .rough = .12, .jitter = .015,
	.tremolo  = 8.5, .tremoloLoud = .55, .tremoloPitch = .045,
	.mouth    = {{0, 350}, {.09, 7000}, {1, 4500}},
};

static const Syllable BLEAT = {
	.seconds  = .8,
	.pitch    = {{0, 300}, {.12, 345}, {.8, 310}, {1, 250}},
	.loud     = {{0, 0}, {.05, 1}, {.7, .8}, {1, 0}},
	.formants = {{{0, 500}, {.12, 930}, {1, 820}}, {{0, 1500}, {.12, 2000}, {1, 1850}}, 3000, 4100},
	.pressed  = .5, .breath = .12, .rough = .25, .jitter = .02,
	.tremolo  = 11.5, .tremoloLoud = .75, .tremoloPitch = .05,
	.mouth    = {{0, 700}, {.07, 9000}},
};

static const Syllable OINK = {
	.seconds  = .24,
	.pitch    = {{0, 130}, {.5, 190}, {1, 140}},
	.loud     = {{0, 0}, {.15, .9}, {.7, .7}, {1, 0}},
	.formants = {{{0, 420}, {.6, 620}}, {{0, 1300}, {.6, 1650}}, 2600, 3700},
	.pressed  = .6, .breath = {{0, .55}, {1, .35}}, .breathHz = 3000, .rough = .6,
	.growl    = 34, .growlDepth = .7,
};
static const Syllable SQUEAL = {
	.seconds  = .85,
	.pitch    = {{0, 620}, {.12, 1150}, {.35, 1380}, {.7, 1180}, {.9, 900}, {1, 500}},
	.loud     = {{0, 0}, {.08, .8}, {.3, 1}, {.85, .8}, {1, 0}},
	.formants = {{{0, 900}, {.3, 1350}, {1, 900}}, {{0, 2200}, {.3, 2900}, {1, 2300}}, 3900, 5200},
	.pressed  = .55, .breath = .15,
	.rough    = {{0, .1}, {.35, .08}, {.6, .3}, {1, .5}},
	.sub      = {{0, 0}, {.5, 0}, {.62, .5}, {.8, .5}, {1, .1}},
	.tremolo  = 17, .tremoloPitch = .03,
};

// The folds give the low pitch of a whinny, a whistle in the larynx the high one.
static const Syllable WHINNY = {
	.seconds  = 1.75, .gain = .8,
	.pitch    = {{0, 250}, {.12, 380}, {.25, 420}, {.5, 360}, {.75, 290}, {1, 190}},
	.loud     = {{0, 0}, {.06, .7}, {.2, 1}, {.6, .75}, {.9, .35}, {1, 0}},
	.formants = {{{0, 700}, {.2, 1050}, {1, 600}},
	             {{0, 1600}, {.2, 2000}, {1, 1400}}, 2700, 3600, 4600},
	.pressed  = .6, .breath = {{0, .06}, {.7, .12}, {1, .4}},
	.rough    = {{0, .05}, {.5, .1}, {1, .45}}, .sub = {{0, 0}, {.7, .1}, {.9, .4}},
	.tremolo  = 12.5, .tremoloLoud = .6, .tremoloPitch = .10,
};
static const Syllable WHINNY_WHISTLE = {
	.seconds  = 1.75, .gain = .6,
	.pitch    = {{0, 800}, {.1, 1250}, {.25, 1480}, {.5, 1250}, {.75, 1000}, {1, 700}},
	.loud     = WHINNY.loud, .tone = {1, .35, .12}, .breath = .08, .rough = .05,
	.tremolo  = 12.5, .tremoloLoud = .6, .tremoloPitch = .10,
};
static const Syllable SNORT = {
	.at = 1.72, .seconds = .4, .gain = .28, .pitch = 60,
	.loud     = {{0, 0}, {.1, 1}, {1, 0}},
	.formants = {500, 1300, 2300},
	.breath   = 1, .breathHz = 4000, .growl = 26, .growlDepth = .9,
};

static const Syllable HEE = {
	.seconds  = .42,
	.pitch    = {{0, 380}, {.3, 560}, {.8, 610}, {1, 480}},
	.loud     = {{0, 0}, {.15, .7}, {.8, 1}, {1, 0}},
	.formants = {{{0, 450}, {1, 550}}, {{0, 2000}, {1, 2300}}, 3000, 3900},
	.pressed  = .6, .breath = .35, .rough = .35, .sub = .35,
};
static const Syllable HAW = {
	.seconds  = .55,
	.pitch    = {{0, 270}, {.2, 245}, {.8, 205}, {1, 150}},
	.loud     = {{0, 0}, {.06, 1}, {.7, .8}, {1, 0}},
	.formants = {{{0, 600}, {.2, 850}, {1, 650}}, {{0, 1300}, {1, 1150}}, 2300, 3200, 4100},
	.pressed  = .5, .breath = .15, .rough = .4, .sub = .25, .growl = 30, .growlDepth = .35,
};
// clang-format on

static void MakeCow(Sink& sink)
{
	AddCall(sink, "cow_moo", {MOO});
	Syllable low = Again(MOO, 0, 1, 1, .8);
	low.pitch    = LOW_MOO_PITCH;
	AddCall(sink, "cow_moo2", {low});
}

static void MakeSheep(Sink& sink)
{
	AddCall(sink, "sheep_baa", {BAA});
	Syllable ram = Again(BAA, 0, .72, 1, 1.1);
	ram.tremolo  = 7.2;
	AddCall(sink, "sheep_baa2", {ram});
	Syllable lamb = Sized(Again(BAA, 0, 1.7, 1, .75), 1.22);
	lamb.tremolo  = 10;
	AddCall(sink, "sheep_baa3", {lamb});
}

static void MakePig(Sink& sink)
{
	AddCall(sink, "pig_squeal",
	        {Again(OINK, 0, 1, .55), Again(OINK, .27, 1.15, .6), Again(SQUEAL, .56)});
	AddCall(sink, "pig_squeal2",
	        {Again(OINK, 0, 1.1, .8), Again(OINK, .29, 1, .9), Again(OINK, .58, 1.3, 1, 1.2)});
}

static void MakeDonkey(Sink& sink)
{
	AddCall(sink, "donkey_bray",
	        {Again(HEE, 0, 1, .6), Again(HAW, .42), Again(HEE, 1.02, .97, .55),
	         Again(HAW, 1.42, .95, .9), Again(HEE, 2.0, .9, .35), Again(HAW, 2.35, .86, .6, .9)});
}

void AddFarmSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/cow", __FILE__, MakeCow);
	catalogue.Add("sounds/sheep", __FILE__, MakeSheep);
	catalogue.Add("sounds/goat", __FILE__,
	              [](Sink& sink) { AddCall(sink, "goat_bleat", {BLEAT}); });
	catalogue.Add("sounds/pig", __FILE__, MakePig);
	catalogue.Add("sounds/horse", __FILE__, [](Sink& sink) {
		AddCall(sink, "horse_whinny", {WHINNY, WHINNY_WHISTLE, SNORT});
	});
	catalogue.Add("sounds/donkey", __FILE__, MakeDonkey);
}
