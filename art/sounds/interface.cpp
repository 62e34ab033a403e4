// Small signs of the interface: roll-over, press, refusal, counting, dots of the map. They are
// heard often, so they are short, soft and made of the five common notes.
#include "art/families.h"

#include "art/sounds/effect.h"
#include "art/sounds/struck.h"
#include "art/sounds/tones.h"

static void MakePresses(Sink& sink)
{
	Wave over = Mallet(NoteHz("g5"), .08, 0, 3);
	MixAt(over, Struck({{1850, .03, 1}, {3300, .02, .4}}, {6000, .001}, 2), 0, .35);
	AddHit(sink, "mouse_over", over, -31, {-24, .15});

	Wave press = Bubble(NoteHz("c5"), .6, .09);
	MixAt(press, Struck({{900, .05, 1}, {2100, .03, .5}}, {5000, .0012}, 3), 0, .5);
	MixAt(press, Mallet(NoteHz("c6"), .2, .2, 8), .03, .4);
	AddHit(sink, "mouse_selection", press, -24, {-20, .2});

	Wave failed = Mallet(NoteHz("e4"), .14, 0, 3);
	MixAt(failed, Thud(165, .07, .1, 3), 0, .15);
	MixAt(failed, Mallet(NoteHz("a3"), .24, 0, 4), .13);
	MixAt(failed, Thud(110, .08, .1, 4), .13, .15);
	AddHit(sink, "action_failed", failed, -22, {-20, .2}, 3);

	Wave dot = Bubble(NoteHz("g4"), .9, .1);
	MixAt(dot, Mallet(NoteHz("g5"), .3, .3, 6), .02, .8);
	AddHit(sink, "map_dot", dot, -24);
}

static void MakeCounting(Sink& sink)
{
	AddHit(sink, "score_count", Mallet(NoteHz("c6"), .06, .1, 2), -28, {-24, .12});

	Wave tally;
	for (int i = 0; i < 4; i++)
		MixAt(tally, Mallet(NoteHz(i & 1 ? "e6" : "c6"), .07, .15, 4 + i), .065 * i,
		      i & 1 ? .8 : 1);
	AddHit(sink, "score_tally", tally, -26, {-22, .15});
}

// Sixteen steps of the scale, one for each flyaway of a row.
static void MakeFlyaways(Sink& sink)
{
	for (int i = 0; i < 16; i++)
		AddHit(sink, "score_flyaway" + std::to_string(i + 1),
		       Mallet(CommonNoteHz(4, i), .34, .12, 100 + i), -23, {-17, .35});
}

void AddInterfaceSounds(Catalogue& catalogue)
{
	catalogue.Add("sounds/presses", __FILE__, MakePresses);
	catalogue.Add("sounds/counting", __FILE__, MakeCounting);
	catalogue.Add("sounds/flyaways", __FILE__, MakeFlyaways);
}
