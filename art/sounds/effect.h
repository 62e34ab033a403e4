// The last steps that all effects share: room, brightness, ends, level, coding.
#pragma once

#include "art/core/catalogue.h"
#include "art/sounds/room.h"
#include "art/sounds/voice.h"
#include "art/sounds/wave.h"

#include <string>

constexpr double ANIMAL_LEVEL = -20; // dB of Loudness: most calls

// Of a call: a room and brightness, since small speakers need the second and third formant.
struct Place {
	Room room     = {-17, .3, 1};
	double bright = 5; // dB above 1500 Hz
};

// Both add NAME.ogg, mono, at `level` dB of Loudness.
// A call starts at silence by its own curves.
void AddCall(Sink& sink, const std::string& name, const Call& call, double level = ANIMAL_LEVEL,
             const Place& place = {});
// A hit gets a breath of silence in front: room for the echo that coding puts before a blow.
void AddHit(Sink& sink, const std::string& name, const Wave& wave, double level,
            const Room& room = {}, double bright = 0);
// A loop keeps its length to the sample and has no fades. Mono and stereo.
void AddLoop(Sink& sink, const std::string& name, Sound loop, double level, double window = .4);
// Stereo, brought to level; the maker has seen to both ends.
void AddStereo(Sink& sink, const std::string& name, Sound sound, double level);
