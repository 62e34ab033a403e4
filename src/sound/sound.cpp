// One thing that can be heard; with the sound system off nothing can.
#include "sound/sound.h"

#include "sound/sound_manager.h"

CSound::CSound(const std::string& newName, bool newIsMusic) : name(newName), isMusic(newIsMusic) {}

CSound::~CSound()
{
	Stop();
}

void CSound::Play(bool, int, float) {}

void CSound::Stop() {}

bool CSound::IsPlaying() const
{
	return false;
}

void CSound::SetVolume(float) {}

float CSound::GetVolume() const
{
	return 0;
}

void CSound::FadeOut(int) {}

void CSound::FadeIn(int) {}

bool CSound::IsFadingOut() const
{
	return false;
}

bool CSound::IsFadingIn() const
{
	return false;
}
