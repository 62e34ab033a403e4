// Single sounds: start, volume, fades and delays as they are heard, and silence when it is off.
#include "sound/sound.h"

#include "sound/sound_fixture.h"
#include "sound/sound_manager.h"
#include "sound/sound_output.h"

#include <memory>
#include <unistd.h>

static const int LONG = 44100 * 4; // samples: more than any fade takes

class HeardSound : public SoundTest
{
protected:
	void SetUp() override
	{
		AddEffect("level.ogg", Wav(Level(LONG)));
		AddEffect("ramp.ogg", Wav(Ramp(20000)));
		AddEffect("short.ogg", Wav(Level(5000)));
		AddEffect("quiet.ogg", Wav(Level(LONG, 0)));
		Start();
	}
};

TEST(Sound, EveryOperationIsSafeWhileItIsOff)
{
	SoundInit(true);
	ASSERT_FALSE(soundEnabled);
	LoadMusicTracks();
	LoadSoundResources(nullptr);
	CSound sound("no_such_sound.ogg");
	sound.Play(true, 5, 1.5f);
	sound.FadeIn(10);
	sound.FadeOut(10);
	sound.SetVolume(0.5f);
	SoundUpdate();
	EXPECT_FALSE(sound.IsPlaying() || sound.IsFadingIn() || sound.IsFadingOut());
	EXPECT_EQ(0, sound.GetVolume());
	EXPECT_EQ(0u, sound.channel);
	EXPECT_EQ(0, sound.delayFrames);
	sound.Stop();
	FadeOutLoopingSounds();
	FadeInLoopingSounds();
	SetSoundVolume(0.3f);
	EXPECT_EQ(0, GetSoundVolume());
	EXPECT_EQ(0, CaptureSound(500).back());
	SoundShutdown();
}

TEST(Sound, SharedSoundsExistBetweenTheirCalls)
{
	CreateUiSounds();
	EXPECT_TRUE(g_mouseOverSound && g_mouseSelectionSound && g_actionFailedSound && g_trophySound);
	EXPECT_EQ("trophy_unlocked.ogg", g_trophySound->name);
	DeleteUiSounds();
	EXPECT_EQ(nullptr, g_trophySound);
}

TEST_F(HeardSound, FadeOutTakesEqualStepsToExactlyNothing)
{
	CSound sound("level.ogg");
	sound.Play();
	EXPECT_EQ(0.5f, Frame());
	sound.FadeOut(15);
	for (int i = 14; i >= 0; i--) {
		EXPECT_NEAR(0.5f * i / 15, Frame(), 1e-6f) << i;
		EXPECT_TRUE(sound.IsFadingOut());
	}
	EXPECT_FALSE(sound.IsPlaying()) << "a one-shot is stopped";
	EXPECT_EQ(1, sound.GetVolume()) << "and audible when played again";
	Frame();
	EXPECT_FALSE(sound.IsFadingOut());
	sound.Play();
	EXPECT_EQ(0.5f, Frame());
}

TEST_F(HeardSound, FadeInReachesTheClassVolume)
{
	SetSoundVolume(0.5f);
	CSound sound("level.ogg");
	sound.FadeIn(30);
	sound.Play();
	for (int i = 1; i <= 30; i++)
		EXPECT_NEAR(0.25f * i / 30, Frame(), 1e-6f) << i;
	EXPECT_TRUE(sound.IsFadingIn());
	EXPECT_EQ(0.25f, Frame());
	EXPECT_FALSE(sound.IsFadingIn());
}

TEST_F(HeardSound, FadeDuringTheOppositeFadeGoesOnFromThere)
{
	CSound sound("level.ogg");
	sound.Play();
	sound.FadeOut(10);
	Frames(4);
	sound.FadeIn(6);
	const float first = 0.6f + 0.4f / 6;
	EXPECT_NEAR(0.5f * first, Frame(), 1e-6f);
	sound.FadeOut(7);
	EXPECT_NEAR(0.5f * first * 6 / 7, Frame(), 1e-6f);

	CSound atOnce("level.ogg");
	sound.Stop();
	atOnce.Play();
	atOnce.FadeOut(0);
	EXPECT_EQ(0, Frame()) << "a fade over 0 frames ends in the next update";
	EXPECT_FALSE(atOnce.IsPlaying() || atOnce.IsFadingOut());
}

