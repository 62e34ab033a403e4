// Stage 3, snow: a sleigh ride in six-eight that sets out in A minor and comes home to C.
#include "art/music/pieces.h"

namespace
{
struct Snow {
	Score& score;
	Part clarinet = score.Add(CLARINET, 82, 66, 55);
	Part celesta  = score.Add(CELESTA, 98, 84, 65);
	Part pizz     = score.Add(PIZZICATO, 96, 46, 55);
	Part strings  = score.Add(SLOW_STRINGS, 74, 64, 70, 10);
	Part horn     = score.Add(HORN, 90, 54, 65);
	Part flute    = score.Add(FLUTE, 87, 72, 60);
	Part bass     = score.Add(BASS, 94, 62, 20);
	Part kit      = score.Add(BRUSH_KIT, 92, 64, 40);

	void Intro();
	void SetOut(int lift);
	void Glitter(int lift);
	void Gather();
	void WideView();
	void HornSong();
	void FluteSong(int lift);
	void Home(const char* tune, int lift);
	void Frozen();
	void LastHome();
	void Coda();
	void Trot(int velocity);
};
} // namespace

static const char* const LILT_A =
    "c5q e5e g5q e5e | a4q c5e e5q. | f5q e5e c5q a4e | d5q. rq g4e |"
    "c5q e5e g5q a5e | a5q g5e e5q c5e | d5q f5e g5q b4e | c5q. rq g4e";
// A again, with the gaps filled in as on skates.
static const char* const SKATING =
    "c5e d5e e5e g5e f5e e5e | a4e b4e c5e e5q. | f5e g5e f5e c5q a4e | d5q. rq g4e |"
    "c5e d5e e5e g5q a5e | a5e b5e a5e e5q c5e | d5e e5e f5e g5q b4e | c5q. rq g4e";
static const char* const MINOR  = "Am7 | Am | F | Dm | Am7 | Am | Dm Em | Am";
static const char* const MAJOR  = "C | Am | F | G | C | Am | Dm7 G7 | C";
static const char* const LILT_B = "a5q. f5q a5e | g5q e5e c5q e5e | f5q. d5q f5e | e5q. a4q b4e |"
                                  "c5q a4e c5e f5q | e5q c5e e5q g5e | f5q a5e g5q b4e |"
                                  "c5q. rq.";
static const char* const LILT_B_CHORDS = "F | C/E | Dm | Am | F | C/E | Dm7 G7 | C";
static const char* const LILT_COUNTER =
    "e4q. c4q. | a4q. c5q. | a4q. f4q. | f4q a4e d4q. | e4q. g4q. | a4q. e4q. | f4q. g4q. |"
    "e4q. a4q.";
static const char* const HOOVES =
    "kick x........... | snare ......x..... | sleigh o...o.o...o. | hat x...o.x...o.";
static const char* const HALT = "kick x.....x..... | snare ......x.x.xx | sleigh o...o.o...o.";

void Snow::Trot(int velocity)
{
	bass.Ground("1-----5-----1-----5---3-", velocity);
	pizz.Strike("....x.....x.", 55, velocity - 20, .4, .006);
}

void Snow::Intro()
{
	score.Open("intro", "Am | F | Am | Em");
	celesta.Roll("1.5.8.0.9.8.", 60, 64);
	bass.Ground("1-----------", 72);
	kit.Beat("sleigh o...o.o...o.", 50);
	pizz.Strike("......x...x.", 55, 58, .4, .006, {.bar = 2});
	horn.Line("R | rq. c4q a3e | e4h. | rq. rq g4e", 60);
	kit.Beat("snare ......o.o.xx", 50, {.bar = 3});
}

