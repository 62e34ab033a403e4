// What a finished level is worth, and in which words the tally says so. Draws nothing.
#pragma once

#include <span>
#include <vector>

enum TallyType {
	TALLY_REGULAR    = 0,
	TALLY_BIRDS      = 1, // the four variants of dodgeball
	TALLY_DRUMS      = 2,
	TALLY_DOGS       = 3,
	TALLY_SKUNKS     = 4,
	TALLY_SPEEDBALL  = 5,
	TALLY_TIGHT_SPOT = 6,
	TALLY_ORDER      = 7,
	TALLY_STAMPEDE   = 8,
	TALLY_HARVEST    = 9, // pinball too
	TALLY_DEMOLITION = 10,
	TALLY_COIN       = 11,
	TALLY_EGG        = 12,
};

enum TallyGrade { GRADE_NONE, GRADE_PARTIAL, GRADE_PERFECT };

// Type and four numbers; what they stand for depends on the type:
//   dodgeball   upsets left, their limit, seconds left
//   speedball   seconds left, seconds given
//   tight spot  seconds left, animals left, animals at the start
//   order       length of the sequence; b becomes the crates broken
//   stampede    animals left, animals at the start, species
//   harvest     apples, pinecones, acorns, coconuts in the ball
//   demolition  breakables left, breakables at the start, seconds left
//   coin        coins gained, breakables left, breakables at the start
//   egg         eggs in the ball
struct TallyCount {
	int type = TALLY_REGULAR;
	int a = 0, b = 0, c = 0, d = 0;
};

struct BonusResult {
	TallyGrade grade = GRADE_NONE;
	int amount       = 0;
};

// Grade and points of a bonus level. record holds the numbers of the crates as they broke, 0 for
// a place not reached; only the order type reads it. Nothing to divide by gives no points.
BonusResult ScoreBonusLevel(const TallyCount& count, std::span<const int> record);
// How many of the first places of the record are filled.
int CratesBroken(std::span<const int> record, int places);

// The bonuses of a regular level; 0 where one does not show.
struct RegularBonuses {
	int time = 0, skunk = 0, enviro = 0, alien = 0;

	int Total() const { return time + skunk + enviro + alien; }
	int Lines() const { return (time > 0) + (skunk > 0) + (enviro > 0) + (alien > 0); }
};

struct RegularFacts {
	int seconds    = 0;
	int skunks     = 0;     // rescued
	bool sprayed   = false; // a skunk has sprayed
	int drums      = 0;
	bool drumFired = false;
	bool alien     = false; // rescued
};

RegularBonuses ScoreRegularLevel(const RegularFacts& facts);

// A word of the tally's texts: a picture, or a number to be set in numerals, or the line's end.
struct TallyWord {
	const char* file = nullptr; // null: the number, or the end of a line
	int number       = -1;      // -1: the end of a line
};

// "Finished in under 40 seconds"; empty when the level took too long for it.
std::vector<TallyWord> TimeBonusWords(int seconds);
// The text in the box of a bonus level; empty for the harvest, which shows a table.
std::vector<TallyWord> BonusLevelWords(const TallyCount& count, TallyGrade grade,
                                       std::span<const int> record);

// Height of the tally's panel in pixels.
int TallyHeight(int type, int bonusLines, bool newSpecies);
