// Calls of house and yard: dog, cat, mouse, chicken, duck, goose.
#include "art/families.h"

#include "art/sounds/effect.h"
#include "art/sounds/ring.h"

// clang-format off
static const Syllable WOOF = {
	.seconds  = .2,
	.pitch    = {{0, 260}, {.22, 460}, {.5, 400}, {1, 190}},
	.loud     = {{0, 0}, {.08, 1}, {.45, .7}, {1, 0}},
	.formants = {{{0, 420}, {.3, 850}, {1, 480}},
	             {{0, 1000}, {.3, 1400}, {1, 1000}}, 2500, 3500, 4500},
	.pressed  = .6, .breath = {{0, .2}, {.3, .12}, {1, .4}}, .rough = .25, .sub = .15,
};
static const Syllable BREATH_OUT = {
	.seconds  = .2, .pitch = 100,
	.loud     = {{0, 0}, {.35, 1}, {1, 0}},
	.formants = {{{0, 600}, {1, 800}}, 1400, 2700},
	.breath   = 1, .breathHz = 3500,
};
static const Syllable BREATH_IN = {
	.seconds  = .2, .gain = .65, .pitch = 100,
	.loud     = {{0, 0}, {.35, 1}, {1, 0}},
	.formants = {{{0, 900}, {1, 700}}, 1900, 2700},
	.breath   = 1, .breathHz = 6000,
};

// "mi-a-ow", made by mouth and second formant.
static const Syllable MEOW = {
	.seconds  = .85,
	.pitch    = {{0, 480}, {.18, 640}, {.4, 720}, {.75, 590}, {1, 430}},
	.loud     = {{0, 0}, {.12, .55}, {.35, 1}, {.75, .7}, {1, 0}},
	.formants = {{{0, 420}, {.2, 650}, {.42, 1150}, {.75, 800}, {1, 480}},
	             {{0, 2300}, {.2, 2500}, {.45, 1900}, {.8, 1200}, {1, 950}}, 3700, 5000},
	.pressed  = .75, .breath = .07, .rough = {{0, .02}, {.4, .1}, {1, .05}},
	.tremolo  = 6, .tremoloPitch = .012,
	.mouth    = {{0, 900}, {.2, 5000}, {.4, 9000}, {.8, 4000}, {1, 1000}},
};
static const Syllable SQUEAK = {
	.seconds  = .085,
	.pitch    = {{0, 2700}, {.4, 4000}, {1, 3100}},
	.loud     = {{0, 0}, {.25, 1}, {1, 0}},
	.tone     = {1, .25, .08}, .breath = .05, .tremolo = 60, .tremoloPitch = .02,
};

static const Syllable CLUCK = {
	.seconds  = .085,
	.pitch    = {{0, 330}, {.3, 470}, {1, 300}},
	.loud     = {{0, 0}, {.12, 1}, {.5, .6}, {1, 0}},
	.formants = {{{0, 750}, {.4, 1050}, {1, 800}}, 1900, 3100, 4300},
	.pressed  = .7, .breath = .12, .rough = .1, .bandwidthShare = .1,
};
static const Syllable GAWK = {
	.seconds  = .42,
	.pitch    = {{0, 420}, {.12, 720}, {.4, 960}, {.8, 820}, {1, 520}},
	.loud     = {{0, 0}, {.08, 1}, {.6, .8}, {1, 0}},
	.formants = {{{0, 900}, {.3, 1350}, {1, 1050}}, {{0, 1900}, {.3, 2500}}, 3600, 4900},
	.pressed  = .55, .breath = .15, .rough = {{0, .15}, {1, .35}}, .bandwidthShare = .1,
};

// Nasal and rasping: narrow formants over harsh folds.
static const Syllable QUACK = {
	.seconds  = .2,
	.pitch    = {{0, 215}, {.25, 255}, {1, 190}},
	.loud     = {{0, 0}, {.06, 1}, {.6, .7}, {1, 0}},
	.formants = {{{0, 700}, {.3, 1150}, {1, 900}}, {{0, 2000}, {.3, 2550}, {1, 2200}}, 3500, 4700},
	.pressed  = .38, .breath = .1, .rough = .22, .jitter = .03,
	.bandwidth = 50, .bandwidthShare = .055,
};
static const Syllable PEEP = {
	.seconds  = .1,
	.pitch    = {{0, 3000}, {.35, 4300}, {1, 3300}},
	.loud     = {{0, 0}, {.3, 1}, {1, 0}},
	.tone     = {1, .12, .04}, .breath = .02,
};

