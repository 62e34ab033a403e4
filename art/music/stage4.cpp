// Stage 4, desert: a caravan in D dorian, the theme with grace notes over a drone.
#include "art/music/pieces.h"

namespace
{
struct Desert {
	Score& score;
	Part clarinet = score.Add(CLARINET, 72, 70, 60);
	Part oboe     = score.Add(OBOE, 84, 48, 60);
	Part dulcimer = score.Add(DULCIMER, 120, 88, 50);
	Part guitar   = score.Add(NYLON, 110, 38, 40);
	Part drone    = score.Add(STRINGS, 72, 64, 70, 10);
	Part bass     = score.Add(BASS, 96, 62, 15);
	Part kit      = score.Add(KIT, 92, 64, 35);

	void Intro();
	void Tune();
	void TuneInDust();
	void OboeSong();
	void TuneOfTwo();
	void Bridge();
	void DulcimerDance();
	void SongOfTwo();
	void LastTune();
	void Coda();
	void Caravan(int velocity);
};
} // namespace

// The theme a step higher without sharps or flats.
static const char* const DORIAN_A =
    "(e5) d5q f5e (b5) a5q f5e e5e d5e | a4q d5e (g5) f5q. e5e d5e | g5q f5e d5q b4e d5q |"
    "(f5) e5h. a4e b4e |"
    "d5q f5e (b5) a5q f5e a5e b5e | b5q a5e g5q. f5e d5e | e5q g5q a5e g5e e5e c5e |"
    "(e5) d5h. rq";
static const char* const DORIAN_CHORDS = "Dm | Dm | G | Am | Dm | G | C Am | Dm";
static const char* const DORIAN_B =
    "a5q. g5e (g5) f5q a5q | g5q. e5e c5q e5q | f5q. e5e (e5) d5q f5q | e5h. a4e b4e |"
    "c5q a4e c5q f5q. | e5q c5e e5q g5q. | (a5) g5q b5q a5q c5q | (e5) d5h. rq";
static const char* const DORIAN_B_CHORDS = "F | C/E | Dm | Am | F | C/E | G Am | Dm";
static const char* const UNDER =
    "f4h. e4q | d4h f4q a4q | g4h b3h | c4q e4q a4q g4q | f4h. a4q | g4h b4q d5q | c5h e4h |"
    "f4q a4q d4h";
static const char* const CAMELS = "congalow x..x..x.x..x..x. | conga ..o..o.....o..o. |"
                                  "tamb ....x.......x...";
static const char* const DEEP   = "kick x.....x.x....... | congalow x..x..x.x..x..x. |"
                                  "mute ..o.o..o..o.o..o |"
                                  "tamb ..o.x.o...o.x.oo";
static const char* const CALL   = "congalow x..x..x.X.X.X... | conga ..o..o.....xx.xX |"
                                  "tamb ........x...x...";

// The row of the caravan, a drone of d and a, and a bass that hardly moves.
void Desert::Caravan(int velocity)
{
	bass.Ground("1--1..5-1-----5-1--1..5-1--5--3-", velocity);
	guitar.Strike("x..x..x.x..x..x.", 52, velocity - 30, .45, .01);
}

void Desert::Intro()
{
	score.Open("intro", "Dm | Dm | Dm | Am");
	drone.Line("d3w~ | d3w~ | d3w | a3w", 58);
	drone.Line("a3w~ | a3w~ | a3w | e4w", 54);
	drone.Swell(0, 4, 50, 108);
	bass.Line("R | R | d3e. d3e. a2e d3q a2q | a2e. a2e. e3e a2q e3q", 80);
	dulcimer.Line("rh d4s a4s d5s f5s e5q | rh d4s a4s d5s g5s f5q |"
	              "a5e. g5e. f5e e5e d5e c5e b4e | a4h. rq",
	              68);
	clarinet.Line("R3 | rh. a4e b4e", 76);
	kit.Beat(CAMELS, 52, {.bar = 1, .bars = 2});
	kit.Beat(CALL, 54, {.bar = 3});
}

