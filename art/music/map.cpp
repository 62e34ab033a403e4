// Map: the theme at rest over a soft bossa, a finger on the chart and the sea in the distance.
#include "art/music/pieces.h"

namespace
{
struct Map {
	Score& score;
	Part pipes   = score.Add(PAN_FLUTE, 82, 72, 60);
	Part guitar  = score.Add(NYLON, 108, 44, 40);
	Part solo    = score.Add(NYLON, 118, 80, 50);
	Part pizz    = score.Add(PIZZICATO, 84, 50, 55);
	Part strings = score.Add(STRINGS, 88, 64, 70, 10);
	Part marimba = score.Add(MARIMBA, 90, 92, 50);
	Part bass    = score.Add(BASS, 92, 62, 15);
	Part kit     = score.Add(KIT, 106, 64, 30);

	void Intro();
	void Tune();
	void Song();
	void TuneOnGuitar();
	void Bridge();
	void Turn();
	void Bossa();
};
} // namespace

static const char* const REST_A =
    "c5q. e5e g5h | a4q. c5e e5h | f5q. e5e c5h | d5h. g4e a4e |"
    "c5q. e5e g5q. a5e | a5q. g5e e5h | d5q. f5e g5q f5e b4e | c5h. rq";
static const char* const REST_CHORDS = "C6 | Am7 | F6 | G7 | C6 | Am7 | Dm7 G7 | C6";
static const char* const REST_B      = "a5h f5q a5q | g5h. e5q | f5h d5q f5q | e5h. a4e b4e |"
                                       "c5h f5h | e5q. c5e g5h | f#5q. a5e g5q. b4e | c5h. rq";
static const char* const SONG_CHORDS = "F | C/E | Dm | Am7 | F | Em7 | D7 G7 | C6";
static const char* const SEA         = "shaker x.ooxoo.x.ooxoo. | rim x..x..x...x..x..";

void Map::Bossa()
{
	bass.Ground("1-----5-5-----1-1-----5-5---3---", 80);
	guitar.Strike("x..x...x..x..x..x..x...x..x.x...", 52, 60, .7, .012);
}

void Map::Intro()
{
	score.Open("intro", "C6 | F6");
	bass.Ground("1-----5-5-----1-", 74);
	guitar.Strike("x..x...x..x..x..", 52, 60, .7, .012);
	marimba.Line("rh rq g5e e5e | c5q. a4e c5q rq", 58);
	kit.Beat("shaker x.ooxoo.x.ooxoo.", 48);
}

void Map::Tune()
{
	score.Open("tune", REST_CHORDS);
	Bossa();
	pipes.Lead(REST_A, 80);
	marimba.Line("R | rh rq e5e c5e | R | rq b4e d5e g5q rq | R | rh rq c5e e5e | R |"
	             "rq g4e c5e e5e g5q.",
	             58);
	strings.Strike("X---------------", 55, 44, 1);
	strings.Swell(0, 4, 70, 96);
	strings.Swell(4, 8, 84, 100);
	kit.Beat(SEA, 46);
}

void Map::Song()
{
	score.Open("song", SONG_CHORDS, 2);
	Bossa();
	pipes.Lead(REST_B, 80);
	solo.Line("c5h. rq | rh g4e a4e c5q | a4h. rq | rq c5e e5e c5q rq | a4h c5h | b4h rh | R |"
	          "rq e4e g4e c5h",
	          66);
	strings.Strike("X---------------", 55, 50, 1);
	strings.Swell(0, 4, 84, 110);
	strings.Swell(4, 8, 96, 112);
	pizz.Strike("....x.......x...", 57, 52, .4);
	kit.Beat(SEA, 50);
	kit.Beat("triangle x.......o...o...", 40);
}

// The guitar takes the tune, the pipes answer where it rests.
void Map::TuneOnGuitar()
{
	score.Open("tune on guitar", REST_CHORDS, 3);
	Bossa();
	solo.Lead("c5q. e5e g5q e5e g5e | a4q. c5e e5q. d5e | f5q. e5e c5q a4e c5e | d5h. g4e a4e |"
	          "c5q e5e g5q. g5e a5e | a5q. g5e e5q d5e c5e | d5q. f5e g5q f5e b4e |"
	          "c5h. rq",
	          88, {.octave = OCTAVE_DOWN});
	pipes.Line("R | rh. e5e g5e | a5h. rq | rq b4e d5e g5h | e5h. rq | rh c5e e5e a5q | f5h d5h |"
	           "e5q. g5e e5h",
	           60);
	marimba.Roll("..5...8...0...8.", 48, 52);
	pizz.Strike("x.......x.......", 55, 50, .4);
	kit.Beat(SEA, 50);
	kit.Beat("congalow ......o.......oo", 52);
}

// Clouds pass: strings lead in the minor, guitar in slow arpeggios.
void Map::Bridge()
{
	score.Open("bridge", "Am7 | Em7 | F6 | C6 | Am7 | Em7 | Dm7 | G7");
	bass.Ground("1-------1---5---", 72);
	guitar.Roll("1.5.7.0.7.5.7.5.", 48, 58);
	strings.Lead("e5h c5h | g5h b4h | f5h c5h | e5h. c5e d5e | e5h c5h | g5h. e5q |"
	             "d5q f5q a5q f5q | g5h. rq",
	             66);
	strings.Swell(0, 6, 90, 110);
	strings.Swell(6, 8, 112, 96);
	marimba.Line("R | rh e5e d5e b4q | R | rh e5e g5e c5q | R | rh b4e d5e e5q | R |"
	             "rq g4e b4e d5e f5e rq",
	             58);
	pipes.Line("R3 | R3 | R | rh. g4e a4e", 72);
	kit.Beat("shaker x.o.x.o.x.o.x.o.", 46);
	kit.Beat("triangle x...............", 42);
}

void Map::Turn()
{
	score.Open("turn", "F6 | G7");
	Bossa();
	pipes.Line("a5q. g5e f5h | g5h d5h", 70);
	marimba.Line("rh c5e f5e a5q | rq g4e b4e d5q rq", 56);
	strings.Strike("X---------------", 55, 44, 1);
	kit.Beat(SEA, 46);
}

void ComposeMap(Score& score)
{
	score.tempo     = 92;
	score.transpose = 5;
	score.loops     = true;
	Map map{score};
	map.Intro();
	map.Tune();
	map.Song();
	map.TuneOnGuitar();
	map.Bridge();
	map.Turn();
}
