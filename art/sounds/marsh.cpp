// Calls of shore, marsh and desert: seal, walrus, hippo, moose, camel, frog.
#include "art/families.h"

#include "art/sounds/effect.h"

// clang-format off
// "orrk": a hoarse, barrel-chested bark with an octave below in it, that snaps shut.
static const Syllable ARK = {
	.seconds  = .22,
	.pitch    = {{0, 250}, {.22, 345}, {.7, 305}, {1, 205}},
	.loud     = {{0, 0}, {.07, 1}, {.72, .85}, {.86, .3}, {1, 0}},
	.formants = {{{0, 480}, {.25, 700}, {.7, 640}, {1, 430}},
	             {{0, 950}, {.3, 1180}, {.75, 1350}, {1, 1500}}, 2150, 3000},
	.pressed  = .42, .breath = {{0, .3}, {.6, .3}, {1, .5}}, .breathHz = 3500,
	.rough    = .65, .sub = .55, .growl = 45, .growlDepth = .3,
	.mouth    = {{0, 1500}, {.2, 6000}, {.7, 5000}, {.88, 900}, {1, 600}},
};

static const Syllable DEEP_GRUNT = {
	.seconds  = .34,
	.pitch    = {{0, 72}, {.3, 96}, {1, 62}},
	.loud     = {{0, 0}, {.1, 1}, {.6, .8}, {1, 0}},
	.formants = {{{0, 260}, {.4, 400}, {1, 280}}, 820, 1500, 2200},
	.pressed  = .5, .breath = .3, .breathHz = 2500, .rough = .5, .sub = .2,
	.growl    = 30, .growlDepth = .4,
};
static const Syllable BLOW = {
	.seconds  = .3, .gain = .6, .pitch = 50,
	.loud     = {{0, 0}, {.08, 1}, {.4, .5}, {1, 0}},
	.formants = {420, 1150, 2100},
	.breath   = 1, .breathHz = 3000, .growl = 28, .growlDepth = .5,
};

// Short, rough and through the nose throughout: no "m", no "oo", which are the cow's.
static const Syllable MOOSE = {
	.seconds  = .55,
	.pitch    = {{0, 118}, {.4, 142}, {1, 104}},
	.loud     = {{0, 0}, {.12, 1}, {.6, .8}, {1, 0}},
	.formants = {{{0, 300}, {.4, 480}, {1, 330}}, {{0, 800}, {.4, 1020}, {1, 850}}, 1700, 2400},
	.pressed  = .6, .breath = .2, .rough = .4, .sub = .2,
	.mouth    = {{0, 700}, {.25, 3000}, {1, 1000}}, .nose = .5,
};

static const Syllable CAMEL = {
	.seconds  = 1,
	.pitch    = {{0, 105}, {.3, 135}, {.7, 120}, {1, 85}},
	.loud     = {{0, 0}, {.12, .9}, {.5, 1}, {1, 0}},
	.formants = {{{0, 380}, {.4, 600}, {1, 420}}, {{0, 1000}, {.4, 1250}}, 2100, 2900},
	.pressed  = .55, .breath = .2, .rough = .4, .growl = 22, .growlDepth = .75,
	.mouth    = {{0, 700}, {.25, 3500}, {1, 1200}},
};

// The pitch is a rate of pulses that can be counted.
static const Syllable RIB = {
	.seconds  = .14,
	.pitch    = {{0, 72}, {1, 92}},
	.loud     = {{0, 0}, {.3, .8}, {.9, 1}, {1, 0}},
	.formants = {{{0, 700}, {1, 1000}}, {{0, 1500}, {1, 2050}}, 3200},
	.pressed  = .35, .breath = .05, .bandwidth = 110, .bandwidthShare = .05,
};
static const Syllable BIT = {
	.seconds  = .17,
	.pitch    = {{0, 84}, {1, 122}},
	.loud     = {{0, 0}, {.25, 1}, {.85, 1}, {1, 0}},
	.formants = {{{0, 820}, {1, 1250}}, {{0, 1800}, {1, 2550}}, 3700},
	.pressed  = .35, .breath = .05, .bandwidth = 110, .bandwidthShare = .05,
};
// clang-format on

static const Place COVE = {{-13, .45, 1.4}, 5}; // wet rock around the seal

static void MakeSeal(Sink& sink)
{
	AddCall(sink, "seal_bark", {ARK, Again(ARK, .29, 1.03), Again(ARK, .58, .98, .9)}, ANIMAL_LEVEL,
	        COVE);
}

static void MakeWalrus(Sink& sink)
{
	AddCall(sink, "walrus_grunt",
	        {Again(DEEP_GRUNT, 0, 1.25, 1, 1.4), Again(DEEP_GRUNT, .5, 1.1, .9, 1.1)}, -19);
}

static void MakeHippo(Sink& sink)
{
	AddCall(sink, "hippo_snort",
	        {BLOW, Again(DEEP_GRUNT, .26, 1, 1, 1.2), Again(DEEP_GRUNT, .66, .92, .8),
	         Again(DEEP_GRUNT, .98, .86, .6)},
	        -19);
}

static void MakeMoose(Sink& sink)
{
	AddCall(sink, "moose_grunt", {MOOSE});
	AddCall(sink, "moose_grunt2", {Again(MOOSE, 0, .85, 1, .6), Again(MOOSE, .4, .8, .9, .75)});
}

static void MakeCamel(Sink& sink)
{
	AddCall(sink, "camel_grunt", {CAMEL});
}

static void MakeFrog(Sink& sink)
{
	AddCall(sink, "frog_ribbit",
	        {Again(RIB, 0, 1, .75), Again(BIT, .17), Again(RIB, .52, 1, .7),
	         Again(BIT, .69, 1.03, .9)});
}

void AddMarshSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/seal", __FILE__, MakeSeal);
	catalogue.Add("sounds/walrus", __FILE__, MakeWalrus);
	catalogue.Add("sounds/hippo", __FILE__, MakeHippo);
	catalogue.Add("sounds/moose", __FILE__, MakeMoose);
	catalogue.Add("sounds/camel", __FILE__, MakeCamel);
	catalogue.Add("sounds/frog", __FILE__, MakeFrog);
}
