// Sends the notes of a score to FluidSynth in the order of their samples.
#include "art/music/band.h"

#include "art/music/mix.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fluidsynth.h>
#include <map>
#include <memory>

const char* const SOUND_FONT = "/usr/share/sounds/sf2/FluidR3_GM.sf2";

static const double SYNTH_GAIN = .45;
static const double TAIL       = 2.5; // seconds that a last chord rings
static const double FADE_OUT   = .6;  // seconds at the end of it
static const double LEAD_IN    = 6;   // seconds of its end that a loop plays before its start
static const double SHORTEST   = .03; // seconds of a note
static const int NORMAL = 110, VIBRATO_CONTROLLER = 1, EXPRESSION = 11;
static const int DRUM_BANK   = 128;
static const int BEND_CENTRE = 8192, BEND_SEMITONE = 4096;
static const double SCOOP   = .11; // seconds that a slide takes
static const int BEND_STEPS = 10;

namespace
{
enum EventKind { EVENT_CONTROL, EVENT_OFF, EVENT_BEND, EVENT_ON }; // in this order at one time

struct Event {
	double at; // seconds
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

Synth::Synth()
{
	fluid_set_log_function(FLUID_WARN, nullptr, nullptr); // it complains of unused drivers
	settings                                    = new_fluid_settings();
	const std::map<const char*, double> NUMBERS = {
	    {"synth.sample-rate", SAMPLE_RATE}, {"synth.gain", SYNTH_GAIN},
	    {"synth.reverb.room-size", .62},    {"synth.reverb.damp", .35},
	    {"synth.reverb.width", .8},         {"synth.reverb.level", .55},
	    {"synth.chorus.level", 1.2},        {"synth.chorus.speed", .3},
	    {"synth.chorus.depth", 6},
	};
	for (auto& [key, value] : NUMBERS)
		fluid_settings_setnum(settings, key, value);
	const std::map<const char*, int> COUNTS = {
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
	fluid_synth_cc(synth, channel, EXPRESSION, NORMAL);
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

static void AddScoop(std::vector<Event>& events, double at, int player)
{
	for (int i = 0; i <= BEND_STEPS; i++) {
		double rest = .5 + .5 * std::cos(M_PI * i / BEND_STEPS);
		int bend    = BEND_CENTRE - (int)(BEND_SEMITONE * rest);
		events.push_back({at + SCOOP * i / BEND_STEPS, EVENT_BEND, player, bend, 0});
	}
}

// The events of one pass in order. A key that is struck again ends its earlier note first.
static std::vector<Event> EventsOf(const Score& score, int only)
{
	std::vector<Event> events;
	for (size_t i = 0; i < score.players.size(); i++)
		events.push_back({0, EVENT_CONTROL, (int)i, EXPRESSION, NORMAL});
	for (const Turn& turn : score.turns)
		events.push_back(
		    {score.Seconds(turn.at), EVENT_CONTROL, turn.player, turn.controller, turn.value});
	struct Held {
		double on, off;
		const Played* note;
	};
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
			events.push_back({held[i].on, EVENT_ON, key.first, key.second, held[i].note->velocity});
			events.push_back({off, EVENT_OFF, key.first, key.second, 0});
			if (held[i].note->scoop)
				AddScoop(events, held[i].on, key.first);
		}
	}
	return events;
}

// Moves the pass behind a lead-in that plays its last seconds.
static void AddLeadIn(std::vector<Event>& events, double length)
{
	size_t count = events.size();
	for (size_t i = 0; i < count; i++) {
		Event early = events[i];
		events[i].at += LEAD_IN;
		early.at += LEAD_IN - length;
		if (early.at >= 0 || early.kind == EVENT_CONTROL) {
			early.at = std::max(0.0, early.at);
			events.push_back(early);
		}
	}
}

std::string SoundFontFault(const std::string& path)
{
	if (std::filesystem::exists(path))
		return "";
	return "the sound font " + path + " is missing; install the package fluid-soundfont-gm";
}

bool Perform(const Score& score, Sound& sound, std::string& fault, int only)
{
	fault = score.fault.empty() ? "" : score.name + ": " + score.fault;
	if (fault.empty())
		fault = SoundFontFault(SOUND_FONT);
	if (!fault.empty())
		return false;
	Synth synth;
	if (fluid_synth_sfload(synth.synth, SOUND_FONT, 1) < 0) {
		fault = std::string(SOUND_FONT) + " can't be read";
		return false;
	}
	for (size_t i = 0; i < score.players.size(); i++)
		synth.Seat((int)i, score.players[i]);
	std::vector<Event> events = EventsOf(score, only);
	// controllers at one time keep the order in which they were written
	auto earlier = [](const Event& a, const Event& b) {
		return a.at != b.at ? a.at < b.at : a.kind < b.kind;
	};
	std::stable_sort(events.begin(), events.end(), earlier);
	double length = score.Length();
	if (score.loops)
		AddLeadIn(events, length);
	std::stable_sort(events.begin(), events.end(), earlier);

	size_t leadIn = score.loops ? SampleCount(LEAD_IN) : 0;
	size_t total = leadIn + SampleCount(length + (score.loops ? 0 : TAIL)), at = 0;
	std::vector<float> left(total), right(total);
	auto play = [&](size_t to) {
		to = std::min(to, total);
		if (to > at)
			fluid_synth_write_float(synth.synth, (int)(to - at), left.data(), (int)at, 1,
			                        right.data(), (int)at, 1);
		at = std::max(at, to);
	};
	for (const Event& event : events) {
		play(SampleCount(event.at));
		synth.Send(event);
	}
	play(total);
	sound.left.assign(left.begin(), left.end());
	sound.right.assign(right.begin(), right.end());
	Equalise(sound);
	sound.left.erase(sound.left.begin(), sound.left.begin() + (long)leadIn);
	sound.right.erase(sound.right.begin(), sound.right.begin() + (long)leadIn);
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
