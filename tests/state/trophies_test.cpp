// Trophies: what earns each of them, and what does not.
#include "state/state_test.h"

#include "animals/species_numbers.h"

#include <bit>

// Starts and ends a level with all notes set, so that no trophy comes for their absence.
static void PlayLevel(CGameData& data, int level, int seconds, bool bonus = false)
{
	data.OnLevelStart(level);
	data.NoteFastPaddle();
	data.NotePaddleTouch();
	data.NoteTree();
	data.NoteMissedBag();
	if (bonus)
		data.NoteBonusLevel();
	data.OnLevelEvaluated(level, seconds);
}

TEST_F(StateTest, AwardIsQueuedOnce)
{
	data->AwardTrophy(2);
	EXPECT_TRUE(data->trophyPending);
	EXPECT_EQ(std::deque<int>{36}, data->trophyQueue);
	data->trophyPending = false;
	data->AwardTrophy(2);
	EXPECT_FALSE(data->trophyPending);
	EXPECT_EQ(1u, data->trophyQueue.size());
	data->AwardTrophy(38);
	data->AwardTrophy(-1);
	EXPECT_EQ(1u, data->trophyQueue.size());
	data->OnLevelStart(1);
	EXPECT_TRUE(data->trophyQueue.empty());
	EXPECT_TRUE(data->HasTrophy(2));
	data->ClearTrophies();
	EXPECT_FALSE(data->HasTrophy(2));
}

TEST_F(StateTest, LastTrophyComesWithTheLastOther)
{
	for (int bit = 0; bit < TROPHY_COUNT; bit++)
		if (bit != 26 && bit != 11)
			data->AwardTrophy(bit);
	EXPECT_FALSE(data->HasTrophy(26));
	data->AwardTrophy(11);
	EXPECT_TRUE(data->HasTrophy(26));
	EXPECT_EQ(16, data->trophyQueue.back()) << "without a show of its own";
	EXPECT_EQ(37u, data->trophyQueue.size());
}

TEST_F(StateTest, GalleryNumbersAreAPermutation)
{
	for (int n = 0; n < TROPHY_COUNT; n++)
		EXPECT_EQ(n, data->TrophyDisplayNumber(data->TrophyBitOfDisplayNumber(n)));
	EXPECT_EQ(-1, data->TrophyDisplayNumber(38));
	EXPECT_EQ(-1, data->TrophyBitOfDisplayNumber(38));
	EXPECT_EQ(11, data->TrophyDisplayNumber(26));
}

TEST_F(StateTest, TwentyNineSecondsAreFastAndThirtyAreNot)
{
	PlayLevel(*data, 1, 29);
	EXPECT_TRUE(data->HasTrophy(23));
	EXPECT_EQ(1, data->fastLast);
	PlayLevel(*data, 2, 30);
	EXPECT_EQ(NO_LEVEL, data->fastLast);
	EXPECT_FALSE(data->HasTrophy(2));
	PlayLevel(*data, 3, 29);
	PlayLevel(*data, 4, 200, true);
	EXPECT_EQ(4, data->fastLast) << "a bonus level between passes the run on";
	PlayLevel(*data, 5, 29);
	EXPECT_TRUE(data->HasTrophy(2));
}

TEST_F(StateTest, StreaksCountConsecutiveLevels)
{
	struct {
		int level;
		int count;
		bool bonus;
	} plays[] = {{1, 1, false}, {2, 2, false},  {3, 2, true},  {4, 3, false},
	             {9, 0, false}, {10, 1, false}, {11, 2, false}};
	for (const auto& play : plays) {
		PlayLevel(*data, play.level, 100, play.bonus);
		EXPECT_EQ(play.count, data->streakCount) << "after level " << play.level;
	}
	EXPECT_TRUE(data->HasTrophy(19)) << "three in a row, up to level 4";
	for (int level = 12; level <= 14; level++)
		PlayLevel(*data, level, 100);
	EXPECT_TRUE(data->HasTrophy(33));
	for (int level = 15; level <= 23; level++)
		PlayLevel(*data, level, 100);
	EXPECT_FALSE(data->HasTrophy(4));
	PlayLevel(*data, 24, 100);
	EXPECT_TRUE(data->HasTrophy(4));
}

TEST_F(StateTest, LevelOfALostLifeDoesNotCountForTheStreak)
{
	data->OnLevelStart(1);
	data->FoldSkill();
	data->OnLevelEvaluated(1, 100);
	EXPECT_EQ(0, data->streakCount);
	PlayLevel(*data, 2, 100);
	EXPECT_EQ(1, data->streakCount);
}

// Each note on its own keeps its trophy away.
TEST_F(StateTest, NotesKeepTheirTrophyAway)
{
	data->OnLevelStart(1);
	data->NoteFastPaddle();
	data->OnLevelEvaluated(1, 100);
	EXPECT_FALSE(data->HasTrophy(20));
	EXPECT_TRUE(data->HasTrophy(36) && data->HasTrophy(37) && data->HasTrophy(24));
	data->ClearTrophies();
	data->OnLevelStart(2);
	data->NotePaddleTouch();
	data->NoteTree();
	data->OnLevelEvaluated(2, 100);
	EXPECT_FALSE(data->HasTrophy(36) || data->HasTrophy(37));
	EXPECT_TRUE(data->HasTrophy(20));
}

TEST_F(StateTest, CountsOfLevelsEarnTheirTrophies)
{
	for (int level = 1; level <= 182; level++) {
		PlayLevel(*data, level, 100, level % 4 == 0);
		EXPECT_EQ(level > 4, data->HasTrophy(18)) << level;
		EXPECT_EQ(level > 24, data->HasTrophy(25)) << level;
		EXPECT_EQ(level > 181, data->HasTrophy(13)) << level;
	}
	EXPECT_FALSE(data->HasTrophy(24)) << "a bag was missed on each of them";
}

