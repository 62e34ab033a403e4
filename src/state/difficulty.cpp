// The estimate of the player's skill, and how hard the field is made by it.
#include "state/difficulty.h"

#include "field/ball.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "screens/game.h"
#include "state/game_data.h"

#include <algorithm>

static const int MOST_SKILL_COUNT = 20;
static const float SKILL_PENALTY  = 0.05f;
static const float BEST_SKILL     = 7;
static const int BEST_RATING      = 20000;
static const int MIDDLE_RATING    = 10000;
static const int RATING_STEP      = 1000;

static const float FASTER_A_STEP       = 1.026f;
static const float SLOWER_A_STEP       = 0.9746588693957114f;
static const float FASTEST_BALL        = 1.4f;
static const float FASTEST_BALL_KIDS   = 1.0f;
static const int FEWEST_SPAWN_INTERVAL = 8;
static const int LATE_SECONDS          = 91; // from here on only what ends a level falls

// What holds up to a rating, the last row for all above.
struct RatingRow {
	int upTo;
	float value;
};

// clang-format off
static const RatingRow SPEED_BY_STAGE[] = { // growth of the ball's speed by size stage
	{2500, 0.001f}, {5000, 0.002f}, {7500, 0.004f}, {11000, 0.007f},
	{14000, 0.008f}, {17000, 0.006f}, {BEST_RATING + 1, 0.005f},
};
static const RatingRow SPAWN_INTERVALS[] = {
	{2500, 10}, {5000, 15}, {7500, 20}, {10000, 30}, {12500, 40}, {BEST_RATING + 1, 50},
};
static const RatingRow CHANCES[] = {
	{5000, 50}, {8000, 40}, {11000, 30}, {14000, 20}, {17000, 15}, {BEST_RATING + 1, 10},
};
static const float LIVES_FACTOR[] = { // by lives left, 10 for more
	0.8f, 0.85f, 0.9f, 0.95f, 1, 1.03f, 1.06f, 1.1f, 1.13f, 1.16f, 1.2f,
};

// Weights of what falls, by kind; the first place is no kind.
static const int WEIGHTS_LOW[]    = {0, 0, 0, 0, 0, 5, 5, 0, 0, 8, 0, 1, 0, 1, 0, 1, 9, 0};
static const int WEIGHTS_MIDDLE[] = {0, 2, 2, 1, 1, 3, 3, 2, 1, 3, 1, 3, 0, 3, 1, 2, 3, 2};
static const int WEIGHTS_HIGH[]   = {0, 0, 0, 2, 3, 0, 1, 1, 0, 1, 0, 0, 0, 0, 0, 2, 0, 4};
// clang-format on

static float ValueByRating(const RatingRow* rows, int rating)
{
	while (rating > rows->upTo)
		rows++;
	return rows->value;
}

static int LevelSeconds()
{
	return g_game ? g_game->SecondsElapsed() : 0;
}

bool CGameData::BonusLevelRuns() const
{
	return g_game ? g_game->rules.isBonusLevel : notes.bonus;
}

static float NewestWeight(const ProfileRecord& profile)
{
	return 0.3f - 0.01f * profile.skillCount;
}

static float Estimate(const ProfileRecord& profile)
{
	float weight = NewestWeight(profile);
	return weight * profile.skillSum + (1 - weight) * profile.skillAverage;
}

int CGameData::SkillRating() const
{
	float skill = Estimate(profile) * LIVES_FACTOR[std::clamp(g_play.lives, 0, 10)];
	skill       = std::clamp(skill, 0.0f, BEST_SKILL);
	return static_cast<int>(skill / BEST_SKILL * BEST_RATING);
}

float CGameData::BallSpeedFactor() const
{
	int rating   = SkillRating();
	int steps    = (rating - MIDDLE_RATING) / RATING_STEP;
	float factor = 1;
	for (int i = 0; i < steps; i++)
		factor *= FASTER_A_STEP;
	for (int i = 0; i > steps; i--)
		factor *= SLOWER_A_STEP;
	if (g_ball)
		factor *= 1 + ValueByRating(SPEED_BY_STAGE, rating) * g_ball->GetStage();
	if (BonusLevelRuns())
		factor = 1;
	return std::min(factor, IsKidsMode() ? FASTEST_BALL_KIDS : FASTEST_BALL);
}

