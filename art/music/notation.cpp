// Reads lines of notes and rows of chords.
#include "art/music/notation.h"

#include <cctype>
#include <cmath>
#include <cstring>
#include <sstream>

static const double EXACT = 1e-6; // quarters; triplets don't add up to the last bit

namespace
{
struct Kind {
	const char* name;
	std::vector<int> steps; // semitones above the root
};
} // namespace

// clang-format off
static const Kind s_kinds[] = {
	{ "",    { 0, 4, 7 } },     { "m",   { 0, 3, 7 } },        { "7",  { 0, 4, 7, 10 } },
	{ "m7",  { 0, 3, 7, 10 } }, { "M7",  { 0, 4, 7, 11 } },    { "6",  { 0, 4, 7, 9 } },
	{ "m6",  { 0, 3, 7, 9 } },  { "9",   { 0, 4, 7, 10, 14 } },{ "m9", { 0, 3, 7, 10, 14 } },
	{ "sus", { 0, 5, 7 } },     { "dim", { 0, 3, 6 } },
};
// clang-format on

// -1 when no letter of a note stands there.
static int ReadPitchClass(const char*& p)
{
	const int FROM_A[] = {9, 11, 0, 2, 4, 5, 7};
	int letter         = std::tolower(*p) - 'a';
	if (letter < 0 || letter > 6)
		return -1;
	p++;
	int pitch = FROM_A[letter];
	for (; *p == '#' || *p == 'b'; p++)
		pitch += *p == '#' ? 1 : -1;
	return (pitch + 12) % 12;
}

static int ReadKey(const char*& p)
{
	int pitch = ReadPitchClass(p);
	if (pitch < 0 || !std::isdigit(*p))
		return -1;
	return pitch + 12 * (*p++ - '0' + 1);
}

// In quarters; 0 when there is none.
static double ReadLength(const char*& p)
{
	double length = 0;
	switch (*p) {
	case 'w':
		length = 4;
		break;
	case 'h':
		length = 2;
		break;
	case 'q':
		length = 1;
		break;
	case 'e':
		length = .5;
		break;
	case 's':
		length = .25;
		break;
	default:
		return 0;
	}
	for (p++; *p == '.' || *p == 't'; p++)
		length *= *p == '.' ? 1.5 : 2.0 / 3;
	return length;
}

namespace
{
class LineReader
{
public:
	LineReader(double barLength) : barLength(barLength) {}

	// False when the word can't be read.
	bool Read(const std::string& word);
	bool BarIsFull() const { return std::fabs(at - (line.bars + 1) * barLength) < EXACT; }

	Phrase line;
	double at = 0;

private:
	bool ReadGrace(const std::string& word);
	bool ReadNote(const char* p);

	double barLength;
	bool tied = false;
};
} // namespace

bool LineReader::ReadGrace(const std::string& word)
{
	const char* p = word.c_str() + 1;
	Note note;
	note.at    = at;
	note.grace = true;
	note.key   = ReadKey(p);
	line.notes.push_back(note);
	return note.key >= 0 && std::strcmp(p, ")") == 0;
}

bool LineReader::ReadNote(const char* p)
{
	Note note;
	note.at     = at;
	note.key    = ReadKey(p);
	note.length = ReadLength(p);
	if (note.key < 0 || note.length == 0)
		return false;
	at += note.length;
	bool tiesOn = false;
	for (; *p; p++) {
		note.accent |= *p == '>';
		note.staccato |= *p == '\'';
		note.scoop |= *p == '/';
		tiesOn |= *p == '~';
		if (!std::strchr(">'/~", *p))
			return false;
	}
	if (tied && line.notes.back().key != note.key)
		return false;
	if (tied)
		line.notes.back().length += note.length;
	else
		line.notes.push_back(note);
	tied = tiesOn;
	return true;
}

bool LineReader::Read(const std::string& word)
{
	const char* p = word.c_str();
	if (*p == '(')
		return ReadGrace(word);
	if (*p == 'R') {
		int bars = p[1] ? std::atoi(p + 1) : 1;
		at += bars * barLength;
		line.bars += bars - 1;
		return bars > 0;
	}
	if (*p != 'r')
		return ReadNote(p);
	double length = ReadLength(++p);
	at += length;
	return length > 0 && !*p;
}

Phrase ReadPhrase(const std::string& text, double barLength)
{
	LineReader reader(barLength);
	std::string spaced;
	for (char c : text + "|")
		spaced += c == '|' ? std::string(" | ") : std::string(1, c);
	std::istringstream in(spaced);
	std::string word;
	while (in >> word) {
		std::string bar = "bar " + std::to_string(reader.line.bars + 1);
		if (word != "|") {
			if (!reader.Read(word)) {
				reader.line.fault = bar + ": can't read " + word;
				break;
			}
		} else if (!reader.BarIsFull()) {
			double held = reader.at - reader.line.bars * barLength;
			std::ostringstream fault;
			fault << bar << " holds " << held << " quarters, not " << barLength;
			reader.line.fault = fault.str();
			break;
		} else {
			reader.line.bars++;
		}
	}
	return reader.line;
}

static bool ReadChord(const std::string& word, Chord& chord)
{
	const char* p = word.c_str();
	chord.name    = word;
	chord.root = chord.bass = ReadPitchClass(p);
	if (chord.root < 0)
		return false;
	std::string kind = p;
	size_t slash     = kind.find('/');
	if (slash != std::string::npos) {
		const char* bass = p + slash + 1;
		chord.bass       = ReadPitchClass(bass);
		kind             = kind.substr(0, slash);
	}
	for (const Kind& known : s_kinds)
		if (kind == known.name)
			for (int step : known.steps)
				chord.tones.push_back((chord.root + step) % 12);
	return chord.bass >= 0 && !chord.tones.empty();
}

Harmony ReadHarmony(const std::string& text, double barLength)
{
	Harmony harmony;
	std::istringstream in(text);
	std::string bar;
	while (std::getline(in, bar, '|')) {
		std::istringstream words(bar);
		std::vector<Chord> chords;
		std::string word;
		while (words >> word) {
			Chord chord;
			if (!ReadChord(word, chord))
				harmony.fault = "bar " + std::to_string(harmony.bars + 1) + ": no chord " + word;
			chords.push_back(chord);
		}
		if (chords.empty())
			harmony.fault = "bar " + std::to_string(harmony.bars + 1) + " has no chord";
		for (size_t i = 0; i < chords.size(); i++) {
			chords[i].length = barLength / (double)chords.size();
			chords[i].at     = harmony.bars * barLength + chords[i].length * (double)i;
			harmony.chords.push_back(chords[i]);
		}
		harmony.bars++;
	}
	return harmony;
}

std::string KeyName(int key)
{
	const char* NAMES[] = {"c", "c#", "d", "eb", "e", "f", "f#", "g", "ab", "a", "bb", "b"};
	return NAMES[key % 12] + std::to_string(key / 12 - 1);
}