TEST_F(HeardSound, DelayedStartComesInItsFrameWithoutLoopAndPitch)
{
	CSound sound("short.ogg");
	sound.Play(true, 9, 2);
	sound.Play(true, 4, 2); // the later delay counts
	for (int i = 0; i < 3; i++)
		EXPECT_EQ(0, Frame());
	EXPECT_FALSE(sound.IsPlaying());
	SoundUpdate();
	std::vector<float> heard = Hear(6000);
	EXPECT_EQ(0.5f, heard[0]);
	EXPECT_EQ(0.5f, heard[4999]);
	EXPECT_EQ(0, heard[5000]);
	EXPECT_FALSE(sound.IsPlaying());
}

TEST_F(HeardSound, PitchBendsOnePlayOnly)
{
	CSound sound("ramp.ogg");
	sound.Play(false, 0, 2);
	EXPECT_NEAR(2000, Hear(1001).back() * 32768, 1);
	sound.Stop();
	sound.Play();
	EXPECT_EQ(1000, Hear(1001).back() * 32768);
}

TEST_F(HeardSound, SilentClassStartsOnlyLoops)
{
	SetSoundVolume(0);
	CSound once("level.ogg"), loop("short.ogg");
	once.Play();
	loop.Play(true);
	EXPECT_EQ(0, Frame());
	EXPECT_FALSE(once.IsPlaying());
	EXPECT_TRUE(loop.IsPlaying());
	once.Play(false, 3); // not even later
	Frames(4);
	SetSoundVolume(0.5f);
	EXPECT_EQ(0.25f, Frame()) << "the loop is heard when the volume rises";
	EXPECT_FALSE(once.IsPlaying());
}

TEST_F(HeardSound, ClassVolumeReachesWhatSounds)
{
	CSound playing("level.ogg"), fading("level.ogg"), idle("level.ogg");
	playing.Play();
	fading.Play();
	fading.FadeOut(100);
	SetSoundVolume(0.5f);
	SetMusicVolume(0.1f); // another class
	EXPECT_EQ(0.5f, GetSoundVolume());
	EXPECT_NEAR(0.25f + 0.5f * 0.99f, Frame(), 1e-5f) << "a fade is left alone";
	EXPECT_EQ(0.5f, playing.GetVolume());
	EXPECT_EQ(1, idle.GetVolume()) << "never played: it has no channel";
	CSound later("level.ogg");
	EXPECT_EQ(0.5f, later.GetVolume());
	playing.SetVolume(0.25f);
	fading.Stop();
	EXPECT_EQ(0.125f, Frame());
}

TEST_F(HeardSound, ChannelTakenOverIsNoLongerItsSound)
{
	CSound first("level.ogg"), second("level.ogg");
	first.Play(true);
	std::vector<std::unique_ptr<CSound>> crowd;
	for (int i = 0; i < 128; i++) {
		crowd.push_back(std::make_unique<CSound>("quiet.ogg"));
		crowd.back()->Play();
	}
	EXPECT_FALSE(first.IsPlaying());
	EXPECT_TRUE(crowd[0]->IsPlaying() && crowd[127]->IsPlaying());
	EXPECT_EQ(0, Frame());
	first.SetVolume(0.7f); // must not reach the other
	first.Stop();
	first.FadeOut(3);
	Frames(6);
	EXPECT_TRUE(crowd[127]->IsPlaying());
	second.Play();
	EXPECT_EQ(0.5f, Frame());
	EXPECT_FALSE(crowd[0]->IsPlaying());
}

TEST_F(HeardSound, EndOfTheObjectEndsTheSound)
{
	{
		CSound sound("level.ogg");
		sound.Play(true);
		EXPECT_EQ(0.5f, Frame());
	}
	EXPECT_EQ(0, Frame());
}

TEST_F(HeardSound, OneShotAfterALoopOfTheSameEffectEnds)
{
	CSound loop("short.ogg"), once("short.ogg");
	loop.Play(true);
	Frame();
	loop.Stop();
	once.Play();
	Frames(5);
	EXPECT_FALSE(once.IsPlaying());
}

