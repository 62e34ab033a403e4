// Story: the theme as a slow waltz for oboe and harp, pages turned by the fire.
#include "art/music/pieces.h"

namespace
{
struct Story {
	Score& score;
	Part oboe    = score.Add(OBOE, 86, 70, 60);
	Part harp    = score.Add(HARP, 98, 44, 60);
	Part strings = score.Add(STRINGS, 78, 64, 70, 10);
	Part violins = score.Add(STRINGS, 84, 50, 70, 10);
	Part celesta = score.Add(CELESTA, 98, 86, 70);
	Part bass    = score.Add(BOWED_BASS, 92, 60, 40);
	Part horn    = score.Add(HORN, 80, 54, 65);

	void Intro();
	void Tune();
	void Song();
	void TuneAgain();
};
} // namespace

static const char* const WALTZ_A = "c5q e5q g5q | e5h d5e c5e | a4q c5q e5q | e5h d5e c5e |"
                                   "f5q e5q c5q | a4h c5q | d5h. | rq g4q a4q |"
                                   "c5q e5q g5q | g5h a5q | a5q g5q e5q | e5h d5e c5e |"
                                   "d5q f5q a5q | g5h b4q | c5h. | rq g4q a4q";
static const char* const WALTZ_A_CHORDS =
    "C | C | Am | Am | F | F | G | G7 | C | C | Am | Am | Dm | G7 | C | C";
static const char* const WALTZ_B =
    "a5h g5q | f5q a5q f5q | g5h e5q | c5h e5q | f5h e5q | d5q f5q d5q | e5h. | rq a4q b4q |"
    "c5q a4q c5q | f5h. | e5q c5q e5q | g5h. | f#5h a5q | g5h b4q | c5h. | R";
static const char* const WALTZ_B_CHORDS =
    "F | F | C/E | C/E | Dm | Dm | Am | Em | F | Dm | C/E | C | D7 | G7 | C | G7";

void Story::Intro()
{
	score.Open("intro", "C | F/C | C | G7");
	harp.Roll("1.5.8.0.9.8.", 48, 66);
	celesta.Line("rq e6q g6q | rq f6q a6q | rq e6q g6q | f6h d6q", 52);
	strings.Strike("X-----------", 55, 42, 1);
	strings.Swell(0, 4, 60, 104);
	bass.Ground("1-----------", 62);
	oboe.Line("R3 | rq g4q a4q", 74);
}

void Story::Tune()
{
	score.Open("tune", WALTZ_A_CHORDS);
	bass.Ground("1-----------", 66);
	harp.Roll("1...8.0.9.0.1.5.8.0.9.8.", 48, 62);
	oboe.Lead(WALTZ_A, 80);
	strings.Strike("X-----------", 55, 44, 1, 0, {.bar = 4});
	strings.Swell(4, 8, 70, 104);
	strings.Swell(8, 16, 84, 108);
	horn.Line("R7 | g4h. | e4h. | R | R | a4q g4q e4q | f4h. | f4h d4q | e4h. | R", 58);
	celesta.Line("R7 | rq d6q b5q | R6 | rq e6q g6q | c7q g6q e6q", 46);
}

// Violins sing; the horn goes with them an octave below, the oboe has the last word.
void Story::Song()
{
	score.Open("song", WALTZ_B_CHORDS, 3);
	bass.Ground("1-----------1-------5---", 68);
	harp.Roll("1.5.8.5.0.5.1.5.8.0.9.8.", 48, 60);
	violins.Lead(WALTZ_B, 78);
	violins.Swell(0, 8, 92, 118);
	violins.Swell(8, 13, 100, 124);
	violins.Swell(13, 16, 122, 88);
	horn.Line(WALTZ_B, 60, {.octave = OCTAVE_DOWN});
	strings.Strike("X-----------", 52, 46, 1);
	oboe.Line("R6 | rq e5q c5q | e5h. | R6 | rq g4q c5q | d5h g4e a4e", 68);
	celesta.Line("R3 | rq e6q g6q | R3 | rq b5q e6q | R | rq a5q d6q | R | rq c6q e6q | R3 |"
	             "rq b5q d6q",
	             46);
}

void Story::TuneAgain()
{
	score.Open("tune again", WALTZ_A_CHORDS, 5);
	bass.Ground("1-----------1-------5---", 68);
	harp.Roll("1.5.8.0.9.0.8.0.9.0.8.5.", 48, 60);
	oboe.Lead("c5q e5q g5q | e5h d5e c5e | a4q c5q e5q | e5h d5e c5e |"
	          "f5q e5q c5q | a4h c5q | d5h. | rq g4q a4q |"
	          "c5q e5q g5q | g5h a5q | a5q g5q e5q | e5h d5e c5e |"
	          "d5q f5q a5q | g5h b4q | c5h.~ | c5h.",
	          82);
	celesta.Line(WALTZ_A, 44, {.octave = OCTAVE_UP});
	violins.Line("e4h. | g4h. | e4h. | a4h g4q | a4h. | f4h a4q | b4h. | g4h f4q |"
	             "e4h. | g4h. | e4h. | a4h g4q | f4h a4q | b4h f4q | e4h. | g4h.",
	             66);
	violins.Swell(0, 8, 88, 116);
	violins.Swell(8, 16, 112, 90);
	strings.Strike("X-----------", 52, 44, 1);
	horn.Line("R3 | R | R | rq c4q f4q | g4h. | R | c4h. | e4h d4q | c4h. | R | f4h. | d4h g4q |"
	          "e4h. | R",
	          54);
}

void ComposeStory(Score& score)
{
	score.tempo     = 100;
	score.barLength = 3;
	score.loops     = true;
	score.loudness  = -17;
	Story story{score};
	story.Intro();
	story.Tune();
	story.Song();
	story.TuneAgain();
}
