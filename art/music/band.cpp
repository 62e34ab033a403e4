// Sends the notes of a score to FluidSynth in the order of their samples.
#include "art/music/band.h"

#include "art/music/mix.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fluidsynth.h>
#include <map>
#include <mutex>

const char* const SOUND_FONT = "/usr/share/sounds/sf2/FluidR3_GM.sf2";

static const double SYNTH_GAIN = .45;
static const double TAIL       = 2.5; // seconds that a last chord rings
static const double FADE_OUT   = .6;  // seconds at the end of it
static const long BLOCK        = 64;  // samples; notes begin where a block of the synthesizer does
static const long LEAD_IN      = 4096 * BLOCK; // samples of its end that a loop plays first
static const double SHORTEST   = .03;          // seconds of a note
static const int VIBRATO_CONTROLLER = 1;
static const int DRUM_BANK          = 128;
static const int BEND_CENTRE = 8192, BEND_SEMITONE = 4096;
static const double SCOOP   = .11; // seconds that a slide takes
static const int BEND_STEPS = 10;

namespace
{
enum EventKind { EVENT_CONTROL, EVENT_OFF, EVENT_BEND, EVENT_ON }; // in this order at one time

struct Event {
	long at; // samples
	EventKind kind;
	int player, a, b;
};

struct Synth {
	Synth();
	~Synth();
	Synth(const Synth&)            = delete;
	Synth& operator=(const Synth&) = delete;
	void Seat(int channel, const Player& player);
	void Send(const Event& event);

	fluid_settings_t* settings;
	fluid_synth_t* synth;
};
} // namespace

// The first synthesizer of a process fills in tables that a second one, made meanwhile on another
// thread, would find half empty.
static std::mutex s_making;

Synth::Synth()
{
	std::lock_guard<std::mutex> alone(s_making);
	fluid_set_log_function(FLUID_WARN, nullptr, nullptr); // it complains of unused drivers
	settings                                       = new_fluid_settings();
	const std::pair<const char*, double> NUMBERS[] = {
	    {"synth.sample-rate", SAMPLE_RATE}, {"synth.gain", SYNTH_GAIN},
	    {"synth.reverb.room-size", .62},    {"synth.reverb.damp", .35},
	    {"synth.reverb.width", .8},         {"synth.reverb.level", .55},
	    {"synth.chorus.level", 1.2},        {"synth.chorus.speed", .3},
	    {"synth.chorus.depth", 6},
	};
	for (auto& [key, value] : NUMBERS)
		fluid_settings_setnum(settings, key, value);
	const std::pair<const char*, int> COUNTS[] = {
	    {"synth.polyphony", 256},
	    {"synth.midi-channels", 32},
	    {"synth.cpu-cores", 1},              // more would add the voices in any order
	    {"synth.dynamic-sample-loading", 1}, // the whole font takes 150 MB
	};
	for (auto& [key, value] : COUNTS)
		fluid_settings_setint(settings, key, value);
	synth = new_fluid_synth(settings);
}

Synth::~Synth()
{
	delete_fluid_synth(synth);
	delete_fluid_settings(settings);
}

void Synth::Seat(int channel, const Player& player)
{
	bool drums = player.instrument.drums;
	fluid_synth_set_channel_type(synth, channel, drums ? CHANNEL_TYPE_DRUM : CHANNEL_TYPE_MELODIC);
	if (drums)
		fluid_synth_bank_select(synth, channel, DRUM_BANK);
	fluid_synth_program_change(synth, channel, player.instrument.program);
	fluid_synth_cc(synth, channel, 7, player.volume);
	fluid_synth_cc(synth, channel, 10, player.pan);
	fluid_synth_cc(synth, channel, 91, player.reverb);
	fluid_synth_cc(synth, channel, 93, player.chorus);
	fluid_synth_cc(synth, channel, VIBRATO_CONTROLLER, player.vibrato);
	fluid_synth_cc(synth, channel, EXPRESSION, NORMAL_EXPRESSION);
}

void Synth::Send(const Event& event)
{
	switch (event.kind) {
	case EVENT_CONTROL:
		fluid_synth_cc(synth, event.player, event.a, event.b);
		break;
	case EVENT_OFF:
		fluid_synth_noteoff(synth, event.player, event.a);
		break;
	case EVENT_BEND:
		fluid_synth_pitch_bend(synth, event.player, event.a);
		break;
	case EVENT_ON:
		fluid_synth_noteon(synth, event.player, event.a, event.b);
		break;
	}
}

static long Samples(double seconds)
{
	return (long)SampleCount(std::max(0.0, seconds));
}

static void AddScoop(std::vector<Event>& events, double at, int player)
{
	for (int i = 0; i <= BEND_STEPS; i++) {
		double rest = .5 + .5 * std::cos(M_PI * i / BEND_STEPS);
		int bend    = BEND_CENTRE - (int)(BEND_SEMITONE * rest);
		events.push_back({Samples(at + SCOOP * i / BEND_STEPS), EVENT_BEND, player, bend, 0});
	}
}