// "a-honk": a short low start, then the voice breaks upward and rings clear as brass.
static const Syllable HONK = {
	.seconds  = .32,
	.pitch    = {{0, 322}, {.25, 352}, {.29, 510}, {.8, 488}, {1, 380}},
	.loud     = {{0, 0}, {.05, .5}, {.24, .45}, {.31, 1}, {.8, .85}, {1, 0}},
	.formants = {{{0, 620}, {.25, 700}, {.32, 1120}}, {{0, 1500}, {.32, 2050}}, 3050, 4200},
	.pressed  = .40, .breath = .05, .rough = {{0, .25}, {.25, .2}, {.32, .04}, {1, .12}},
	.mouth    = {{0, 1400}, {.24, 1800}, {.32, 12000}},
	.nose     = {{0, .8}, {.25, .7}, {.32, .15}},
	.bandwidth = 55, .bandwidthShare = .05,
};
// clang-format on

static const Place CLUCK_PLACE   = {};
static const Place WHISTLE_PLACE = {{-17, .3, 1}, 0};
static const Place POND_PLACE    = {{-15, .5, 1.6}, 5}; // the goose flies over open water

static void MakeDog(Sink& sink)
{
	const double PACE = .24; // seconds from breath to breath
	const int BREATHS = 8;
	AddCall(sink, "dog_bark", {WOOF, Again(WOOF, .31, 1.04, .95)}, -19, {{-15, .3, 1}, 5});

	Sound pant;
	for (int i = 0; i < BREATHS; i++) {
		const Syllable& s = i & 1 ? BREATH_IN : BREATH_OUT;
		MixAt(pant.left, RenderSyllable(s, 40 + i), .02 + i * PACE);
	}
	pant.left.resize(SampleCount(BREATHS * PACE), 0.0); // the gap between breaths hides the seam
	AddLoop(sink, "dog_pant", pant, -28, .1);
}

static void MakeCat(Sink& sink)
{
	AddCall(sink, "cat_meow", {MEOW});
}

static void MakeMouse(Sink& sink)
{
	AddCall(sink, "mouse_squeak", {SQUEAK, Again(SQUEAK, .13, 1.12), Again(SQUEAK, .25, .96, .8)},
	        -25, WHISTLE_PLACE);
}

static void MakeChicken(Sink& sink)
{
	AddCall(sink, "chicken_cluck1", {CLUCK}, -22, CLUCK_PLACE);
	AddCall(sink, "chicken_cluck2", {Again(CLUCK, 0, 1.14), Again(CLUCK, .13, 1, .8)}, -22,
	        CLUCK_PLACE);
	AddCall(sink, "chicken_cluck3",
	        {Again(CLUCK, 0, .9), Again(CLUCK, .16, .95, .9), Again(CLUCK, .31, 1.05, .8)}, -22,
	        CLUCK_PLACE);
	AddCall(sink, "chicken_cluck4",
	        {CLUCK, Again(CLUCK, .13, 1.05, .9), Again(GAWK, .27, .72, 1, .6)}, -22, CLUCK_PLACE);
	AddCall(sink, "chicken_squawk",
	        {Again(CLUCK, 0, 1, .6), Again(CLUCK, .13, 1.06, .65), Again(CLUCK, .26, 1.1, .7),
	         Again(GAWK, .40), Again(CLUCK, .86, 1, .5)});
}

static void MakeDuck(Sink& sink)
{
	AddCall(sink, "duck_quack", {QUACK, Again(QUACK, .26, .97, .9), Again(QUACK, .52, .93, .75)});
	AddCall(sink, "duck_quack2", {Again(QUACK, 0, .92, 1, 1.25)});
	AddCall(sink, "duckling_quack", {PEEP, Again(PEEP, .17, 1.04, .9), Again(PEEP, .34, .98, .9)},
	        -24, WHISTLE_PLACE);
}

static void MakeGoose(Sink& sink)
{
	AddCall(sink, "goose_honk", {HONK, Again(HONK, .42, .95, .9)}, ANIMAL_LEVEL, POND_PLACE);
}

void AddYardSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/dog", __FILE__, MakeDog);
	catalogue.Add("sounds/cat", __FILE__, MakeCat);
	catalogue.Add("sounds/mouse", __FILE__, MakeMouse);
	catalogue.Add("sounds/chicken", __FILE__, MakeChicken);
	catalogue.Add("sounds/duck", __FILE__, MakeDuck);
	catalogue.Add("sounds/goose", __FILE__, MakeGoose);
}
