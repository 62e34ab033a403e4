// Alien: something sneaks about on three legs. The theme in D minor, whistled with a shiver.
#include "art/music/pieces.h"

namespace
{
struct Alien {
	Score& score;
	Part whistle = score.Add(WHISTLE, 70, 70, 70);
	Part vibes   = score.Add(VIBRAPHONE, 116, 84, 65);
	Part pad     = score.Add(PAD, 72, 64, 70);
	Part bass    = score.Add(BASS, 96, 62, 20);
	Part pizz    = score.Add(PIZZICATO, 106, 48, 55);
	Part bassoon = score.Add(BASSOON, 100, 52, 50);
	Part timpani = score.Add(TIMPANI, 84, 60, 45);
	Part kit     = score.Add(BRUSH_KIT, 120, 64, 35);

	void Intro();
	void Tune();
	void TuneShadowed();
	void Song();
	void Chase();
	void Turn();
	void Sneak(int velocity);
};
} // namespace

static const char* const SHY_A =
    "c5q e5e g5q/ e5e d5e c5e | a4q c5e e5q. d5e c5e | f5q e5e c5q a4e c5q | d5h. a4e b4e |"
    "c5q e5e g5q/ e5e g5e a5e | a5q/ g5e e5q. d5e c5e | d5q f5q e5q. b4e | a4h. rq";
static const char* const SHY_CHORDS = "Am7 | Am | F | Dm | Am7 | Am | Dm E7 | Am";
static const char* const TIPTOE     = "brush x...o...x...o... | hat ..o...o...o...o. |"
                                      "kick x.......o.......";

// Bass on tiptoe, plucked strings an octave up a moment later.
void Alien::Sneak(int velocity)
{
	bass.Ground("1...5...1...3.5.1...5...8...5.3.", velocity, .5);
	pizz.Roll("..1...5...8...5.", 48, velocity - 24, .5);
}

void Alien::Intro()
{
	score.Open("intro", "Am | Am | Bb | E7");
	Sneak(80);
	vibes.Line("R | rh e5e' g5e' g#5e' a5e' | R | rh e5e' d5e' b4e' g#4e'", 62);
	bassoon.Line("R | R | bb2q' d3q' f3q. d3e | e3e' re b2e' re e2q rq", 74);
	pad.Line("a4w | a4h. (g#4) a4q | bb4w | b4h. rq", 46);
	kit.Beat("hat ..o...o...o...o. | brush ........o.......", 54);
	timpani.Line("R | R | R | rh rq e2s e2s e2s e2s", 66);
}

void Alien::Tune()
{
	score.Open("tune", SHY_CHORDS);
	Sneak(84);
	whistle.Lead(SHY_A, 82);
	vibes.Line("R | rh rq c5e' e5e' | R | rq f4e' a4e' d5q rq | R | rh rq e5e' c5e' | R |"
	           "rq c5e' b4e' c5e' a4e' rq",
	           62);
	kit.Beat(TIPTOE, 76);
}

void Alien::TuneShadowed()
{
	score.Open("tune, shadowed", SHY_CHORDS, 3);
	Sneak(84);
	whistle.Lead(SHY_A, 82);
	bassoon.Line("a3e' re c4e' re e3q' c4e' a3e' | c4q. b3e a3q' e3q' |"
	             "a3e' re c4e' re f3q' a3q' | d4q. c4e a3q' f3q' |"
	             "a3e' re c4e' re e3q' c4e' a3e' | c4q. b3e a3q' e3q' | f3q' a3q' g#3q' e3q' |"
	             "a3q' e3q' a2q rq",
	             70);
	vibes.Strike("....x.......x...", 60, 46, .5);
	// the pad slips half a step aside while the tune holds its breath
	pad.Line("R3 | a4h. (bb4) a4q | R3 | a4q. bb4e a4h", 50);
	pad.Line("R3 | d4h. (eb4) d4q | R3 | e4q. f4e e4h", 46);
	kit.Beat(TIPTOE, 80, {.bar = 0, .bars = 7});
	kit.Beat("block x...x.x......... | blocklow ..........x.x...", 60, {.bar = 7});
}

