// Stage 2, islands: a calypso for steel drum; the hop of the theme becomes three, three, two.
#include "art/music/pieces.h"

namespace
{
struct Islands {
	Score& score;
	Part steel   = score.Add(STEEL_DRUM, 100, 70, 50);
	Part pipes   = score.Add(PAN_FLUTE, 77, 48, 55);
	Part marimba = score.Add(MARIMBA, 92, 40, 40);
	Part guitar  = score.Add(NYLON, 90, 90, 35);
	Part bass    = score.Add(FINGER_BASS, 98, 62, 12);
	Part strings = score.Add(SLOW_STRINGS, 62, 64, 70, 10);
	Part kit     = score.Add(KIT, 88, 64, 35);

	void Intro();
	void Tune();
	void TuneWithMarimba();
	void PipeSong();
	void TuneAnswered();
	void Bridge();
	void MarimbaDance();
	void SteelSong();
	void LastTune();
	void Coda();
	void Groove();
};
} // namespace

static const char* const CALYPSO =
    "c5e. e5e. g5e e5q d5e c5e | a4e. c5e. e5e re d5e c5q | f5e. e5e. c5e a4q c5q |"
    "d5e. e5e. d5e b4q g4e a4e |"
    "c5e. e5e. g5e e5q g5e a5e | a5e. g5e. e5e c5q d5e c5e | d5e. e5e. f5e g5q d5e b4e |"
    "c5h re g4e a4e b4e";
static const char* const HANDS = "kick x.....x.x.....x. | rim ...x..x....x..x. |"
                                 "shaker x.oox.oox.oox.oo |"
                                 "conga ......x.......xx | congalow x.......x...x...";
static const char* const SOFT  = "cabasa o.o.o.o.o.o.o.o. | rim ......x.......x. |"
                                 "congalow x...........o...";
static const char* const ROLLS = "kick x.......x....... | shaker x.xox.xo........ |"
                                 "conga ..xx..xx..x.x.x. |"
                                 "congalow x...x...xx.x.x.x | cowbell ........x..x..x.";

void Islands::Groove()
{
	bass.Ground("1--...5-..3-5---1--...5-..5-3---", 86);
	guitar.Strike("..x..x..x..x..x...x..x..x..x.xx.", 52, 58, .4, .01);
}

void Islands::Intro()
{
	score.Open("intro", "C | F | C | G7");
	marimba.Roll("1..5..8.0..8..5.", 48, 72);
	bass.Ground("1--.5---", 78, .9, {.bar = 2});
	guitar.Strike("..x..x..x..x..x.", 52, 54, .4, .01, {.bar = 1});
	kit.Beat("shaker x.oox.oox.oox.oo", 52);
	kit.Beat(HANDS, 54, {.bar = 2, .bars = 1});
	kit.Beat(ROLLS, 54, {.bar = 3});
	pipes.Line("R | rh rq a5e c6e | g5h. rq | R", 66);
	steel.Line("R3 | rh re g4e a4e b4e", 80);
}

void Islands::Tune()
{
	score.Open("tune", THEME_A_CHORDS);
	Groove();
	steel.Lead(CALYPSO, 84);
	pipes.Line("R3 | rh. b5e d6e | R3 | rh e5e g5e c6q", 60);
	kit.Beat(HANDS, 56, {.bar = 0, .bars = 7});
	kit.Beat(ROLLS, 52, {.bar = 7});
}

void Islands::TuneWithMarimba()
{
	score.Open("tune with marimba", THEME_A_CHORDS, 2);
	Groove();
	steel.Lead(CALYPSO, 85);
	marimba.Roll("..5..8..0..8..5.", 48, 60);
	pipes.Line("e5h. rq | c5h. rq | a5h. rq | g5h b5h | e5h. rq | c5h. rq | a4h d5h |"
	           "e5h. rq",
	           56);
	kit.Beat(HANDS, 60, {.bar = 0, .bars = 7});
	kit.Beat("agogo x.x...x......... | agogolow ........x.x...x.", 48, {.bar = 3, .bars = 1});
	kit.Beat(ROLLS, 60, {.bar = 7});
}

void Islands::PipeSong()
{
	score.Open("pipe song", THEME_B_CHORDS, 1);
	Groove();
	pipes.Lead(THEME_B, 82);
	strings.Strike("X---------------", 52, 56, 1);
	strings.Swell(0, 4, 80, 112);
	strings.Swell(4, 8, 92, 116);
	marimba.Line("rh. c5s a4s f4s a4s | R | rh. a4s f4s d4s f4s | rq c5s e5s a5s e5s c5q rq |"
	             "rh. c5s a4s f4s a4s | R | R | rq e5s g5s e5s c5s g4q rq",
	             66);
	steel.Line("R | rh rq e5e. g5s | R | rh rq c5e. e5s | R3 | rq g5e. e5e. c5e g4q", 60);
	kit.Beat(HANDS, 58, {.bar = 0, .bars = 7});
	kit.Beat(ROLLS, 56, {.bar = 7});
}

void Islands::TuneAnswered()
{
	score.Open("tune answered", THEME_A_CHORDS, 3);
	Groove();
	steel.Lead(CALYPSO, 85);
	pipes.Line("e5h. d5q | c5h. e5q | a5h c5h | b4q d5q g5q f5q | e5h. g5q | a5h e5h |"
	           "a4h d5q f5q | e5q g5q c6h",
	           66);
	marimba.Strike("x..x..x.x..x..x.", 60, 50, .4);
	kit.Beat(HANDS, 60, {.bar = 0, .bars = 7});
	kit.Beat("agogo x.......x....... | agogolow ...x..x....x..x.", 44);
	kit.Beat("kick x............... | triangle x...............", 54, {.bar = 7});
}

