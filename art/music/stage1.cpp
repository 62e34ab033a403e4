// Stage 1, meadow and farm: a swung country two-beat with harmonica, fiddle and banjo.
#include "art/music/pieces.h"

namespace
{
struct Meadow {
	Score& score;
	Part harmonica = score.Add(HARMONICA, 88, 72, 50);
	Part fiddle    = score.Add(FIDDLE, 84, 50, 55);
	Part accordion = score.Add(ACCORDION, 70, 44, 45);
	Part banjo     = score.Add(BANJO, 88, 92, 30);
	Part mandolin  = score.Add(NYLON, 96, 96, 40);
	Part guitar    = score.Add(STEEL_GUITAR, 82, 36, 30);
	Part bass      = score.Add(BASS, 88, 62, 12);
	Part kit       = score.Add(BRUSH_KIT, 112, 64, 30);

	void Intro();
	void Tune();
	void TuneWithBanjo();
	void FiddleSong();
	void TuneWithAccordion();
	void Bridge();
	void Picking();
	void SongOfAll();
	void LastTune();
	void Coda();
	void TwoBeat(int velocity);
};
} // namespace

static const char* const ROLL  = "1.5.8.3.5.8.3.5.1.5.8.0.8.5.3.5.";
static const char* const BRUSH = "kick x.......x....... | snare ....x.......x... |"
                                 "hat x...x.o.x...x.o.";
static const char* const TRAIN = "kick x.......x....... | snare o.ooX.ooo.ooX.oo";
static const char* const TURN  = "kick x.......x....... | snare o.ooX.ooX.XoX.X.";

// Bass on one and three with a walk at the end of each line, guitar between.
void Meadow::TwoBeat(int velocity)
{
	bass.Ground("1---....5---....1---....5---....1---....5---....1---3---5---3---", velocity);
	guitar.Strike("....X.......X.x.", 52, velocity - 24, .45, .016);
}

void Meadow::Intro()
{
	score.Open("intro", "C | F | C | G7", -3);
	banjo.Roll(ROLL, 55, 66);
	bass.Ground("1---....5---....", 84, .9, {.bar = 1});
	guitar.Strike("....X.......X.x.", 52, 62, .45, .016, {.bar = 2});
	kit.Beat("hat x...x.o.x...x.o.", 56, {.bar = 2, .bars = 1});
	kit.Beat("snare o.o.o.o.X.oXX.X.", 54, {.bar = 3});
	harmonica.Line("R3 | rh rq g4e/ a4e", 80);
}

void Meadow::Tune()
{
	score.Open("tune", THEME_A_CHORDS);
	TwoBeat(86);
	harmonica.Lead("c5q e5e g5q/ e5e d5e c5e | a4q c5e e5q. d5e c5e | f5q e5e c5q a4e c5q |"
	               "d5h./ g4e a4e |"
	               "c5q e5e g5q/ e5e g5e a5e | a5q g5e e5q. d5e c5e | d5q f5q g5e f5e d5e b4e |"
	               "c5h. rq",
	               84);
	mandolin.Line("R3 | rq d5e b4e g4q b4e d5e | R3 | rq e5e g5e e5e c5e rq", 66);
	kit.Beat("kick x.......x....... | hat ....x.......x.o.", 58, {.bar = 0, .bars = 7});
	kit.Beat(TURN, 50, {.bar = 7});
}

void Meadow::TuneWithBanjo()
{
	score.Open("tune with banjo", THEME_A_CHORDS, 2);
	TwoBeat(86);
	banjo.Roll(ROLL, 55, 54);
	harmonica.Lead(THEME_A, 84);
	fiddle.Line(THEME_A_COUNTER, 62, {.octave = OCTAVE_UP});
	kit.Beat(BRUSH, 62, {.bar = 0, .bars = 7});
	kit.Beat(TURN, 56, {.bar = 7});
}

void Meadow::FiddleSong()
{
	score.Open("fiddle song", THEME_B_CHORDS, 2);
	TwoBeat(86);
	fiddle.Lead("a5q./ g5e f5q a5q | g5q. e5e c5q e5q | f5q./ e5e d5q f5q | e5h. a4e b4e |"
	            "c5q a4e c5q f5q./ | e5q c5e e5q g5q. | f#5q a5q g5q b4q | c5h. rq",
	            80);
	accordion.Strike("X---------------", 53, 54, 1);
	accordion.Swell(0, 4, 84, 112);
	accordion.Swell(4, 8, 92, 114);
	harmonica.Line("R | rh. g4e c5e | R | rq c5e e5e a5q rq | R | rh rq e5e g5e | R |"
	               "rq e5e g5e c5q g4e a4e",
	               66);
	kit.Beat(BRUSH, 60);
}

void Meadow::TuneWithAccordion()
{
	score.Open("tune with accordion", THEME_A_CHORDS, 3);
	TwoBeat(86);
	banjo.Roll(ROLL, 55, 56);
	harmonica.Lead("c5e d5e e5e f5e g5q/ e5e c5e | a4e c5e e5q. d5e c5q |"
	               "f5e g5e f5e e5e c5q a4e c5e | d5h./ g4e a4e |"
	               "c5e d5e e5e f5e g5q/ e5e g5e | a5q g5e e5q. d5e c5e |"
	               "d5e e5e f5q g5e f5e d5e b4e | c5h. rq",
	               84);
	accordion.Line(THEME_A_DESCANT, 64);
	fiddle.Line("R3 | rq b4s d5s g5s d5s b4q rq | R3 | rq g5s e5s c5s e5s g4q rq", 64);
	kit.Beat(TRAIN, 54, {.bar = 0, .bars = 7});
	kit.Beat(TURN, 58, {.bar = 7});
}

