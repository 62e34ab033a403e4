// One small room that all effects share.
#pragma once

#include "art/sounds/wave.h"

struct Room {
	double wet    = -18;  // dB against the dry sound
	double decay  = .25;  // seconds to fall by 60 dB
	double size   = .8;   // 1: about 8 m across
	double treble = 5000; // Hz above which its walls swallow
};

// The sound in the room, longer by its decay.
Wave InRoom(const Wave& dry, const Room& room);
