// Trophies and species: what is awarded for what, and the evaluation of a finished level.
#include "state/game_data.h"

#include "animals/species_numbers.h"
#include "field/crate.h"
#include "field/element_point.h"
#include "field/fence.h"

#include <algorithm>

static const int FAST_SECONDS = 30; // a level finished under it is fast

// What each trophy is for, in the order of its bit.
enum Trophy {
	TROPHY_ALL_SPECIES,
	TROPHY_ALL_SPECIES_TWICE,
	TROPHY_TWO_FAST_LEVELS,
	TROPHY_ALIEN_UNSTUNNED,
	TROPHY_STREAK_OF_15,
	TROPHY_TOP_GRADES_3,
	TROPHY_COWS,
	TROPHY_CLEARED_25,
	TROPHY_CLEAR_STREAK,
	TROPHY_NOTHING_BROKEN,
	TROPHY_DRUMS_SAFE_1,
	TROPHY_DRUMS_WITHOUT_FAN,
	TROPHY_SCORE_MILLION,
	TROPHY_ALL_LEVELS,
	TROPHY_DUCK_FAMILY, // awarded by the duck
	TROPHY_RARE_SPECIES,
	TROPHY_HEN, // awarded by the hen
	TROPHY_SHEEP,
	TROPHY_LEVELS_5,
	TROPHY_STREAK_OF_3,
	TROPHY_NEVER_FAST,
	TROPHY_TOP_GRADE,
	TROPHY_TOP_GRADES_44,
	TROPHY_FAST_LEVEL,
	TROPHY_CLEARED_1,
	TROPHY_LEVELS_25,
	TROPHY_ALL_OTHERS,
	TROPHY_SCORE_100000,
	TROPHY_CLEARED_5,
	TROPHY_SKUNK,
	TROPHY_DRUMS_SAFE_10,
	TROPHY_ALL_BROKEN,
	TROPHY_DRUMS_SAFE_25,
	TROPHY_STREAK_OF_5,
	TROPHY_SCORE_25000,
	TROPHY_MONKEYS,
	TROPHY_NO_PADDLE,
	TROPHY_NO_TREE,
};

static const uint64_t ALL_TROPHIES = (1ULL << TROPHY_COUNT) - 1;
static const uint64_t ALL_SPECIES  = ~0ULL;
static const uint64_t ALL_RARE     = (1ULL << RARE_SPECIES) - 1;

// Place on the wall, by bit.
static const int GALLERY_NUMBER[TROPHY_COUNT] = {
    1, 2,  36, 0, 9,  5,  12, 31, 15, 13, 18, 16, 28, 25, 17, 3,  10, 33, 23,
    7, 22, 4,  6, 35, 29, 24, 11, 27, 30, 34, 19, 14, 20, 8,  26, 32, 21, 37,
};

// A trophy for a count that has gone above a bound.
struct CountTrophy {
	int above;
	int bit;
};

static const CountTrophy LEVELS_DONE[] = {
    {4, TROPHY_LEVELS_5}, {24, TROPHY_LEVELS_25}, {181, TROPHY_ALL_LEVELS}};
static const CountTrophy STREAKS[] = {
    {2, TROPHY_STREAK_OF_3}, {4, TROPHY_STREAK_OF_5}, {14, TROPHY_STREAK_OF_15}};
static const CountTrophy CLEARED[] = {
    {0, TROPHY_CLEARED_1}, {4, TROPHY_CLEARED_5}, {24, TROPHY_CLEARED_25}};
static const CountTrophy DRUMS_SAFE[] = {
    {0, TROPHY_DRUMS_SAFE_1}, {9, TROPHY_DRUMS_SAFE_10}, {24, TROPHY_DRUMS_SAFE_25}};
static const CountTrophy TOP_GRADES[] = {
    {0, TROPHY_TOP_GRADE}, {2, TROPHY_TOP_GRADES_3}, {43, TROPHY_TOP_GRADES_44}};

static void AwardByCount(CGameData* data, const CountTrophy (&rows)[3], int count)
{
	for (const CountTrophy& row : rows)
		if (count > row.above)
			data->AwardTrophy(row.bit);
}

static bool IsTrophyBit(int bit)
{
	return bit >= 0 && bit < TROPHY_COUNT;
}

static bool HasBit(uint64_t set, int bit)
{
	return bit >= 0 && bit < 64 && (set >> bit & 1);
}

