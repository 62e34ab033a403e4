// Finishes effects and hands their bytes to the sink.
#include "art/sounds/effect.h"

#include "art/core/source_keys.h"
#include "art/sounds/loudness.h"
#include "art/sounds/vorbis_file.h"

static const float MONO_QUALITY = .5f, STEREO_QUALITY = .4f;
static const double TAIL_FLOOR = -60;                    // dB under the peak
static const double RUMBLE     = 30;                     // Hz; below lies nothing that anyone hears
static const double CALL_SHELF = 1500, HIT_SHELF = 1800; // Hz
static const double HIT_SILENCE = .003, HIT_FADE = .0012; // seconds

static void Add(Sink& sink, const std::string& name, const Sound& sound)
{
	float quality = sound.IsStereo() ? STEREO_QUALITY : MONO_QUALITY;
	sink.AddBytes(name + ".ogg", EncodeVorbis(sound, quality));
}

void AddCall(Sink& sink, const std::string& name, const Call& call, double level,
             const Place& place)
{
	Sound sound;
	sound.left = InRoom(RenderCall(call, HashBytes(name)), place.room);
	TrimTail(sound.left, TAIL_FLOOR);
	HighShelf(sound.left, CALL_SHELF, place.bright);
	HighPass(sound.left, RUMBLE);
	Fade(sound.left, .002, .03);
	BringToLevel(sound, level);
	Add(sink, name, sound);
}

void AddHit(Sink& sink, const std::string& name, const Wave& wave, double level, const Room& room,
            double bright)
{
	Wave wet = InRoom(wave, room);
	if (bright != 0)
		HighShelf(wet, HIT_SHELF, bright);
	HighPass(wet, RUMBLE);
	TrimTail(wet, TAIL_FLOOR);
	Fade(wet, HIT_FADE, .025);
	Sound sound;
	MixAt(sound.left, wet, HIT_SILENCE);
	BringToLevel(sound, level);
	Add(sink, name, sound);
}

void AddLoop(Sink& sink, const std::string& name, Sound loop, double level, double window)
{
	BringToLevel(loop, level, window);
	Add(sink, name, loop);
}

void AddStereo(Sink& sink, const std::string& name, Sound sound, double level)
{
	BringToLevel(sound, level);
	Add(sink, name, sound);
}