void Desert::Tune()
{
	score.Open("tune", DORIAN_CHORDS);
	Caravan(84);
	drone.Line("d4w | d4w | d4w | e4w | d4w | d4w | e4w | d4w", 46);
	clarinet.Lead(DORIAN_A, 82);
	dulcimer.Line("R3 | rq e5s a5s e5s c5s a4q rq | R3 | rq d5s a4s f4s a4s d4q rq", 62);
	kit.Beat(CAMELS, 56, {.bar = 0, .bars = 7});
	kit.Beat(CALL, 54, {.bar = 7});
}

void Desert::TuneInDust()
{
	score.Open("tune in dust", DORIAN_CHORDS, 2);
	Caravan(84);
	clarinet.Lead(DORIAN_A, 84);
	dulcimer.Roll("1.5.8.5.8.5.0.8.", 48, 56);
	oboe.Line(UNDER, 58);
	kit.Beat(DEEP, 54, {.bar = 0, .bars = 7});
	kit.Beat(CALL, 60, {.bar = 7});
}

void Desert::OboeSong()
{
	score.Open("oboe song", DORIAN_B_CHORDS, 2);
	Caravan(82);
	oboe.Lead(DORIAN_B, 82);
	drone.Strike("X---------------", 52, 52, 1);
	drone.Swell(0, 4, 80, 112);
	drone.Swell(4, 8, 92, 116);
	dulcimer.Line("rh. f4s a4s c5s a4s | R | rh. d4s f4s a4s f4s | rq a4s c5s e5s c5s a4q rq |"
	              "rh. f4s a4s c5s a4s | R | R | rq a4s d5s f5s d5s a4q rq",
	              64);
	clarinet.Line("R | rh rq c5e e5e | R | rq c5e e5e a5q rq | R | R | d5h c5h | a4h. rq", 60);
	kit.Beat(CAMELS, 58, {.bar = 0, .bars = 7});
	kit.Beat("castanets x..x..x.x.x.xxxx | congalow x..x..x.x...x...", 50, {.bar = 7});
}

void Desert::TuneOfTwo()
{
	score.Open("tune of two", DORIAN_CHORDS, 3);
	Caravan(84);
	clarinet.Lead(DORIAN_A, 84, {.octave = OCTAVE_DOWN});
	oboe.Line("R3 | rq (f5) e5q c5e b4e a4q | R3 | rq (g5) f5q e5e d5e a4q", 74);
	guitar.Line("R | rh. a4e f4e | R | R | R | rh. b4e g4e | R | R", 62);
	dulcimer.Roll("8...0...9...0...", 48, 54);
	drone.Line("a4w | a4w | b4w | a4w | a4w | b4w | g4h a4h | a4w", 46);
	kit.Beat(DEEP, 58, {.bar = 0, .bars = 7});
	kit.Beat(CALL, 60, {.bar = 7});
}

// Night: guitar alone under the oboe, only a shaker left of the drums.
void Desert::Bridge()
{
	score.Open("bridge", "Am | Em | F | C | Am | Em | Dm7 | Am");
	bass.Ground("1-------5-------", 76);
	guitar.Roll("1.5.8.0.8.5.8.5.", 48, 62);
	oboe.Lead("e5q (d5) c5e a4q c5e d5e e5e | g5q e5e b4q. d5e e5e | (g5) f5q e5e c5q a4e c5q |"
	          "e5h. c5e d5e |"
	          "e5q (d5) c5e a4q c5e d5e e5e | g5q e5e b4q. a4e b4e | d5q f5q a5q f5q |"
	          "(f5) e5h. rq",
	          78);
	drone.Strike("X---------------", 52, 50, 1);
	drone.Swell(0, 6, 78, 104);
	drone.Swell(6, 8, 104, 84);
	clarinet.Line("R3 | rq g4e c5e g4h | R | rh. g4e b4e | a4h f4h | c5q b4q a4q rq", 58);
	kit.Beat("shaker x.o.x.o.x.o.x.o. | congalow o...............", 48, {.bar = 0, .bars = 6});
	kit.Beat(CAMELS, 50, {.bar = 6, .bars = 1});
	kit.Beat(CALL, 60, {.bar = 7});
}

