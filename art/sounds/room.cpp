// Six early reflections, then a network of four delay lines that feed each other.
#include "art/sounds/room.h"

#include "art/sounds/chance.h"
#include "art/sounds/filters.h"

static const int EARLY = 6, LINES = 4;
static const double LINE_SECONDS[LINES] = {.0231, .0297, .0371, .0413};
static const double TAIL_SHARE          = .6;

static void AddEarly(Wave& out, const Wave& dry, double wet, double size)
{
	Chance chance(7);
	for (int i = 0; i < EARLY; i++) {
		size_t delay = SampleCount((.004 + .0043 * i + .002 * chance.Unit()) * size);
		double gain  = wet * (.9 - .1 * i) * (i & 1 ? -1 : 1);
		for (size_t n = 0; n < dry.size() && n + delay < out.size(); n++)
			out[n + delay] += gain * dry[n];
	}
}

static void AddTail(Wave& out, const Wave& dry, double wet, const Room& room)
{
	Wave line[LINES];
	size_t at[LINES] = {};
	double feedback[LINES];
	OnePole damping[LINES];
	for (int i = 0; i < LINES; i++) {
		line[i].assign(SampleCount(LINE_SECONDS[i] * room.size), 0.0);
		feedback[i] = std::pow(10.0, -3.0 * line[i].size() / SAMPLE_RATE / room.decay);
		damping[i]  = OnePole(room.treble);
	}
	for (size_t n = 0; n < out.size(); n++) {
		double echo[LINES], sum = 0;
		for (int i = 0; i < LINES; i++)
			sum += echo[i] = damping[i].Low(line[i][at[i]]) * feedback[i];
		double in = n < dry.size() ? dry[n] : 0;
		for (int i = 0; i < LINES; i++) {
			line[i][at[i]] = in + echo[i] - .5 * sum;
			if (++at[i] == line[i].size())
				at[i] = 0;
		}
		out[n] += wet * TAIL_SHARE * (echo[0] - echo[1] + echo[2] - echo[3]);
	}
}

Wave InRoom(const Wave& dry, const Room& room)
{
	Wave out = dry;
	out.resize(dry.size() + SampleCount(room.decay), 0.0);
	double wet = FromDb(room.wet);
	AddEarly(out, dry, wet, room.size);
	AddTail(out, dry, wet, room);
	return out;
}