// The breeze drops: flute over slow strings.
void Islands::Bridge()
{
	score.Open("bridge", BRIDGE_CHORDS);
	bass.Ground("1--...5-1--.5---", 80);
	marimba.Roll("1..5..8.0..8..5.", 48, 62);
	strings.Strike("X---------------", 52, 54, 1);
	strings.Swell(0, 6, 84, 108);
	strings.Swell(6, 8, 108, 120);
	pipes.Lead(BRIDGE, 78);
	guitar.Line("rh c5e e5e a4q | rh b4e g4e e4q | rh a4e c5e f4q | rh g4e c5e e5q |"
	            "rh c5e e5e a4q | rh b4e g4e e4q | rh a4e d5e f5q | rh d5e b4e g4q",
	            62);
	steel.Line("R7 | rq b4e. d5e. f5e g5q", 66);
	kit.Beat(SOFT, 52, {.bar = 0, .bars = 6});
	kit.Beat(HANDS, 54, {.bar = 6, .bars = 1});
	kit.Beat(ROLLS, 58, {.bar = 7});
}

void Islands::MarimbaDance()
{
	score.Open("marimba dance", THEME_A_CHORDS, 3);
	Groove();
	marimba.Lead("c5s e5s g5e e5s g5s c6e g5q e5q | a4s c5s e5e c5s e5s a5e e5q c5q |"
	             "f5s a5s c6e a5s f5s c5e f5q a5q | g5s d5s b4e d5s g5s b5e g5q d5q |"
	             "c5s e5s g5e e5s g5s c6e g5q e5q | a5s e5s c5e e5s a5s c6e a5q e5q |"
	             "d5s f5s a5e f5s d5s a4e b4q g5q | c5q e5q c5h",
	             86);
	steel.Strike("......x.......x.", 62, 54, .4);
	pipes.Line("R | rh. c6e a5e | R | rh. b5e d6e | R | rh. a5e c6e | R | rh e5e g5e c6q", 60);
	kit.Beat(HANDS, 62, {.bar = 0, .bars = 7});
	kit.Beat("clap ....x.......x...", 44);
	kit.Beat(ROLLS, 62, {.bar = 7});
}

void Islands::SteelSong()
{
	score.Open("steel song", THEME_B_CHORDS, 4);
	Groove();
	steel.Lead("a5e. g5e. f5e f5q a5q | g5e. e5e. c5e c5q e5q | f5e. e5e. d5e d5q f5q |"
	           "e5h. a4e b4e |"
	           "c5e. a4e. c5e c5q f5q | e5e. c5e. e5e e5q g5q | f#5e. a5e. g5e g5q b4q |"
	           "c5h. rq",
	           84);
	pipes.Line(THEME_B_COUNTER, 64, {.octave = OCTAVE_UP});
	strings.Strike("X---------------", 52, 56, 1);
	strings.Swell(0, 8, 88, 118);
	marimba.Roll("..5..8..0..8..5.", 48, 54);
	kit.Beat(HANDS, 62, {.bar = 0, .bars = 7});
	kit.Beat(ROLLS, 62, {.bar = 7});
}

void Islands::LastTune()
{
	score.Open("last tune", THEME_A_CHORDS, 5);
	Groove();
	steel.Lead(CALYPSO, 88);
	pipes.Line(THEME_A, 64);
	marimba.Roll("1.5.8.5.0.8.5.8.", 48, 58);
	strings.Strike("X---------------", 52, 50, 1);
	kit.Beat("splash x...............", 52, {.bar = 0, .bars = 1});
	kit.Beat(HANDS, 64, {.bar = 0, .bars = 3});
	kit.Beat(ROLLS, 60, {.bar = 3, .bars = 1});
	kit.Beat(HANDS, 64, {.bar = 4, .bars = 3});
	kit.Beat("agogo x.......x....... | agogolow ...x..x....x..x.", 46);
	kit.Beat(ROLLS, 64, {.bar = 7});
}

void Islands::Coda()
{
	score.Open("coda", "F | G7 | C/E F | C", 4);
	score.Ritard(2, 4, .25);
	bass.Ground("1--...5-..3-5---", 86, .9, {.bar = 0, .bars = 3});
	bass.Line("R3 | c3e. rs c2q rh", 88);
	guitar.Strike("..x..x..x..x..x.", 52, 58, .4, .01, {.bar = 0, .bars = 3});
	guitar.Strike("X---------------", 52, 62, 1, .03, {.bar = 3});
	steel.Lead("a5e. g5e. f5e f5q a5q | b5e. a5e. g5e g5q d5q | e5e. g5e. c6e a5q f5q |"
	           "c5h. rq",
	           84);
	pipes.Line("c5h f5h | d5h g5h | g5h a5q f5q | e5w", 64);
	marimba.Line("R3 | c5s e5s g5s e5s c5s g4s e4s g4s c4q rq", 70);
	strings.Strike("X---------------", 52, 52, 1);
	kit.Beat(HANDS, 58, {.bar = 0, .bars = 2});
	kit.Beat("shaker x.x.x.x.x.x.x.x. | conga ......x.......x.", 50, {.bar = 2, .bars = 1});
	kit.Beat("congalow x......x........ | triangle x.............", 56, {.bar = 3});
}

void ComposeStage2(Score& score)
{
	score.tempo     = 104;
	score.transpose = 5;
	Islands islands{score};
	islands.Intro();
	islands.Tune();
	islands.TuneWithMarimba();
	islands.PipeSong();
	islands.TuneAnswered();
	islands.Bridge();
	islands.MarimbaDance();
	islands.SteelSong();
	islands.LastTune();
	islands.Coda();
}
