// The choice of sound system and driver: stored, or asked for on the console.
#pragma once

#include "sound/fmod.h"

#include <cstdio>

// Before the system starts. Without a stored file the defaults stand; one that is no whole setting
// is reported and passed over; a choice that the system refuses is fatal.
void UseStoredSoundSettings(FMOD_SYSTEM* system);

// The dialogue on standard output, its answers read from the given file, and the choice stored.
// Where the answers end, or when there is no driver to choose from, it ends with the defaults for
// what was not answered and stores nothing.
void AskSoundSettings(FMOD_SYSTEM* system, FILE* answers);
