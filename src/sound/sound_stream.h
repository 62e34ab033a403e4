// Sound that stays encoded and is decoded a little ahead of what is heard, on a thread of its own.
#pragma once

#include "sound/sound_decoder.h"

#include <AL/al.h>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

// One encoded track with its queue of decoded blocks. It plays on one source at a time, which the
// channel lends it. Only the feeder calls it, with its lock held.
class CSoundStream
{
public:
	static const int BLOCKS       = 8;
	static const int BLOCK_FRAMES = 8192; // eight blocks: a second and a half ahead

	explicit CSoundStream(std::vector<unsigned char>&& encoded);
	~CSoundStream();

	void Start(ALuint newSource, bool newLooping); // paused
	void SetPaused(bool newPaused);
	void Stop();
	// Does one block of work; false when there is nothing to do now.
	bool Feed();
	bool IsPlaying() const;

	int rate; // Hz; 0: no sound, or none that can be played

private:
	void TakeBackHeard();
	int FillBlock();

	const std::vector<unsigned char> bytes;
	std::unique_ptr<CSoundDecoder> decoder; // only while it plays: it takes far more than its state
	ALuint source          = 0;             // not owned, 0 when idle
	ALuint buffers[BLOCKS] = {};
	std::vector<ALuint> idle; // buffers that are not in the queue
	bool paused   = true;     // the source is left alone
	bool looping  = false;
	bool atEnd    = false; // nothing is left to decode
	int sinceTurn = 0;     // frames decoded since the track's start
	std::vector<int16_t> block;
};

// The thread that feeds all streams. All of it may be called from the main thread; a call waits for
// the decoding of one block at most.
class CStreamFeeder
{
public:
	CStreamFeeder();
	~CStreamFeeder();

	void Start(CSoundStream* stream, ALuint source, bool looping); // paused
	void SetPaused(CSoundStream* stream, bool paused);
	void Stop(CSoundStream* stream);
	bool IsPlaying(CSoundStream* stream);
	void WaitUntilFed(); // every stream that plays is decoded as far ahead as it can be

private:
	void Run();
	bool FeedAll();

	std::mutex lock;
	std::condition_variable wake, fed;
	std::vector<CSoundStream*> streams; // those that have a source
	unsigned int asked    = 0;          // counts WaitUntilFed
	unsigned int answered = 0;
	bool ending           = false;
	std::thread thread; // last: it uses all of the above
};
