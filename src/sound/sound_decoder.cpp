// Decoding of encoded sound that lies in memory; the content tells the format.
#include "sound/sound_decoder.h"

#include <algorithm>
#include <cmath>
#include <cstring>

static const int READ_FRAMES       = 4096;
static const int MAX_CHANNELS      = 8;
static const int MIN_RATE          = 1000; // Hz
static const int MAX_RATE          = 192000;
static const size_t MAX_FRAMES     = 4u << 20; // of one effect; a minute and a half, 16 MiB
static const float FULL_SCALE      = 32768;
static const long LARGEST_POSITIVE = 32767;

CSoundDecoder::CSoundDecoder(const std::vector<unsigned char>& encoded) : bytes(encoded)
{
	SF_VIRTUAL_IO memory = {Length, Seek, Pull, Push, Tell};
	file                 = sf_open_virtual(&memory, SFM_READ, &info, this);
	if (!file)
		return;
	if (info.channels < 1 || info.channels > MAX_CHANNELS || info.samplerate < MIN_RATE ||
	    info.samplerate > MAX_RATE) {
		sf_close(file);
		file = nullptr;
	}
}

CSoundDecoder::~CSoundDecoder()
{
	if (file)
		sf_close(file);
}

bool CSoundDecoder::Rewind()
{
	return file && sf_seek(file, 0, SEEK_SET) == 0;
}

// Coders overshoot, and a file of floats may hold anything: what is no number becomes silence.
static int16_t ToSample(float value)
{
	if (!(std::fabs(value) < 1))
		return value >= 1 ? LARGEST_POSITIVE : value <= -1 ? -LARGEST_POSITIVE - 1 : 0;
	return static_cast<int16_t>(std::min(std::lrintf(value * FULL_SCALE), LARGEST_POSITIVE));
}

int CSoundDecoder::Read(int16_t* samples, int frames)
{
	int done = 0;
	scratch.resize(static_cast<size_t>(READ_FRAMES) * info.channels);
	while (file && done < frames) {
		const int wanted = std::min(READ_FRAMES, frames - done);
		const int got    = static_cast<int>(sf_readf_float(file, scratch.data(), wanted));
		if (got <= 0)
			break;
		const int right = info.channels > 1 ? 1 : 0;
		for (int i = 0; i < got; i++) {
			const float* frame = &scratch[static_cast<size_t>(i) * info.channels];
			*samples++         = ToSample(frame[0]);
			*samples++         = ToSample(frame[right]);
		}
		done += got;
	}
	return done;
}

sf_count_t CSoundDecoder::Length(void* decoder)
{
	return static_cast<sf_count_t>(static_cast<CSoundDecoder*>(decoder)->bytes.size());
}

sf_count_t CSoundDecoder::Seek(sf_count_t offset, int whence, void* decoder)
{
	CSoundDecoder* self = static_cast<CSoundDecoder*>(decoder);
	sf_count_t base     = 0;
	if (whence == SEEK_CUR)
		base = self->position;
	else if (whence == SEEK_END)
		base = Length(decoder);
	// Sizes in a damaged file may lead anywhere; far offsets must not run over either.
	offset         = std::clamp(offset, -Length(decoder), Length(decoder));
	self->position = std::clamp(base + offset, sf_count_t(0), Length(decoder));
	return self->position;
}

sf_count_t CSoundDecoder::Pull(void* target, sf_count_t count, void* decoder)
{
	CSoundDecoder* self = static_cast<CSoundDecoder*>(decoder);
	count               = std::min(count, Length(decoder) - self->position);
	if (count <= 0)
		return 0;
	std::memcpy(target, self->bytes.data() + self->position, static_cast<size_t>(count));
	self->position += count;
	return count;
}

sf_count_t CSoundDecoder::Tell(void* decoder)
{
	return static_cast<CSoundDecoder*>(decoder)->position;
}

// The length that a file states is not asked for: of a file cut off it can be absurd.
DecodedSound DecodeWholeSound(const std::vector<unsigned char>& encoded)
{
	DecodedSound sound;
	CSoundDecoder decoder(encoded);
	if (!decoder.IsOpen()) {
		sound.result = FMOD_ERR_FORMAT;
		return sound;
	}
	sound.rate   = decoder.Rate();
	size_t total = 0;
	for (int got = READ_FRAMES; got == READ_FRAMES && total <= MAX_FRAMES; total += got) {
		sound.samples.resize(2 * (total + READ_FRAMES));
		got = decoder.Read(&sound.samples[2 * total], READ_FRAMES);
	}
	if (total > MAX_FRAMES)
		sound.result = FMOD_ERR_MEMORY;
	else if (total == 0)
		sound.result = FMOD_ERR_FILE_BAD;
	sound.samples.resize(2 * std::min(total, MAX_FRAMES));
	return sound;
}
