// One thing that can be heard; with the sound system off nothing can.
#include "sound/sound.h"

#include "frame/debug.h"
#include "sound/sound_manager.h"
#include "sound/sound_state.h"

#include <algorithm>

static const char* const NOT_FOUND_TEXT = "Unable to find preloaded sound: ";

static int OpenTrack(const std::string& file)
{
	FMOD_SOUND handle = 0;
	const FMOD_RESULT result =
	    FMOD_System_CreateSound(g_soundSystem, file.c_str(), FMOD_SOFTWARE, nullptr, &handle);
	if (result != FMOD_OK)
		LogLine("Cannot play music: " + file); // the message to come does not name it
	CheckSound(result);
	CheckSound(FMOD_Sound_SetMode(handle, FMOD_LOOP_OFF));
	return StoreSoundHandle(handle);
}

static int FindEffect(const std::string& entry)
{
	const auto found = preloadedSounds.find(entry);
	if (found == preloadedSounds.end())
		Error(NOT_FOUND_TEXT, entry, true, true);
	return found->second;
}

CSound::CSound(const std::string& newName, bool newIsMusic) : name(newName), isMusic(newIsMusic)
{
	if (!soundEnabled)
		return;
	handleIndex = isMusic ? OpenTrack(name) : FindEffect(name);
	volume      = ClassVolume();
	allSounds.push_back(this);
}

// It may outlive the sound system, and must leave the list all the same.
CSound::~CSound()
{
	if (IsPlaying())
		FMOD_Channel_Stop(channel);
	const auto found = std::find(allSounds.rbegin(), allSounds.rend(), this);
	if (found != allSounds.rend())
		allSounds.erase(std::next(found).base());
}

float CSound::ClassVolume() const
{
	return isMusic ? musicVolume : soundVolume;
}

void CSound::Play(bool loop, int newDelayFrames, float pitch)
{
	if (!soundEnabled || handleIndex < 0)
		return;
	if (ClassVolume() == 0 && !loop)
		return;
	if (newDelayFrames != 0) {
		delayFrames = newDelayFrames;
		return;
	}
	const FMOD_SOUND handle = soundHandles[handleIndex];
	// The setting is the sound's and other objects share it: an earlier loop must not stick.
	CheckSound(loop ? FMOD_Sound_SetLoopCount(handle, -1)
	                : FMOD_Sound_SetMode(handle, FMOD_LOOP_OFF));
	CheckSound(FMOD_System_PlaySound(g_soundSystem, handle, true, &channel));
	CheckSound(FMOD_Channel_SetVolume(channel, volume));
	if (pitch != 0) {
		float frequency = 0;
		CheckSound(FMOD_Channel_GetFrequency(channel, &frequency));
		CheckSound(FMOD_Channel_SetFrequency(channel, frequency * pitch));
	}
	CheckSound(FMOD_Channel_SetPaused(channel, false));
	looping = loop;
}

void CSound::Stop()
{
	if (IsPlaying())
		CheckSound(FMOD_Channel_Stop(channel));
}

bool CSound::IsPlaying() const
{
	if (!soundEnabled || channel == 0)
		return false;
	FMOD_SOUND current = 0;
	bool playing       = false;
	return FMOD_Channel_GetCurrentSound(channel, &current) == FMOD_OK &&
	       current == soundHandles[handleIndex] &&
	       FMOD_Channel_IsPlaying(channel, &playing) == FMOD_OK && playing;
}

void CSound::ApplyVolume()
{
	if (IsPlaying())
		CheckSound(FMOD_Channel_SetVolume(channel, volume));
}

void CSound::SetVolume(float newVolume)
{
	if (!soundEnabled)
		return;
	volume = newVolume;
	ApplyVolume();
}

float CSound::GetVolume() const
{
	return soundEnabled ? volume : 0;
}

// A fade started during the opposite one goes on from the volume reached.
void CSound::FadeOut(int frames)
{
	if (!soundEnabled)
		return;
	if (!IsFadingIn())
		volume = ClassVolume();
	fadeInFrames  = -1;
	fadeOutFrames = frames;
}

void CSound::FadeIn(int frames)
{
	if (!soundEnabled)
		return;
	if (!IsFadingOut())
		volume = 0;
	fadeOutFrames = -1;
	fadeInFrames  = frames;
}

bool CSound::IsFadingOut() const
{
	return soundEnabled && fadeOutFrames != -1;
}

bool CSound::IsFadingIn() const
{
	return soundEnabled && fadeInFrames != -1;
}

// A faded loop of the effects keeps running unheard, so that it can be faded in again.
void CSound::StepFadeOut()
{
	volume = fadeOutFrames == 0 ? 0 : volume - volume / static_cast<float>(fadeOutFrames);
	ApplyVolume();
	if (volume == 0 && (isMusic || !looping)) {
		Stop();
		volume = ClassVolume();
	}
	fadeOutFrames--;
}

void CSound::StepFadeIn()
{
	const float target = ClassVolume();
	volume =
	    fadeInFrames == 0 ? target : (target - volume) / static_cast<float>(fadeInFrames) + volume;
	ApplyVolume();
	fadeInFrames--;
}

void CSound::Update()
{
	if (fadeOutFrames >= 0)
		StepFadeOut();
	else if (fadeInFrames >= 0)
		StepFadeIn();
	if (delayFrames > 0 && --delayFrames == 0)
		Play();
}
