// Decoding of encoded sound that lies in memory; the content tells the format.
#pragma once

#include "sound/fmod.h"

#include <cstdint>
#include <sndfile.h>
#include <vector>

// Reads any format of libsndfile as stereo of 16 bits: one channel goes to both sides, of more than
// two the first two count. The encoded bytes must outlive it.
class CSoundDecoder
{
public:
	explicit CSoundDecoder(const std::vector<unsigned char>& encoded);
	~CSoundDecoder();
	CSoundDecoder(const CSoundDecoder&)            = delete;
	CSoundDecoder& operator=(const CSoundDecoder&) = delete;

	bool IsOpen() const { return file != nullptr; } // false: no sound, or none that can be played
	int Rate() const { return info.samplerate; }    // Hz
	bool Rewind();
	// Fewer frames than asked for only at the end, or where the data is damaged.
	int Read(int16_t* samples, int frames);

private:
	static sf_count_t Length(void* decoder);
	static sf_count_t Seek(sf_count_t offset, int whence, void* decoder);
	static sf_count_t Pull(void* target, sf_count_t count, void* decoder);
	static sf_count_t Push(const void*, sf_count_t, void*) { return 0; }
	static sf_count_t Tell(void* decoder);

	const std::vector<unsigned char>& bytes; // not owned
	sf_count_t position = 0;                 // in bytes
	SF_INFO info        = {};
	SNDFILE* file       = nullptr;
	std::vector<float> scratch;
};

// A whole effect.
struct DecodedSound {
	FMOD_RESULT result = FMOD_OK;
	int rate           = 0;       // Hz
	std::vector<int16_t> samples; // left and right in turn
};

DecodedSound DecodeWholeSound(const std::vector<unsigned char>& encoded);
