// The engine's sounds: their handles, their decoding on other threads, their buffers.
#include "sound/engine.h"

#include "media/archive.h"

#include <algorithm>

static const uint32_t SOUND_BITS      = 16; // of a sound's handle; the rest is its generation
static const uint32_t MAX_SOUNDS      = 1u << SOUND_BITS;
static const uint32_t SOUND_MASK      = MAX_SOUNDS - 1;
static const uint32_t LAST_GENERATION = UINT32_MAX >> SOUND_BITS;

// Decodings at once: one for each core.
static size_t DecodingsAtOnce()
{
	return std::clamp(std::thread::hardware_concurrency(), 1u, 8u);
}

EngineSound* CSoundEngine::FindSound(FMOD_SOUND handle)
{
	const uint32_t index = handle & SOUND_MASK;
	if (handle == 0 || index >= sounds.size())
		return nullptr;
	EngineSound& sound = sounds[index];
	return sound.inUse && sound.generation == handle >> SOUND_BITS ? &sound : nullptr;
}

EngineSound* CSoundEngine::NewSound(FMOD_SOUND* handle)
{
	size_t index = 0;
	while (index < sounds.size() && sounds[index].inUse)
		index++;
	if (index == MAX_SOUNDS)
		return nullptr;
	if (index == sounds.size())
		sounds.emplace_back();
	EngineSound& sound = sounds[index];
	sound.inUse        = true;
	sound.result       = FMOD_OK;
	sound.looping      = false;
	*handle            = sound.generation << SOUND_BITS | static_cast<uint32_t>(index);
	return &sound;
}

void CSoundEngine::FreeSound(EngineSound& sound)
{
	if (sound.decoding.valid())
		sound.decoding.wait();
	sound.decoding = std::future<DecodedSound>();
	sound.stream.reset();
	if (sound.buffer)
		alDeleteBuffers(1, &sound.buffer);
	sound.buffer     = 0;
	sound.inUse      = false;
	sound.generation = sound.generation % LAST_GENERATION + 1;
}

FMOD_RESULT CSoundEngine::CreateFromMemory(const unsigned char* data, size_t size,
                                           FMOD_SOUND* handle)
{
	EngineSound* sound = device ? NewSound(handle) : nullptr;
	if (!sound)
		return device ? FMOD_ERR_MEMORY : FMOD_ERR_UNINITIALIZED;
	if (decodingNow.size() >= DecodingsAtOnce()) {
		if (EngineSound* first = FindSound(decodingNow.front()))
			FinishDecoding(*first); // a failure is kept for its owner
		decodingNow.pop_front();
	}
	sound->decoding = std::async(std::launch::async, DecodeWholeSound,
	                             std::vector<unsigned char>(data, data + size));
	decodingNow.push_back(*handle);
	return FMOD_OK;
}

// The buffer is made on the main thread, as all that touches the table of sounds.
FMOD_RESULT CSoundEngine::FinishDecoding(EngineSound& sound)
{
	if (!sound.decoding.valid())
		return sound.result;
	const DecodedSound decoded = sound.decoding.get();
	sound.result               = decoded.result;
	sound.rate                 = decoded.rate;
	if (sound.result != FMOD_OK)
		return sound.result;
	alGetError();
	alGenBuffers(1, &sound.buffer);
	alBufferData(sound.buffer, AL_FORMAT_STEREO16, decoded.samples.data(),
	             static_cast<ALsizei>(decoded.samples.size() * sizeof(int16_t)), decoded.rate);
	if (alGetError() != AL_NO_ERROR)
		sound.result = FMOD_ERR_MEMORY;
	return sound.result;
}

FMOD_RESULT CSoundEngine::CreateFromFile(const char* path, FMOD_SOUND* handle)
{
	if (!device)
		return FMOD_ERR_UNINITIALIZED;
	Bytes encoded;
	if (!ReadWholeFile(path, encoded))
		return FMOD_ERR_FILE_NOTFOUND;
	auto stream = std::make_unique<CSoundStream>(std::move(encoded));
	if (stream->rate == 0)
		return FMOD_ERR_FORMAT;
	EngineSound* sound = NewSound(handle);
	if (!sound)
		return FMOD_ERR_MEMORY;
	sound->rate   = stream->rate;
	sound->stream = std::move(stream);
	return FMOD_OK;
}

FMOD_RESULT CSoundEngine::SetLooping(FMOD_SOUND handle, bool looping)
{
	EngineSound* sound = FindSound(handle);
	if (!sound)
		return FMOD_ERR_INVALID_HANDLE;
	sound->looping = looping;
	return FinishDecoding(*sound);
}

FMOD_RESULT CSoundEngine::ReleaseSound(FMOD_SOUND handle)
{
	EngineSound* sound = FindSound(handle);
	if (!sound)
		return FMOD_ERR_INVALID_HANDLE;
	StopChannelsOf(handle);
	FreeSound(*sound);
	return FMOD_OK;
}
