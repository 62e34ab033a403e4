// The eleven pieces of music, and the cross-fade from one to the next.
#include "sound/sound.h"
#include "sound/sound_manager.h"
#include "sound/sound_state.h"

enum MusicTrack {
	TRACK_TITLE,
	TRACK_MAP,
	TRACK_BONUS,
	TRACK_ALIEN,
	TRACK_QUIZ,
	TRACK_STORY,
	TRACK_STAGE_1,
	TRACK_STAGE_5 = TRACK_STAGE_1 + 4,
	TRACKS
};

static const char* const s_trackFiles[TRACKS] = {
    "title.mdt",  "map.mdt",    "bonus.mdt",  "alien.mdt",  "quiz.mdt",   "story.mdt",
    "stage1.mdt", "stage2.mdt", "stage3.mdt", "stage4.mdt", "stage5.mdt",
};

static const int STAGE_TRACKS    = TRACK_STAGE_5 - TRACK_STAGE_1 + 1;
static const int FADE_OUT_FRAMES = 15;
static const int FADE_IN_FRAMES  = 30;

static CSound* s_tracks[TRACKS]; // owned; null until they are loaded
static CSound* s_currentMusic = nullptr;
static std::string s_musicWanted; // file name, empty for none; known in silence too
static int s_nextStageTrack = 0;  // the last stage track used, 1 to 5

void LoadMusicTracks()
{
	if (!soundEnabled)
		return;
	for (int i = 0; i < TRACKS; i++)
		s_tracks[i] = new CSound(s_trackFiles[i], true);
}

void DeleteMusicTracks()
{
	s_currentMusic = nullptr;
	for (CSound*& track : s_tracks) {
		if (!track)
			continue;
		const int handleIndex = track->handleIndex;
		delete track;
		track = nullptr;
		FreeSoundHandle(handleIndex);
	}
}

static void CrossFadeTo(int number, bool loop)
{
	s_musicWanted = s_trackFiles[number];
	CSound* track = s_tracks[number];
	if (!soundEnabled || !track || track == s_currentMusic)
		return;
	if (s_currentMusic)
		s_currentMusic->FadeOut(FADE_OUT_FRAMES);
	s_currentMusic = track;
	track->FadeIn(FADE_IN_FRAMES);
	track->Play(loop);
}

void PlayTitleMusic()
{
	CrossFadeTo(TRACK_TITLE, true);
}

void PlayMapMusic()
{
	CrossFadeTo(TRACK_MAP, true);
}

void PlayBonusMusic()
{
	CrossFadeTo(TRACK_BONUS, true);
}

void PlayAlienMusic()
{
	CrossFadeTo(TRACK_ALIEN, true);
}

void PlayQuizMusic()
{
	CrossFadeTo(TRACK_QUIZ, true);
}

void PlayStoryMusic()
{
	CrossFadeTo(TRACK_STORY, true);
}

void PlayNextStageMusic()
{
	s_nextStageTrack = s_nextStageTrack % STAGE_TRACKS + 1;
	CrossFadeTo(TRACK_STAGE_1 + s_nextStageTrack - 1, false);
}

void StopMusic()
{
	s_musicWanted.clear();
	if (s_currentMusic && soundEnabled)
		s_currentMusic->FadeOut(FADE_OUT_FRAMES);
	s_currentMusic = nullptr;
}

const std::string& CurrentMusicName()
{
	return s_musicWanted;
}
