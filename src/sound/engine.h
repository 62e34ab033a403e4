// The engine itself: sounds, channels and the context that mixes them.
#pragma once

#include "sound/output_device.h"
#include "sound/sound_stream.h"

#include <AL/al.h>
#include <deque>
#include <future>

// One sound. An effect lies decoded in a buffer, a track stays a stream. While decoding is valid
// the effect's buffer is still to come.
struct EngineSound {
	bool inUse          = false;
	uint32_t generation = 1;
	FMOD_RESULT result  = FMOD_OK; // of its decoding
	int rate            = 0;       // Hz
	bool looping        = false;
	ALuint buffer       = 0;
	std::unique_ptr<CSoundStream> stream;
	std::future<DecodedSound> decoding;
};

struct EngineChannel {
	ALuint source       = 0;
	uint32_t generation = 1;
	FMOD_SOUND sound    = 0; // 0 when it was never used or its sound is gone
	uint64_t startedAt  = 0; // counts plays
	bool paused         = false;
};

// Behind FMOD_SYSTEM. Owns device, context, sounds and the feeding thread. Sounds and channels are
// handed out as handles of an index and a generation, so that a stale one is noticed.
class CSoundEngine
{
public:
	CSoundEngine();
	~CSoundEngine();

	FMOD_RESULT SelectOutput(int outputType);
	FMOD_RESULT SelectDriver(int driver);
	FMOD_RESULT Init(int channelCount);
	FMOD_RESULT Update();
	void Close();
	bool Capture(float* samples, int frames);

	FMOD_RESULT CreateFromMemory(const unsigned char* data, size_t size, FMOD_SOUND* handle);
	FMOD_RESULT CreateFromFile(const char* path, FMOD_SOUND* handle);
	FMOD_RESULT SetLooping(FMOD_SOUND handle, bool looping);
	FMOD_RESULT ReleaseSound(FMOD_SOUND handle);
	FMOD_RESULT Play(FMOD_SOUND handle, bool paused, FMOD_CHANNEL* channelHandle);

	// FMOD_ERR_CHANNEL_STOLEN or FMOD_ERR_INVALID_HANDLE when it is no channel of now.
	FMOD_RESULT FindChannel(FMOD_CHANNEL handle, EngineChannel*& channel);
	FMOD_RESULT SetPaused(EngineChannel& channel, bool paused);
	void StopChannel(EngineChannel& channel);
	bool IsBusy(const EngineChannel& channel);
	EngineSound* FindSound(FMOD_SOUND handle);

	std::unique_ptr<COutputDevice> output; // null when none was chosen

private:
	bool MakeContext(int channelCount);
	EngineSound* NewSound(FMOD_SOUND* handle);
	void FreeSound(EngineSound& sound);
	FMOD_RESULT FinishDecoding(EngineSound& sound);
	EngineChannel& ChannelToUse();
	void StopChannelsOf(FMOD_SOUND handle);

	int driver          = -1; // chosen, -1 for the default
	ALCdevice* device   = nullptr;
	ALCcontext* context = nullptr;
	bool deviceLost     = false;
	std::deque<EngineSound> sounds; // a deque: a slot stays where it is
	std::deque<FMOD_SOUND> decodingNow;
	std::vector<EngineChannel> channels;
	uint64_t plays = 0;
	std::unique_ptr<CStreamFeeder> feeder;
};

extern CSoundEngine* g_soundEngine; // the one that exists, or null
