// Title: the theme in the open on a sunny afternoon, from flute and marimba up to the whole band.
#include "art/music/pieces.h"

namespace
{
struct Title {
	Score& score;
	Part flute    = score.Add(FLUTE, 94, 70, 60);
	Part glock    = score.Add(GLOCK, 114, 84, 70);
	Part clarinet = score.Add(CLARINET, 78, 48, 55);
	Part marimba  = score.Add(MARIMBA, 88, 40, 45);
	Part guitar   = score.Add(NYLON, 106, 88, 35);
	Part bass     = score.Add(BASS, 94, 62, 15);
	Part pizz     = score.Add(PIZZICATO, 84, 52, 55);
	Part strings  = score.Add(STRINGS, 88, 64, 70, 10);
	Part horn     = score.Add(HORN, 88, 56, 65);
	Part kit      = score.Add(KIT, 102, 64, 30);

	void Intro();
	void Tune();
	void TuneInTwo();
	void Song();
	void Bridge();
	void TuneInFull();
	void Turn();
	void Groove();
};
} // namespace

static const char* const LIGHT = "shaker x.o.x.o.x.o.x.o. | rim ....x.......x... |"
                                 "kick x.......x.......";
static const char* const FULL  = "kick x.....x.x....... | snare ....x.......x..o |"
                                 "hat x.o.x.o.x.o.x.oo | tamb ....o.......o...";
static const char* const FILL  = "kick x.....x.x....... | snare ....x.....o.xoxo |"
                                 "tomhigh ........xx...... | tomlow ..........x..... |"
                                 "hat x.o.x...........";

// What walks under most sections.
void Title::Groove()
{
	bass.Ground("1---..5-1---5-5-1---..5-1-3-5---", 84);
	guitar.Strike("..x...x...x...xx..x...x...x..xx.", 52, 58, .5, .014);
	marimba.Roll("1.5.8.5.0.8.5.3.", 48, 58);
}

void Title::Intro()
{
	score.Open("intro", "C | F | Am | G7");
	marimba.Roll("1.5.8.5.0.8.5.3.", 48, 66);
	pizz.Strike("x.......x.......", 55, 64, .4);
	bass.Ground("1-------5-------", 74);
	kit.Beat("shaker x.o.x.o.x.o.x.o.", 50);
	kit.Beat("triangle x.......o.......", 44, {.bar = 2});
	kit.Beat("snare ............o.ox | kick x.......x.......", 60, {.bar = 3});
	clarinet.Line("rh g4e c5e e5q | rh a4e c5e f5q | R | R", 70);
	glock.Line("R | R | rq e5e c5e a4q c5q | d5q b4q g4q rq", 54, {.octave = OCTAVE_UP});
	flute.Line("R3 | rh. g4e a4e", 80);
}

void Title::Tune()
{
	score.Open("tune", THEME_A_CHORDS);
	Groove();
	flute.Lead(THEME_A, 86);
	pizz.Strike("........x.......", 55, 50, .4);
	glock.Line("R3 | rq d6e b5e g5q rq | R3 | rq c6e e6e g6q rq", 46);
	kit.Beat(LIGHT, 62);
	kit.Beat("snare ..........o.x.xo", 58, {.bar = 7});
}

void Title::TuneInTwo()
{
	score.Open("tune in two", THEME_A_CHORDS, 3);
	Groove();
	flute.Lead(THEME_A, 86);
	glock.Line(THEME_A, 44, {.octave = OCTAVE_UP});
	clarinet.Line(THEME_A_COUNTER, 72);
	pizz.Strike("x...x...x...x...", 55, 56, .4);
	kit.Beat("splash o...............", 60, {.bar = 0, .bars = 1});
	kit.Beat(FULL, 60, {.bar = 0, .bars = 7});
	kit.Beat(FILL, 62, {.bar = 7});
}

