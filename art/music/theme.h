// The tune that all pieces share, in C: a hop up the chord that falls back by step.
#pragma once

// clang-format off
// A: bars 1-8.
inline const char* const THEME_A =
	"c5q e5e g5q e5e d5e c5e | a4q c5e e5q. d5e c5e | f5q e5e c5q a4e c5q | d5h. g4e a4e |"
	"c5q e5e g5q e5e g5e a5e | a5q g5e e5q. d5e c5e | d5q f5q g5e f5e d5e b4e | c5h. rq";
inline const char* const THEME_A_CHORDS = "C | Am | F | G | C | Am | Dm7 G7 | C";
// Lies ten semitones below and moves where the tune rests.
inline const char* const THEME_A_COUNTER =
	"e4h. d4q | c4h. e4q | a4h c4h | b3q d4q g4q f4q |"
	"e4h. g4q | a4h e4h | f4h d4q f4q | e4q g4q c5h";
// A livelier second voice for later returns.
inline const char* const THEME_A_DESCANT =
	"e4q. f4e g4q e4q | e4h. a4q | a4q. g4e f4q a4q | g4q a4e b4e g4q f4q |"
	"e4q g4q e4q c4q | c4q e4h a4q | f4q a4q b4q f4q | e4q g4e a4e g4h";

// B sings from the top and comes home through D7.
inline const char* const THEME_B =
	"a5q. g5e f5q a5q | g5q. e5e c5q e5q | f5q. e5e d5q f5q | e5h. a4e b4e |"
	"c5q a4e c5q f5q. | e5q c5e e5q g5q. | f#5q a5q g5q b4q | c5h. rq";
inline const char* const THEME_B_CHORDS = "F | C/E | Dm | Am | F | C/E | D7 G7 | C";
inline const char* const THEME_B_COUNTER =
	"c4h f4h | e4h g4h | a4h f4h | c4q e4q a4q e4q |"
	"f4h a4h | g4h e4h | f#4h f4h | e4q g4q e4h";

// The bridge, in the relative minor.
inline const char* const BRIDGE =
	"e5q c5e a4q c5e d5e e5e | g5q e5e b4q. d5e e5e | f5q e5e c5q a4e c5q | e5h. c5e d5e |"
	"e5q c5e a4q c5e d5e e5e | g5q e5e b4q. a4e b4e | d5q f5q a5q f5q | g5h. g4e a4e";
inline const char* const BRIDGE_CHORDS = "Am | Em | F | C | Am | Em | Dm7 | G7";
// clang-format on

const int OCTAVE_UP = 12, OCTAVE_DOWN = -12; // semitones
