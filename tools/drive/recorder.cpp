// What the run would sound like, written to a file while the driver plays.
#include "drive/recorder.h"

#include "media/display.h"
#include "sound/sound_output.h"

static const int MS_PER_SECOND = 1000;

CRecorder::CRecorder(CFrameHook* newInner, const std::string& path) : inner(newInner)
{
	SF_INFO info    = {};
	info.samplerate = CAPTURE_RATE;
	info.channels   = 2;
	info.format     = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
	file            = sf_open(path.c_str(), SFM_WRITE, &info);
	if (file)
		sf_command(file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
}

CRecorder::~CRecorder()
{
	if (file)
		sf_close(file);
}

void CRecorder::BeforeFrame()
{
	inner->BeforeFrame();
}

// A frame is no whole number of samples: what is cut in one is made up for in a later one.
void CRecorder::AfterFrame()
{
	inner->AfterFrame();
	auto samplesUntil = [](long long count) {
		return count * FRAME_TICKS * CAPTURE_RATE / MS_PER_SECOND;
	};
	const int now = static_cast<int>(samplesUntil(frames + 1) - samplesUntil(frames));
	frames++;
	const std::vector<float> samples = CaptureSound(now);
	if (file)
		sf_writef_float(file, samples.data(), now);
}
