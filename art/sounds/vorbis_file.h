// Sounds to OGG Vorbis bytes and back.
#pragma once

#include "art/sounds/wave.h"

#include <string>

// The same bytes for the same sound in every run. quality -0.1..1; mono or stereo as the sound is.
std::string EncodeVorbis(const Sound& sound, float quality);
// False for bytes that are no Vorbis stream of one or two sides at 44100 Hz.
bool DecodeVorbis(const std::string& bytes, Sound& sound);
