// What the sound manager and its sounds share; game code has no business here.
#pragma once

#include "sound/fmod.h"

#include <map>
#include <string>
#include <vector>

class CSound;

extern FMOD_SYSTEM* g_soundSystem;                 // null before the start and after the end
extern float soundVolume, musicVolume;             // class volumes, 0 to 1
extern std::vector<FMOD_SOUND> soundHandles;       // owned; 0 where a slot is free
extern std::map<std::string, int> preloadedSounds; // index in soundHandles
extern std::vector<CSound*> allSounds;             // every live one, in order of construction

// Fatal on any code but success: "Sound library error: " and the code's text.
void CheckSound(FMOD_RESULT result);
int StoreSoundHandle(FMOD_SOUND handle); // the index; a free slot goes first
void FreeSoundHandle(int index);