TEST_F(HeardSound, LoopsGoQuietWhilePlayIsInterrupted)
{
	CSound loop("short.ogg"), once("level.ogg"), fading("quiet.ogg");
	loop.Play(true);
	once.Play();
	fading.Play(true);
	fading.FadeOut(50);
	Frame();
	FadeOutLoopingSounds();
	EXPECT_FALSE(fading.IsPlaying()) << "it was on its way out already";
	EXPECT_TRUE(loop.IsFadingOut() && !once.IsFadingOut());
	once.Stop();
	Frames(4);
	EXPECT_NEAR(0.25f, Frame(), 1e-6f);
	EXPECT_NEAR(0.2f, Frame(), 1e-6f);
	Frames(10);
	EXPECT_TRUE(loop.IsPlaying()) << "it keeps its channel, unheard";
	EXPECT_EQ(0, Frame());
	FadeInLoopingSounds();
	for (int i = 1; i <= 10; i++)
		EXPECT_NEAR(0.05f * i, Frame(), 1e-6f);
	FadeOutLoopingSounds();
	Frames(12);
	FadeOutLoopingSounds();
	EXPECT_FALSE(loop.IsPlaying()) << "a second interruption ends what is silent";
	EXPECT_EQ(1, loop.GetVolume());
}

TEST_F(HeardSound, LostDeviceIsLoggedOnceAndPlayGoesOn)
{
	CSound sound("level.ogg");
	sound.Play(true);
	Frame();
	SetCapturePlugged(false);
	testing::internal::CaptureStdout();
	Frames(5);
	const std::string printed = testing::internal::GetCapturedStdout();
	EXPECT_EQ(0u, printed.find("ERROR!  Sound library error: A call to a standard soundcard"));
	EXPECT_EQ(printed.size() - 1, printed.find('\n')) << "one line";
	EXPECT_NE(std::string::npos, ReadText("LOG.TXT").find("Sound library error: "));
	EXPECT_FALSE(soundEnabled || sound.IsPlaying());
	sound.Play();
	CSound later("no_such_sound.ogg");
	later.Play();
}

static void Fatal(void (*action)())
{
	dup2(STDERR_FILENO, STDOUT_FILENO);
	action();
}

TEST_F(HeardSound, UnknownNameIsFatal)
{
	EXPECT_EXIT(Fatal([] { CSound sound("nothing.ogg"); }), testing::ExitedWithCode(1),
	            "ERROR!  Unable to find preloaded sound: nothing.ogg");
}

class BrokenSounds : public SoundTest
{
protected:
	void SetUp() override
	{
		SoundInit(true);
		ASSERT_TRUE(soundEnabled);
	}
};

static void Load()
{
	LoadSoundResources(nullptr);
}

TEST_F(BrokenSounds, DamagedEntryEndsWithTheLibrarysWords)
{
	const Bytes good = Wav(Level(100));
	WriteBytes("resource2.dat", ContainerBytes({{"a.ogg", good}, {"b.ogg", Bytes(90, 'b')}}));
	EXPECT_EXIT(Fatal(Load), testing::ExitedWithCode(1),
	            "ERROR!  Sound library error: Unsupported file or audio format.");
	WriteBytes("resource2.dat", ContainerBytes({{"a.ogg", good}, {"b.ogg", {}}}));
	EXPECT_EXIT(Fatal(Load), testing::ExitedWithCode(1), "Unsupported file or audio format.");
	std::filesystem::remove("resource2.dat");
	EXPECT_EXIT(Fatal(Load), testing::ExitedWithCode(1),
	            "ERROR!  Cannot load sound resource file!");
}

TEST_F(BrokenSounds, EmptyContainerIsValidAndACutOneKeepsWhatIsWhole)
{
	WriteBytes("resource2.dat", ContainerBytes({}));
	Load();
	EXPECT_EXIT(Fatal(CreateUiSounds), testing::ExitedWithCode(1),
	            "ERROR!  Unable to find preloaded sound: mouse_over.ogg");
	const Bytes good = Wav(Level(100));
	Bytes cut        = ContainerBytes({{"a.ogg", good}, {"b.ogg", good}});
	cut.resize(cut.size() - 50);
	WriteBytes("resource2.dat", cut);
	testing::internal::CaptureStdout();
	Load();
	EXPECT_EQ("ERROR!  Damaged resource file: resource2.dat\n",
	          testing::internal::GetCapturedStdout());
	CSound whole("a.ogg");
	whole.Play();
	EXPECT_EQ(0.5f, Hear(50).back());
}
