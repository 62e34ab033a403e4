// Plays a score: the synthesizer with the sound font, then the levels of a finished recording.
#pragma once

#include "art/music/score.h"
#include "art/sounds/loudness.h"

extern const char* const SOUND_FONT; // the file that all instruments come from
// Says in one line that the file is missing; empty when it is there.
std::string SoundFontFault(const std::string& path);

// The raw recording. A score that loops gives one pass whose start carries the tails of its end;
// others end in silence. `only`: a single player, -1 for all. False, with the reason in `fault`,
// for a faulty score and without the sound font.
bool Perform(const Score& score, Sound& sound, std::string& fault, int only = -1);
// Perform, equalised, brought to the score's loudness and kept under the ceiling.
bool Record(const Score& score, Sound& sound, std::string& fault);
