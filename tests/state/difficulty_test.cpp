// The estimate of skill and what follows from it, against values worked out by hand.
#include "state/state_test.h"

#include "state/difficulty.h"

#include <set>

static void PutSkill(CGameData& data, float average)
{
	data.profile.skillSum     = 0;
	data.profile.skillCount   = 0;
	data.profile.skillAverage = average;
}

// 4 lives, nothing gained: rating = average * 0.7 / 7 * 20000.
static void PutRating(CGameData& data, int rating)
{
	g_play.lives = 4;
	PutSkill(data, rating / 2000.0f + 0.0001f);
}

TEST_F(StateTest, RatingFollowsTheLives)
{
	int byLives[] = {8000,  8500,  9000,  9500,  10000, 10300,
	                 10600, 11000, 11300, 11600, 12000, 12000};
	for (int lives = 0; lives < 12; lives++) {
		g_play.lives = lives;
		EXPECT_NEAR(byLives[lives], data->SkillRating(), 1) << lives; // cut, so 1 less at times
	}
	g_play.lives = 4;
	EXPECT_EQ(10000, data->SkillRating()) << "a fresh player is exactly in the middle";
	data->profile.skillCount = 20; // weights 0.1 and 0.9
	data->profile.skillSum   = 10;
	EXPECT_NEAR((1 + 4.5) / 7 * 20000, data->SkillRating(), 1);
	data->profile.skillSum = 500;
	EXPECT_EQ(20000, data->SkillRating());
	data->profile.skillSum = -500;
	EXPECT_EQ(0, data->SkillRating());
}

TEST_F(StateTest, FinishedLevelAddsByItsTime)
{
	struct {
		int seconds;
		float gain;
	} rows[] = {{0, 2.5f},  {29, 2.5f},  {30, 2.25f},  {59, 2.25f}, {60, 2},
	            {90, 1.5f}, {119, 1.5f}, {120, 1.25f}, {900, 1.25f}};
	for (const auto& row : rows) {
		data->profile.skillSum   = 0;
		data->profile.skillCount = 19;
		data->OnLevelStart(9);
		data->OnLevelEvaluated(9, row.seconds);
		EXPECT_FLOAT_EQ(row.gain, data->profile.skillSum) << row.seconds;
		EXPECT_EQ(20, data->profile.skillCount);
	}
	data->OnLevelEvaluated(9, 0);
	EXPECT_EQ(20, data->profile.skillCount) << "never above 20";

	float before = data->profile.skillSum;
	data->NoteBonusLevel();
	data->OnLevelEvaluated(9, 0);
	EXPECT_FLOAT_EQ(before, data->profile.skillSum) << "a bonus level does not count";
}

TEST_F(StateTest, LostLifeFoldsTheGain)
{
	data->profile.skillSum   = 4;
	data->profile.skillCount = 10; // weights 0.2 and 0.8
	data->SkillPenalty();
	EXPECT_FLOAT_EQ(3.95f, data->profile.skillSum);
	data->streakLast = 7;
	data->FoldSkill();
	EXPECT_NEAR(0.2 * 3.95 + 0.8 * 5, data->profile.skillAverage, 1e-5);
	EXPECT_EQ(0, data->profile.skillSum);
	EXPECT_EQ(-1, data->streakCount);
	EXPECT_EQ(NO_LEVEL, data->streakLast);

	data->OnLevelStart(8);
	data->NoteBonusLevel();
	data->profile.skillSum = 1;
	data->FoldSkill();
	EXPECT_EQ(1, data->profile.skillSum) << "a life lost on a bonus level is none";
}

TEST_F(StateTest, BallSpeedStepsWithTheRating)
{
	struct {
		int rating;
		float factor;
	} rows[] = {{10000, 1},       {10999, 1},        {11000, 1.026f},   {9001, 1},
	            {9000, 0.97466f}, {12000, 1.05268f}, {20000, 1.29263f}, {0, 0.77362f}};
	for (const auto& row : rows) {
		PutRating(*data, row.rating);
		EXPECT_NEAR(row.factor, data->BallSpeedFactor(), 1e-4) << row.rating;
	}
	data->ToggleKidsMode();
	PutRating(*data, 20000);
	EXPECT_EQ(1, data->BallSpeedFactor()) << "kids never play faster";
	data->ToggleKidsMode();
	data->NoteBonusLevel();
	EXPECT_EQ(1, data->BallSpeedFactor());
}

TEST_F(StateTest, CountsBySkillStayWithinTheirRange)
{
	PutRating(*data, 20000);
	std::set<int> seen;
	for (int i = 0; i < 400; i++)
		seen.insert(data->RandomBySkill(1, 5));
	EXPECT_EQ((std::set<int>{1, 2, 3, 4, 5}), seen);
	PutRating(*data, 1000); // 4 more: always the most
	for (int i = 0; i < 50; i++)
		EXPECT_EQ(5, data->RandomBySkill(1, 5));
	PutRating(*data, 6000); // 2 more in the first 30 seconds
	for (int i = 0; i < 50; i++)
		EXPECT_GE(data->RandomBySkill(1, 5), 3);
	EXPECT_EQ(3, data->RandomBySkill(3, 3));
	EXPECT_EQ(3, data->RandomBySkill(3, 1));
}

