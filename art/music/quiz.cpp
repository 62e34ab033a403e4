// Quiz: two bars of question, two bars to think, over a walking bass.
#include "art/music/pieces.h"

namespace
{
struct Quiz {
	Score& score;
	Part vibes    = score.Add(VIBRAPHONE, 124, 90, 55);
	Part clarinet = score.Add(CLARINET, 64, 38, 50);
	Part pizz     = score.Add(PIZZICATO, 90, 102, 50);
	Part guitar   = score.Add(NYLON, 98, 26, 35);
	Part bass     = score.Add(BASS, 94, 62, 12);
	Part kit      = score.Add(BRUSH_KIT, 120, 64, 25);

	void Intro();
	void Questions();
	void Song();
	void Answers();
	void Turn();
};
} // namespace

static const char* const CHORDS    = "C6 | Am7 | Dm7 | G7 | C6 | Am7 | Dm7 G7 | C6";
static const char* const WALK      = "c3q g2q e2q g2q | a2q c3q e3q eb3q | d3q c3q a2q ab2q |"
                                     "g2q b2q d3q b2q |"
                                     "c3q b2q a2q g2q | a2q g2q e2q c#3q | d3q a2q g2q b2q |"
                                     "c3q g2q c2q rq";
static const char* const BRUSHES   = "brush x...x.o.x...x.o. | kick o.......o....... |"
                                     "pedal ....x.......x...";
static const char* const TICK_TOCK = "block x.......x....... | blocklow ....x.......x...";

void Quiz::Intro()
{
	score.Open("intro", "C6 | A7 | Dm7 | G7");
	bass.Line("c3q rq g2q rq | a2q rq c#3q rq | d3q c3q a2q ab2q | g2q d2q g2q b2q", 84);
	kit.Beat(TICK_TOCK, 60);
	kit.Beat(BRUSHES, 58, {.bar = 2});
	pizz.Line("rq e5q' rq g4q' | rq g4q' rq e5q' | rq f5q' rq a4q' | rq f5q' d5q' rq", 66);
	clarinet.Line("R3 | rh d4e f4e b4e d5e", 66);
}

void Quiz::Questions()
{
	score.Open("questions", CHORDS);
	bass.Line(WALK, 86);
	guitar.Strike("x...x...x...x...", 52, 48, .35, .008);
	vibes.Lead("c5q e5e g5q e5e d5e c5e | a4q c5e e5q. g5q' | R | R |"
	           "c5q e5e g5q e5e g5e a5e | a5q g5e e5q. b5q' | R | R",
	           86);
	pizz.Line("R | R | rq f4e' a4e' c5q' a4q' | b4q' g4q' d5q' rq | R | R |"
	          "rq a4e' f4e' d4q' f4q' | e4q' g4q' c5q' rq",
	          76);
	clarinet.Line("R3 | rh rq d5e b4e | R3 | rq g4e a4e c5q rq", 66);
	kit.Beat(BRUSHES, 60, {.bar = 0, .bars = 2});
	kit.Beat(TICK_TOCK, 60, {.bar = 2, .bars = 2});
	kit.Beat(BRUSHES, 60, {.bar = 4, .bars = 2});
	kit.Beat(TICK_TOCK, 60, {.bar = 6, .bars = 2});
	kit.Beat("clap ....x.......x...", 40, {.bar = 2, .bars = 1});
	kit.Beat("clap ....x.......x...", 40, {.bar = 6, .bars = 1});
	kit.Beat("triangle ............o...", 46, {.bar = 7});
}