// A cloud over the meadow: half the motion, fiddle low.
void Meadow::Bridge()
{
	score.Open("bridge", BRIDGE_CHORDS);
	bass.Ground("1-------5-------", 80);
	accordion.Strike("X---------------", 53, 56, 1);
	accordion.Swell(0, 6, 84, 106);
	accordion.Swell(6, 8, 106, 122);
	guitar.Roll("1.5.8.0.8.5.8.5.", 48, 56);
	fiddle.Lead(BRIDGE, 76);
	harmonica.Line("R | rh rq g4q | a4h. rq | rq g4e c5e e5q rq | R | rh rq b4q | a4h c5h |"
	               "b4h. rq",
	               62);
	kit.Beat("hat x...x...x...x...", 50, {.bar = 0, .bars = 6});
	kit.Beat("snare o...o...o...o.o. | hat x...x...x...x...", 50, {.bar = 6, .bars = 1});
	kit.Beat("snare o.o.o.o.ooooXoXX | kick x...x...x...x...", 56, {.bar = 7});
}

void Meadow::Picking()
{
	score.Open("picking", THEME_A_CHORDS, 4);
	TwoBeat(86);
	mandolin.Lead("e5e d5e c5e e5e g5q e5e g5e | a5e g5e e5e c5e a4q c5q |"
	              "f5e g5e a5e f5e c5q a4q |"
	              "b4e d5e g5e d5e b4q g4q | e5e d5e c5e e5e g5q c6q | a5e g5e e5e c5e a4q c5q |"
	              "d5e f5e a5e f5e g5e f5e d5e b4e | c5q g4q c5h",
	              88);
	banjo.Line("R3 | rh rq d5s b4s g4s b4s | R3 | rq c5s e5s g5s e5s c5q g4q", 70);
	accordion.Strike("....x.......x...", 55, 50, .4);
	kit.Beat("kick x.......x....... | rim ....x.......x... | hat x...x.o.x...x.o.", 58,
	         {.bar = 0, .bars = 4});
	kit.Beat(BRUSH, 58, {.bar = 4, .bars = 3});
	kit.Beat(TURN, 58, {.bar = 7});
}

void Meadow::SongOfAll()
{
	score.Open("song of all", THEME_B_CHORDS, 4);
	TwoBeat(88);
	harmonica.Lead(THEME_B, 82);
	fiddle.Line(THEME_B_COUNTER, 62, {.octave = OCTAVE_UP});
	accordion.Strike("X-------x-------", 53, 52, .95);
	mandolin.Line("rh c5s a4s f4s a4s c5q | R | rh f5s d5s a4s d5s f5q | R |"
	              "rh a4s c5s f5s c5s a4q | R | R | rq c5s e5s g5s e5s c5q g4q",
	              62);
	kit.Beat(TRAIN, 56, {.bar = 0, .bars = 7});
	kit.Beat(TURN, 62, {.bar = 7});
}

void Meadow::LastTune()
{
	score.Open("last tune", THEME_A_CHORDS, 6);
	TwoBeat(88);
	banjo.Roll(ROLL, 55, 58);
	harmonica.Lead(THEME_A, 86);
	fiddle.Line(THEME_A, 60, {.octave = OCTAVE_UP});
	accordion.Line(THEME_A_DESCANT, 62);
	mandolin.Strike("x.x.x.x.x.x.x.x.", 64, 46, .4, .006);
	kit.Beat("splash o...............", 54, {.bar = 0, .bars = 1});
	kit.Beat(TRAIN, 58, {.bar = 0, .bars = 3});
	kit.Beat(TURN, 60, {.bar = 3, .bars = 1});
	kit.Beat(TRAIN, 60, {.bar = 4, .bars = 3});
	kit.Beat(TURN, 62, {.bar = 7});
	kit.Beat("clap ....x.......x...", 40);
}

void Meadow::Coda()
{
	score.Open("coda", "F | G7 | C/E F | C", 4);
	score.Ritard(2, 4, .45);
	bass.Ground("1---....5---....", 86, .9, {.bar = 0, .bars = 3});
	bass.Line("R3 | c3w", 88);
	guitar.Strike("X...x...x...x...", 52, 60, .6, .02, {.bar = 0, .bars = 3});
	guitar.Strike("X---------------", 52, 64, 1, .04, {.bar = 3});
	harmonica.Lead("a5q. g5e f5q a5q | b5q. a5e g5q d5q | e5q g5q a5q f5q | c5w", 84);
	fiddle.Line("c5h f5h | d5h g5h | c5q e5q f5q a5q | g5w", 64);
	accordion.Strike("X-------x-------", 53, 54, 1);
	banjo.Roll("1.5.8.3.5.8.3.5.", 55, 56, .9, {.bar = 0, .bars = 2});
	banjo.Line("R3 | c5s e5s g5s c6s rq rh", 64);
	kit.Beat(BRUSH, 58, {.bar = 0, .bars = 2});
	kit.Beat("splash o...............", 50, {.bar = 3});
}

void ComposeStage1(Score& score)
{
	score.tempo     = 126;
	score.swing     = .33;
	score.transpose = -5;
	Meadow meadow{score};
	meadow.Intro();
	meadow.Tune();
	meadow.TuneWithBanjo();
	meadow.FiddleSong();
	meadow.TuneWithAccordion();
	meadow.Bridge();
	meadow.Picking();
	meadow.SongOfAll();
	meadow.LastTune();
	meadow.Coda();
}
