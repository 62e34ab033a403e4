// Calls of birds: crow, owl, bluebird, eagle, vulture, pigeon, penguin, ostrich.
#include "art/families.h"

#include "art/sounds/effect.h"

// clang-format off
static const Syllable CAW = {
	.seconds  = .34,
	.pitch    = {{0, 330}, {.15, 455}, {.7, 430}, {1, 300}},
	.loud     = {{0, 0}, {.07, .9}, {.5, 1}, {.85, .7}, {1, 0}},
	.formants = {{{0, 900}, {.25, 1350}, {1, 1050}},
	             {{0, 1700}, {.25, 2050}, {1, 1700}}, 3300, 4600},
	.pressed  = .42, .breath = .22, .rough = .4, .sub = .3, .growl = 62, .growlDepth = .35,
};

static const Syllable HOOT = {
	.seconds  = .3,
	.pitch    = {{0, 318}, {.2, 345}, {.8, 340}, {1, 305}},
	.loud     = {{0, 0}, {.2, 1}, {.75, .85}, {1, 0}},
	.tone     = {1, .16, .05, .02}, .breath = .02, .breathHz = 1200, .jitter = .003, .shimmer = .01,
};

// The scream falls all the way; a flutter and a second voice make it hoarse, hardly any air does.
static const Syllable SCREAM = {
	.seconds  = 1.25,
	.pitch    = {{0, 2100}, {.08, 2950}, {.3, 2800}, {.7, 2350}, {1, 1650}},
	.loud     = {{0, 0}, {.05, .8}, {.2, 1}, {.6, .7}, {1, 0}},
	.tone     = {1, .5, .3, .12}, .breath = {{0, .03}, {.3, .06}, {1, .16}}, .breathHz = 9000,
	.rough    = {{0, .05}, {1, .14}}, .sub = {{0, .25}, {.2, .12}, {.7, .25}, {1, .4}},
	.tremolo  = 38, .tremoloLoud = .45, .tremoloPitch = .02,
};

static const Syllable VULTURE = {
	.seconds  = .75,
	.pitch    = {{0, 700}, {.2, 1020}, {.7, 860}, {1, 560}},
	.loud     = {{0, 0}, {.08, 1}, {.6, .8}, {1, 0}},
	.formants = {{{0, 1200}, {.3, 1700}, {1, 1300}}, 2900, 4300},
	.pressed  = .4, .breath = .5, .rough = .8, .sub = .4, .growl = 48, .growlDepth = .5,
};

static const Syllable COO = {
	.seconds  = .38,
	.pitch    = {{0, 330}, {.3, 420}, {1, 350}},
	.loud     = {{0, 0}, {.2, 1}, {.7, .8}, {1, 0}},
	.tone     = {1, .2, .06}, .breath = .03, .breathHz = 1500, .jitter = .006,
};

// A bray of two voices at once: they lie a little apart, and their beat is the throb of it.
static const Syllable BRAY = {
	.seconds  = .4,
	.pitch    = {{0, 260}, {.3, 330}, {.8, 300}, {1, 230}},
	.loud     = {{0, 0}, {.1, .8}, {.5, 1}, {.8, .9}, {1, 0}},
	.formants = {{{0, 650}, {.3, 900}, {1, 700}}, {{0, 2100}, {.3, 2500}}, 3500, 4600},
	.pressed  = .36, .breath = .08, .rough = .12,
	.tremolo  = 22, .tremoloLoud = .65, .tremoloPitch = .03, .nose = .4,
	.bandwidthShare = .055,
};
static const double SECOND_VOICE = 1.072;

static const Syllable OSTRICH = {
	.seconds  = .5,
	.pitch    = {{0, 420}, {.2, 640}, {.7, 560}, {1, 380}},
	.loud     = {{0, 0}, {.08, 1}, {.7, .8}, {1, 0}},
	.formants = {{{0, 700}, {.3, 1150}, {1, 800}}, {{0, 1500}, {.3, 1850}}, 2900, 4000},
	.pressed  = .45, .breath = .2, .rough = .5, .sub = .25,
};
// clang-format on