void Quiz::Song()
{
	score.Open("song", "F6 | C/E | Dm7 | Am7 | F6 | Em7 | D7 G7 | C6", 2);
	bass.Line("f2q a2q c3q a2q | e3q c3q g2q c3q | d3q f2q a2q c3q | a2q c3q e3q c3q |"
	          "f2q a2q c3q d3q | e3q b2q g2q e2q | d2q f#2q g2q b2q | c3q g2q e2q rq",
	          86);
	guitar.Strike("x...x...x...x..x", 52, 50, .35, .008);
	clarinet.Lead("a5q. g5e f5q a5q | g5q. e5e c5q e5q' | R | rh. a4e b4e |"
	              "c5q a4e c5q f5q. | e5q b4e e5q g5q' re | R | R",
	              84);
	vibes.Line("R | R | f5q. e5e d5q f5q | e5h. rq | R | R | f#5q a5q g5q b4q | c5h. rq", 80);
	vibes.Strike("......x.......x.", 60, 46, .4, 0, {.bar = 0, .bars = 2});
	vibes.Strike("......x.......x.", 60, 46, .4, 0, {.bar = 4, .bars = 2});
	pizz.Line("rq c5q' rq f4q' | rq c5q' rq g4q' | rq a4q' rq f4q' | rq c5q' rq e4q' |"
	          "rq a4q' rq c5q' | rq g4q' rq b4q' | rq a4q' rq f4q' | e4q' g4q' c5q' rq",
	          60);
	kit.Beat("ride x...x.o.x...x.o. | pedal ....x.......x... | kick o.......o.......", 50,
	         {.bar = 0, .bars = 7});
	kit.Beat("brush x...o...x.o.x.xx", 58, {.bar = 7});
}

// The same questions; now the clarinet knows.
void Quiz::Answers()
{
	score.Open("answers", CHORDS, 4);
	bass.Line(WALK, 86);
	guitar.Strike("x...x..xx...x...", 52, 50, .35, .008);
	vibes.Lead("c5q e5e g5q e5e d5e c5e | a4q c5e e5q. g5q' | R | R |"
	           "c5q e5e g5q e5e g5e a5e | a5q g5e e5q. b5q' | R | R",
	           86);
	pizz.Line("c4q' re g4q' re e4q' | c4q' re e4q' re g4q' | R | R | c4q' re g4q' re e4q' |"
	          "c4q' re e4q' re g4q' | R | R",
	          62);
	clarinet.Lead("R | R | f5q e5e c5q a4e c5q | d5h' g4q' rq | R | R | d5q f5q g5e f5e d5e b4e |"
	              "c5q g5q' c5q' rq",
	              84);
	vibes.Line("R | R | rq c5e' rq re f5q' | rq b4e' d5e' g5q' rq | R | R | rh b4q' f5q' |"
	           "rh e5q' rq",
	           58);
	kit.Beat(BRUSHES, 62, {.bar = 0, .bars = 7});
	kit.Beat("clap ....x.......x...", 42, {.bar = 2, .bars = 2});
	kit.Beat("clap ....x.......x...", 42, {.bar = 6, .bars = 1});
	kit.Beat("brush x...x.......x... | triangle ........x.......", 56, {.bar = 7});
}

void Quiz::Turn()
{
	score.Open("turn", "Am7 | D7 | Dm7 | G7");
	bass.Line("a2q g2q e2q eb3q | d3q c3q a2q f#2q | d2q f2q a2q ab2q | g2q rq g2q rq", 84);
	guitar.Strike("x...x...x...x...", 52, 48, .35, .008, {.bar = 0, .bars = 3});
	clarinet.Line("c5q. a4e e5q c5q | c5q. a4e f#4h | R | R", 74);
	vibes.Line("R | rh f#5e a5e c6q' | f5e d5e a4e f4e rh | rq d5e' f5e' b5q' rq", 70);
	pizz.Line("R3 | rq rq rq g4q'", 72);
	kit.Beat(BRUSHES, 58, {.bar = 0, .bars = 3});
	kit.Beat(TICK_TOCK, 62, {.bar = 3});
}

void ComposeQuiz(Score& score)
{
	score.tempo = 112;
	score.swing = .3;
	score.loops = true;
	Quiz quiz{score};
	quiz.Intro();
	quiz.Questions();
	quiz.Song();
	quiz.Answers();
	quiz.Turn();
}
