// Stage 5, savanna: flute calls, a choir answers, and the kalimba ripples twelve against eight.
#include "art/music/pieces.h"

namespace
{
struct Savanna {
	Score& score;
	Part kalimba = score.Add(KALIMBA, 104, 40, 45);
	Part marimba = score.Add(MARIMBA, 88, 88, 45);
	Part flute   = score.Add(FLUTE, 80, 72, 60);
	Part choir   = score.Add(CHOIR, 84, 56, 65);
	Part low     = score.Add(CHOIR, 74, 70, 65);
	Part bass    = score.Add(FINGER_BASS, 100, 62, 12);
	Part kit     = score.Add(KIT, 104, 64, 30);

	void Intro();
	void Call();
	void CallAndClap();
	void Song();
	void CallAnswered();
	void Drums();
	void Bridge();
	void ChoirSong();
	void Gathering();
	void LastCall();
	void Coda();
	void Walk(int velocity);
	void Ripple(int velocity);
};
} // namespace

// The theme in two voices: the flute's bars and the choir's.
static const char* const CALLS = "c5q e5e g5q e5e d5e c5e | a4q c5e e5q. d5e c5e | R | R |"
                                 "c5q e5e g5q e5e g5e a5e | a5q g5e e5q. d5e c5e | R | R";
static const char* const ANSWERS =
    "R | R | f5q e5e c5q a4e c5q | d5q. b4e g4h | R | R | d5q f5q g5e f5e d5e b4e |"
    "c5q g4e c5q. rq";
static const char* const ANSWERS_LOW =
    "R | R | a4q g4e f4q f4e a4q | b4q. g4e d4h | R | R | a4q a4q b4e b4e b4e g4e |"
    "e4q e4e e4q. rq";
static const char* const RIPPLE = "c4et g4et c5et e5et g4et c5et g5et e5et c5et g4et c5et e4et |"
                                  "a4et c5et e5et a4et e5et c5et a5et e5et c5et a4et c5et e4et |"
                                  "f4et a4et c5et f5et a4et c5et a5et f5et c5et a4et c5et f4et |"
                                  "g4et b4et d5et g5et b4et d5et g5et d5et b4et g4et b4et d4et |"
                                  "c4et g4et c5et e5et g4et c5et g5et e5et c5et g4et c5et e4et |"
                                  "a4et c5et e5et a4et e5et c5et a5et e5et c5et a4et c5et e4et |"
                                  "d4et a4et d5et f5et a4et d5et g4et d5et b4et g4et f4et d4et |"
                                  "c4et g4et c5et e5et g4et c5et e5et c5et g4et e4et g4et c4et";
static const char* const DUST   = "conga x..x..x...x.x... | congalow x.......x....... |"
                                  "shaker o.oxo.oxo.oxo.ox";
static const char* const DANCE  = "kick x...x...x...x... | conga x..x..x...x.x... |"
                                  "congalow x..o..x.o...x.oo |"
                                  "shaker x.oox.oox.oox.oo | clap ....x.......x...";
static const char* const BREAK  = "kick x.......x....... | conga x..x..x.xxx.x.x. |"
                                  "congalow ..x..x.x...x.x.x |"
                                  "clap x..x..x...x.x...";

void Savanna::Walk(int velocity)
{
	bass.Ground("1--1..5-....5-3-1--1..5-..3-5---", velocity);
	marimba.Strike("..x..x..x.x..x..", 55, velocity - 32, .4);
}

void Savanna::Ripple(int velocity)
{
	kalimba.Line(RIPPLE, velocity);
}

void Savanna::Intro()
{
	score.Open("intro", "C | F | C | G7");
	kalimba.Line("c4et g4et c5et e5et g4et c5et g5et e5et c5et g4et c5et e4et |"
	             "f4et a4et c5et f5et a4et c5et a5et f5et c5et a4et c5et f4et |"
	             "c4et g4et c5et e5et g4et c5et g5et e5et c5et g4et c5et e4et |"
	             "g4et b4et d5et g5et b4et d5et g5et d5et b4et g4et b4et d4et",
	             74);
	bass.Ground("1--1..5-....5-3-", 78, .9, {.bar = 2});
	flute.Line("R | rh rq a5e c6e | g5h. rq | rh. g4e a4e", 74);
	kit.Beat("shaker x.oox.oox.oox.oo", 48);
	kit.Beat("conga x..x..x...x.x...", 50, {.bar = 2, .bars = 1});
	kit.Beat(BREAK, 50, {.bar = 3});
}

