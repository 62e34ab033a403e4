// Bonus: a fairground rag, the theme at a run on xylophone and a piano that has seen better days.
#include "art/music/pieces.h"

namespace
{
struct Bonus {
	Score& score;
	Part piano    = score.Add(HONKY_TONK, 112, 58, 40);
	Part left     = score.Add(HONKY_TONK, 106, 54, 40);
	Part xylo     = score.Add(XYLOPHONE, 127, 80, 50);
	Part clarinet = score.Add(CLARINET, 76, 48, 50);
	Part banjo    = score.Add(BANJO, 110, 92, 30);
	Part tuba     = score.Add(TUBA, 92, 62, 30);
	Part kit      = score.Add(KIT, 104, 64, 25);

	void Intro();
	void Rag();
	void RagOnXylophone();
	void Song();
	void RagForAll();
	void Trio();
	void Turn();
	void Stride(int velocity);
};
} // namespace

static const char* const RUN_A = "c5e e5e g5e e5e g5e e5e d5e c5e | a4e c5e e5e c5e e5q d5e c5e |"
                                 "f5e e5e c5e a4e c5e f5e e5e c5e | d5e b4e d5e g5e d5q g4e a4e |"
                                 "c5e e5e g5e e5e g5e c6e b5e a5e | a5e g5e e5e c5e e5q d5e c5e |"
                                 "d5e f5e a5e f5e g5e f5e d5e b4e | c5q e5q c5q rq";
// the same off its feet: long notes come half a beat early
static const char* const RAGGED_A =
    "c5e e5e g5q e5e g5q e5e | a4e c5e e5q c5e e5q c5e | f5e e5q c5e a4e c5q a4e |"
    "d5e b4e d5q g4e b4q a4e | c5e e5e g5q e5e g5q a5e | a5e g5q e5e c5e e5q c5e |"
    "d5q f5e a5e g5e f5e d5e b4e | c5e g4e a4e b4e c5q rq";
static const char* const TWO_BEAT = "kick x.......x....... | snare ....x.......x... |"
                                    "hat o...x.o.o...x.o.";

// Tuba on one and three, chords between.
void Bonus::Stride(int velocity)
{
	tuba.Ground("1---....5---....", velocity + 24, .75);
	left.Strike("....x.......x...", 50, velocity, .5, .004);
}

void Bonus::Intro()
{
	score.Open("intro", "C | A7 | D7 | G7");
	piano.Line("g5e e5e c5e g4e e5e c5e g4e e4e | g5e e5e c#5e a4e e5e c#5e a4e g4e |"
	           "f#5e d5e c5e a4e d5e c5e a4e f#4e | g4q b4q d5e g4e a4e b4e",
	           80);
	Stride(52);
	kit.Beat(TWO_BEAT, 56, {.bar = 0, .bars = 3});
	kit.Beat("snare x.ooxoxox.x.x.x. | splash ............x...", 60, {.bar = 3});
}

void Bonus::Rag()
{
	score.Open("rag", THEME_A_CHORDS);
	Stride(58);
	piano.Lead(RUN_A, 84);
	kit.Beat(TWO_BEAT, 58, {.bar = 0, .bars = 7});
	kit.Beat("block x.x.o.o.x....... | blocklow ....x.x.........", 64, {.bar = 7});
	clarinet.Line("R3 | rh g4e b4e d5q | R3 | rq e5e d5e c5q rq", 66);
}

void Bonus::RagOnXylophone()
{
	score.Open("rag on xylophone", THEME_A_CHORDS, 2);
	Stride(58);
	xylo.Lead(RUN_A, 104, {.octave = OCTAVE_UP});
	piano.Strike("..x...x...x...x.", 62, 52, .5);
	clarinet.Line(THEME_A_COUNTER, 58, {.octave = OCTAVE_UP});
	kit.Beat(TWO_BEAT, 60, {.bar = 0, .bars = 7});
	kit.Beat("snare x.oxx.oxX.o.X... | cowbell ............x...", 60, {.bar = 7});
}