void Title::Song()
{
	score.Open("song", THEME_B_CHORDS, 2);
	bass.Ground("1---..5-1---5-5-1---..5-1-3-5---", 84);
	guitar.Strike("..x...x...x...xx", 52, 56, .5, .014);
	clarinet.Lead(THEME_B, 86, {.octave = OCTAVE_DOWN});
	horn.Line(THEME_B_COUNTER, 62);
	strings.Strike("X---------------", 55, 54, 1);
	strings.Swell(0, 4, 74, 112);
	strings.Swell(4, 8, 90, 120);
	flute.Line("R3 | rh rq a5e b5e | c6q a5e c6q f5q. | R | R | rh e5e g5e c6q", 66);
	marimba.Line("R | rh. g5e e5e | R | rq a4e c5e e5q rq | R3 | rh e5s g5s e5s c5s g4q", 60);
	kit.Beat(FULL, 58, {.bar = 0, .bars = 7});
	kit.Beat("shaker x.o.x.o.x.o.x.o.", 52, {.bar = 7});
	kit.Beat("triangle x...............", 50, {.bar = 7});
}

void Title::Bridge()
{
	score.Open("bridge", BRIDGE_CHORDS);
	bass.Ground("1-------1---5---", 74);
	strings.Strike("X---------------", 52, 56, 1);
	strings.Swell(0, 6, 84, 104);
	strings.Swell(6, 8, 104, 122);
	marimba.Roll("1.5.8.5.0.8.5.8.", 48, 54);
	horn.Lead(BRIDGE, 82, {.octave = OCTAVE_DOWN});
	glock.Line("rh e6e c6e a5q | R | rh a5e c6e f6q | R | rh e6e c6e a5q | R3", 48);
	clarinet.Line("R | rh e5e g5e b4q | R | rq g4e c5e e5h | R | rh g4q b4q | a4h d5h |"
	              "d5q b4q g4q rq",
	              60);
	flute.Line("R3 | R3 | rh. f5e a5e | b5h. g4e a4e", 72);
	kit.Beat("shaker x.x.x.x.x.x.x.x. | rim ........x.......", 52, {.bar = 0, .bars = 6});
	kit.Beat("shaker x.x.x.x.x.x.x.x. | snare x..ox..ox..ox.oo |"
	         "kick x...x...x...x...",
	         54, {.bar = 6, .bars = 1});
	kit.Beat("snare xoxoxoxoxxxxXXXX | kick x...x...x...x... |"
	         "tomlow ............x.x.",
	         54, {.bar = 7});
}

void Title::TuneInFull()
{
	score.Open("tune in full", THEME_A_CHORDS, 5);
	Groove();
	flute.Lead(THEME_A, 90);
	strings.Line(THEME_A, 62);
	strings.Swell(0, 8, 100, 116);
	glock.Line(THEME_A, 48, {.octave = OCTAVE_UP});
	clarinet.Line(THEME_A_DESCANT, 76);
	horn.Line("g4h. rq | e4h. rq | a4h f4h | g4h b4h | g4h. rq | e4h. rq | f4h g4h |"
	          "e4h. rq",
	          58);
	pizz.Strike("x...x...x...x...", 55, 60, .4);
	kit.Beat("crash x...............", 58, {.bar = 0, .bars = 1});
	kit.Beat(FULL, 66, {.bar = 0, .bars = 3});
	kit.Beat(FILL, 64, {.bar = 3, .bars = 1});
	kit.Beat("splash x...............", 54, {.bar = 4, .bars = 1});
	kit.Beat(FULL, 66, {.bar = 4, .bars = 3});
	kit.Beat(FILL, 66, {.bar = 7});
}

void Title::Turn()
{
	score.Open("turn", "F | G | C/E | G7", 2);
	Groove();
	flute.Lead("a5q. g5e f5q a5q | b5q. a5e g5q d5q | e5h c5h | d5h. rq", 80);
	clarinet.Line("c5h a4h | d5h b4h | g4q e4q g4q c5q | b4h. rq", 68);
	horn.Line("f4h c4h | g4h d4h | g4h e4h | g4h. rq", 56);
	glock.Line("R | R | rq e6e g6e c6q e6q | d6q b5q g5h", 46);
	kit.Beat(LIGHT, 60);
	kit.Beat("block ........x.x..... | blocklow ............x...", 58, {.bar = 3});
}

void ComposeTitle(Score& score)
{
	score.tempo = 118;
	score.loops = true;
	Title title{score};
	title.Intro();
	title.Tune();
	title.TuneInTwo();
	title.Song();
	title.Bridge();
	title.TuneInFull();
	title.Turn();
}
