// The engine's operations, heard sample by sample.
#include "sound/fmod.h"

#include "sound/sound_fixture.h"
#include "sound/sound_output.h"

#include <cmath>
#include <cstring>
#include <sndfile.h>

class Engine : public SoundTest
{
protected:
	void SetUp() override
	{
		ASSERT_EQ(FMOD_OK, FMOD_System_Create(&system));
		ASSERT_EQ(FMOD_OK, FMOD_System_Init(system, 128));
	}
	~Engine()
	{
		if (system) {
			FMOD_System_Close(system);
			FMOD_System_Release(system);
		}
	}

	FMOD_RESULT Load(const Bytes& data, FMOD_SOUND& sound)
	{
		FMOD_CREATESOUNDEXINFO info;
		info.length = static_cast<uint32_t>(data.size());
		FMOD_RESULT result =
		    FMOD_System_CreateSound(system, reinterpret_cast<const char*>(data.data()),
		                            FMOD_OPENMEMORY | FMOD_SOFTWARE, &info, &sound);
		return result == FMOD_OK ? FMOD_Sound_SetMode(sound, FMOD_LOOP_OFF) : result;
	}
	FMOD_SOUND Loaded(const Bytes& data)
	{
		FMOD_SOUND sound = 0;
		EXPECT_EQ(FMOD_OK, Load(data, sound));
		return sound;
	}
	FMOD_SOUND Track(const Bytes& data)
	{
		FMOD_SOUND sound = 0;
		WriteBytes("track.mdt", data);
		EXPECT_EQ(FMOD_OK,
		          FMOD_System_CreateSound(system, "track.mdt", FMOD_SOFTWARE, nullptr, &sound));
		return sound;
	}
	FMOD_CHANNEL Play(FMOD_SOUND sound)
	{
		FMOD_CHANNEL channel = 0;
		EXPECT_EQ(FMOD_OK, FMOD_System_PlaySound(system, sound, false, &channel));
		return channel;
	}
	bool Playing(FMOD_CHANNEL channel)
	{
		bool playing = false;
		return FMOD_Channel_IsPlaying(channel, &playing) == FMOD_OK && playing;
	}

	FMOD_SYSTEM* system = nullptr;
};

// Where the heard differs from what is expected, or -1.
static int FirstDifference(const std::vector<float>& heard, int from, int count,
                           int16_t (*expected)(int))
{
	for (int i = 0; i < count; i++)
		if (heard[from + i] * 32768 != expected(i))
			return i;
	return -1;
}

TEST_F(Engine, OneSideGoesToBothAtItsOwnLevel)
{
	Samples both;
	for (int i = 0; i < 2000; i++) {
		both.push_back(static_cast<int16_t>(i));
		both.push_back(static_cast<int16_t>(-3 * i));
	}
	Play(Loaded(Wav(both, 2)));
	std::vector<float> heard = CaptureSound(2500);
	for (int i = 0; i < 2000; i++) {
		ASSERT_EQ(i, heard[2 * i] * 32768);
		ASSERT_EQ(-3 * i, heard[2 * i + 1] * 32768);
	}
	EXPECT_EQ(0, heard[2 * 2000]) << "nothing follows the end";
	Play(Loaded(Wav(Ramp(2000))));
	heard = CaptureSound(2000);
	for (int i = 0; i < 2000; i++)
		ASSERT_TRUE(heard[2 * i] * 32768 == i && heard[2 * i + 1] * 32768 == i) << i;
}

TEST_F(Engine, ContentTellsTheFormat)
{
	const int flac = SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
	Play(Loaded(Encoded(flac, Ramp(5000))));
	EXPECT_EQ(-1, FirstDifference(Hear(5000), 0, 5000, [](int i) { return int16_t(i); }));

	FMOD_CHANNEL vorbis = Play(Loaded(Encoded(SF_FORMAT_OGG | SF_FORMAT_VORBIS, Level(20000))));
	std::vector<float> heard = Hear(19900);
	EXPECT_NEAR(0.5f, heard[10000], 0.02f);
	EXPECT_TRUE(Playing(vorbis));
	Hear(200);
	EXPECT_FALSE(Playing(vorbis)) << "as long as what went in";

	FMOD_SOUND none = 0;
	EXPECT_EQ(FMOD_ERR_FORMAT, Load(Bytes(5000, 'x'), none));
	EXPECT_EQ(FMOD_ERR_FORMAT, Load(Bytes(1, 0), none));
	EXPECT_EQ(FMOD_ERR_FILE_BAD, Load(Wav({}), none)) << "a sound of no length";
	FMOD_CHANNEL channel = 0;
	EXPECT_EQ(FMOD_ERR_FILE_BAD, FMOD_System_PlaySound(system, none, true, &channel));
	EXPECT_EQ(FMOD_ERR_FILE_NOTFOUND,
	          FMOD_System_CreateSound(system, "no.mdt", FMOD_SOFTWARE, nullptr, &none));
	WriteBytes("text.mdt", Bytes(300, 'a'));
	EXPECT_EQ(FMOD_ERR_FORMAT,
	          FMOD_System_CreateSound(system, "text.mdt", FMOD_SOFTWARE, nullptr, &none));
	EXPECT_EQ(FMOD_ERR_FILE_NOTFOUND,
	          FMOD_System_CreateSound(system, folder.path.c_str(), FMOD_SOFTWARE, nullptr, &none))
	    << "a folder is no track";
}

