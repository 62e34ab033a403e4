// The sound system as a whole. No audio library is linked: the system stays off, as after a failed
// start, and only the track wanted is remembered.
#include "sound/sound_manager.h"

#include "media/display.h"
#include "sound/sound.h"

static const int STAGE_TRACKS = 5;

bool soundEnabled = false;

CSound* g_mouseOverSound      = nullptr;
CSound* g_mouseSelectionSound = nullptr;
CSound* g_actionFailedSound   = nullptr;
CSound* g_trophySound         = nullptr;

static std::string s_musicWanted; // file name, empty for none
static int s_nextStageTrack = 0;  // the last stage track used, 1 to 5

void SoundInit(bool) {}

void LoadMusicTracks() {}

void LoadSoundResources(CDisplay*) {}

void SoundUpdate() {}

void SoundShutdown() {}

void DeleteMusicTracks() {}

void SetSoundVolume(float) {}

void SetMusicVolume(float) {}

float GetSoundVolume()
{
	return 0;
}

void PlayTitleMusic()
{
	s_musicWanted = "title.mdt";
}

void PlayMapMusic()
{
	s_musicWanted = "map.mdt";
}

void PlayBonusMusic()
{
	s_musicWanted = "bonus.mdt";
}

void PlayAlienMusic()
{
	s_musicWanted = "alien.mdt";
}

void PlayQuizMusic()
{
	s_musicWanted = "quiz.mdt";
}

void PlayStoryMusic()
{
	s_musicWanted = "story.mdt";
}

void PlayNextStageMusic()
{
	s_nextStageTrack = s_nextStageTrack % STAGE_TRACKS + 1;
	s_musicWanted    = "stage" + std::to_string(s_nextStageTrack) + ".mdt";
}

void StopMusic()
{
	s_musicWanted.clear();
}

void FadeOutLoopingSounds() {}

void FadeInLoopingSounds() {}

const std::string& CurrentMusicName()
{
	return s_musicWanted;
}

void CreateUiSounds()
{
	g_mouseOverSound      = new CSound("mouse_over.ogg");
	g_mouseSelectionSound = new CSound("mouse_selection.ogg");
	g_actionFailedSound   = new CSound("action_failed.ogg");
	g_trophySound         = new CSound("trophy_unlocked.ogg");
}

void DeleteUiSounds()
{
	for (CSound** sound :
	     {&g_mouseOverSound, &g_mouseSelectionSound, &g_actionFailedSound, &g_trophySound}) {
		delete *sound;
		*sound = nullptr;
	}
}
