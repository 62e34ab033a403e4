// The proof-reader.
#include "art/music/proof.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

static const double TOUCH = .01; // quarters

static std::string Place(const Score& score, double quarter)
{
	std::string text;
	for (const Section& section : score.sections)
		if (section.at <= quarter + TOUCH) {
			double inside = quarter - section.at + 1e-6;
			char where[64];
			std::snprintf(where, sizeof where,
			              ", bar %d, quarter %.2f: ", 1 + (int)(inside / score.barLength),
			              1 + std::fmod(inside, score.barLength));
			text = score.name + ", " + section.name + where;
		}
	return text;
}

static std::string PlayerName(const Score& score, const Played& note)
{
	return score.players[note.player].instrument.name;
}

static bool Sounds(double at, double length, double beat)
{
	return at < beat + TOUCH && at + length > beat + TOUCH;
}

std::vector<std::string> OffChord(const Score& score)
{
	std::vector<std::string> slips;
	double every = score.barLength == 3 && score.compound ? 1.5 : score.barLength == 3 ? 3 : 2;
	for (const Section& section : score.sections) {
		for (double beat = 0; beat < section.bars * score.barLength - TOUCH; beat += every)
			for (const Chord& chord : section.chords)
				for (const Note& note : section.lead) {
					bool meet =
					    Sounds(chord.at, chord.length, beat) && Sounds(note.at, note.length, beat);
					if (meet && !std::count(chord.tones.begin(), chord.tones.end(), note.key % 12))
						slips.push_back(Place(score, section.at + beat) + KeyName(note.key) +
						                " over " + chord.name);
				}
	}
	return slips;
}

std::vector<std::string> Clashes(const Score& score, double seconds)
{
	std::vector<const Played*> notes;
	for (const Played& note : score.played)
		if (!score.players[note.player].instrument.drums)
			notes.push_back(&note);
	std::stable_sort(notes.begin(), notes.end(),
	                 [](const Played* a, const Played* b) { return a->from < b->from; });
	std::vector<std::string> slips;
	const double LONGEST = 16; // quarters that any note is held
	for (size_t i = 0; i < notes.size(); i++)
		for (size_t j = i + 1; j < notes.size() && notes[j]->from < notes[i]->from + LONGEST; j++) {
			int apart   = std::abs(notes[i]->key - notes[j]->key);
			double from = notes[j]->from, to = std::min(notes[i]->to, notes[j]->to);
			if ((apart != 1 && apart != 13) || to <= from)
				continue;
			if (score.Seconds(to) - score.Seconds(from) > seconds)
				slips.push_back(Place(score, from) + PlayerName(score, *notes[i]) + " " +
				                KeyName(notes[i]->key) + " against " +
				                PlayerName(score, *notes[j]) + " " + KeyName(notes[j]->key));
		}
	return slips;
}

std::vector<std::string> OutOfRange(const Score& score)
{
	std::vector<std::string> slips;
	for (const Played& note : score.played) {
		const Instrument& instrument = score.players[note.player].instrument;
		if (!instrument.drums && (note.key < instrument.low || note.key > instrument.high))
			slips.push_back(Place(score, note.from) + PlayerName(score, note) + " " +
			                KeyName(note.key));
	}
	return slips;
}