void Snow::SetOut(int lift)
{
	score.Open("set out", MINOR, lift);
	Trot(82);
	clarinet.Lead(LILT_A, 82);
	celesta.Line("R3 | rq. f5e a5e d6e | R3 | rq. e5e a5e c6e", 54);
	kit.Beat("kick x........... | sleigh o...o.o...o. | rim ......x.....", 56,
	         {.bar = 0, .bars = 7});
	kit.Beat(HALT, 52, {.bar = 7});
}

void Snow::Glitter(int lift)
{
	score.Open("glitter", MINOR, lift);
	Trot(82);
	clarinet.Lead(LILT_A, 83);
	celesta.Line(LILT_A, 54, {.octave = OCTAVE_UP});
	horn.Line(LILT_COUNTER, 58);
	kit.Beat(HOOVES, 58, {.bar = 0, .bars = 7});
	kit.Beat(HALT, 58, {.bar = 7});
}

// Strings take the tune low, flute and celesta drift above.
void Snow::Gather()
{
	score.Open("gather", MINOR, 1);
	bass.Ground("1-----5-----1-----5---3-", 80);
	pizz.Roll("1.5.8.5.3.5.", 48, 60, .5);
	strings.Lead(LILT_A, 74);
	strings.Swell(0, 4, 92, 112);
	strings.Swell(4, 8, 100, 118);
	flute.Line("R | rq. e5q a5e | a5q. f5q. | rq. a5e d6e a5e | R | rq. c6q a5e | f5q. g5q. |"
	           "e5q a5e c6q.",
	           62);
	kit.Beat("sleigh o...o.o...o. | kick x.....o.....", 54, {.bar = 0, .bars = 7});
	kit.Beat(HALT, 56, {.bar = 7});
}

void Snow::WideView()
{
	score.Open("wide view", MINOR, 3);
	Trot(82);
	flute.Lead(LILT_A, 84);
	clarinet.Line(LILT_COUNTER, 70);
	celesta.Roll("..5.8.0.9.8.", 60, 50);
	strings.Strike("X-----------", 52, 48, 1);
	kit.Beat(HOOVES, 60, {.bar = 0, .bars = 7});
	kit.Beat(HALT, 60, {.bar = 7});
}

void Snow::FluteSong(int lift)
{
	score.Open("flute song", LILT_B_CHORDS, lift);
	Trot(82);
	flute.Lead(LILT_B, 82);
	strings.Strike("X-----------", 55, 56, 1);
	strings.Swell(0, 4, 84, 112);
	strings.Swell(4, 8, 92, 118);
	horn.Line("R | rq. e4q g4e | R | rq. c5q a4e | R | rq. g4q e4e | f4q. d4q. | e4q. rq.", 60);
	clarinet.Line("c5q. a4q. | g4q. e4q. | a4q. f4q. | c5q. rq. | a4q. f4q. | g4q. rq. |"
	              "a4q. d5q. | g4q. rq.",
	              56);
	kit.Beat("kick x........... | snare ......x...o. | hat x...o.x...o.", 58,
	         {.bar = 0, .bars = 7});
	kit.Beat("sleigh o...o.o...o. | triangle x.....o.....", 52, {.bar = 7});
}

void Snow::HornSong()
{
	score.Open("horn song", LILT_B_CHORDS, 3);
	Trot(82);
	horn.Lead(LILT_B, 82, {.octave = OCTAVE_DOWN});
	strings.Strike("X-----------", 55, 54, 1);
	strings.Swell(0, 8, 84, 118);
	celesta.Roll("1.5.8.0.9.8.", 60, 50);
	flute.Line("R | rq. g5e c6e e6e | R | rq. e5e a5e c6e | R | rq. g5e c6e g5e | R |"
	           "rq. e5e g5e c6e",
	           62);
	kit.Beat("kick x........... | snare ......o...o. | triangle o...........", 58);
}

