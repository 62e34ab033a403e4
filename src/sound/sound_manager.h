// The sound system as a whole: start-up, class volumes, music by situation, the frame's step.
#pragma once

#include <string>

class CDisplay;
class CSound;

const int SOUND_COUNT          = 141;
const int SOUND_LOADING_WEIGHT = 100;                                // bar units a sound
const int SOUND_LOADING_TOTAL  = SOUND_COUNT * SOUND_LOADING_WEIGHT; // 14100

extern bool soundEnabled; // set once the sound system has started

void SoundInit(bool useStoredSettings);
void LoadMusicTracks();
void LoadSoundResources(CDisplay* display);
void SoundUpdate(); // once a frame
void SoundShutdown();
void DeleteMusicTracks();
void SetSoundVolume(float volume); // class volumes, 0 to 1
void SetMusicVolume(float volume);
float GetSoundVolume();
void PlayTitleMusic();
void PlayMapMusic();
void PlayBonusMusic();
void PlayAlienMusic();
void PlayQuizMusic();
void PlayStoryMusic();
void PlayNextStageMusic(); // stage tracks turn from 1 to 5, across levels
void StopMusic();
void FadeOutLoopingSounds();           // play is interrupted
void FadeInLoopingSounds();            // play goes on
const std::string& CurrentMusicName(); // file of the track wanted now, empty for none

// The four sounds that all screens share, in this order.
void CreateUiSounds();
void DeleteUiSounds();
extern CSound* g_mouseOverSound;
extern CSound* g_mouseSelectionSound;
extern CSound* g_actionFailedSound;
extern CSound* g_trophySound;