TEST_F(StateTest, FewBreakablesAlwaysGiveTheChance)
{
	PutRating(*data, 20000);
	for (int i = 0; i < 50; i++)
		EXPECT_TRUE(data->ChanceByRating(7));
	int hits = 0;
	for (int i = 0; i < 6000; i++)
		hits += data->ChanceByRating(50); // 10 of 60
	EXPECT_NEAR(1000, hits, 120);
}

TEST(Difficulty, SpawnIntervalShrinksWithTime)
{
	struct {
		int rating, seconds, lives, interval;
	} rows[] = {{2500, 0, 4, 10},    {2501, 0, 4, 15},    {7500, 0, 4, 20},   {10000, 0, 4, 30},
	            {12500, 0, 4, 40},   {12501, 90, 4, 50},  {12501, 91, 4, 16}, {12501, 135, 4, 16},
	            {12501, 136, 4, 12}, {12501, 181, 4, 10}, {12501, 226, 4, 8}, {12501, 406, 4, 8},
	            {12501, 0, 0, 25},   {10000, 0, 0, 15},   {2500, 0, 0, 8}};
	for (const auto& row : rows)
		EXPECT_EQ(row.interval, SpawnIntervalOf({row.rating, row.seconds, 0, row.lives}))
		    << row.rating << " at " << row.seconds << " s with " << row.lives;
}

static std::vector<int> Weights(int rating, int seconds, int standing, int lives)
{
	int weights[POWERUP_KINDS];
	PowerupWeights({rating, seconds, standing, lives}, weights);
	return {std::begin(weights), std::end(weights)};
}

TEST(Difficulty, PowerupWeightsAreThoseOfTheTable)
{
	typedef std::vector<int> Row;
	EXPECT_EQ((Row{0, 0, 0, 0, 0, 5, 5, 0, 0, 8, 5, 1, 0, 15, 0, 1, 5, 0}),
	          Weights(7500, 29, 9, 4));
	EXPECT_EQ((Row{0, 0, 0, 0, 0, 5, 5, 0, 0, 8, 0, 1, 0, 1, 0, 1, 5, 0}), Weights(7500, 60, 9, 4));
	EXPECT_EQ((Row{0, 0, 0, 0, 0, 5, 5, 0, 0, 8, 0, 1, 0, 1, 0, 1, 9, 0}), Weights(7500, 90, 9, 4));
	EXPECT_EQ((Row{0, 2, 2, 1, 1, 3, 3, 2, 1, 3, 1, 3, 0, 3, 1, 2, 3, 2}), Weights(12500, 0, 9, 4));
	EXPECT_EQ((Row{0, 0, 0, 2, 3, 0, 1, 1, 0, 1, 0, 0, 0, 0, 0, 2, 0, 4}), Weights(12501, 0, 9, 4));
	struct {
		int standing, bulldozer, destructo, gravity;
	} late[] = {{0, 0, 0, 1},  {1, 0, 1, 0},  {3, 0, 1, 0}, {4, 1, 1, 0},
	            {19, 1, 1, 0}, {20, 1, 0, 0}, {21, 2, 0, 0}};
	for (const auto& row : late) {
		Row weights = Weights(9000, 91, row.standing, 1);
		Row expected(POWERUP_KINDS);
		expected[POWERUP_BULLDOZER] = row.bulldozer;
		expected[POWERUP_DESTRUCTO] = row.destructo;
		expected[POWERUP_GRAVITY]   = row.gravity;
		expected[POWERUP_STICKY]    = 1;
		EXPECT_EQ(expected, weights) << row.standing;
	}
}

TEST(Difficulty, LifeFallsOnlyForThoseWhoNeedIt)
{
	struct {
		int rating, seconds, lives, weight;
	} rows[] = {{2499, 0, 3, 2},  {2499, 0, 4, 0},   {2500, 0, 3, 0},   {19000, 0, 1, 2},
	            {19000, 0, 2, 0}, {19000, 89, 1, 2}, {19000, 90, 1, 0}, {19000, 91, 0, 0}};
	for (const auto& row : rows)
		EXPECT_EQ(row.weight, Weights(row.rating, row.seconds, 9, row.lives)[POWERUP_LIFE])
		    << row.rating << " at " << row.seconds << " s with " << row.lives;
}

TEST_F(StateTest, PickFollowsTheWeights)
{
	PutRating(*data, 20000);
	int counts[POWERUP_KINDS] = {};
	for (int i = 0; i < 14000; i++)
		counts[data->PickPowerup()]++;
	std::vector<int> weights = Weights(20000, 0, 0, 4); // sum 14
	for (int kind = 0; kind < POWERUP_KINDS; kind++)
		EXPECT_NEAR(weights[static_cast<size_t>(kind)] * 1000, counts[kind], 160) << kind;
}