TEST_F(Engine, FrequencyBendsSpeedAndVolumeIsLinear)
{
	FMOD_CHANNEL channel = 0;
	ASSERT_EQ(FMOD_OK,
	          FMOD_System_PlaySound(system, Loaded(Wav(Ramp(9000), 1, 22050)), true, &channel));
	EXPECT_EQ(0, Hear(1000).back()) << "it starts paused";
	float frequency = 0;
	FMOD_Channel_GetFrequency(channel, &frequency);
	EXPECT_EQ(22050, frequency);
	EXPECT_EQ(FMOD_OK, FMOD_Channel_SetFrequency(channel, frequency * 3));
	FMOD_Channel_GetFrequency(channel, &frequency);
	EXPECT_NEAR(66150, frequency, 0.1f);
	FMOD_Channel_SetVolume(channel, 0.25f);
	FMOD_Channel_SetPaused(channel, false);
	std::vector<float> heard = Hear(2000);
	EXPECT_NEAR(1000 * 1.5f * 0.25f, heard[1000] * 32768, 0.5f);
	EXPECT_NEAR(2000 * 1.5f * 0.25f, heard[1999] * 32768, 1);

	for (float wrong : {0.0f, -1.0f, NAN, INFINITY})
		EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_Channel_SetFrequency(channel, wrong));
	EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_Channel_SetVolume(channel, NAN));
	FMOD_Channel_SetVolume(channel, 7);
	Hear(500);
	EXPECT_NEAR((3000 - 1) * 1.5f, Hear(500).back() * 32768, 2) << "never louder than it is";
}

TEST_F(Engine, EffectLoopsWithoutASeam)
{
	FMOD_SOUND sound = Loaded(Wav(Ramp(777)));
	FMOD_Sound_SetLoopCount(sound, -1);
	FMOD_CHANNEL loop        = Play(sound);
	std::vector<float> heard = Hear(10000);
	EXPECT_EQ(-1, FirstDifference(heard, 0, 10000, [](int i) { return int16_t(i % 777); }));
	FMOD_Channel_Stop(loop);
	FMOD_Sound_SetMode(sound, FMOD_LOOP_OFF);
	FMOD_CHANNEL once = Play(sound);
	Hear(1000);
	EXPECT_FALSE(Playing(once)) << "the loop of before does not stick";
}

// Longer than all blocks that are decoded ahead, with a seam in the middle of blocks.
TEST_F(Engine, TrackPlaysGaplesslyAndLoopsWithoutASeam)
{
	FMOD_SOUND track = Track(Wav(Ramp(30011)));
	FMOD_Sound_SetLoopCount(track, -1);
	FMOD_CHANNEL channel     = Play(track);
	std::vector<float> heard = Hear(400000);
	EXPECT_EQ(-1, FirstDifference(heard, 0, 400000, [](int i) { return int16_t(i % 30011); }));

	FMOD_CHANNEL again = Play(track);
	EXPECT_FALSE(Playing(channel)) << "one voice only";
	heard = Hear(100);
	EXPECT_EQ(-1, FirstDifference(heard, 0, 100, [](int i) { return int16_t(i); }));
	FMOD_Channel_SetPaused(again, true);
	EXPECT_EQ(0, Hear(5000).back());
	FMOD_Channel_SetPaused(again, false);
	heard = Hear(100);
	EXPECT_EQ(-1, FirstDifference(heard, 0, 100, [](int i) { return int16_t(i + 100); }));

	FMOD_Channel_Stop(again);
	FMOD_Sound_SetMode(track, FMOD_LOOP_OFF);
	FMOD_CHANNEL once = Play(track);
	Hear(30000);
	EXPECT_TRUE(Playing(once));
	heard = Hear(2000);
	EXPECT_EQ(0, heard.back());
	EXPECT_FALSE(Playing(once));
}

