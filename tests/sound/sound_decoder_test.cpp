// Damaged files end early or not at all; none does harm.
#include "sound/sound_decoder.h"

#include "frame/random.h"
#include "sound/sound_fixture.h"

#include <cmath>
#include <cstring>

static const int FORMATS[] = {SF_FORMAT_OGG | SF_FORMAT_VORBIS, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                              SF_FORMAT_WAV | SF_FORMAT_PCM_16, SF_FORMAT_WAV | SF_FORMAT_FLOAT};

static Samples Noise(int frames)
{
	Samples samples;
	for (int i = 0; i < frames; i++)
		samples.push_back(static_cast<int16_t>(Rand() - 16384));
	return samples;
}

// A file cut off may state an absurd length: it must not be believed.
TEST(SoundDecoder, CutOffFileGivesWhatIsThere)
{
	SeedRandom(3);
	for (int format : FORMATS) {
		const Bytes whole         = Encoded(format, Noise(20000));
		const DecodedSound intact = DecodeWholeSound(whole);
		ASSERT_EQ(FMOD_OK, intact.result);
		EXPECT_EQ(TEST_RATE, intact.rate);
		EXPECT_EQ(40000u, intact.samples.size());
		for (size_t part = 0; part < 8; part++) {
			const Bytes cut(whole.begin(), whole.begin() + whole.size() * part / 8);
			const DecodedSound sound = DecodeWholeSound(cut);
			EXPECT_LT(sound.samples.size(), 40000u);
			EXPECT_EQ(sound.samples.empty(), sound.result != FMOD_OK);
		}
	}
}

TEST(SoundDecoder, RandomDamageIsNeverTrusted)
{
	SeedRandom(4);
	const size_t limit = 2u << 22; // two samples in each of the frames that an effect may have
	for (int format : FORMATS) {
		const Bytes whole = Encoded(format, Noise(3000), 2);
		for (int round = 0; round < 150; round++) {
			Bytes damaged  = whole;
			const int hits = 1 + Rand() % 12;
			for (int i = 0; i < hits; i++) {
				// Mostly in the header, where the numbers are.
				const size_t range = i % 3 ? 200 : damaged.size();
				const size_t place = Rand() % range;
				damaged[place]     = static_cast<unsigned char>(Rand());
			}
			const DecodedSound sound = DecodeWholeSound(damaged);
			EXPECT_LE(sound.samples.size(), limit);
			EXPECT_FALSE(sound.result == FMOD_OK && (sound.samples.empty() || sound.rate < 1000));
		}
	}
}

// 1.5 and -1.5 would turn over, what is no number could become anything.
TEST(SoundDecoder, TooLoudIsCutAndNoNumberIsSilence)
{
	Bytes file           = Encoded(SF_FORMAT_WAV | SF_FORMAT_FLOAT, Level(5));
	const float values[] = {1.5f, -1.5f, NAN, INFINITY, 0.99999f};
	unsigned char bytes[sizeof values];
	std::memcpy(bytes, values, sizeof values);
	std::copy(std::begin(bytes), std::end(bytes), file.end() - sizeof values);
	const DecodedSound sound = DecodeWholeSound(file);
	const Samples expected   = {32767, 32767, -32768, -32768, 0, 0, 32767, 32767, 32767, 32767};
	EXPECT_EQ(expected, sound.samples);
}

TEST(SoundDecoder, OddFormsAreRefused)
{
	EXPECT_EQ(FMOD_ERR_FORMAT, DecodeWholeSound({}).result);
	EXPECT_EQ(FMOD_ERR_FORMAT, DecodeWholeSound(Wav(Level(90), 9)).result) << "nine channels";
	EXPECT_EQ(FMOD_ERR_FORMAT, DecodeWholeSound(Wav(Level(90), 1, 10)).result) << "10 Hz";
	EXPECT_EQ(FMOD_OK, DecodeWholeSound(Wav(Level(90), 3)).result);
	EXPECT_EQ(FMOD_ERR_MEMORY, DecodeWholeSound(Wav(Level(5 << 20))).result) << "two minutes";
}