void Snow::Home(const char* tune, int lift)
{
	score.Open("home", MAJOR, lift);
	Trot(82);
	flute.Lead(tune, 84);
	clarinet.Line("e4q. g4q. | c5q. a4q. | a4q. f4q. | g4q b4e d5q. | e4q. g4q. | c5q. a4q. |"
	              "f4q. g4q. | e4q g4e c5q.",
	              66);
	strings.Strike("X-----------", 55, 54, 1);
	celesta.Line("R3 | rq. d6e b5e g5e | R3 | rq. g5e c6e e6e", 52);
	kit.Beat(HOOVES, 60, {.bar = 0, .bars = 7});
	kit.Beat(HALT, 60, {.bar = 7});
}

// Everything stands still under the ice: celesta alone, one bar of strings to each phrase.
void Snow::Frozen()
{
	score.Open("frozen", MINOR, -3);
	bass.Ground("1-----------", 74);
	celesta.Lead(LILT_A, 76, {.octave = OCTAVE_UP});
	celesta.Roll("1...5...8...", 60, 50);
	strings.Strike("X-----------", 52, 50, 1);
	strings.Swell(0, 4, 70, 100);
	strings.Swell(4, 8, 84, 122);
	clarinet.Line("R3 | rq. a4q f4e | R3 | rq. e4q a4e", 60);
	kit.Beat("triangle x...........", 46);
	kit.Beat("sleigh o...o.o...o.", 44, {.bar = 4});
	kit.Beat(HALT, 54, {.bar = 7});
}

void Snow::LastHome()
{
	score.Open("last time home", MAJOR, 6);
	Trot(84);
	flute.Lead(LILT_A, 86);
	horn.Line(LILT_A, 64, {.octave = OCTAVE_DOWN});
	celesta.Line(LILT_A, 50, {.octave = OCTAVE_UP});
	strings.Strike("X-----x-----", 55, 58, 1);
	clarinet.Line("e5q. rq. | c5q. rq. | a4q c5e f5q. | g5q d5e b4q. | e5q. rq. | c5q. rq. |"
	              "f5q. d5q. | e5q g5e e5q.",
	              62);
	kit.Beat("splash x...........", 54, {.bar = 0, .bars = 1});
	kit.Beat(HOOVES, 64, {.bar = 0, .bars = 3});
	kit.Beat(HALT, 62, {.bar = 3, .bars = 1});
	kit.Beat(HOOVES, 64, {.bar = 4, .bars = 3});
	kit.Beat(HALT, 66, {.bar = 7});
}

void Snow::Coda()
{
	score.Open("coda", "F | G7 | C | C", 4);
	score.Ritard(2, 4, .5);
	bass.Ground("1-----5-----", 82, .9, {.bar = 0, .bars = 3});
	bass.Line("R3 | c2h.", 84);
	celesta.Roll("1.5.8.0.9.8.", 60, 58, .9, {.bar = 0, .bars = 3});
	celesta.Line("R3 | c6e e6e g6e c7q.", 58);
	flute.Lead("a5q. f5q a5e | b5q. g5q. | c6h.~ | c6h.", 80);
	horn.Line("c4q. f4q. | d4q. g4q. | e4q g4e c5q. | c5h.", 66);
	strings.Strike("X-----------", 55, 58, 1);
	kit.Beat(HOOVES, 58, {.bar = 0, .bars = 2});
	kit.Beat("sleigh o...o.o...o.", 50, {.bar = 2, .bars = 1});
	kit.Beat("sleigh X........... | triangle x...........", 50, {.bar = 3});
}

void ComposeStage3(Score& score)
{
	score.tempo     = 126;
	score.barLength = 3;
	score.compound  = true;
	Snow snow{score};
	snow.Intro();

	snow.SetOut(0);
	snow.Glitter(1);
	snow.FluteSong(2);
	snow.Home(LILT_A, 2);

	snow.Gather();
	snow.WideView();
	snow.HornSong();
	snow.Home(SKATING, 4);

	snow.Frozen();
	snow.Glitter(3);
	snow.FluteSong(4);
	snow.LastHome();
	snow.Coda();
}