void Bonus::Song()
{
	score.Open("song", "F | C/E | Dm | Am | F | C/E | D7 G7 | C", 3);
	Stride(56);
	clarinet.Lead(THEME_B, 88);
	banjo.Strike("x.xxx.xxx.xxx.xx", 55, 54, .4, .006);
	xylo.Line("R | rh rq c6e e6e | R | rq a5e c6e e6q rq | R | rh rq g5e c6e | R |"
	          "rq c6e g5e e5q c6q",
	          64);
	kit.Beat(TWO_BEAT, 60);
	kit.Beat("splash o...............", 56, {.bar = 0, .bars = 1});
	kit.Beat("tomhigh ........x.x..... | tomlow ............x.x.", 58, {.bar = 7});
}

void Bonus::RagForAll()
{
	score.Open("rag for all", THEME_A_CHORDS, 5);
	Stride(58);
	xylo.Lead(RAGGED_A, 104, {.octave = OCTAVE_UP});
	piano.Line(RAGGED_A, 76);
	clarinet.Line("g4h e4h | c5h. rq | a4h. c5q | b4q d5q g4h | g4h c5h | e5h. rq | f4h g4h |"
	              "e4q g4q e4h",
	              66);
	banjo.Strike("x.x.x.x.x.x.x.xx", 55, 52, .4, .006);
	kit.Beat("crash x...............", 54, {.bar = 0, .bars = 1});
	kit.Beat(TWO_BEAT, 64, {.bar = 0, .bars = 7});
	kit.Beat("snare x.o.x.o.X.X.X...", 60, {.bar = 7});
	kit.Beat("tamb ....x.......x...", 44);
}

// A broad tune a fourth higher, as every rag has one.
void Bonus::Trio()
{
	score.Open("trio", "F | Dm | Gm7 | C7 | F | Dm | G7 | G7", -2);
	tuba.Ground("1-------5-------", 84, .85);
	left.Strike("....x.......x...", 50, 50, .5, .004);
	clarinet.Lead("a4h. c5q | f5h. e5e d5e | d5q. c5e bb4q d5q | c5h. g4e a4e |"
	              "a4q c5q f5q a5q | f5h. e5e d5e | d5q. f5e b4q d5q | g5q rq rh",
	              88);
	banjo.Roll("1.5.8.5.3.5.8.5.", 48, 58, .8, {.bar = 0, .bars = 7});
	piano.Line("R | rh a5e f5e d5q | R | rh e5e g5e c6q | R | rh d5e f5e a5q | R |"
	           "rh g5e a5e b5e g5e",
	           66);
	kit.Beat("hat x...x.o.x...x.o. | rim ....x.......x...", 54, {.bar = 0, .bars = 7});
	kit.Beat("kick X............... | block ........x.x.x.x.", 60, {.bar = 7});
}

void Bonus::Turn()
{
	score.Open("turn", "C | A7 | D7 | G7", 4);
	Stride(58);
	piano.Line("c5e e5e g5q e5e g5q e5e | c#5e e5e g5q e5e g5q e5e |"
	           "c5e d5e f#5q d5e f#5q d5e | b4e d5e f5q d5q rq",
	           80);
	xylo.Line("R | R | rh a5e c6e d6e f#6e | g6q f6q d6q b5q", 66);
	banjo.Strike("x.x.x.x.x.x.x.x.", 55, 50, .4, .006);
	kit.Beat(TWO_BEAT, 62, {.bar = 0, .bars = 3});
	kit.Beat("snare xooxooxoXoXoXXXX", 54, {.bar = 3});
}

void ComposeBonus(Score& score)
{
	score.tempo     = 144;
	score.transpose = -5;
	score.loops     = true;
	Bonus bonus{score};
	bonus.Intro();
	bonus.Rag();
	bonus.RagOnXylophone();
	bonus.Song();
	bonus.RagForAll();
	bonus.Trio();
	bonus.Turn();
}