void Alien::Song()
{
	score.Open("song", "F | C/E | Dm | Am | F | Am | Dm E7 | Am", 2);
	bass.Ground("1-......5-......", 82, .8);
	pizz.Strike("..x...x...x...x.", 55, 60, .4);
	whistle.Lead("a5q./ g5e f5q a5q | g5q. e5e c5q e5q | f5q./ e5e d5q f5q | e5h. a4e b4e |"
	             "c5q a4e c5q f5q. | e5q c5e e5q a5q. | d5q f5q e5q g#4q | a4h. rq",
	             82);
	vibes.Roll("1.5.8.0.9.0.8.5.", 53, 54);
	pad.Line("f4w | e4w | d4w | e4w | f4w | e4w | d4h e4h | e4w", 48);
	pad.Line("c4w | c4w | a3w | c4w | c4w | c4w | a3h b3h | c4w", 46);
	bassoon.Line("R3 | rq a2e' c3e' e3q' rq | R3 | rq e3e' a3e' c4q' rq", 72);
	kit.Beat("brush x..ox..ox..ox..o | kick x.......x....... | triangle o...............", 72);
}

// It has seen us: bassoon over stamping chords, swoops above, a half step too high.
void Alien::Chase()
{
	score.Open("chase", "Am | Bb | Am | E7 | F | Bb | Dm | E7", 4);
	bassoon.Lead("a3e' re c4e' re e4q d4e c4e | bb3e' re d4e' re f4q e4e d4e |"
	             "c4e' re a3e' re e4q c4e a3e | b3e' re g#3e' re e3h |"
	             "a3e' re c4e' re f4q e4e c4e | d4e' re bb3e' re f4q d4e bb3e |"
	             "d4e' re f4e' re a4q f4e d4e | e4e' re b3e' re e3q rq",
	             88, {.octave = OCTAVE_DOWN});
	pizz.Strike("..x...x...x..xx.", 57, 66, .4);
	vibes.Line("R | rh f5s d5s bb4s d5s f5q | R | rh b4s d5s e5s g#5s b5q |"
	           "R | rh bb5s f5s d5s f5s bb4q | a4s d5s f5s a5s f5q rh |"
	           "e5s g#5s b5s g#5s e5q rh",
	           66);
	whistle.Line("R | rh rq f5q/ | R | rh b5h/ | R | rh rq f5q/ | a5h./ f5q | e5h/ rh", 70);
	timpani.Line("a2q rq e2q rq | bb2q rq f2q rq | a2q rq e2q rq | e2q re e2e e2q rq |"
	             "f2q rq c3q rq | bb2q rq f2q rq | d3q rq a2q rq |"
	             "e2s e2s e2s e2s e2e e2e e2q rq",
	             74);
	kit.Beat("kick x...x...x...x... | snare ..o...o...o..oo. | brush ....x.......x...", 60);
}

void Alien::Turn()
{
	score.Open("turn", "Am | F | Dm | E7", -1);
	Sneak(82);
	whistle.Line("e5q./ d5e c5q a4q | c5q. a4e f4h | d5e' re f5e' re a5q f5e d5e | e5h. rq", 76);
	vibes.Line("R | rq c5e' f5e' a5q' rq | R | rq b4e' e5e' g#5q' rq", 60);
	pad.Line("e4w | f4w | f4w | e4h. rq", 46);
	bassoon.Line("R | R | d3q' a2q' d3q' f3q' | e3q' b2q' e2q rq", 72);
	kit.Beat(TIPTOE, 76, {.bar = 0, .bars = 3});
	kit.Beat("block x.......x......... | castanets ............oooo", 54, {.bar = 3});
}

void ComposeAlien(Score& score)
{
	score.tempo     = 100;
	score.transpose = 5;
	score.loops     = true;
	Alien alien{score};
	score.Vibrato(alien.whistle, 96);
	alien.Intro();
	alien.Tune();
	alien.TuneShadowed();
	alien.Song();
	alien.Chase();
	alien.Turn();
}