void Desert::DulcimerDance()
{
	score.Open("dulcimer dance", DORIAN_CHORDS, 4);
	Caravan(84);
	dulcimer.Lead("d5s f5s a5s f5s d5e f5e a5s g5s f5s e5s d5e f5e |"
	              "a4s d5s f5s d5s a4e d5e f5s g5s f5s e5s d5q |"
	              "g5s f5s e5s d5s b4e d5e g5s b5s g5s d5s b4q |"
	              "e5s c5s a4s c5s e5e a5e e5s d5s c5s b4s a4e b4e |"
	              "d5s f5s a5s f5s d5e f5e a5s b5s a5s g5s f5e a5e |"
	              "b5s a5s g5s f5s d5e g5e b5s a5s g5s f5s d5q |"
	              "e5s g5s c6s g5s e5e g5e a5s g5s e5s c5s a4e c5e | d5q a4q d5h",
	              98);
	clarinet.Line("R3 | rh. e5e a4e | R3 | rh f5e e5e d5q", 64);
	oboe.Line("a4h. rq | f4h. rq | b4h. rq | c5h. rq | a4h. rq | b4h. rq | g4h a4h |"
	          "f4h. rq",
	          50);
	kit.Beat(DEEP, 60, {.bar = 0, .bars = 7});
	kit.Beat("clap ....x.......x...", 42);
	kit.Beat(CALL, 62, {.bar = 7});
}

void Desert::SongOfTwo()
{
	score.Open("song of two", DORIAN_B_CHORDS, 4);
	Caravan(84);
	clarinet.Lead(DORIAN_B, 84);
	oboe.Line("c5h. rq | e5h. rq | a4h. rq | c5q. b4e a4h | a4h. rq | g4h. rq | d5h e5h |"
	          "f5h. rq",
	          62);
	dulcimer.Roll("..5.8.5.0.5.8.5.", 48, 54);
	drone.Strike("X-------x-------", 52, 52, 1);
	kit.Beat(DEEP, 60, {.bar = 0, .bars = 7});
	kit.Beat(CALL, 62, {.bar = 7});
}

void Desert::LastTune()
{
	score.Open("last tune", DORIAN_CHORDS, 6);
	Caravan(86);
	clarinet.Lead(DORIAN_A, 86);
	oboe.Line(DORIAN_A, 64);
	dulcimer.Roll("1.5.8.5.0.8.5.8.", 48, 56);
	drone.Line("a4w | f4w | g4w | a4w | a4w | g4w | g4h a4h | a4w", 54);
	kit.Beat("splash o...............", 54, {.bar = 0, .bars = 1});
	kit.Beat(DEEP, 64, {.bar = 0, .bars = 3});
	kit.Beat(CALL, 60, {.bar = 3, .bars = 1});
	kit.Beat(DEEP, 64, {.bar = 4, .bars = 3});
	kit.Beat("clap ....x.......x...", 44);
	kit.Beat(CALL, 64, {.bar = 7});
}

void Desert::Coda()
{
	score.Open("coda", "G | Am | Dm C | Dm", 3);
	score.Ritard(2, 4, .4);
	Caravan(84);
	clarinet.Lead("b5q. a5e g5q d5q | c6q. b5e a5q e5q | f5q a5q g5e f5e e5e c5e | (e5) d5w", 82);
	oboe.Line("d5h b4h | e5h c5h | a4q d5q c5h | a4w", 64);
	dulcimer.Roll("1.5.8.5.0.8.5.8.", 48, 56, .9, {.bar = 0, .bars = 2});
	dulcimer.Line("R3 | d4s a4s d5s f5s a5q d5h", 68);
	drone.Line("d4w | e4w | d4h e4h | d4w", 54);
	drone.Swell(2, 4, 110, 60);
	kit.Beat(DEEP, 58, {.bar = 0, .bars = 2});
	kit.Beat(CAMELS, 52, {.bar = 2, .bars = 1});
	kit.Beat("congalow x..x..x......... | tamb x...............", 54, {.bar = 3});
}

void ComposeStage4(Score& score)
{
	score.tempo = 112;
	Desert desert{score};
	desert.Intro();
	desert.Tune();
	desert.TuneInDust();
	desert.OboeSong();
	desert.TuneOfTwo();
	desert.Bridge();
	desert.DulcimerDance();
	desert.SongOfTwo();
	desert.LastTune();
	desert.Coda();
}
