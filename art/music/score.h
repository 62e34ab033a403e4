// A piece of music while it is written: sections of bars, and players that fill them.
#pragma once

#include "art/music/instruments.h"
#include "art/music/notation.h"

#include <cstdint>

// One note as it will be played.
struct Played {
	double from, to; // quarters
	double delay;    // seconds, the small unevenness of hands and a strum's spread
	int key, velocity, player;
	bool scoop;
};

const int EXPRESSION = 11, NORMAL_EXPRESSION = 110; // the controller of swells, and its rest

// A controller of the synthesizer set to a value.
struct Turn {
	double at; // quarters
	int player, controller, value;
};

struct Player {
	Instrument instrument;
	int volume, pan, reverb, chorus; // MIDI controllers, 0..127
	int vibrato   = 0;
	int swellSeen = -1; // section in which the expression was last moved
};

struct Section {
	std::string name;
	double at; // quarters
	int bars;
	std::vector<Chord> chords; // in the key that sounds, times from the section's start
	std::vector<Note> lead;    // likewise: the tune that the chords must carry
};

// How a line is played.
struct Manner {
	int octave  = 0;   // semitones up
	double gate = .92; // share of its length that a note is held
	int bar     = 0;   // of the section, where it begins
};

// Which bars of a section; none stand for all up to its end.
struct Span {
	int bar = 0, bars = 0;
};

class Score;

// A handle on one player; every call writes into the section that is open. Velocities are 1..127
// before accents, phrasing and the lift of the section.
class Part
{
public:
	// The tune itself; tests hold it against the chords.
	void Lead(const std::string& notes, int velocity, Manner manner = {});
	// A countermelody, an answer, a fill.
	void Line(const std::string& notes, int velocity, Manner manner = {});
	// A character a sixteenth, again and again: x strikes the chord, X harder, o softer. Voices
	// move as little as they can; the lowest lies within an octave above `low`. Chords of four
	// tones leave their root to the bass, of five the fifth too. `strum`: seconds between strings.
	void Strike(const std::string& row, int low, int velocity, double gate = .8, double strum = 0,
	            Span span = {});
	// The same with degrees: 1 the bass note, 3 5 7 tones of the chord, 8 the octave, 0 and 9 the
	// third and fifth above it, - holds. The bass note is the first at or above `low`.
	void Roll(const std::string& row, int low, int velocity, double gate = .9, Span span = {});
	// Degrees kept in the bass: 1 3 5 7 8; the fifth goes below where it would climb too high.
	void Ground(const std::string& row, int velocity, double gate = .9, Span span = {});
	// Lanes "kick x...x... | hat x.o.": the name of a drum and its row; o is softer, X louder.
	void Beat(const std::string& lanes, int velocity, Span span = {});
	// Grows or fades from bar to bar of the section, 0..127; 110 is normal and comes back with
	// the next section.
	void Swell(double fromBar, double toBar, int from, int to);

	Score* score;
	int index;
};

class Score
{
public:
	explicit Score(const std::string& name);

	// set before the first section
	double tempo     = 120;   // quarters a minute
	double barLength = 4;     // quarters
	bool compound    = false; // three quarters are two dotted beats (six-eight)
	double swing     = 0;     // 0 even, 1/3 the feel of triplets
	int transpose    = 0;     // semitones; pieces are written in C
	bool loops       = false;
	double loudness  = -16; // LUFS

	Part Add(const Instrument& instrument, int volume, int pan, int reverb = 50, int chorus = 0);
	void Vibrato(Part part, int depth) { players[part.index].vibrato = depth; }
	// Opens a section of as many bars as it has chords; `lift` is added to every velocity in it.
	void Open(const std::string& name, const std::string& chords, int lift = 0);
	// The tempo sinks evenly from bar to bar of the open section, to 1 / (1 + amount).
	void Ritard(double fromBar, double toBar, double amount);

	double Length() const { return Seconds(end); } // seconds, without the tail
	double Seconds(double quarter) const;

	std::string name;
	std::string fault; // the first slip found, with section, instrument and bar
	std::vector<Player> players;
	std::vector<Section> sections;
	std::vector<Played> played;
	std::vector<Turn> turns;

private:
	friend class Part;
	bool Check(const Part& part, const std::string& slip);
	void Sing(const Part& part, const Phrase& line, int velocity, const Manner& manner);
	void Play(const Part& part, double at, double length, int key, int velocity, double loose,
	          double delay = 0, bool scoop = false);
	int Accent(double at) const;
	double Random(); // gauss, about -2..2

	double end      = 0; // quarters
	int lift        = 0;
	double slowFrom = 0, slowTo = 0, slowBy = 0;
	uint64_t state;
};
