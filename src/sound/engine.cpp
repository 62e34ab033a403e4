// The engine itself: output and context, and the channels that play.
#include "sound/engine.h"

#include "sound/sound_output.h"

#include <AL/alext.h>
#include <AL/efx.h>
#include <algorithm>
#include <cstdlib>

static const int CAPTURE_STEP         = 1024; // frames between two looks at the streams
static const uint32_t CHANNEL_BITS    = 12;   // of a channel's handle; the rest is its generation
static const uint32_t MAX_CHANNELS    = 1u << CHANNEL_BITS;
static const uint32_t CHANNEL_MASK    = MAX_CHANNELS - 1;
static const uint32_t LAST_GENERATION = UINT32_MAX >> CHANNEL_BITS;
static const int SAMPLES_PER_FRAME    = 2;

CSoundEngine* g_soundEngine = nullptr;

// An open device must not meet the end of the mixing library, nor the thread that of the process.
static void CloseAtExit()
{
	if (g_soundEngine)
		g_soundEngine->Close();
}

CSoundEngine::CSoundEngine() : output(NewOutputDevice()) {}

CSoundEngine::~CSoundEngine()
{
	Close();
}

FMOD_RESULT CSoundEngine::SelectOutput(int outputType)
{
	return output && !device ? output->SelectOutput(outputType) : FMOD_ERR_INITIALIZED;
}

// Where there is no driver at all any choice stands: that the sound cannot start shows in Init.
FMOD_RESULT CSoundEngine::SelectDriver(int newDriver)
{
	if (device || !output)
		return FMOD_ERR_INITIALIZED;
	const int count = static_cast<int>(output->DriverNames().size());
	if (newDriver < 0 || (count > 0 && newDriver >= count))
		return FMOD_ERR_INVALID_PARAM;
	driver = newDriver;
	return FMOD_OK;
}

FMOD_RESULT CSoundEngine::Init(int channelCount)
{
	if (device)
		return FMOD_ERR_INITIALIZED;
	if (channelCount < 1 || channelCount > static_cast<int>(MAX_CHANNELS))
		return FMOD_ERR_INVALID_PARAM;
	if (!output)
		return FMOD_ERR_OUTPUT_INIT;
	std::string name;
	if (driver >= 0) {
		const std::vector<std::string> names = output->DriverNames();
		if (driver < static_cast<int>(names.size()))
			name = names[driver];
	}
	device = output->Open(name);
	if (!device)
		return FMOD_ERR_OUTPUT_INIT;
	static const int s_registered = atexit(CloseAtExit);
	(void)s_registered;
	if (!MakeContext(channelCount)) {
		Close();
		return FMOD_ERR_OUTPUT_INIT;
	}
	feeder = std::make_unique<CStreamFeeder>();
	return FMOD_OK;
}

// Everything is stereo and goes out as it is: no place in a room, no effect of the mixer's own.
bool CSoundEngine::MakeContext(int channelCount)
{
	std::vector<ALCint> attributes = output->ContextAttributes();
	for (ALCint value : {ALC_MONO_SOURCES, 0, ALC_STEREO_SOURCES, channelCount, ALC_HRTF_SOFT,
	                     ALC_FALSE, ALC_MAX_AUXILIARY_SENDS, 0, 0})
		attributes.push_back(value);
	context = alcCreateContext(device, attributes.data());
	if (!context || !alcMakeContextCurrent(context))
		return false;
	alGetError();
	for (int i = 0; i < channelCount; i++) {
		EngineChannel channel;
		alGenSources(1, &channel.source);
		if (alGetError() != AL_NO_ERROR)
			return false;
		alSourcei(channel.source, AL_DIRECT_CHANNELS_SOFT, AL_TRUE);
		channels.push_back(std::move(channel));
	}
	return true;
}

FMOD_RESULT CSoundEngine::Update()
{
	if (!device)
		return FMOD_ERR_UNINITIALIZED;
	if (!deviceLost && !output->IsConnected(device)) {
		deviceLost = true;
		for (EngineChannel& channel : channels)
			StopChannel(channel);
	}
	return deviceLost ? FMOD_ERR_OUTPUT_DRIVERCALL : FMOD_OK;
}

void CSoundEngine::Close()
{
	for (EngineChannel& channel : channels)
		StopChannel(channel);
	for (EngineSound& sound : sounds)
		if (sound.inUse)
			FreeSound(sound);
	sounds.clear();
	decodingNow.clear();
	feeder.reset();
	for (EngineChannel& channel : channels)
		alDeleteSources(1, &channel.source);
	channels.clear();
	if (context) {
		alcMakeContextCurrent(nullptr);
		alcDestroyContext(context);
		context = nullptr;
	}
	if (device)
		alcCloseDevice(device);
	device     = nullptr;
	deviceLost = false;
}

