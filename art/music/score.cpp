// How players turn lines and rows into notes, and the small freedoms that they take.
#include "art/music/score.h"

#include "art/core/source_keys.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <sstream>

static const double STEP         = .25; // quarters of a row's character
static const int SWELL_STEPS     = 24;
static const double MELODY_LOOSE = .006, CHORD_LOOSE = .005, GROUND_LOOSE = .004; // seconds
static const double GRACE       = .075;                                           // seconds
static const int PHRASE_ARC     = 7;   // velocity gained in the middle of four bars
static const double HEIGHT_GAIN = .35; // velocity a semitone above C5
static const int BASS_LOW = 36, BASS_HIGH = 52;

// clang-format off
static const std::map<std::string, int> s_drums = {
	{ "kick", 36 },     { "rim", 37 },     { "snare", 38 },   { "clap", 39 },     { "brush", 40 },
	{ "hat", 42 },      { "pedal", 44 },   { "open", 46 },    { "tomlow", 45 },   { "tommid", 47 },
	{ "tomhigh", 50 },  { "crash", 49 },   { "ride", 51 },    { "tamb", 54 },     { "splash", 55 },
	{ "cowbell", 56 },  { "bongo", 60 },   { "bongolow", 61 },{ "mute", 62 },     { "conga", 63 },
	{ "congalow", 64 }, { "agogo", 67 },   { "agogolow", 68 },{ "cabasa", 69 },   { "shaker", 70 },
	{ "guiro", 73 },    { "claves", 75 },  { "block", 76 },   { "blocklow", 77 }, { "triangle", 81 },
	{ "sleigh", 83 },   { "castanets", 85 },
};
// clang-format on

Score::Score(const std::string& name) : name(name), state(HashBytes(name) | 1) {}

Part Score::Add(const Instrument& instrument, int volume, int pan, int reverb, int chorus)
{
	players.push_back({instrument, volume, pan, reverb, chorus});
	return {this, (int)players.size() - 1};
}

// xorshift64*: the same on every machine.
double Score::Random()
{
	double sum = 0;
	for (int i = 0; i < 4; i++) {
		state ^= state >> 12;
		state ^= state << 25;
		state ^= state >> 27;
		sum += (double)((state * 2685821657736338717ull) >> 11) / 9007199254740992.0;
	}
	return std::clamp((sum - 2) * 1.7320508, -2.0, 2.0);
}

void Score::Open(const std::string& title, const std::string& chords, int lift)
{
	Harmony harmony = ReadHarmony(chords, barLength);
	if (!harmony.fault.empty() && fault.empty())
		fault = title + ": " + harmony.fault;
	for (Chord& chord : harmony.chords) {
		chord.root = (chord.root + transpose + 120) % 12;
		chord.bass = (chord.bass + transpose + 120) % 12;
		for (int& tone : chord.tones)
			tone = (tone + transpose + 120) % 12;
	}
	int opened = (int)sections.size();
	for (size_t i = 0; i < players.size(); i++)
		if (players[i].swellSeen == opened - 1 && opened > 0)
			turns.push_back({end, (int)i, EXPRESSION, NORMAL_EXPRESSION});
	sections.push_back({title, end, harmony.bars, harmony.chords, {}});
	end += harmony.bars * barLength;
	this->lift = lift;
}

void Score::Ritard(double fromBar, double toBar, double amount)
{
	slowFrom = sections.back().at + fromBar * barLength;
	slowTo   = sections.back().at + toBar * barLength;
	slowBy   = amount;
}

double Score::Seconds(double quarter) const
{
	double whole = std::floor(quarter), part = quarter - whole;
	double middle = .5 + swing * .5;
	if (part < .5)
		part = part * 2 * middle;
	else
		part = middle + (part - .5) * 2 * (1 - middle);
	double stretched = whole + part;
	if (slowBy > 0 && quarter > slowFrom) {
		double inside = std::min(quarter, slowTo) - slowFrom;
		stretched += slowBy * inside * inside / (2 * (slowTo - slowFrom));
		stretched += std::max(0.0, quarter - slowTo) * slowBy;
	}
	return stretched * 60 / tempo;
}

// The first beat weighs most, then the middle of the bar; what falls between beats is lighter.
int Score::Accent(double at) const
{
	double inBar = std::fmod(at + 1e-9, barLength);
	if (inBar < .01)
		return 7;
	if (std::fabs(inBar - barLength / 2) < .01)
		return 3;
	return std::fmod(inBar, 1.0) < .01 ? 0 : -5;
}