int CGameData::RandomBySkill(int min, int max) const
{
	if (max <= min)
		return min;
	int count  = min + Rand() % (max - min + 1);
	int rating = SkillRating();
	count += rating < 8001;
	count += rating < 5001;
	count += rating < 2001;
	count += rating < 12501 && LevelSeconds() < 30;
	return std::clamp(count, min, max);
}

// The longer a level takes, the more often something comes: 45 seconds a step.
static int SpawnDivisor(int seconds)
{
	static const int FIRST_STEP = 91, STEP = 45, LEAST = 3, MOST = 10;
	if (seconds < FIRST_STEP)
		return 1;
	return std::min((seconds - FIRST_STEP) / STEP + LEAST, MOST);
}

int SpawnIntervalOf(const FieldSituation& now)
{
	int interval = static_cast<int>(ValueByRating(SPAWN_INTERVALS, now.rating));
	interval /= SpawnDivisor(now.seconds);
	if (now.lives == 0)
		interval /= 2;
	return std::max(interval, FEWEST_SPAWN_INTERVAL);
}

int CGameData::SpawnInterval() const
{
	return SpawnIntervalOf({SkillRating(), LevelSeconds(), 0, g_play.lives});
}

bool CGameData::ChanceByRating(int n) const
{
	if (n < 8)
		return true;
	int base = static_cast<int>(ValueByRating(CHANCES, SkillRating()));
	return Rand() % (base + n) < base;
}

// Late in a level: what clears the rest.
static void LateWeights(int standing, int* weights)
{
	weights[POWERUP_BULLDOZER] = standing > 20 ? 2 : standing >= 4 ? 1 : 0;
	weights[POWERUP_DESTRUCTO] = standing > 0 && standing < 20;
	weights[POWERUP_GRAVITY]   = standing == 0;
	weights[POWERUP_STICKY]    = 1;
}

static void WeightsByRating(int rating, int seconds, int* weights)
{
	const int* row = rating <= 7500 ? WEIGHTS_LOW : rating <= 12500 ? WEIGHTS_MIDDLE : WEIGHTS_HIGH;
	std::copy_n(row, POWERUP_KINDS, weights);
	if (rating > 7500)
		return;
	if (seconds < 30) {
		weights[POWERUP_GROW] = 5;
		weights[POWERUP_RAIN] = 15;
	}
	if (seconds < 61)
		weights[POWERUP_STICKY] = 5;
}

void PowerupWeights(const FieldSituation& now, int (&weights)[POWERUP_KINDS])
{
	std::fill(std::begin(weights), std::end(weights), 0);
	if (now.seconds >= LATE_SECONDS)
		LateWeights(now.standing, weights);
	else
		WeightsByRating(now.rating, now.seconds, weights);
	bool weak = now.rating < 2500 && now.lives < 4;
	if (now.seconds < LATE_SECONDS - 1 && (weak || now.lives < 2))
		weights[POWERUP_LIFE] = 2;
}

int CGameData::PickPowerup() const
{
	int standing = CCrate::CountStanding(0, false) + CFence::CountStanding(0, false);
	int weights[POWERUP_KINDS];
	PowerupWeights({SkillRating(), LevelSeconds(), standing, g_play.lives}, weights);
	int sum = 0;
	for (int weight : weights)
		sum += weight;
	int rest = Rand() % sum;
	int kind = 0;
	while (weights[kind] <= rest)
		rest -= weights[kind++];
	return kind;
}

void CGameData::SkillPenalty()
{
	profile.skillCount = std::min(profile.skillCount, MOST_SKILL_COUNT);
	profile.skillSum -= SKILL_PENALTY;
}

// A life is lost: what was gained since the last one becomes part of the average. The level in
// which it happens does not count for the run of finished ones.
void CGameData::FoldSkill()
{
	if (BonusLevelRuns())
		return;
	profile.skillAverage = Estimate(profile);
	profile.skillSum     = 0;
	streakCount          = -1;
	streakLast           = NO_LEVEL;
}

void CGameData::AddLevelSkill(int seconds)
{
	profile.skillCount = std::min(profile.skillCount + 1, MOST_SKILL_COUNT);
	profile.skillSum += seconds < 30    ? 2.5f
	                    : seconds < 60  ? 2.25f
	                    : seconds < 90  ? 2.0f
	                    : seconds < 120 ? 1.5f
	                                    : 1.25f;
}