TEST_F(Engine, VorbisTrackTurnsAtItsLastFrame)
{
	const int frames = 30000;
	Samples wave;
	for (int i = 0; i < frames; i++) // 100 whole waves
		wave.push_back(static_cast<int16_t>(8000 * std::sin(i * 200 * M_PI / frames)));
	FMOD_SOUND track = Track(Encoded(SF_FORMAT_OGG | SF_FORMAT_VORBIS, wave));
	FMOD_Sound_SetLoopCount(track, -1);
	Play(track);
	std::vector<float> heard = Hear(3 * frames);
	for (int i = 0; i < frames; i++)
		ASSERT_EQ(heard[frames + i], heard[2 * frames + i]) << i;
	// The steepest step of the wave is 0.0052; a jump would be more.
	for (int i = 1; i < 3 * frames; i++)
		ASSERT_LT(std::fabs(heard[i] - heard[i - 1]), 0.02f) << i;
}

TEST_F(Engine, TrackWithoutAFrameEndsAtOnce)
{
	FMOD_SOUND track = Track(Wav({}));
	FMOD_Sound_SetLoopCount(track, -1);
	FMOD_CHANNEL channel = Play(track);
	EXPECT_EQ(0, Hear(2000).back());
	EXPECT_FALSE(Playing(channel));
}

TEST_F(Engine, OldestChannelIsTakenOverAndItsHandleGoesStale)
{
	FMOD_SOUND sound = Loaded(Wav(Level(60000, 100)));
	FMOD_SOUND other = Loaded(Wav(Level(60000, 200)));
	std::vector<FMOD_CHANNEL> channels;
	for (int i = 0; i < 128; i++)
		channels.push_back(Play(sound));
	EXPECT_EQ(128 * 100, Hear(100).back() * 32768);
	FMOD_CHANNEL taken = Play(other);
	EXPECT_EQ(127 * 100 + 200, Hear(100).back() * 32768);
	FMOD_SOUND current = 0;
	bool playing       = false;
	EXPECT_EQ(FMOD_ERR_CHANNEL_STOLEN, FMOD_Channel_GetCurrentSound(channels[0], &current));
	EXPECT_EQ(FMOD_ERR_CHANNEL_STOLEN, FMOD_Channel_IsPlaying(channels[0], &playing));
	EXPECT_EQ(FMOD_ERR_CHANNEL_STOLEN, FMOD_Channel_SetVolume(channels[0], 0));
	EXPECT_EQ(FMOD_ERR_CHANNEL_STOLEN, FMOD_Channel_Stop(channels[0]));
	EXPECT_TRUE(Playing(channels[1]) && Playing(taken));
	EXPECT_EQ(FMOD_OK, FMOD_Channel_GetCurrentSound(taken, &current));
	EXPECT_EQ(other, current);

	// A channel that is free goes before the oldest.
	FMOD_Channel_Stop(channels[77]);
	Play(other);
	EXPECT_TRUE(Playing(channels[1]));
	EXPECT_EQ(FMOD_ERR_CHANNEL_STOLEN, FMOD_Channel_Stop(channels[77]));
}

TEST_F(Engine, StaleAndForeignHandlesGiveCodes)
{
	FMOD_SOUND sound     = Loaded(Wav(Level(60000)));
	FMOD_CHANNEL channel = Play(sound);
	EXPECT_EQ(0.5f, Hear(10).back());
	EXPECT_EQ(FMOD_OK, FMOD_Sound_Release(sound)) << "even while it plays";
	EXPECT_EQ(0, Hear(10).back());
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_Sound_Release(sound));
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_System_PlaySound(system, sound, false, &channel));
	EXPECT_FALSE(Playing(channel));
	FMOD_SOUND next = Loaded(Wav(Level(10)));
	EXPECT_NE(sound, next) << "the same slot, another generation";
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_Sound_SetLoopCount(sound, -1));
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_Channel_Stop(0));
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_Channel_Stop(0xFFFFFFFF));

	FMOD_SYSTEM* second = nullptr;
	EXPECT_EQ(FMOD_ERR_INITIALIZED, FMOD_System_Create(&second));
	EXPECT_EQ(FMOD_ERR_INITIALIZED, FMOD_System_Init(system, 128));
	FMOD_SYSTEM* gone = system;
	FMOD_System_Close(system);
	EXPECT_EQ(FMOD_ERR_UNINITIALIZED, FMOD_System_Update(system));
	FMOD_System_Release(system);
	system = nullptr;
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_System_Update(gone));
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_Sound_SetLoopCount(next, -1));
	EXPECT_EQ(FMOD_ERR_INVALID_HANDLE, FMOD_Channel_SetPaused(channel, true));
}