static bool Earlier(const Event& a, const Event& b)
{
	return a.at != b.at ? a.at < b.at : a.kind < b.kind;
}

namespace
{
struct Held {
	double on, off; // seconds
	const Played* note;
};
} // namespace

// A key that is struck again ends its earlier note first.
static void AddNotes(std::vector<Event>& events, const Score& score, int only)
{
	std::map<std::pair<int, int>, std::vector<Held>> keys;
	for (const Played& note : score.played) {
		double on  = std::max(0.0, score.Seconds(note.from) + note.delay);
		double off = std::max(score.Seconds(note.to) + note.delay, on + SHORTEST);
		if (only < 0 || note.player == only)
			keys[{note.player, note.key}].push_back({on, off, &note});
	}
	for (auto& [key, held] : keys) {
		std::stable_sort(held.begin(), held.end(),
		                 [](const Held& a, const Held& b) { return a.on < b.on; });
		for (size_t i = 0; i < held.size(); i++) {
			double off = i + 1 < held.size() ? std::min(held[i].off, held[i + 1].on) : held[i].off;
			int velocity = held[i].note->velocity;
			events.push_back({Samples(held[i].on), EVENT_ON, key.first, key.second, velocity});
			events.push_back({Samples(off), EVENT_OFF, key.first, key.second, 0});
			if (held[i].note->scoop)
				AddScoop(events, held[i].on, key.first);
		}
	}
}

// Moves the pass behind a lead-in that plays its last seconds.
static void AddLeadIn(std::vector<Event>& events, long pass)
{
	size_t count = events.size();
	for (size_t i = 0; i < count; i++) {
		Event early = events[i];
		events[i].at += LEAD_IN;
		early.at += LEAD_IN - pass;
		if (early.at >= 0 || early.kind == EVENT_CONTROL) {
			early.at = std::max(0L, early.at);
			events.push_back(early);
		}
	}
}

// All that is sent to the synthesizer, in order.
static std::vector<Event> EventsOf(const Score& score, long pass, int only)
{
	std::vector<Event> events;
	for (size_t i = 0; i < score.players.size(); i++)
		events.push_back({0, EVENT_CONTROL, (int)i, EXPRESSION, NORMAL_EXPRESSION});
	for (const Turn& turn : score.turns)
		events.push_back({Samples(score.Seconds(turn.at)), EVENT_CONTROL, turn.player,
		                  turn.controller, turn.value});
	AddNotes(events, score, only);
	// sorted before the lead-in too: controllers that fall together at its start keep their order
	std::stable_sort(events.begin(), events.end(), Earlier);
	if (score.loops)
		AddLeadIn(events, pass);
	std::stable_sort(events.begin(), events.end(), Earlier);
	return events;
}

std::string SoundFontFault(const std::string& path)
{
	if (std::filesystem::exists(path))
		return "";
	return "the sound font " + path + " is missing; install the package fluid-soundfont-gm";
}

static void PlayAll(Synth& synth, const std::vector<Event>& events, size_t total, Sound& sound)
{
	std::vector<float> left(total), right(total);
	size_t at = 0;
	auto play = [&](size_t to) {
		to = std::min(to, total);
		if (to > at)
			fluid_synth_write_float(synth.synth, (int)(to - at), left.data(), (int)at, 1,
			                        right.data(), (int)at, 1);
		at = std::max(at, to);
	};
	for (const Event& event : events) {
		play((size_t)event.at);
		synth.Send(event);
	}
	play(total);
	sound.left.assign(left.begin(), left.end());
	sound.right.assign(right.begin(), right.end());
}

bool Perform(const Score& score, Sound& sound, std::string& fault, int only)
{
	fault = score.fault.empty() ? SoundFontFault(SOUND_FONT) : score.name + ": " + score.fault;
	if (!fault.empty())
		return false;
	Synth synth;
	if (fluid_synth_sfload(synth.synth, SOUND_FONT, 1) < 0) {
		fault = std::string(SOUND_FONT) + " can't be read";
		return false;
	}
	for (size_t i = 0; i < score.players.size(); i++)
		synth.Seat((int)i, score.players[i]);
	long leadIn = score.loops ? LEAD_IN : 0, pass = Samples(score.Length() + TAIL);
	// whole blocks, so that what rings over the seam meets itself to the sample
	if (score.loops)
		pass = (Samples(score.Length()) + BLOCK / 2) / BLOCK * BLOCK;
	PlayAll(synth, EventsOf(score, pass, only), (size_t)(leadIn + pass), sound);
	Equalise(sound);
	sound.left.erase(sound.left.begin(), sound.left.begin() + leadIn);
	sound.right.erase(sound.right.begin(), sound.right.begin() + leadIn);
	return true;
}

bool Record(const Score& score, Sound& sound, std::string& fault)
{
	if (!Perform(score, sound, fault))
		return false;
	Finish(sound, score.loudness, score.loops);
	if (!score.loops) {
		Fade(sound.left, 0, FADE_OUT);
		Fade(sound.right, 0, FADE_OUT);
	}
	return true;
}