static const Place WOOD    = {{-12, .9, 2}, 5};
static const Place GARDEN  = {{-14, .6, 1.6}, 0};
static const Place CANYON  = {{-12, 1.1, 2.2}, 0};
static const Place ICE     = {{-15, .35, 1.2}, 5};
static const Place DEFAULT = {};

static Syllable Song(double at, double seconds, const Curve& pitch, double gain = 1)
{
	return {.at      = at,
	        .seconds = seconds,
	        .gain    = gain,
	        .pitch   = pitch,
	        .loud    = {{0, 0}, {.2, 1}, {.7, .8}, {1, 0}},
	        .tone    = {1, .08, .03},
	        .breath  = .015,
	        .jitter  = .002,
	        .shimmer = .02};
}

static void MakeCrow(Sink& sink)
{
	AddCall(sink, "crow_caw", {CAW, Again(CAW, .48, .98, .95), Again(CAW, .97, .95, .85)});
	AddCall(sink, "crow_caw2", {Again(CAW, 0, .88, 1, 1.3)});
}

static void MakeOwl(Sink& sink)
{
	AddCall(sink, "owl_hoot",
	        {Again(HOOT, 0, 1, .8), Again(HOOT, .52, 1, .55, .5), Again(HOOT, .72, 1.02, 1, 1.35),
	         Again(HOOT, 1.42, .98, .85, 1.1), Again(HOOT, 1.98, .97, .8, 1.3)},
	        -21, WOOD);
}

static void MakeBluebird(Sink& sink)
{
	AddCall(sink, "bluebird_chirp",
	        {Song(0, .13, {{0, 2500}, {.5, 3100}, {1, 2700}}),
	         Song(.17, .2, {{0, 3300}, {.25, 2500}, {.5, 3000}, {.75, 2400}, {1, 2650}}),
	         Song(.42, .12, {{0, 2200}, {1, 2900}}, .8),
	         Song(.57, .22, {{0, 2950}, {.3, 3500}, {.6, 2700}, {1, 2250}})},
	        -23, GARDEN);
}

static void MakePigeon(Sink& sink)
{
	Syllable rolled     = Again(COO, .28, .86, 1, 1.5);
	rolled.tremolo      = 27;
	rolled.tremoloLoud  = .7;
	rolled.tremoloPitch = .02;
	AddCall(sink, "pigeon_coo", {Again(COO, 0, .9, .6, .7), rolled, Again(COO, .9, .95, .8, 1.1)},
	        -21);
}

static void MakePenguin(Sink& sink)
{
	Call bray;
	for (double voice : {1.0, SECOND_VOICE}) {
		bray.push_back(Again(BRAY, 0, voice, .8));
		bray.push_back(Again(BRAY, .46, 1.12 * voice, .7, .7));
	}
	AddCall(sink, "penguin_squawk", bray, ANIMAL_LEVEL, ICE);
}

static void MakeOstrich(Sink& sink)
{
	AddCall(sink, "ostrich_squawk", {Again(OSTRICH, 0, .8, .7, .45), Again(OSTRICH, .26)});
}

void AddBirdSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/crow", __FILE__, MakeCrow);
	catalogue.Add("sounds/owl", __FILE__, MakeOwl);
	catalogue.Add("sounds/bluebird", __FILE__, MakeBluebird);
	catalogue.Add("sounds/eagle", __FILE__,
	              [](Sink& sink) { AddCall(sink, "eagle_screech", {SCREAM}, -23, CANYON); });
	catalogue.Add("sounds/vulture", __FILE__,
	              [](Sink& sink) { AddCall(sink, "vulture_screech", {VULTURE}, -22, DEFAULT); });
	catalogue.Add("sounds/pigeon", __FILE__, MakePigeon);
	catalogue.Add("sounds/penguin", __FILE__, MakePenguin);
	catalogue.Add("sounds/ostrich", __FILE__, MakeOstrich);
}
