// The engine's operations under their names: handles are looked up here, the engine does the work.
#include "sound/fmod.h"

#include "sound/engine.h"

#include <algorithm>
#include <cmath>
#include <cstring>

static bool IsSystem(const FMOD_SYSTEM* system)
{
	return system && system == g_soundEngine;
}

FMOD_RESULT FMOD_System_Create(FMOD_SYSTEM** system)
{
	if (g_soundEngine)
		return FMOD_ERR_INITIALIZED;
	*system = g_soundEngine = new CSoundEngine;
	return FMOD_OK;
}

FMOD_RESULT FMOD_System_SetOutput(FMOD_SYSTEM* system, int outputType)
{
	return IsSystem(system) ? system->SelectOutput(outputType) : FMOD_ERR_INVALID_HANDLE;
}

static std::vector<std::string> DriverNames(FMOD_SYSTEM* system)
{
	return system->output ? system->output->DriverNames() : std::vector<std::string>();
}

FMOD_RESULT FMOD_System_GetNumDrivers(FMOD_SYSTEM* system, int* count)
{
	if (!IsSystem(system))
		return FMOD_ERR_INVALID_HANDLE;
	*count = static_cast<int>(DriverNames(system).size());
	return FMOD_OK;
}

FMOD_RESULT FMOD_System_GetDriverName(FMOD_SYSTEM* system, int driver, char* name, int size)
{
	if (!IsSystem(system))
		return FMOD_ERR_INVALID_HANDLE;
	const std::vector<std::string> names = DriverNames(system);
	if (driver < 0 || driver >= static_cast<int>(names.size()) || size < 1)
		return FMOD_ERR_INVALID_PARAM;
	const size_t length = std::min(names[driver].size(), static_cast<size_t>(size) - 1);
	std::memcpy(name, names[driver].data(), length);
	name[length] = 0;
	return FMOD_OK;
}

FMOD_RESULT FMOD_System_SetDriver(FMOD_SYSTEM* system, int driver)
{
	return IsSystem(system) ? system->SelectDriver(driver) : FMOD_ERR_INVALID_HANDLE;
}

FMOD_RESULT FMOD_System_Init(FMOD_SYSTEM* system, int channels)
{
	return IsSystem(system) ? system->Init(channels) : FMOD_ERR_INVALID_HANDLE;
}

FMOD_RESULT FMOD_System_Update(FMOD_SYSTEM* system)
{
	return IsSystem(system) ? system->Update() : FMOD_ERR_INVALID_HANDLE;
}

FMOD_RESULT FMOD_System_Close(FMOD_SYSTEM* system)
{
	if (!IsSystem(system))
		return FMOD_ERR_INVALID_HANDLE;
	system->Close();
	return FMOD_OK;
}

FMOD_RESULT FMOD_System_Release(FMOD_SYSTEM* system)
{
	if (!IsSystem(system))
		return FMOD_ERR_INVALID_HANDLE;
	delete system;
	g_soundEngine = nullptr;
	return FMOD_OK;
}

FMOD_RESULT FMOD_System_CreateSound(FMOD_SYSTEM* system, const char* nameOrData, FMOD_MODE mode,
                                    const FMOD_CREATESOUNDEXINFO* info, FMOD_SOUND* sound)
{
	if (!IsSystem(system))
		return FMOD_ERR_INVALID_HANDLE;
	const bool fromMemory = mode & FMOD_OPENMEMORY;
	if (fromMemory ? !info || (!nameOrData && info->length > 0) : !nameOrData)
		return FMOD_ERR_INVALID_PARAM;
	if (!fromMemory)
		return system->CreateFromFile(nameOrData, sound);
	return system->CreateFromMemory(reinterpret_cast<const unsigned char*>(nameOrData),
	                                info->length, sound);
}

FMOD_RESULT FMOD_Sound_SetMode(FMOD_SOUND sound, FMOD_MODE mode)
{
	if (!g_soundEngine)
		return FMOD_ERR_INVALID_HANDLE;
	return mode & FMOD_LOOP_OFF ? g_soundEngine->SetLooping(sound, false) : FMOD_ERR_INVALID_PARAM;
}

FMOD_RESULT FMOD_Sound_SetLoopCount(FMOD_SOUND sound, int count)
{
	if (!g_soundEngine)
		return FMOD_ERR_INVALID_HANDLE;
	if (count != -1 && count != 0)
		return FMOD_ERR_INVALID_PARAM;
	return g_soundEngine->SetLooping(sound, count == -1);
}