bool CSoundEngine::Capture(float* samples, int frames)
{
	while (device && frames > 0) {
		const int step = std::min(frames, CAPTURE_STEP);
		feeder->WaitUntilFed();
		if (!output->Render(device, samples, step))
			return false;
		samples += step * SAMPLES_PER_FRAME;
		frames -= step;
	}
	return device != nullptr;
}

std::vector<float> CaptureSound(int frames)
{
	std::vector<float> samples(static_cast<size_t>(frames) * SAMPLES_PER_FRAME);
	if (g_soundEngine)
		g_soundEngine->Capture(samples.data(), frames);
	return samples;
}

FMOD_RESULT CSoundEngine::Play(FMOD_SOUND handle, bool paused, FMOD_CHANNEL* channelHandle)
{
	EngineSound* sound = FindSound(handle);
	if (!sound || !device)
		return device ? FMOD_ERR_INVALID_HANDLE : FMOD_ERR_UNINITIALIZED;
	const FMOD_RESULT decoded = FinishDecoding(*sound);
	if (decoded != FMOD_OK)
		return decoded;
	if (sound->stream)
		StopChannelsOf(handle);

	EngineChannel& channel = ChannelToUse();
	StopChannel(channel);
	channel.generation = channel.generation % LAST_GENERATION + 1;
	channel.sound      = handle;
	channel.startedAt  = ++plays;
	channel.paused     = true;
	alSourcef(channel.source, AL_GAIN, 1);
	alSourcef(channel.source, AL_PITCH, 1);
	if (sound->stream) {
		alSourcei(channel.source, AL_LOOPING, AL_FALSE); // it turns as it decodes
		feeder->Start(sound->stream.get(), channel.source, sound->looping);
	} else {
		alSourcei(channel.source, AL_BUFFER, static_cast<ALint>(sound->buffer));
		alSourcei(channel.source, AL_LOOPING, sound->looping ? AL_TRUE : AL_FALSE);
	}
	const uint32_t index = static_cast<uint32_t>(&channel - channels.data());
	*channelHandle       = channel.generation << CHANNEL_BITS | index;
	return paused ? FMOD_OK : SetPaused(channel, false);
}

EngineChannel& CSoundEngine::ChannelToUse()
{
	EngineChannel* oldest = &channels[0];
	for (EngineChannel& channel : channels) {
		if (!IsBusy(channel))
			return channel;
		if (channel.startedAt < oldest->startedAt)
			oldest = &channel;
	}
	return *oldest;
}

FMOD_RESULT CSoundEngine::FindChannel(FMOD_CHANNEL handle, EngineChannel*& channel)
{
	const uint32_t index      = handle & CHANNEL_MASK;
	const uint32_t generation = handle >> CHANNEL_BITS;
	if (handle == 0 || index >= channels.size())
		return FMOD_ERR_INVALID_HANDLE;
	channel = &channels[index];
	if (channel->generation != generation)
		return FMOD_ERR_CHANNEL_STOLEN;
	return channel->sound ? FMOD_OK : FMOD_ERR_INVALID_HANDLE;
}

FMOD_RESULT CSoundEngine::SetPaused(EngineChannel& channel, bool paused)
{
	EngineSound* sound = FindSound(channel.sound);
	if (channel.paused == paused || !sound)
		return FMOD_OK;
	channel.paused = paused;
	if (sound->stream)
		feeder->SetPaused(sound->stream.get(), paused);
	else if (paused)
		alSourcePause(channel.source);
	else
		alSourcePlay(channel.source);
	return FMOD_OK;
}

// From now on its handle finds no sound.
void CSoundEngine::StopChannel(EngineChannel& channel)
{
	EngineSound* sound = FindSound(channel.sound);
	channel.paused     = false;
	if (!sound)
		return;
	channel.sound = 0;
	if (sound->stream) {
		feeder->Stop(sound->stream.get());
		return;
	}
	alSourceStop(channel.source);
	alSourcei(channel.source, AL_BUFFER, 0); // a buffer in use could not be deleted
}

void CSoundEngine::StopChannelsOf(FMOD_SOUND handle)
{
	for (EngineChannel& channel : channels)
		if (channel.sound == handle)
			StopChannel(channel);
}

bool CSoundEngine::IsBusy(const EngineChannel& channel)
{
	EngineSound* sound = FindSound(channel.sound);
	if (!sound)
		return false;
	if (sound->stream)
		return feeder->IsPlaying(sound->stream.get());
	ALint state = AL_STOPPED;
	alGetSourcei(channel.source, AL_SOURCE_STATE, &state);
	return channel.paused || state == AL_PLAYING;
}