bool CGameData::HasTrophy(int bit) const
{
	return HasBit(profile.trophies, bit);
}

// The trophy for all others comes with the last of them, without a show of its own.
void CGameData::AwardTrophy(int bit)
{
	if (!IsTrophyBit(bit) || HasTrophy(bit))
		return;
	const uint64_t last = 1ULL << TROPHY_ALL_OTHERS;
	trophyPending       = true;
	profile.trophies |= 1ULL << bit;
	if (((profile.trophies | last) & ALL_TROPHIES) == ALL_TROPHIES)
		profile.trophies |= last;
	trophyQueue.push_back(GALLERY_NUMBER[bit]);
}

void CGameData::ClearTrophies()
{
	profile.trophies = 0;
}

int CGameData::TrophyDisplayNumber(int bit) const
{
	return IsTrophyBit(bit) ? GALLERY_NUMBER[bit] : -1;
}

int CGameData::TrophyBitOfDisplayNumber(int n) const
{
	const int* found = std::find(GALLERY_NUMBER, GALLERY_NUMBER + TROPHY_COUNT, n);
	return found == GALLERY_NUMBER + TROPHY_COUNT ? -1 : static_cast<int>(found - GALLERY_NUMBER);
}

void CGameData::NoteDrum()
{
	notes.drum = true;
	drumsInLevel++;
}

void CGameData::NoteDrumFired()
{
	notes.drumFired = true;
	drumsFired++;
}

int CGameData::SpeciesFoundCount() const
{
	return static_cast<int>(std::count_if(std::begin(profile.speciesRescued),
	                                      std::end(profile.speciesRescued),
	                                      [](int32_t rescued) { return rescued > 0; }));
}

int CGameData::SpeciesMissingCount() const
{
	return DENSE_SPECIES - SpeciesFoundCount();
}

int CGameData::RescuedOfSpecies(int species) const
{
	int i = SpeciesIndex(species);
	return i < 0 ? 0 : profile.speciesRescued[i];
}

int CGameData::RescuedThisLevel(int species) const
{
	int i = SpeciesIndex(species);
	return i < 0 ? 0 : speciesThisLevel[i];
}

bool CGameData::HasSpecies(int bit) const
{
	return HasBit(profile.speciesOnce, bit);
}

bool CGameData::HasSpeciesTwice(int bit) const
{
	return HasBit(profile.speciesTwice, bit);
}

bool CGameData::HasRareSpecies(int bit) const
{
	return HasBit(profile.rareSpecies, bit);
}

void CGameData::OnAnimalRescued(int species)
{
	if (species >= SPECIES_BUTTERFLY_A && species <= SPECIES_BUTTERFLY_C)
		CountButterfly();
	CountLifetimeTotals(species);
	CountSpecies(species);
	if (profile.speciesOnce == ALL_SPECIES)
		AwardTrophy(TROPHY_ALL_SPECIES);
	if (profile.speciesTwice == ALL_SPECIES)
		AwardTrophy(TROPHY_ALL_SPECIES_TWICE);

	int rareBit = RareBitOf(species);
	if (rareBit >= 0) {
		profile.rareSpecies |= 1ULL << rareBit;
		if ((profile.rareSpecies & ALL_RARE) == ALL_RARE)
			AwardTrophy(TROPHY_RARE_SPECIES);
	}
	if (species == SPECIES_SKUNK && !notes.sprayed)
		AwardTrophy(TROPHY_SKUNK);
	if (species == SPECIES_ALIEN) {
		if (!notes.stun)
			AwardTrophy(TROPHY_ALIEN_UNSTUNNED);
		notes.alien = true;
	}
}

void CGameData::CountLifetimeTotals(int species)
{
	if (species == SPECIES_MONKEY && ++profile.species8Rescued >= 42)
		AwardTrophy(TROPHY_MONKEYS);
	if (species == SPECIES_SHEEP && ++profile.species5Rescued >= 50)
		AwardTrophy(TROPHY_SHEEP);
	if (species == SPECIES_COW && ++profile.species13Rescued >= 30)
		AwardTrophy(TROPHY_COWS);
}

