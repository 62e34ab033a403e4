// Sounds made by the test itself, and the running sound system captured frame by frame.
#include "sound/sound_fixture.h"

#include "sound/sound_manager.h"
#include "sound/sound_output.h"
#include "state/save_folder.h"

#include <cmath>
#include <cstring>
#include <algorithm>
#include <sndfile.h>

static const int WRITE_FRAMES = 4096; // the Vorbis coder cannot take much more at once

Samples Level(int frames, int16_t value)
{
	return Samples(frames, value);
}

Samples Ramp(int frames)
{
	Samples samples;
	for (int i = 0; i < frames; i++)
		samples.push_back(static_cast<int16_t>(i));
	return samples;
}

Bytes Encoded(int format, const Samples& samples, int channels)
{
	CTempFolder folder;
	const std::string path = folder.path + "encoded";
	SF_INFO info           = {};
	info.samplerate        = TEST_RATE;
	info.channels          = channels;
	info.format            = format;
	SNDFILE* file          = sf_open(path.c_str(), SFM_WRITE, &info);
	EXPECT_NE(nullptr, file);
	for (size_t at = 0; at < samples.size(); at += WRITE_FRAMES * channels) {
		const size_t left = samples.size() - at;
		const size_t now  = std::min(left, static_cast<size_t>(WRITE_FRAMES) * channels);
		sf_write_short(file, &samples[at], static_cast<sf_count_t>(now));
	}
	sf_close(file);
	Bytes data;
	EXPECT_TRUE(ReadWholeFile(path, data));
	return data;
}

Bytes Wav(const Samples& samples, int channels, int rate)
{
	Bytes data;
	auto put = [&](const char* word, uint32_t value, int size) {
		data.insert(data.end(), word, word + (word[0] ? 4 : 0));
		for (int i = 0; i < size; i++)
			data.push_back(static_cast<unsigned char>(value >> 8 * i));
	};
	const uint32_t size = static_cast<uint32_t>(samples.size() * 2);
	put("RIFF", 36 + size, 4);
	put("WAVE", 0, 0);
	put("fmt ", 16, 4);
	put("", 1, 2); // plain numbers
	put("", channels, 2);
	put("", rate, 4);
	put("", rate * channels * 2, 4);
	put("", channels * 2, 2);
	put("", 16, 2);
	put("data", size, 4);
	for (int16_t sample : samples)
		put("", static_cast<uint16_t>(sample), 2);
	return data;
}

SoundTest::SoundTest() : folderBefore(std::filesystem::current_path())
{
	std::filesystem::current_path(folder.path);
	SetSaveFolderRoot(folder.path + "home");
	ChooseSoundOutput(SOUND_OUTPUT_CAPTURE);
}

SoundTest::~SoundTest()
{
	DeleteMusicTracks();
	SoundShutdown();
	StopMusic();
	ChooseSoundOutput(SOUND_OUTPUT_NONE);
	SetSaveFolderRoot("");
	std::filesystem::current_path(folderBefore);
}

void SoundTest::WriteTracks(const Bytes& data)
{
	for (const char* name : {"title", "map", "bonus", "alien", "quiz", "story", "stage1", "stage2",
	                         "stage3", "stage4", "stage5"})
		WriteBytes(std::string(name) + ".mdt", data);
}

void SoundTest::Start()
{
	SoundInit(true);
	ASSERT_TRUE(soundEnabled);
	if (std::filesystem::exists("title.mdt"))
		LoadMusicTracks();
	WriteBytes("resource2.dat", ContainerBytes(effects));
	LoadSoundResources(nullptr);
}

std::vector<float> SoundTest::Hear(int frames)
{
	const std::vector<float> both = CaptureSound(frames);
	std::vector<float> left;
	for (size_t i = 0; i < both.size(); i += 2)
		left.push_back(both[i]);
	return left;
}

float SoundTest::Frame()
{
	SoundUpdate();
	return Hear(FRAME).back();
}

void SoundTest::Frames(int count)
{
	for (int i = 0; i < count; i++)
		Frame();
}