void Savanna::Call()
{
	score.Open("call", THEME_A_CHORDS);
	Walk(86);
	Ripple(62);
	flute.Lead(CALLS, 84);
	choir.Lead(ANSWERS, 84);
	low.Line(ANSWERS_LOW, 76);
	kit.Beat(DUST, 54, {.bar = 0, .bars = 7});
	kit.Beat(BREAK, 50, {.bar = 7});
}

void Savanna::CallAndClap()
{
	score.Open("call and clap", THEME_A_CHORDS, 2);
	Walk(86);
	kalimba.Lead(CALLS, 88);
	kalimba.Line("R | R | f4et a4et c5et f5et a4et c5et a5et f5et c5et a4et c5et f4et |"
	             "g4et b4et d5et g5et b4et d5et g5et d5et b4et g4et b4et d4et | R | R | R |"
	             "R",
	             62);
	flute.Line("R | rh rq e5e g5e | a5h. rq | b5q. g5e d5h | R | rh rq c6e a5e | f5h g5h |"
	           "e5h. rq",
	           64);
	choir.Line(ANSWERS, 82);
	low.Line(ANSWERS_LOW, 76);
	kit.Beat(DANCE, 54, {.bar = 0, .bars = 7});
	kit.Beat(BREAK, 56, {.bar = 7});
}

void Savanna::Song()
{
	score.Open("song", THEME_B_CHORDS, 2);
	Walk(84);
	flute.Lead(THEME_B, 84);
	choir.Strike("X---------------", 55, 60, 1);
	choir.Swell(0, 4, 78, 110);
	choir.Swell(4, 8, 88, 114);
	kalimba.Line("rh c5et a4et f4et a4q | R | rh a4et f4et d4et f4q |"
	             "rq c5et e5et a5et e5et c5et a4et rq |"
	             "rh. c5et a4et f4et | R | R | rq e5et g5et e5et c5et g4et e4et rq",
	             70);
	kit.Beat(DUST, 56, {.bar = 0, .bars = 7});
	kit.Beat("clap x..x..x...x.x...", 46, {.bar = 4});
	kit.Beat(BREAK, 54, {.bar = 7});
}

void Savanna::CallAnswered()
{
	score.Open("call answered", THEME_A_CHORDS, 4);
	Walk(86);
	Ripple(60);
	flute.Lead(THEME_A, 84);
	choir.Line("g4h. rq | e4h. rq | f5q e5e c5q a4e c5q | d5q. b4e g4h | g4h. rq | e4h. rq |"
	           "d5q f5q g5e f5e d5e b4e | c5q g4e c5q. rq",
	           76);
	low.Line("e4h. rq | c4h. rq | a4q g4e f4q f4e a4q | b4q. g4e d4h | e4h. rq | c4h. rq |"
	         "a4q a4q b4e b4e b4e g4e | e4q e4e e4q. rq",
	         70);
	kit.Beat(DANCE, 58, {.bar = 0, .bars = 7});
	kit.Beat(BREAK, 60, {.bar = 7});
}

// Four bars for hands alone; the choir only shouts.
void Savanna::Drums()
{
	score.Open("drums", "C | C | C | C", 16);
	kit.Beat("conga x.xx.xx.x.xx.xx. | congalow x..x..x.x..x..x. | kick x.......x....... |"
	         "clap ....x.......x...",
	         60, {.bar = 0, .bars = 2});
	kit.Beat("bongo xx.xx.x.xx.xx.x. | bongolow ..x..x.x..x..x.x | congalow x...x...x...x... |"
	         "clap x..x..x...x.x... | kick x...x...x...x...",
	         62, {.bar = 2, .bars = 1});
	kit.Beat("tomhigh x.xx............ | tommid ....x.xx........ | tomlow ........x.xxx.x. |"
	         "clap x..x..x...x.x... | cowbell x...x...x...x...",
	         66, {.bar = 3});
	kit.Beat("shaker x.oox.oox.oox.oo", 54);
	choir.Line("R | rh re g4e' re c5e' | R | rh g4e' g4e' c5q'", 74);
	low.Line("R | rh re e4e' re g4e' | R | rh e4e' e4e' g4q'", 66);
	bass.Line("c3e. c3e. g2e rh | R | c3e. c3e. g2e rh | R", 62);
}

