// Reads a finished score for slips that ears would catch.
#pragma once

#include "art/music/score.h"

// Each gives one line a slip, with section, bar and beat.

// Beats that carry the metre (the first, and the middle of bars of four or six-eight) on which the
// tune sounds a note that isn't in the chord.
std::vector<std::string> OffChord(const Score& score);
// Pairs of notes a semitone, or an octave more, apart that sound together longer than `seconds`.
std::vector<std::string> Clashes(const Score& score, double seconds);
// Notes outside of what their instrument plays well.
std::vector<std::string> OutOfRange(const Score& score);
