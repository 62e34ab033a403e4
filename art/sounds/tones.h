// Tones, bands of noise, bubbles, thuds and glides. Curves run over 0..1 of the length.
#pragma once

#include "art/sounds/curve.h"
#include "art/sounds/wave.h"

#include <cstdint>
#include <string>
#include <vector>

// Hz of a note such as "c5", "f#4" or "bb3"; a4 is 440.
double NoteHz(const std::string& note);
// Hz of step `step` (0 the first) up the scale C D E G A from the C of `octave`. These five notes
// lie in the keys of all pieces of music, so that nothing made of them clashes.
double CommonNoteHz(int octave, int step);

struct Wobble {
	double hz = 0, depth = 0; // depth as share of the pitch
};

// Harmonics by weight.
Wave Tone(double seconds, const Curve& pitch, const Curve& loud,
          const std::vector<double>& harmonics = {1}, Wobble wobble = {});
// Noise through two band filters; q .4 broad, 1.2 narrow.
Wave NoiseBand(double seconds, const Curve& centre, const Curve& q, const Curve& loud,
               uint64_t seed);
// A bubble in water, the mark of the game: its tone rises by the share `rise` while it dies.
Wave Bubble(double hz, double rise, double seconds, double attack = .004);
// A body that falls: a sinking tone with the harmonics that small speakers give of it, and
// `grit` of noise.
Wave Thud(double hz, double seconds, double grit, uint64_t seed);
// Two saws a little apart through a filter that follows them; `ring` beats them, in Hz.
Wave Glide(double seconds, const Curve& pitch, const Curve& loud, double ring = 0,
           Wobble wobble = {});
