// The seven short pieces that mark a moment of play, for real instruments. They bring their own
// harmony, or keep to the five common notes.
#include "art/families.h"

#include "art/music/band.h"
#include "art/music/score.h"
#include "art/sounds/effect.h"

#include <cstdio>
#include <cstdlib>

static const Instrument BRASS    = {61, 48, 88, "brass"};
static const Instrument TROMBONE = {57, 40, 72, "trombone"};

static const double RING     = .9; // seconds that the last note rings on
static const double FADE_OUT = .5; // of it

// The recording up to `beats` and its ring. Without the sound font no signal can be made.
static void AddSignal(Sink& sink, const Score& score, double beats, double level)
{
	Sound sound;
	std::string fault;
	if (!Perform(score, sound, fault)) {
		std::fprintf(stderr, "forge: %s\n", fault.c_str());
		std::fflush(stderr);
		std::_Exit(1); // other threads are still at work
	}
	for (Wave* side : {&sound.left, &sound.right}) {
		side->resize(SampleCount(score.Seconds(beats) + RING), 0.0);
		Fade(*side, .004, FADE_OUT);
	}
	AddStereo(sink, score.name, sound, level);
}

static void MakeLevelStart(Sink& sink)
{
	Score score("level_start");
	score.tempo  = 126;
	Part marimba = score.Add(MARIMBA, 96, 56), flute = score.Add(FLUTE, 92, 70, 55);
	Part pizz = score.Add(PIZZICATO, 90, 44);
	score.Open("call", "C");
	flute.Line("g4e a4e c5e e5e g5h", 84);
	marimba.Line("g4e a4e c5e e5e g5h", 80);
	pizz.Line("c3q g3q c4h", 84);
	AddSignal(sink, score, 4, -19);
}

static void MakeLevelComplete(Sink& sink)
{
	Score score("level_complete");
	score.tempo = 132;
	Part brass = score.Add(BRASS, 84, 64, 55), glock = score.Add(GLOCK, 84, 80, 70);
	Part strings = score.Add(STRINGS, 80, 50, 60), timpani = score.Add(TIMPANI, 90, 64, 40);
	Part pizz = score.Add(PIZZICATO, 90, 44);
	score.Open("fanfare", "C C F G7 | F G7 C C");
	brass.Line("g4e g4s g4s c5q e5q g5q | a5e g5e e5e g5e c6h", 88);
	glock.Line("rq c5q e5q g5q | a5e g5e e5e g5e c6h", 70, {.octave = 12});
	strings.Strike("X---x---x---x---", 55, 70, .95);
	pizz.Roll("1---1---1---1---", 40, 84);
	timpani.Line("g2q c3q c3q g2q | c3q g2q c3h", 84);
	AddSignal(sink, score, 8, -18);
}

static void MakeLoseGame(Sink& sink)
{
	Score score("lose_game");
	score.tempo  = 96;
	Part bassoon = score.Add(BASSOON, 96, 58, 55), trombone = score.Add(TROMBONE, 70, 64);
	Part pizz = score.Add(PIZZICATO, 92, 48, 55);
	score.Open("sigh", "C | F C");
	bassoon.Line("g4q f4e e4q d4e c4q | a3q b3e a3e g3h", 84);
	pizz.Line("e4q d4e c4q b3e a3q | f3q f3q e3h", 78);
	trombone.Line("R | d3q d3q c3h", 80);
	AddSignal(sink, score, 8, -19);
}

static void MakeTrophy(Sink& sink)
{
	Score score("trophy_unlocked");
	score.tempo = 126;
	Part harp = score.Add(HARP, 96, 60, 70), glock = score.Add(GLOCK, 84, 80, 75);
	Part high = score.Add(STRINGS, 80, 50, 65), low = score.Add(STRINGS, 80, 78, 65);
	Part horn = score.Add(HORN, 84, 60, 60);
	score.Open("unveiling", "C | C");
	harp.Line("c4s e4s g4s c5s e5s g5s c6s e6s g6q rq | R", 80);
	glock.Line("rh e6s g6s a6s g6s a6q | c7h rh", 70);
	horn.Line("rh g4e g4e g4q | c5w", 84);
	high.Line("R | e5w", 70);
	low.Line("R | g4w", 66);
	AddSignal(sink, score, 7, -18);
}

static void MakeExtraBall(Sink& sink)
{
	Score score("extra_quorblet");
	score.tempo = 138;
	Part glock = score.Add(GLOCK, 90, 76, 70), harp = score.Add(HARP, 96, 56, 65);
	Part flute = score.Add(FLUTE, 90, 60, 60);
	score.Open("gift", "C | C");
	harp.Line("c5s d5s e5s g5s a5s c6s d6s e6s g6q rq | R", 80);
	flute.Line("rq c5e e5e g5e a5e c6q~ | c6q rh.", 82);
	glock.Line("rh g5e a5e c6q~ | c6q rh.", 72, {.octave = 12});
	AddSignal(sink, score, 6, -18);
}

static void MakeAnswers(Sink& sink)
{
	Score right("quiz_correct_answer");
	right.tempo = 140;
	Part glock = right.Add(GLOCK, 96, 70, 65), marimba = right.Add(MARIMBA, 96, 56);
	Part pizz = right.Add(PIZZICATO, 90, 60, 55);
	right.Open("right", "C");
	glock.Line("g5e c6e e6e g6q. rq", 80);
	marimba.Line("g4e c5e e5e g5q. rq", 86);
	pizz.Strike("..x.x.X.........", 55, 76, .5);
	AddSignal(sink, right, 4, -19);

	Score wrong("quiz_wrong_answer");
	wrong.tempo  = 120;
	Part bassoon = wrong.Add(BASSOON, 96, 60), low = wrong.Add(PIZZICATO, 92, 60);
	wrong.Open("wrong", "Am");
	bassoon.Line("e4e rs e4s c4q a3h", 84);
	low.Line("c4e rs c4s a3q e3h", 80);
	AddSignal(sink, wrong, 4, -20);
}

void AddSignals(Catalogue& catalogue)
{
	catalogue.Add("sounds/levelstart", __FILE__, MakeLevelStart);
	catalogue.Add("sounds/levelcomplete", __FILE__, MakeLevelComplete);
	catalogue.Add("sounds/losegame", __FILE__, MakeLoseGame);
	catalogue.Add("sounds/trophy", __FILE__, MakeTrophy);
	catalogue.Add("sounds/extraball", __FILE__, MakeExtraBall);
	catalogue.Add("sounds/answers", __FILE__, MakeAnswers);
}