FMOD_RESULT FMOD_Sound_Release(FMOD_SOUND sound)
{
	return g_soundEngine ? g_soundEngine->ReleaseSound(sound) : FMOD_ERR_INVALID_HANDLE;
}

FMOD_RESULT FMOD_System_PlaySound(FMOD_SYSTEM* system, FMOD_SOUND sound, bool paused,
                                  FMOD_CHANNEL* channel)
{
	return IsSystem(system) ? system->Play(sound, paused, channel) : FMOD_ERR_INVALID_HANDLE;
}

static FMOD_RESULT Find(FMOD_CHANNEL handle, EngineChannel*& channel)
{
	return g_soundEngine ? g_soundEngine->FindChannel(handle, channel) : FMOD_ERR_INVALID_HANDLE;
}

FMOD_RESULT FMOD_Channel_SetPaused(FMOD_CHANNEL handle, bool paused)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	return result == FMOD_OK ? g_soundEngine->SetPaused(*channel, paused) : result;
}

FMOD_RESULT FMOD_Channel_SetVolume(FMOD_CHANNEL handle, float volume)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	if (result != FMOD_OK)
		return result;
	if (std::isnan(volume))
		return FMOD_ERR_INVALID_PARAM;
	alSourcef(channel->source, AL_GAIN, std::clamp(volume, 0.0f, 1.0f));
	return FMOD_OK;
}

FMOD_RESULT FMOD_Channel_Stop(FMOD_CHANNEL handle)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	if (result == FMOD_OK)
		g_soundEngine->StopChannel(*channel);
	return result;
}

FMOD_RESULT FMOD_Channel_GetFrequency(FMOD_CHANNEL handle, float* frequency)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	if (result != FMOD_OK)
		return result;
	const EngineSound* sound = g_soundEngine->FindSound(channel->sound);
	if (!sound)
		return FMOD_ERR_INVALID_HANDLE;
	float pitch = 1;
	alGetSourcef(channel->source, AL_PITCH, &pitch);
	*frequency = static_cast<float>(sound->rate) * pitch;
	return FMOD_OK;
}

FMOD_RESULT FMOD_Channel_SetFrequency(FMOD_CHANNEL handle, float frequency)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	if (result != FMOD_OK)
		return result;
	const EngineSound* sound = g_soundEngine->FindSound(channel->sound);
	if (!sound)
		return FMOD_ERR_INVALID_HANDLE;
	// A pitch of 0 would be taken without a word, and stand still for ever.
	if (!(frequency > 0) || std::isinf(frequency))
		return FMOD_ERR_INVALID_PARAM;
	alSourcef(channel->source, AL_PITCH, frequency / static_cast<float>(sound->rate));
	return FMOD_OK;
}

FMOD_RESULT FMOD_Channel_GetCurrentSound(FMOD_CHANNEL handle, FMOD_SOUND* sound)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	if (result == FMOD_OK)
		*sound = channel->sound;
	return result;
}

FMOD_RESULT FMOD_Channel_IsPlaying(FMOD_CHANNEL handle, bool* playing)
{
	EngineChannel* channel   = nullptr;
	const FMOD_RESULT result = Find(handle, channel);
	if (result == FMOD_OK)
		*playing = g_soundEngine->IsBusy(*channel);
	return result;
}

const char* FMOD_ErrorString(int code)
{
	switch (code) {
	case FMOD_OK:
		return "No errors.";
	case FMOD_ERR_CHANNEL_STOLEN:
		return "The specified channel has been reused to play another sound.";
	case FMOD_ERR_FILE_BAD:
		return "Error loading file.";
	case FMOD_ERR_FILE_NOTFOUND:
		return "File not found.";
	case FMOD_ERR_FORMAT:
		return "Unsupported file or audio format.";
	case FMOD_ERR_INITIALIZED:
		return "Cannot call this command after System::init.";
	case FMOD_ERR_INVALID_HANDLE:
		return "An invalid object handle was used.";
	case FMOD_ERR_INVALID_PARAM:
		return "An invalid parameter was passed to this function.";
	case FMOD_ERR_MEMORY:
		return "Not enough memory or resources.";
	case FMOD_ERR_OUTPUT_DRIVERCALL:
		return "A call to a standard soundcard driver failed, which could possibly mean a bug in "
		       "the driver or resources were missing or exhausted.";
	case FMOD_ERR_OUTPUT_INIT:
		return "Error initializing output device.";
	case FMOD_ERR_UNINITIALIZED:
		return "This command failed because System::init or System::setDriver was not called.";
	}
	return "Unknown error.";
}
