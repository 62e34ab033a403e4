// What the profile keeps of the levels: progress, replays, lives, runs.
#include "state/state_test.h"

TEST_F(StateTest, PercentNeverRoundsUpToAHundred)
{
	struct {
		int done, percent;
	} rows[] = {{0, 0}, {1, 1}, {2, 1}, {4, 2}, {91, 50}, {180, 98}, {181, 99}, {182, 100}};
	for (const auto& row : rows) {
		for (int i = 0; i < LEVEL_COUNT; i++)
			data->profile.levels[i].doneEver = i < row.done;
		EXPECT_EQ(row.percent, data->PercentComplete()) << row.done;
	}
}

TEST_F(StateTest, ReplayTakesBackWhatTheFirstPlayGave)
{
	data->profile.levels[0].score = 50;
	data->OnLevelStart(5);
	data->SetLevelScore(900);
	data->SetLevelRescues(30);
	data->SetLevelExtraLives(2);
	data->ApplyTotalScore();
	g_play.lives           = 6;
	data->extraLifeCounter = 30;

	data->OnLevelStart(6);
	EXPECT_EQ(950, g_play.levelScore) << "another level takes nothing";
	EXPECT_EQ(950, data->levelScoreAtStart);
	SetPlayScore(1050);
	EXPECT_EQ(100, data->ScoreGainedThisLevel());
	data->SetLevelScore(100);

	data->OnLevelRestart(5);
	EXPECT_EQ(150, g_play.levelScore);
	EXPECT_EQ(4, g_play.lives);
	EXPECT_EQ(0, data->extraLifeCounter);
	data->OnLevelStart(5);
	EXPECT_EQ(150, g_play.levelScore) << "and that only once";
	EXPECT_EQ(4, g_play.lives);
	data->ApplyTotalScore();
	EXPECT_EQ(1050, g_play.levelScore) << "a replay given up keeps the first score";
	data->SetLevelScore(10);
	EXPECT_EQ(160, data->TotalScore());
}

TEST_F(StateTest, RecordsAreWrittenOnlyWithinALevel)
{
	data->SetLevelScore(5);
	data->SetLevelRescues(5);
	EXPECT_EQ(0, data->TotalScore());
	data->OnLevelStart(182);
	data->SetLevelScore(5);
	EXPECT_EQ(5, data->profile.levels[181].score);
	data->OnLevelRestart(-2);
	data->OnLevelRestart(183);
	EXPECT_FALSE(data->IsLevelDoneEver(-1) || data->IsLevelDoneEver(182));
}

TEST_F(StateTest, FiftyButterfliesGiveALife)
{
	data->OnLevelStart(1);
	for (int i = 0; i < 49; i++)
		data->OnAnimalRescued(74 + i % 3);
	EXPECT_EQ(0, data->extraLivesThisLevel);
	EXPECT_EQ(1, data->RescuesToExtraLife());
	data->OnAnimalRescued(75);
	EXPECT_EQ(1, data->extraLivesThisLevel);
	EXPECT_EQ(50, data->RescuesToExtraLife());
	EXPECT_EQ(50, data->rescuesThisLevel);

	g_play.gameOver = true;
	for (int i = 0; i < 50; i++)
		data->OnAnimalRescued(74);
	EXPECT_EQ(1, data->extraLivesThisLevel) << "a lost game's life counts for no level";
}

TEST_F(StateTest, GameOverKeepsWhatWasEverDone)
{
	data->profile.levels[0] = {1, 1, 1, 1, 1, 100, 10, 1};
	data->profile.kidsMode  = 1;
	data->profile.skillSum  = 3;
	data->streakCount       = 4;
	g_play.money            = 9;
	g_play.lives            = 0;
	data->OpenIsland(3);
	data->ResetRun();
	const LevelRecord& level = data->profile.levels[0];
	EXPECT_EQ(0, level.doneThisRun + level.score + level.rescues + level.extraLives);
	EXPECT_EQ(4, level.doneEver + level.topGrade + level.drumsSafe + level.cleared);
	EXPECT_TRUE(data->IsIslandOpen(3));
	EXPECT_EQ(1, data->GetRunCountsAsKids());
	EXPECT_EQ(0, data->profile.skillSum);
	EXPECT_EQ(0, data->streakCount);
	EXPECT_EQ(0, g_play.money);
	EXPECT_EQ(4, g_play.lives);

	data->profile.trophies = 8;
	data->ResetProgress();
	EXPECT_EQ(0, level.doneEver + level.topGrade + level.drumsSafe + level.cleared);
	EXPECT_TRUE(data->IsIslandOpen(0));
	EXPECT_FALSE(data->IsIslandOpen(3));
	EXPECT_EQ(8u, data->profile.trophies);
}

TEST_F(StateTest, KidsModeMarksTheRun)
{
	data->profile.quizOn = 1;
	EXPECT_FALSE(data->QuizActive());
	data->ToggleKidsMode();
	EXPECT_TRUE(data->IsKidsMode() && data->QuizActive());
	EXPECT_EQ(1, data->GetRunCountsAsKids());
	data->ToggleKidsMode();
	EXPECT_EQ(0, data->GetRunCountsAsKids());
	data->MarkRunAsKids();
	EXPECT_EQ(1, data->GetRunCountsAsKids());
}

TEST_F(StateTest, FirstLevelNotDoneIsTheNextToPlay)
{
	EXPECT_EQ(1, data->FirstLevelNotDone());
	data->profile.levels[0].doneThisRun = data->profile.levels[1].doneThisRun = 1;
	EXPECT_EQ(3, data->FirstLevelNotDone());
	for (LevelRecord& level : data->profile.levels)
		level.doneThisRun = 1;
	EXPECT_EQ(1, data->FirstLevelNotDone());
}

TEST_F(StateTest, OptionsAreHeldToTheirRange)
{
	data->SetSoundVolume(12);
	data->SetMusicVolume(-1);
	EXPECT_EQ(11, data->GetSoundVolume());
	EXPECT_EQ(0, data->GetMusicVolume());
	data->SetKey(4, 7);
	EXPECT_EQ(0, data->GetKey(4));
	data->SetKey(0, 97);
	EXPECT_EQ(97, data->GetKey(0));
	data->ToggleSystemCursor();
	EXPECT_FALSE(data->SystemCursorOn());
}
