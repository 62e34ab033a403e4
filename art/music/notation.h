// Music as text: notes and chords, checked against the metre while they are read.
#pragma once

#include <string>
#include <vector>

// Times are in quarters from the start of the text; keys are MIDI keys, c4 is 60.
struct Note {
	double at = 0, length = 0;
	int key       = 0;
	bool accent   = false; // >
	bool staccato = false; // '
	bool scoop    = false; // / slides up into the note
	bool grace    = false; // (d5): played just before the note that follows
};

struct Phrase {
	std::vector<Note> notes;
	int bars = 0;
	std::string fault; // what is wrong, with the number of the bar; empty when all is well
};

struct Chord {
	double at = 0, length = 0;
	int root = 0, bass = 0; // pitch classes, 0 is c
	std::vector<int> tones; // pitch classes, the root first
	std::string name;
};

struct Harmony {
	std::vector<Chord> chords;
	int bars = 0;
	std::string fault;
};

// "c5q e5e g5q. r_ | a5w": a letter, # or b, the octave, then w h q e s for whole to sixteenth,
// a dot for half as much again, t for a triplet. r is a rest; R a bar's rest, R3 three. After a
// note ~ ties it to the next, > ' / stand for accent, staccato and scoop. Every | must stand
// where a bar ends.
Phrase ReadPhrase(const std::string& text, double barLength);
// "C | Am7 F/A | G7": the chords of a bar share it evenly. Kinds: none m 7 m7 M7 6 m6 9 m9 sus dim.
Harmony ReadHarmony(const std::string& text, double barLength);
// "f#5" for 78.
std::string KeyName(int key);
