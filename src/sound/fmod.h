// The sound engine's operations: system, sounds, channels. Each gives a result code, 0 on success.
#pragma once

#include <cstdint>

class CSoundEngine;

typedef CSoundEngine FMOD_SYSTEM; // at most one exists at a time
typedef uint32_t FMOD_SOUND;      // a handle; 0 is none
typedef uint32_t FMOD_CHANNEL;    // a handle; 0 is none. It goes stale when another sound takes
                                  // the channel over: every operation then gives a code.
typedef uint32_t FMOD_MODE;

// Only the codes that can occur; their numbers are those of the published table.
enum FMOD_RESULT {
	FMOD_OK                    = 0,
	FMOD_ERR_CHANNEL_STOLEN    = 11,
	FMOD_ERR_FILE_BAD          = 19,
	FMOD_ERR_FILE_NOTFOUND     = 23,
	FMOD_ERR_FORMAT            = 25,
	FMOD_ERR_INITIALIZED       = 32,
	FMOD_ERR_INVALID_HANDLE    = 36,
	FMOD_ERR_INVALID_PARAM     = 37,
	FMOD_ERR_MEMORY            = 44,
	FMOD_ERR_OUTPUT_DRIVERCALL = 53,
	FMOD_ERR_OUTPUT_INIT       = 55,
	FMOD_ERR_UNINITIALIZED     = 68,
};

// What this platform has under the three numbers that a player can choose and store.
enum FMOD_OUTPUTTYPE {
	FMOD_OUTPUTTYPE_PULSEAUDIO = 6,
	FMOD_OUTPUTTYPE_ALSA       = 7,
	FMOD_OUTPUTTYPE_JACK       = 8,
};

const FMOD_MODE FMOD_LOOP_OFF   = 0x1;
const FMOD_MODE FMOD_SOFTWARE   = 0x40; // the only way there is
const FMOD_MODE FMOD_OPENMEMORY = 0x800;

struct FMOD_CREATESOUNDEXINFO {
	uint32_t length = 0; // bytes, for FMOD_OPENMEMORY
};

// System. Output and driver are chosen before Init; the output not again once the engine has
// looked for drivers or a device. Init needs an output device: FMOD_ERR_OUTPUT_INIT without one.
FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system);
FMOD_RESULT FMOD_System_SetOutput(FMOD_SYSTEM* system, int outputType);
FMOD_RESULT FMOD_System_GetNumDrivers(FMOD_SYSTEM* system, int* count);
FMOD_RESULT FMOD_System_GetDriverName(FMOD_SYSTEM* system, int driver, char* name, int size);
FMOD_RESULT FMOD_System_SetDriver(FMOD_SYSTEM* system, int driver);
FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM* system, int channels);
// FMOD_ERR_OUTPUT_DRIVERCALL once the device has vanished; the system stays silent from then on.
FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM* system);
FMOD_RESULT FMOD_System_Close(FMOD_SYSTEM* system); // frees every sound
FMOD_RESULT FMOD_System_Release(FMOD_SYSTEM* system);

// Sounds. The format is told by the content. With FMOD_OPENMEMORY the bytes are copied and decoded
// whole on threads of the engine; the first other operation on the sound waits for that and gives
// the code with which it failed. A sound from a file stays encoded and is decoded while it plays;
// it has one voice: playing it anew ends the former.
FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM* system, const char* nameOrData, FMOD_MODE mode,
                                    const FMOD_CREATESOUNDEXINFO* info, FMOD_SOUND* sound);
FMOD_RESULT FMOD_Sound_SetMode(FMOD_SOUND sound, FMOD_MODE mode);
// -1: endless, heard from the next FMOD_System_PlaySound on; 0: once, as FMOD_LOOP_OFF.
FMOD_RESULT FMOD_Sound_SetLoopCount(FMOD_SOUND sound, int count);
FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND sound); // stops its channels

// Channels. When all are busy the one that was started first is taken over.
FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM* system, FMOD_SOUND sound, bool paused,
                                  FMOD_CHANNEL* channel);
FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL channel, bool paused);
FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL channel, float volume); // linear; cut to 0 to 1
FMOD_RESULT FMOD_Channel_Stop(FMOD_CHANNEL channel);
FMOD_RESULT FMOD_Channel_GetFrequency(FMOD_CHANNEL channel, float* frequency); // Hz
FMOD_RESULT FMOD_Channel_SetFrequency(FMOD_CHANNEL channel, float frequency);  // above 0
FMOD_RESULT FMOD_Channel_GetCurrentSound(FMOD_CHANNEL channel, FMOD_SOUND* sound);
FMOD_RESULT FMOD_Channel_IsPlaying(FMOD_CHANNEL channel, bool* playing);

const char* FMOD_ErrorString(int code);