void Score::Play(const Part& part, double at, double length, int key, int velocity, double loose,
                 double delay, bool scoop)
{
	delay += loose * Random();
	int loud = velocity + lift + (int)(4 * Random());
	played.push_back({at, at + length, delay, key, std::clamp(loud, 12, 124), part.index, scoop});
}

bool Score::Check(const Part& part, const std::string& slip)
{
	if (!slip.empty() && fault.empty())
		fault = sections.back().name + ", " + players[part.index].instrument.name + ": " + slip;
	return slip.empty();
}

void Score::Sing(const Part& part, const Phrase& line, int velocity, const Manner& manner)
{
	const Section& section = sections.back();
	if (!Check(part, line.fault))
		return;
	if (manner.bar + line.bars > section.bars) {
		Check(part, "has more bars than the section");
		return;
	}
	double start = section.at + manner.bar * barLength;
	for (const Note& note : line.notes) {
		int key = note.key + manner.octave + transpose;
		if (note.grace) {
			double length = GRACE * tempo / 60;
			Play(part, std::max(0.0, start + note.at - length), length, key, velocity - 6, 0);
			continue;
		}
		double phrase = std::fmod(note.at, 4 * barLength) / (4 * barLength);
		int arc       = (int)(PHRASE_ARC * std::sin(M_PI * phrase) + (note.key - 72) * HEIGHT_GAIN);
		int accent    = Accent(note.at) + (note.accent ? 10 : 0);
		double gate   = note.staccato ? .45 : manner.gate;
		Play(part, start + note.at, note.length * gate, key, velocity + arc + accent, MELODY_LOOSE,
		     0, note.scoop);
	}
}

void Part::Line(const std::string& notes, int velocity, Manner manner)
{
	score->Sing(*this, ReadPhrase(notes, score->barLength), velocity, manner);
}

void Part::Lead(const std::string& notes, int velocity, Manner manner)
{
	Phrase line = ReadPhrase(notes, score->barLength);
	score->Sing(*this, line, velocity, manner);
	for (Note note : line.notes) {
		note.at += manner.bar * score->barLength;
		note.key += manner.octave + score->transpose;
		if (!note.grace)
			score->sections.back().lead.push_back(note);
	}
}

namespace
{
// One character of a row where it falls on a chord.
struct Step {
	const Chord* chord;
	char mark;
	double at, length; // quarters from the section's start; length with the '-' that follow
};
} // namespace

static bool RowIsGood(const std::string& row, const char* marks)
{
	return !row.empty() && row.find_first_not_of(marks) == std::string::npos;
}

static void ForEachStep(const Section& section, double barLength, const std::string& row, Span span,
                        const std::function<void(const Step&)>& call)
{
	double from = span.bar * barLength;
	double to   = (span.bars ? span.bar + span.bars : section.bars) * barLength;
	for (const Chord& chord : section.chords) {
		int first = (int)std::lround(chord.at / STEP),
		    count = (int)std::lround(chord.length / STEP);
		for (int i = 0; i < count; i++) {
			double at = chord.at + i * STEP;
			if (at < from - 1e-6 || at > to - 1e-6)
				continue;
			size_t place = (size_t)(first + i) % row.size();
			int held     = 1;
			while (i + held < count && row[(place + held) % row.size()] == '-')
				held++;
			call({&chord, row[place], at, held * STEP});
		}
	}
}

static int AtOrAbove(int pitchClass, int low)
{
	return low + ((pitchClass - low) % 12 + 12) % 12;
}

// The tones that a chord is struck with.
static std::vector<int> Upper(const Chord& chord)
{
	std::vector<int> tones = chord.tones;
	if (tones.size() == 5)
		tones.erase(tones.begin() + 2);
	if (tones.size() >= 4)
		tones.erase(tones.begin());
	return tones;
}

// The inversion that lies nearest to what was struck last.
static std::vector<int> Voicing(const Chord& chord, int low, const std::vector<int>& last)
{
	std::vector<int> tones = Upper(chord), best;
	int bestCost           = 1 << 20;
	for (size_t turn = 0; turn < tones.size(); turn++) {
		std::vector<int> keys;
		int cost = 0;
		for (size_t i = 0; i < tones.size(); i++) {
			int floor = keys.empty() ? low : keys.back() + 1;
			keys.push_back(AtOrAbove(tones[(turn + i) % tones.size()], floor));
			if (i > 0 && keys[i] - keys[i - 1] == 1)
				cost += 100;
			if (i < last.size())
				cost += std::abs(keys[i] - last[i]);
		}
		cost += std::max(0, keys[0] - low - 7) * 3;
		if (cost < bestCost) {
			bestCost = cost;
			best     = keys;
		}
	}
	return best;
}