void CGameData::CountSpecies(int species)
{
	int i = SpeciesIndex(species);
	if (i < 0)
		return;
	if (HasSpecies(i)) {
		profile.speciesTwice |= 1ULL << i;
	} else {
		profile.speciesOnce |= 1ULL << i;
		if (species != SPECIES_ALIEN)
			newSpeciesQueue.push_back(species);
	}
	profile.speciesRescued[i]++;
	speciesThisLevel[i]++;
}

static int StandingObstacles()
{
	return CCrate::CountStanding(0, false) + CFence::CountStanding(0, false);
}

void CGameData::OnObstacleBroken()
{
	if (notes.bonus || obstaclesAtStart == 0 || StandingObstacles() != 0)
		return;
	AwardTrophy(TROPHY_ALL_BROKEN);
	obstaclesAtStart = 0;
	clearStreak      = clearLast == currentLevel - 1 ? clearStreak + 1 : 1;
	clearLast        = currentLevel;
	if (clearStreak > 4)
		AwardTrophy(TROPHY_CLEAR_STREAK);
}

void CGameData::OnPerfectBonus()
{
	if (LevelRecord* record = CurrentRecord())
		record->topGrade = 1;
	AwardByCount(this, TOP_GRADES, CountLevels(&LevelRecord::topGrade));
}

// A bonus level must not break a run of levels: it passes the run on.
static void PassOn(int& last, int level)
{
	if (last != NO_LEVEL && last == level - 1)
		last = level;
}

void CGameData::OnLevelEvaluated(int level, int seconds)
{
	SetLevelExtraLives(extraLivesThisLevel);
	secondsThisLevel = seconds;
	if (level < 1 || level > LEVEL_COUNT)
		return;
	bool bonus = BonusLevelRuns();
	if (bonus) {
		PassOn(fastLast, level);
		PassOn(clearLast, level);
		PassOn(streakLast, level);
	} else {
		EvaluateFeats(level, seconds);
		EvaluateObstacles(level);
	}
	EvaluateProgress(level);
	if (bonus)
		return;
	EvaluateStreak(level);
	AddLevelSkill(seconds);
	EvaluateCare(profile.levels[level - 1]);
}

void CGameData::EvaluateFeats(int level, int seconds)
{
	if (seconds < FAST_SECONDS) {
		if (fastLast == level - 1)
			AwardTrophy(TROPHY_TWO_FAST_LEVELS);
		AwardTrophy(TROPHY_FAST_LEVEL);
		fastLast = level;
	} else {
		fastLast = NO_LEVEL;
	}
	if (!notes.fastPaddle)
		AwardTrophy(TROPHY_NEVER_FAST);
	if (!notes.paddleTouch)
		AwardTrophy(TROPHY_NO_PADDLE);
	if (!notes.tree)
		AwardTrophy(TROPHY_NO_TREE);
}

void CGameData::EvaluateObstacles(int level)
{
	if (obstaclesAtStart != 0 && StandingObstacles() == obstaclesAtStart)
		AwardTrophy(TROPHY_NOTHING_BROKEN);
	if (clearLast != level) {
		clearStreak = 0;
		clearLast   = NO_LEVEL;
	}
}

void CGameData::EvaluateProgress(int level)
{
	profile.levels[level - 1].doneEver    = 1;
	profile.levels[level - 1].doneThisRun = 1;
	AwardByCount(this, LEVELS_DONE, CountLevels(&LevelRecord::doneEver));
}

// The level that breaks a streak does not begin the next one.
void CGameData::EvaluateStreak(int level)
{
	if (streakLast == level - 1 || streakLast == NO_LEVEL) {
		streakCount++;
		streakLast = level;
	} else {
		streakCount = 0;
		streakLast  = NO_LEVEL;
	}
	AwardByCount(this, STREAKS, streakCount);
}

// Nothing left lying, nothing spilt.
void CGameData::EvaluateCare(LevelRecord& record)
{
	if (!CElementPoint::AnyCoinLeft() && !CCrate::AnyHoldsCoinsOrApples() && !notes.missedBag) {
		record.cleared = 1;
		AwardByCount(this, CLEARED, CountLevels(&LevelRecord::cleared));
	}
	if (notes.drum && !notes.drumFired) {
		if (!notes.fan)
			AwardTrophy(TROPHY_DRUMS_WITHOUT_FAN);
		record.drumsSafe = 1;
		AwardByCount(this, DRUMS_SAFE, CountLevels(&LevelRecord::drumsSafe));
	}
}
