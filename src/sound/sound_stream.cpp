// Sound that stays encoded and is decoded a little ahead of what is heard, on a thread of its own.
#include "sound/sound_stream.h"

#include <algorithm>
#include <chrono>

static const std::chrono::milliseconds LOOK_EVERY(100); // far less than the blocks hold
static const int BYTES_PER_FRAME = 4;

CSoundStream::CSoundStream(std::vector<unsigned char>&& encoded)
    : rate(0), bytes(std::move(encoded)), block(2 * BLOCK_FRAMES)
{
	const CSoundDecoder probe(bytes);
	if (probe.IsOpen())
		rate = probe.Rate();
	alGenBuffers(BLOCKS, buffers);
}

CSoundStream::~CSoundStream()
{
	Stop();
	alDeleteBuffers(BLOCKS, buffers);
}

void CSoundStream::Start(ALuint newSource, bool newLooping)
{
	Stop();
	source  = newSource;
	looping = newLooping;
	paused  = true;
	alSourceRewind(source); // a source that was stopped takes every new block for heard
	idle.assign(buffers, buffers + BLOCKS);
	sinceTurn = 0;
	atEnd     = false;
}

void CSoundStream::SetPaused(bool newPaused)
{
	paused = newPaused;
	if (paused && source)
		alSourcePause(source);
}

void CSoundStream::Stop()
{
	if (!source)
		return;
	alSourceStop(source);
	alSourcei(source, AL_BUFFER, 0); // takes all blocks out of the queue
	source = 0;
	decoder.reset();
}

void CSoundStream::TakeBackHeard()
{
	ALint heard = 0;
	alGetSourcei(source, AL_BUFFERS_PROCESSED, &heard);
	for (; heard > 0; heard--) {
		ALuint buffer = 0;
		alSourceUnqueueBuffers(source, 1, &buffer);
		idle.push_back(buffer);
	}
}

// Frames put into the block. A loop goes on within the block, so that it has no seam; a track
// without a single frame would turn for ever.
int CSoundStream::FillBlock()
{
	if (!decoder)
		decoder = std::make_unique<CSoundDecoder>(bytes);
	int filled = 0;
	while (!atEnd && filled < BLOCK_FRAMES) {
		const int got = decoder->Read(&block[2 * filled], BLOCK_FRAMES - filled);
		filled += got;
		sinceTurn += got;
		if (filled < BLOCK_FRAMES) {
			atEnd     = !looping || sinceTurn == 0 || !decoder->Rewind();
			sinceTurn = 0;
		}
	}
	return filled;
}

bool CSoundStream::Feed()
{
	TakeBackHeard();
	int frames = 0;
	if (!atEnd && !idle.empty())
		frames = FillBlock();
	if (frames > 0) {
		const ALuint buffer = idle.back();
		idle.pop_back();
		alBufferData(buffer, AL_FORMAT_STEREO16, block.data(), frames * BYTES_PER_FRAME, rate);
		alSourceQueueBuffers(source, 1, &buffer);
	}
	ALint state = AL_PLAYING;
	alGetSourcei(source, AL_SOURCE_STATE, &state);
	const bool ranDry = state == AL_STOPPED && frames > 0;
	if (!paused && (state == AL_INITIAL || state == AL_PAUSED || ranDry))
		alSourcePlay(source);
	// Where nothing is heard any more, as after the loss of the device, it must not decode as fast
	// as it can.
	return frames > 0 && !ranDry;
}

bool CSoundStream::IsPlaying() const
{
	if (!source)
		return false;
	if (paused || !atEnd)
		return true;
	ALint state = AL_STOPPED;
	alGetSourcei(source, AL_SOURCE_STATE, &state);
	return idle.size() < BLOCKS && state != AL_STOPPED;
}

CStreamFeeder::CStreamFeeder() : thread(&CStreamFeeder::Run, this) {}

CStreamFeeder::~CStreamFeeder()
{
	{
		std::lock_guard<std::mutex> hold(lock);
		ending = true;
	}
	wake.notify_one();
	thread.join();
}

void CStreamFeeder::Start(CSoundStream* stream, ALuint source, bool looping)
{
	std::lock_guard<std::mutex> hold(lock);
	stream->Start(source, looping);
	if (std::find(streams.begin(), streams.end(), stream) == streams.end())
		streams.push_back(stream);
	wake.notify_one();
}

void CStreamFeeder::SetPaused(CSoundStream* stream, bool paused)
{
	std::lock_guard<std::mutex> hold(lock);
	stream->SetPaused(paused);
	wake.notify_one();
}

void CStreamFeeder::Stop(CSoundStream* stream)
{
	std::lock_guard<std::mutex> hold(lock);
	stream->Stop();
	streams.erase(std::remove(streams.begin(), streams.end(), stream), streams.end());
}

bool CStreamFeeder::IsPlaying(CSoundStream* stream)
{
	std::lock_guard<std::mutex> hold(lock);
	return stream->IsPlaying();
}

void CStreamFeeder::WaitUntilFed()
{
	std::unique_lock<std::mutex> hold(lock);
	const unsigned int ticket = ++asked;
	wake.notify_one();
	fed.wait(hold, [&] { return answered >= ticket; });
}

bool CStreamFeeder::FeedAll()
{
	bool worked = false;
	for (CSoundStream* stream : streams)
		worked = stream->Feed() || worked;
	return worked;
}

void CStreamFeeder::Run()
{
	std::unique_lock<std::mutex> hold(lock);
	while (!ending) {
		if (FeedAll()) { // a call of the main thread goes first
			hold.unlock();
			std::this_thread::yield();
			hold.lock();
			continue;
		}
		answered = asked;
		fed.notify_all();
		wake.wait_for(hold, LOOK_EVERY);
	}
}
