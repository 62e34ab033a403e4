// What a finished level is worth.
#include "level/tally_rules.h"

#include <algorithm>

static const int FULL_AMOUNT   = 5000;
static const int PERFECT_EXTRA = 5000;
static const int SECOND_LEFT   = 100; // points for each
static const int HARVEST_GOAL  = 200;
static const int EGG_GOAL      = 24;
static const int SPEEDBALL_MIN = 9; // seconds that count for nothing
static const int SAVED_AMOUNT  = 1000;
static const int ALIEN_AMOUNT  = 5000;

// R(part / whole * 5000), cut toward zero.
static int Share(int part, int whole)
{
	if (whole == 0)
		return 0;
	return static_cast<int>(static_cast<float>(part) / static_cast<float>(whole) * FULL_AMOUNT);
}

int CratesBroken(std::span<const int> record, int places)
{
	const int size = std::min(places, static_cast<int>(record.size()));
	return static_cast<int>(std::count_if(record.begin(), record.begin() + std::max(size, 0),
	                                      [](int number) { return number != 0; }));
}

// The crates from the first on that broke in their turn.
static int RightRun(std::span<const int> record, int places)
{
	int run = 0;
	while (run < places && run < static_cast<int>(record.size()) && record[run] == run + 1)
		run++;
	return run;
}

static TallyGrade Grade(bool perfect, bool partial)
{
	return perfect ? GRADE_PERFECT : partial ? GRADE_PARTIAL : GRADE_NONE;
}

// Worth nothing unless it ran to the end of its time.
static BonusResult ScoreDodgeball(const TallyCount& n)
{
	const bool inTime = n.c < 1;
	BonusResult result;
	result.grade  = Grade(n.a == n.b && inTime, n.a != 0 && inTime);
	result.amount = inTime ? Share(n.a, n.b) : 0;
	if (result.grade == GRADE_PERFECT)
		result.amount += PERFECT_EXTRA;
	return result;
}

BonusResult ScoreBonusLevel(const TallyCount& n, std::span<const int> record)
{
	BonusResult result;
	int extra = 0; // for a perfect level
	switch (n.type) {
	case TALLY_BIRDS:
	case TALLY_DRUMS:
	case TALLY_DOGS:
	case TALLY_SKUNKS:
		return ScoreDodgeball(n);
	case TALLY_SPEEDBALL:
		result = {Grade(n.a == 0, n.b - n.a > SPEEDBALL_MIN), Share(n.b - n.a, n.b)};
		extra  = PERFECT_EXTRA;
		break;
	case TALLY_TIGHT_SPOT:
		result = {Grade(n.b == 0, false), 0};
		extra  = PERFECT_EXTRA + n.a * SECOND_LEFT;
		break;
	case TALLY_ORDER: {
		const int run = RightRun(record, n.a);
		result        = {Grade(run == n.a, run > 0), Share(run, n.a)};
		extra         = PERFECT_EXTRA;
		break;
	}
	case TALLY_STAMPEDE:
		result = {Grade(n.a == 0, n.a != n.b), Share(n.b - n.a, n.b)};
		extra  = PERFECT_EXTRA;
		break;
	case TALLY_HARVEST: {
		const int fruit = n.a + n.b + n.c + n.d;
		result          = {Grade(fruit >= HARVEST_GOAL, true), Share(fruit, HARVEST_GOAL)};
		break;
	}
	case TALLY_DEMOLITION:
		result = {Grade(n.a == 0, n.a != n.b), Share(n.b - n.a, n.b)};
		extra  = n.c * SECOND_LEFT;
		break;
	case TALLY_COIN:
		result = {Grade(n.b == 0, n.b != n.c), Share(n.c - n.b, n.c)};
		extra  = PERFECT_EXTRA;
		break;
	case TALLY_EGG:
		result = {Grade(n.a >= EGG_GOAL, n.a != 0), Share(n.a, EGG_GOAL)};
		break;
	}
	if (result.grade == GRADE_PERFECT)
		result.amount += extra;
	return result;
}

// clang-format off
static const struct {
	int under; // seconds
	int amount;
} s_timeBonus[] = {
	{  10, 25000 }, {  20, 15000 }, {  30, 10000 }, {  40, 5000 }, {  50, 3000 },
	{  60,  2000 }, { 120,  1000 }, { 180,   500 }, { 240,  250 }, { 300,  100 },
};
// clang-format on

RegularBonuses ScoreRegularLevel(const RegularFacts& facts)
{
	RegularBonuses bonuses;
	for (const auto& row : s_timeBonus)
		if (facts.seconds < row.under) {
			bonuses.time = row.amount;
			break;
		}
	if (!facts.sprayed)
		bonuses.skunk = facts.skunks * SAVED_AMOUNT;
	if (!facts.drumFired)
		bonuses.enviro = facts.drums * SAVED_AMOUNT;
	if (facts.alien)
		bonuses.alien = ALIEN_AMOUNT;
	return bonuses;
}

int TallyHeight(int type, int bonusLines, bool newSpecies)
{
	const int REGULAR = 570, HARVEST = 457, BONUS = 390;
	const int LINE = 23, LINES = 4, NEW_SPECIES = 75, NO_LINE = 27;
	if (type == TALLY_HARVEST)
		return HARVEST;
	if (type != TALLY_REGULAR)
		return BONUS;
	int height = REGULAR - LINE * (LINES - bonusLines);
	if (!newSpecies)
		height -= NEW_SPECIES;
	if (bonusLines == 0)
		height += NO_LINE;
	return height;
}