TEST_F(Engine, SameCallsGiveTheSameSamples)
{
	std::vector<float> runs[2];
	for (std::vector<float>& run : runs) {
		FMOD_SOUND track  = Track(Encoded(SF_FORMAT_OGG | SF_FORMAT_VORBIS, Ramp(50000)));
		FMOD_SOUND effect = Loaded(Wav(Ramp(9000)));
		Play(track);
		for (int i = 0; i < 20; i++) {
			FMOD_CHANNEL channel = Play(effect);
			FMOD_Channel_SetFrequency(channel, 30000.0f + 1700.0f * i);
			FMOD_Channel_SetVolume(channel, 0.04f * i);
			std::vector<float> heard = Hear(FRAME);
			run.insert(run.end(), heard.begin(), heard.end());
		}
		Hear(60000);
		FMOD_Sound_Release(track);
		FMOD_Sound_Release(effect);
	}
	EXPECT_EQ(runs[0], runs[1]);
}

TEST_F(Engine, LostDeviceIsToldAndEverythingElseGoesOn)
{
	FMOD_SOUND track = Track(Wav(Ramp(30000)));
	FMOD_Sound_SetLoopCount(track, -1);
	FMOD_CHANNEL channel = Play(track);
	EXPECT_EQ(FMOD_OK, FMOD_System_Update(system));
	SetCapturePlugged(false);
	EXPECT_EQ(FMOD_ERR_OUTPUT_DRIVERCALL, FMOD_System_Update(system));
	SetCapturePlugged(true);
	EXPECT_EQ(FMOD_ERR_OUTPUT_DRIVERCALL, FMOD_System_Update(system)) << "lost for good";
	EXPECT_FALSE(Playing(channel));
	Play(track);
	EXPECT_EQ(FMOD_OK, FMOD_Sound_Release(track));
}

TEST(EngineWithoutDevice, InitTellsAndChoicesAreChecked)
{
	ChooseSoundOutput(SOUND_OUTPUT_CAPTURE);
	SetCapturePlugged(false);
	FMOD_SYSTEM* system = nullptr;
	ASSERT_EQ(FMOD_OK, FMOD_System_Create(&system));
	SetCaptureDrivers({"one", "a rather long name"});
	EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_System_SetOutput(system, 5));
	EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_System_SetOutput(system, 9));
	EXPECT_EQ(FMOD_OK, FMOD_System_SetOutput(system, FMOD_OUTPUTTYPE_JACK));
	EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_System_SetDriver(system, 2));
	EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_System_SetDriver(system, -1));
	EXPECT_EQ(FMOD_OK, FMOD_System_SetDriver(system, 1));
	char name[7];
	EXPECT_EQ(FMOD_OK, FMOD_System_GetDriverName(system, 1, name, sizeof name));
	EXPECT_STREQ("a rath", name);
	EXPECT_EQ(FMOD_ERR_INVALID_PARAM, FMOD_System_GetDriverName(system, 2, name, sizeof name));
	EXPECT_EQ(FMOD_ERR_OUTPUT_INIT, FMOD_System_Init(system, 128));
	FMOD_SOUND sound = 0;
	EXPECT_EQ(FMOD_ERR_UNINITIALIZED,
	          FMOD_System_CreateSound(system, "x", FMOD_SOFTWARE, nullptr, &sound));
	EXPECT_EQ(FMOD_OK, FMOD_System_Release(system));
	ChooseSoundOutput(SOUND_OUTPUT_NONE);
}

TEST(EngineWords, CodesHaveTheirTexts)
{
	EXPECT_STREQ("No errors.", FMOD_ErrorString(FMOD_OK));
	EXPECT_STREQ("File not found.", FMOD_ErrorString(FMOD_ERR_FILE_NOTFOUND));
	EXPECT_STREQ("Error initializing output device.", FMOD_ErrorString(FMOD_ERR_OUTPUT_INIT));
	EXPECT_STREQ("Unknown error.", FMOD_ErrorString(70));
	EXPECT_STREQ("Unknown error.", FMOD_ErrorString(-1));
}
