// The ball: rebounds, growth, its loss, its change, and the balloons.
#include "art/families.h"

#include "art/sounds/effect.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

static const Curve PLUCK = {{0, 0}, {.1, 1}, {.6, .5}, {1, 0}};

static void MakeRebounds(Sink& sink)
{
	const char* const NOTES[] = {"g4", "a4", "c5", "d5"};
	for (int i = 0; i < 4; i++) {
		double hz = NoteHz(NOTES[i]);
		Wave skin = Tone(.2, {{0, hz * .72}, {.1, hz * 1.1}, {.3, hz}, {1, hz}},
		                 {{0, 0}, {.03, 1}, {.25, .45}, {.6, .12}, {1, 0}}, {1, .18, .05});
		MixAt(skin, Bubble(hz * 2, .55, .09, .003), .012, .35);
		MixAt(skin, Thud(150, .07, 0, 3), 0, .35);
		MixAt(skin, NoiseBand(.03, {{0, 2400}, {1, 4200}}, .9, {{0, 0}, {.2, 1}, {1, 0}}, 60 + i),
		      .004, .22);
		AddHit(sink, "ball_rebound" + std::to_string(i + 1), skin, -23, {-20, .22});
	}
}

static void MakeGrowth(Sink& sink)
{
	const int BUBBLES = 7;
	Wave grow         = Tone(.55, {{0, 196}, {.35, 300}, {.8, 587}, {1, 659}},
	                         {{0, 0}, {.1, .8}, {.75, 1}, {1, 0}}, {1, .35, .15, .06}, {11, .03});
	for (int i = 0; i < BUBBLES; i++)
		MixAt(grow, Bubble(400 + 130 * i, .8, .1), .05 + .065 * i, .3);
	MixAt(grow, Mallet(NoteHz("c6"), .5, .5, 2), .48, .5);
	AddHit(sink, "ball_grow", grow, -21);

	Wave change = Tone(.3, {{0, 330}, {.5, 660}, {1, 587}}, PLUCK, {1, .2});
	MixAt(change, Mallet(NoteHz("g5"), .35, .4, 4), .1, .7);
	MixAt(change, Mallet(NoteHz("c6"), .4, .4, 5), .19, .7);
	AddHit(sink, "change_ball_type", change, -22);
}

// It sinks with a quaver and goes under.
static void MakeLoss(Sink& sink)
{
	Wave lost = Tone(.95, {{0, 523}, {.15, 494}, {.5, 330}, {.8, 196}, {1, 131}},
	                 {{0, 0}, {.04, 1}, {.7, .7}, {1, 0}}, {1, .3, .12, .05}, {6.5, .035});
	MixAt(lost, Bubble(240, .9, .16), .93);
	MixAt(lost, NoiseBand(.22, {{0, 2600}, {1, 900}}, .6, {{0, 0}, {.05, 1}, {.3, .3}, {1, 0}}, 19),
	      .94, .7);
	AddHit(sink, "ball_lost", lost, -20, {-15, .4});
}

static void MakeBalloons(Sink& sink)
{
	Wave air = NoiseBand(.8, {{0, 1800}, {1, 3600}}, .6, {{0, 0}, {.1, 1}, {.8, .7}, {1, 0}}, 3);
	for (int i = 0; i < 3; i++)
		MixAt(air,
		      Tone(.2, {{0, 420 + 90.0 * i}, {.6, 640 + 120.0 * i}, {1, 700 + 120.0 * i}},
		           {{0, 0}, {.2, 1}, {1, 0}}, {1, .5, .35, .2, .12}, {41, .06}),
		      .08 + .23 * i, .45);
	MixAt(air, Bubble(NoteHz("g4"), 1, .12), .76, .8);
	AddHit(sink, "ballons", air, -24);
}

void AddBubbleSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/rebounds", __FILE__, MakeRebounds);
	catalogue.Add("sounds/growth", __FILE__, MakeGrowth);
	catalogue.Add("sounds/loss", __FILE__, MakeLoss);
	catalogue.Add("sounds/balloons", __FILE__, MakeBalloons);
}