void Savanna::Bridge()
{
	score.Open("bridge", BRIDGE_CHORDS);
	bass.Ground("1-------1---5---", 76);
	marimba.Roll("1.5.8.5.0.8.5.8.", 48, 56);
	flute.Lead(BRIDGE, 82);
	low.Strike("X---------------", 52, 56, 1);
	low.Swell(0, 6, 76, 106);
	low.Swell(6, 8, 106, 122);
	kalimba.Line("R | rh e5et g5et e5et b4q | R | rh g4et c5et e5et g5q | R |"
	             "rh e5et g5et e5et b4q | R | rq g4et b4et d5et g5q rq",
	             66);
	choir.Line("R3 | R3 | a4q d5q f5q d5q | d5h. rq", 70);
	kit.Beat("shaker x.oox.oox.oox.oo | congalow o.......o.......", 50, {.bar = 0, .bars = 6});
	kit.Beat(DUST, 54, {.bar = 6, .bars = 1});
	kit.Beat(BREAK, 60, {.bar = 7});
}

void Savanna::ChoirSong()
{
	score.Open("choir song", THEME_B_CHORDS, 4);
	Walk(86);
	choir.Lead(THEME_B, 84);
	low.Line(THEME_B_COUNTER, 70);
	kalimba.Roll("1.5.8.5.0.8.5.8.", 52, 58);
	flute.Line("R | rh. e5e g5e | a5h. rq | rq c6e a5e e5h | R | rh rq g5e e5e | R |"
	           "rq g5e c6e e6h",
	           68);
	kit.Beat(DANCE, 58, {.bar = 0, .bars = 7});
	kit.Beat(BREAK, 60, {.bar = 7});
}

void Savanna::Gathering()
{
	score.Open("gathering", THEME_A_CHORDS, 3);
	Walk(84);
	marimba.Lead("c5e. e5e. g5e e5q d5e c5e | a4e. c5e. e5e e5q d5e c5e |"
	             "f5e. e5e. c5e c5q a4e c5e | d5e. e5e. d5e b4q g4e a4e |"
	             "c5e. e5e. g5e e5q g5e a5e | a5e. g5e. e5e e5q d5e c5e |"
	             "d5e. e5e. f5e g5q d5e b4e | c5h. rq",
	             86);
	Ripple(56);
	low.Strike("X---------------", 52, 50, 1);
	flute.Line("R3 | rq b5e d6e g5h | R3 | rq e5e g5e c6h", 64);
	kit.Beat(DUST, 58, {.bar = 0, .bars = 4});
	kit.Beat(DANCE, 58, {.bar = 4, .bars = 3});
	kit.Beat(BREAK, 62, {.bar = 7});
}

void Savanna::LastCall()
{
	score.Open("last call", THEME_A_CHORDS, 6);
	Walk(88);
	Ripple(58);
	flute.Lead(THEME_A, 78, {.octave = OCTAVE_UP});
	choir.Line(THEME_A, 80);
	low.Line(THEME_A_COUNTER, 72);
	kit.Beat("crash x...............", 52, {.bar = 0, .bars = 1});
	kit.Beat(DANCE, 62, {.bar = 0, .bars = 3});
	kit.Beat(BREAK, 60, {.bar = 3, .bars = 1});
	kit.Beat(DANCE, 62, {.bar = 4, .bars = 3});
	kit.Beat(BREAK, 66, {.bar = 7});
}

void Savanna::Coda()
{
	score.Open("coda", "F | G7 | C/E F | C", 4);
	score.Ritard(2, 4, .3);
	bass.Ground("1--1..5-....5-3-", 86, .9, {.bar = 0, .bars = 3});
	bass.Line("R3 | c2h. rq", 88);
	flute.Lead("a5q. g5e f5q a5q | b5q. a5e g5q d5q | e5q g5q a5q f5q | c6w", 84);
	choir.Line("c5q. c5e a4q c5q | d5q. d5e b4q g4q | c5q e5q f5q c5q | e5w", 76);
	low.Line("a4q. g4e f4q f4q | g4q. f4e d4q f4q | g4h a4h | g4w", 70);
	marimba.Strike("..x..x..x.x..x..", 55, 54, .4, 0, {.bar = 0, .bars = 2});
	kalimba.Line("R3 | c4et g4et c5et e5et g5et c6et rh", 72);
	kit.Beat(DANCE, 56, {.bar = 0, .bars = 2});
	kit.Beat("conga x..x..x...x.x... | shaker x.oox.oox.oox.oo", 54, {.bar = 2, .bars = 1});
	kit.Beat("congalow x..x..x......... | clap ......X......... |"
	         "crash o...............",
	         56, {.bar = 3});
}

void ComposeStage5(Score& score)
{
	score.tempo = 120;
	Savanna savanna{score};
	savanna.Intro();
	savanna.Call();
	savanna.CallAndClap();
	savanna.Song();
	savanna.CallAnswered();
	savanna.Drums();
	savanna.Bridge();
	savanna.ChoirSong();
	savanna.Gathering();
	savanna.LastCall();
	savanna.Coda();
}
