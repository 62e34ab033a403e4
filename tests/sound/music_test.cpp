// Music: the cross-fade, the turn of the stage tracks, and what is wanted even in silence.
#include "sound/sound.h"
#include "sound/sound_fixture.h"
#include "sound/sound_manager.h"
#include "sound/sound_state.h"

#include <unistd.h>

TEST(Music, StageTracksTurnWhateverPlaysBetween)
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

// Two different levels tell which track is heard.
class HeardMusic : public SoundTest
{
protected:
	void SetUp() override
	{
		WriteTracks(Wav(Level(20000)));
		WriteBytes("map.mdt", Wav(Level(20000, FULL_LEVEL / 2)));
		WriteBytes("alien.mdt", Wav(Ramp(20000)));
		Start();
	}
};

TEST_F(HeardMusic, CrossFadeGoesOutIn15AndInIn30Frames)
{
	PlayTitleMusic();
	for (int i = 1; i <= 30; i++)
		EXPECT_NEAR(0.5f * i / 30, Frame(), 1e-6f) << i;
	Frames(20);
	PlayMapMusic();
	for (int i = 1; i <= 40; i++) {
		const float out = i < 15 ? 0.5f * (15 - i) / 15 : 0;
		const float in  = i < 30 ? 0.25f * i / 30 : 0.25f;
		EXPECT_NEAR(out + in, Frame(), 1e-6f) << i;
	}
	Frames(100);
	EXPECT_EQ(0.25f, Frame()) << "it goes on from its start without end";
	StopMusic();
	for (int i = 14; i >= 0; i--)
		EXPECT_NEAR(0.25f * i / 15, Frame(), 1e-6f) << i;
	EXPECT_EQ("", CurrentMusicName());
}

TEST_F(HeardMusic, PlayingTrackIsNeitherRestartedNorFaded)
{
	PlayTitleMusic();
	Frames(40);
	PlayAlienMusic();
	Frames(12); // of 14 to its end
	PlayAlienMusic();
	Frames(1);
	const float before = Hear(1).back();
	PlayAlienMusic();
	const float after = Hear(1).back();
	EXPECT_GT(before * 32768, 3000) << "near its end at half volume";
	EXPECT_NEAR(before, after, 2 / 32768.0f);
}

// Back within the fade: from the volume reached, from the track's start, with one voice.
TEST_F(HeardMusic, TrackCalledBackWhileItFadesSoundsOnce)
{
	PlayTitleMusic();
	Frames(40);
	PlayMapMusic();
	Frames(5);
	PlayTitleMusic();
	const float back = 0.5f * 10 / 15; // what title has kept
	const float map  = 0.25f * 5 / 30; // what map has reached
	EXPECT_NEAR(back + (0.5f - back) / 30 + map * 14 / 15, Frame(), 1e-5f);
	Frames(60);
	EXPECT_EQ(0.5f, Frame());
}

TEST_F(HeardMusic, StageTrackPlaysOnceAndTurnsOn)
{
	for (int i = 0; i < 5; i++) { // wherever the turn stands
		PlayNextStageMusic();
		if (CurrentMusicName() == "stage5.mdt")
			break;
	}
	for (const char* name :
	     {"stage1.mdt", "stage2.mdt", "stage3.mdt", "stage4.mdt", "stage5.mdt", "stage1.mdt"}) {
		PlayNextStageMusic();
		EXPECT_EQ(name, CurrentMusicName());
		Frames(2);
		PlayMapMusic();
		Frames(2);
	}
	PlayNextStageMusic();
	Frames(11);
	EXPECT_GT(Frame(), 0.1f);
	Frames(7);
	EXPECT_EQ(0, Frame()) << "no music after its end";
}

TEST_F(HeardMusic, VolumeLeavesAFadingTrackAloneAndTheFadeRunsToIt)
{
	PlayTitleMusic();
	Frames(10);
	const float before = Frame();
	SetMusicVolume(0.5f);
	EXPECT_EQ(before, Hear(FRAME).back());
	Frames(25);
	EXPECT_EQ(0.25f, Frame());
	SetMusicVolume(0);
	EXPECT_EQ(0, Frame());
	PlayNextStageMusic();
	Frames(40);
	SetMusicVolume(1);
	Frames(2);
	EXPECT_EQ(0, Frame()) << "a track that plays once has not started unheard";
	PlayBonusMusic();
	Frames(40);
	EXPECT_EQ(0.5f, Frame());
}

TEST_F(HeardMusic, InterruptedPlayKeepsItsMusicAndItsEndFreesIt)
{
	PlayQuizMusic();
	Frames(40);
	FadeOutLoopingSounds();
	Frames(20);
	EXPECT_EQ(0.5f, Frame());
	const size_t handles = soundHandles.size();
	DeleteMusicTracks();
	EXPECT_EQ(0, Frame());
	LoadMusicTracks();
	EXPECT_EQ(handles, soundHandles.size()) << "the free slots go first";
	PlayQuizMusic();
	Frames(31);
	EXPECT_EQ(0.5f, Frame());
}

TEST_F(SoundTest, MissingTrackAndOneThatIsNoMusicAreFatal)
{
	WriteTracks(Wav(Level(100)));
	std::filesystem::remove("quiz.mdt");
	auto load = [] {
		dup2(STDERR_FILENO, STDOUT_FILENO);
		SoundInit(true);
		LoadMusicTracks();
	};
	EXPECT_EXIT(load(), testing::ExitedWithCode(1), "ERROR!  Sound library error: File not found.");
	WriteBytes("quiz.mdt", Bytes(4000, 'q'));
	EXPECT_EXIT(load(), testing::ExitedWithCode(1),
	            "ERROR!  Sound library error: Unsupported file or audio format.");
}
