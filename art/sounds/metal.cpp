// Drums and robots: sheet metal, what gushes out of it, and servo motors.
#include "art/families.h"

#include "art/sounds/chance.h"
#include "art/sounds/effect.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

static const Curve PLUCK = {{0, 0}, {.1, 1}, {.5, .6}, {1, 0}}, BEEP = {{0, 0}, {.2, 1}, {1, 0}};

static void MakeDrum(Sink& sink)
{
	Wave drum = Shell(92, .75, 16, 5);
	MixAt(drum, Thud(85, .15, .2, 9), 0, .25);
	AddHit(sink, "damage_drum", drum, -21);

	const int BUBBLES = 26;
	Wave gush         = NoiseBand(1.3, {{0, 700}, {.1, 1900}, {.6, 1300}, {1, 600}}, .6,
	                              {{0, 0}, {.06, 1}, {.5, .6}, {1, 0}}, 12);
	Scale(gush, 1.4);
	Chance chance(77);
	for (int i = 0; i < BUBBLES; i++) {
		double hz = chance.Between(180, 700), rise = chance.Between(.3, 1.2);
		double seconds = chance.Between(.06, .14), at = chance.Between(.03, 1.1);
		MixAt(gush, Bubble(hz, rise, seconds), at, chance.Between(.3, .8));
	}
	MixAt(gush, Shell(110, .4, 8, 6), 0, .5);
	AddHit(sink, "drum_spewing", gush, -22);
}

static void MakeRobot(Sink& sink)
{
	Wave hit = Shell(330, .4, 12, 4);
	MixAt(hit, Thud(140, .1, .2, 3), 0, .25);
	MixAt(hit, Tone(.3, {{0, 880}, {.4, 659}, {1, 440}}, PLUCK, {1, 0, .3, 0, .12}, {17, .04}), .1,
	      .35);
	AddHit(sink, "bot_hit", hit, -21);

	Wave look =
	    Tone(.34, {{0, 180}, {.3, 420}, {.7, 430}, {1, 300}}, {{0, 0}, {.1, 1}, {.8, .8}, {1, 0}},
	         {1, .6, .5, .35, .25, .2, .12}, {62, .03});
	MixAt(look, Tone(.1, NoteHz("c6"), BEEP, {1, 0, .2}), .36, .6);
	MixAt(look, Tone(.12, NoteHz("e6"), BEEP, {1, 0, .2}), .47, .6);
	AddHit(sink, "bot_look", look, -24, {}, -2);
}

void AddMetalSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/drum", __FILE__, MakeDrum);
	catalogue.Add("sounds/robot", __FILE__, MakeRobot);
}