void Part::Strike(const std::string& row, int low, int velocity, double gate, double strum,
                  Span span)
{
	if (!score->Check(*this, RowIsGood(row, "xXo-.") ? "" : "row " + row))
		return;
	const Section& section = score->sections.back();
	std::vector<int> last;
	ForEachStep(section, score->barLength, row, span, [&](const Step& step) {
		if (step.mark == '.' || step.mark == '-')
			return;
		last        = Voicing(*step.chord, low, last);
		int loud    = velocity + score->Accent(step.at);
		double wait = 0;
		loud += step.mark == 'X' ? 12 : step.mark == 'o' ? -12 : 0;
		for (int key : last) {
			score->Play(*this, section.at + step.at, step.length * gate, key, loud, CHORD_LOOSE,
			            wait);
			wait += strum;
		}
	});
}

// The key of a degree, from the bass note at or above `low`.
static int DegreeKey(const Chord& chord, char degree, int low)
{
	int bass = AtOrAbove(chord.bass, low);
	switch (degree) {
	case '3':
		return AtOrAbove(chord.tones[1], bass);
	case '5':
		return AtOrAbove(chord.tones[2], bass);
	case '7':
		return AtOrAbove(chord.tones.back(), bass);
	case '8':
		return bass + 12;
	case '0':
		return AtOrAbove(chord.tones[1], bass) + 12;
	case '9':
		return AtOrAbove(chord.tones[2], bass) + 12;
	default:
		return bass;
	}
}

void Part::Roll(const std::string& row, int low, int velocity, double gate, Span span)
{
	if (!score->Check(*this, RowIsGood(row, "1357890-.") ? "" : "row " + row))
		return;
	const Section& section = score->sections.back();
	ForEachStep(section, score->barLength, row, span, [&](const Step& step) {
		if (step.mark != '.' && step.mark != '-')
			score->Play(*this, section.at + step.at, step.length * gate,
			            DegreeKey(*step.chord, step.mark, low), velocity + score->Accent(step.at),
			            GROUND_LOOSE);
	});
}

void Part::Ground(const std::string& row, int velocity, double gate, Span span)
{
	if (!score->Check(*this, RowIsGood(row, "13578-.") ? "" : "row " + row))
		return;
	const Section& section = score->sections.back();
	ForEachStep(section, score->barLength, row, span, [&](const Step& step) {
		if (step.mark == '.' || step.mark == '-')
			return;
		int key = DegreeKey(*step.chord, step.mark, BASS_LOW);
		if (key > BASS_HIGH)
			key -= 12;
		score->Play(*this, section.at + step.at, step.length * gate, key,
		            velocity + score->Accent(step.at), GROUND_LOOSE);
	});
}

void Part::Beat(const std::string& lanes, int velocity, Span span)
{
	const Section& section = score->sections.back();
	int bars               = span.bars ? span.bars : section.bars - span.bar;
	std::istringstream in(lanes);
	std::string lane;
	while (std::getline(in, lane, '|')) {
		std::istringstream words(lane);
		std::string drum, row;
		words >> drum >> row;
		auto found = s_drums.find(drum);
		bool good  = found != s_drums.end() && RowIsGood(row, "xXo.");
		if (!score->Check(*this, good ? "" : "lane " + lane))
			return;
		int steps = (int)std::lround(bars * score->barLength / STEP);
		for (int i = 0; i < steps; i++) {
			char mark = row[(size_t)i % row.size()];
			int loud  = velocity + (mark == 'X' ? 16 : mark == 'o' ? -18 : 0);
			if (mark != '.')
				score->Play(*this, section.at + span.bar * score->barLength + i * STEP, STEP,
				            found->second, loud, GROUND_LOOSE);
		}
	}
}

void Part::Swell(double fromBar, double toBar, int from, int to)
{
	const Section& section = score->sections.back();
	for (int i = 0; i <= SWELL_STEPS; i++) {
		double bar = fromBar + (toBar - fromBar) * i / SWELL_STEPS;
		int value  = from + (to - from) * i / SWELL_STEPS;
		score->turns.push_back({section.at + bar * score->barLength, index, EXPRESSION, value});
	}
	score->players[index].swellSeen = (int)score->sections.size() - 1;
}
