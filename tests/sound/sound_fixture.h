// Sounds made by the test itself, and the running sound system captured frame by frame.
#pragma once

#include "media/media_test.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>

// Both sides of a test signal in turn, or one side only.
typedef std::vector<int16_t> Samples;

const int TEST_RATE      = 44100;
const int16_t FULL_LEVEL = 16384; // what the tests' level sounds hold: half of full scale

Samples Level(int frames, int16_t value = FULL_LEVEL); // one side
Samples Ramp(int frames);                              // one side: 0, 1, 2 and so on
Bytes Wav(const Samples& samples, int channels = 1, int rate = TEST_RATE);
Bytes Encoded(int format, const Samples& samples, int channels = 1); // a format of libsndfile

// A folder of its own as working directory and for stored files, and the capture as output. What a
// test expects as heard is told in shares of full scale.
class SoundTest : public testing::Test
{
protected:
	static const int FRAME = 1455; // samples a side in 33 ms

	SoundTest();
	~SoundTest();

	void AddEffect(const std::string& name, const Bytes& data) { effects.push_back({name, data}); }
	void WriteTracks(const Bytes& data); // all eleven
	void Start();                        // the whole system with the effects added and the tracks
	std::vector<float> Hear(int frames); // left side only
	// One frame of the game; gives the level at its end.
	float Frame();
	void Frames(int count);

	CTempFolder folder;

private:
	std::filesystem::path folderBefore;
	Container effects;
};
