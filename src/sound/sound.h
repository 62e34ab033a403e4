// One thing that can be heard: a sound effect or a track of music.
#pragma once

#include "sound/fmod.h"

#include <string>

// Game code makes one where it needs one and calls Play; the sound manager runs volume, fades and
// delayed starts once a frame. With the sound system off every operation does nothing.
class CSound
{
public:
	// An effect by the name of its archive entry, or a track by the name of its file. Fatal when
	// there is none.
	explicit CSound(const std::string& name, bool isMusic = false);
	~CSound();
	CSound(const CSound&)            = delete;
	CSound& operator=(const CSound&) = delete;

	// delayFrames above 0 starts it later, without loop or pitch. A pitch of 0 leaves it as it is.
	// At class volume 0 only a loop starts, so that it is heard when the volume rises.
	void Play(bool loop = false, int delayFrames = 0, float pitch = 0);
	void Stop();
	bool IsPlaying() const;          // false too when its channel has gone over to another sound
	void SetVolume(float newVolume); // 0 to 1
	float GetVolume() const;
	void FadeOut(int frames);
	void FadeIn(int frames); // to the class volume
	bool IsFadingOut() const;
	bool IsFadingIn() const;

	void Update();             // a frame's step of fades and delay; for the manager
	float ClassVolume() const; // of the class that it belongs to

	std::string name;
	int handleIndex      = -1; // in soundHandles; -1 when it was made with the sound off
	FMOD_CHANNEL channel = 0;  // 0 until first played
	float volume         = 1;
	int fadeInFrames     = -1; // frames left, -1 when idle
	int fadeOutFrames    = -1;
	int delayFrames      = 0;
	bool isMusic;
	bool looping = false;

private:
	void ApplyVolume();
	void StepFadeOut();
	void StepFadeIn();
};