TEST_F(StateTest, DrumsMadeSafeAreCounted)
{
	for (int level = 1; level <= 25; level++) {
		data->OnLevelStart(level);
		data->NoteDrum();
		data->NoteFan();
		data->OnLevelEvaluated(level, 100);
		EXPECT_TRUE(data->HasTrophy(10));
		EXPECT_EQ(level > 9, data->HasTrophy(30)) << level;
		EXPECT_EQ(level > 24, data->HasTrophy(32)) << level;
	}
	EXPECT_FALSE(data->HasTrophy(11)) << "the fan helped";
	data->OnLevelStart(30);
	data->NoteDrum();
	data->NoteDrum();
	data->NoteDrumFired();
	EXPECT_EQ(2, data->drumsInLevel);
	data->OnLevelEvaluated(30, 100);
	EXPECT_FALSE(data->HasTrophy(11) || data->profile.levels[29].drumsSafe);
	data->OnLevelStart(31);
	data->NoteDrum();
	data->OnLevelEvaluated(31, 100);
	EXPECT_TRUE(data->HasTrophy(11));
}

// With no crate on the field the number standing is 0.
TEST_F(StateTest, LastObstacleBrokenCountsTowardTheClearStreak)
{
	for (int level = 1; level <= 5; level++) {
		data->OnLevelStart(level);
		data->StoreObstaclesAtStart(3);
		data->OnObstacleBroken();
		EXPECT_EQ(0, data->obstaclesAtStart);
		EXPECT_EQ(level, data->clearStreak);
		EXPECT_EQ(level > 4, data->HasTrophy(8));
		data->OnLevelEvaluated(level, 100);
		EXPECT_FALSE(data->HasTrophy(9)) << "nothing was left standing";
	}
	EXPECT_TRUE(data->HasTrophy(31));
	PlayLevel(*data, 6, 100);
	EXPECT_EQ(0, data->clearStreak);

	data->ClearTrophies();
	data->OnLevelStart(7);
	data->NoteBonusLevel();
	data->StoreObstaclesAtStart(3);
	data->OnObstacleBroken();
	EXPECT_FALSE(data->HasTrophy(31)) << "not on a bonus level";
}

TEST_F(StateTest, PerfectBonusesAreCounted)
{
	for (int level = 1; level <= 44; level++) {
		data->OnLevelStart(level);
		data->OnPerfectBonus();
		EXPECT_EQ(level > 2, data->HasTrophy(5)) << level;
		EXPECT_EQ(level > 43, data->HasTrophy(22)) << level;
	}
	EXPECT_TRUE(data->HasTrophy(21));
}

TEST_F(StateTest, HerdsAreCountedOverAllTime)
{
	struct {
		int species, needed, bit;
	} rows[] = {{SPECIES_MONKEY, 42, 35}, {SPECIES_SHEEP, 50, 17}, {SPECIES_COW, 30, 6}};
	for (const auto& row : rows) {
		for (int i = 1; i < row.needed; i++)
			data->OnAnimalRescued(row.species);
		EXPECT_FALSE(data->HasTrophy(row.bit)) << row.species;
		data->OnAnimalRescued(row.species);
		EXPECT_TRUE(data->HasTrophy(row.bit)) << row.species;
	}
}

TEST_F(StateTest, AllSpeciesOnceAndTwice)
{
	data->OnLevelStart(1);
	for (int i = 0; i < DENSE_SPECIES; i++) {
		EXPECT_FALSE(data->HasTrophy(0));
		data->OnAnimalRescued(SpeciesOfIndex(i));
	}
	EXPECT_TRUE(data->HasTrophy(0));
	EXPECT_TRUE(data->HasTrophy(15)) << "the rare ones were among them";
	EXPECT_EQ(16, std::popcount(data->profile.rareSpecies));
	EXPECT_EQ(63u, data->newSpeciesQueue.size()) << "the alien is not announced";
	EXPECT_EQ(0, data->SpeciesMissingCount());
	EXPECT_FALSE(data->HasTrophy(1));
	for (int i = 0; i < DENSE_SPECIES; i++)
		data->OnAnimalRescued(SpeciesOfIndex(i));
	EXPECT_TRUE(data->HasTrophy(1));
	EXPECT_EQ(2, data->RescuedOfSpecies(SPECIES_BEAR));
	EXPECT_EQ(2, data->RescuedThisLevel(SPECIES_BEAR));
	data->OnLevelStart(2);
	EXPECT_EQ(0, data->RescuedThisLevel(SPECIES_BEAR));
}

TEST_F(StateTest, BotHasNoPlaceInTheRecords)
{
	data->OnAnimalRescued(SPECIES_BOT);
	EXPECT_EQ(0u, data->profile.speciesOnce);
	EXPECT_EQ(0, data->RescuedOfSpecies(SPECIES_BOT));
	EXPECT_EQ(64, data->SpeciesMissingCount());
}

TEST_F(StateTest, SkunkAndAlienAskForACleanLevel)
{
	data->OnLevelStart(1);
	data->NoteSprayed();
	data->NoteStun();
	data->OnAnimalRescued(SPECIES_SKUNK);
	data->OnAnimalRescued(SPECIES_ALIEN);
	EXPECT_FALSE(data->HasTrophy(29) || data->HasTrophy(3));
	EXPECT_TRUE(data->notes.alien);
	data->OnLevelStart(2);
	EXPECT_FALSE(data->notes.alien);
	data->OnAnimalRescued(SPECIES_SKUNK);
	data->OnAnimalRescued(SPECIES_ALIEN);
	EXPECT_TRUE(data->HasTrophy(29) && data->HasTrophy(3));
}
