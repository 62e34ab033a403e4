// With the sound system off nothing is heard and nothing fails; the track wanted is still known.
#include "sound/sound.h"
#include "sound/sound_manager.h"

#include <gtest/gtest.h>

TEST(Sound, EveryOperationIsSafeWhileItIsOff)
{
	SoundInit(true);
	ASSERT_FALSE(soundEnabled);
	CSound sound("no_such_sound.ogg");
	sound.Play(true, 5, 1.5f);
	sound.FadeIn(10);
	sound.FadeOut(10);
	sound.SetVolume(0.5f);
	SoundUpdate();
	EXPECT_FALSE(sound.IsPlaying() || sound.IsFadingIn() || sound.IsFadingOut());
	EXPECT_EQ(0, sound.GetVolume());
	sound.Stop();
	FadeOutLoopingSounds();
	FadeInLoopingSounds();
	EXPECT_EQ(0, GetSoundVolume());
}

TEST(Sound, StageTracksTurnWhateverPlaysBetween)
{
	PlayNextStageMusic();
	std::string first = CurrentMusicName();
	std::string last  = first;
	for (int i = 0; i < 5; i++) {
		PlayMapMusic();
		EXPECT_EQ("map.mdt", CurrentMusicName());
		PlayNextStageMusic();
		EXPECT_NE(last, CurrentMusicName());
		last = CurrentMusicName();
	}
	EXPECT_EQ(first, last) << "the sixth is the first again";
	StopMusic();
	EXPECT_EQ("", CurrentMusicName());
}

TEST(Sound, SharedSoundsExistBetweenTheirCalls)
{
	CreateUiSounds();
	EXPECT_TRUE(g_mouseOverSound && g_mouseSelectionSound && g_actionFailedSound && g_trophySound);
	EXPECT_EQ("trophy_unlocked.ogg", g_trophySound->name);
	DeleteUiSounds();
	EXPECT_EQ(nullptr, g_trophySound);
}
