// The clock of a level and the greeting before it.
#include "screens/level_timer.h"

#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/greeting.h"
#include "support/field_test.h"

#include <map>

class LevelTimerTest : public FieldTest
{
protected:
	CLevelTimer timer;
};

TEST_F(LevelTimerTest, RunsOnlyAfterTheGreetingAndTheLaunch)
{
	EXPECT_FALSE(timer.IsUp()) << "a level without a limit never ends by time";
	timer.Set(10, true);
	for (int i = 0; i < 50; i++)
		timer.Step(false);
	EXPECT_EQ(310, timer.timeLeft);
	timer.Run();
	timer.Step(false);
	EXPECT_EQ(310, timer.timeLeft) << "held until the ball is let go";
	timer.Release();
	timer.Step(false);
	EXPECT_EQ(309, timer.timeLeft);
	timer.Step(true);
	EXPECT_EQ(309, timer.timeLeft) << "a level that is over keeps its time";
}

TEST_F(LevelTimerTest, TheLastSecondIsNotPlayedOut)
{
	timer.Set(2, false);
	timer.Run();
	for (int i = 0; i < 31; i++)
		timer.Step(false);
	EXPECT_EQ(31, timer.timeLeft);
	EXPECT_EQ(1, timer.SecondsLeft());
	EXPECT_FALSE(timer.IsUp());
	timer.Step(false);
	EXPECT_EQ(0, timer.timeLeft);
	EXPECT_TRUE(timer.IsUp());
	timer.Step(false);
	EXPECT_EQ(0, timer.timeLeft);
}

// Depths tell the places: 27050 minutes, 27052 tens, 27053 ones.
TEST_F(LevelTimerTest, ShowsOneDigitAPlace)
{
	timer.Set(83, true); // 1:23
	timer.Step(false);
	std::map<int, int> shown;
	for (const CSprite* sprite : g_render->sprites)
		if (sprite->depth >= 27050 && sprite->depth <= 27053 && sprite->depth != 27051 &&
		    !sprite->IsHidden())
			shown[sprite->depth]++;
	EXPECT_EQ((std::map<int, int>{{27050, 1}, {27052, 1}, {27053, 1}}), shown);
	timer.Reset();
	for (const CSprite* sprite : g_render->sprites)
		EXPECT_TRUE(sprite->depth < 27000 || sprite->depth > 27053 || sprite->IsHidden());
}

TEST_F(LevelTimerTest, SlidesInFromAboveAndRests)
{
	timer.Set(60, true);
	int lowest = -1000, last = 0;
	for (int i = 0; i < 60; i++) {
		timer.Step(false);
		for (const CSprite* sprite : g_render->sprites)
			if (sprite->depth == 27000)
				last = sprite->Y();
		lowest = std::max(lowest, last);
	}
	EXPECT_EQ(6, last);
	EXPECT_GT(lowest, 6) << "it swings past its place first";
}

TEST_F(FieldTest, GreetingLeavesLetterByLetterAndIsGoneForGood)
{
	CGreeting greeting;
	for (int i = 0; i < CGreeting::LEAVE_AT - 1; i++)
		greeting.Step();
	std::vector<CSprite*> letters;
	for (CSprite* sprite : g_render->sprites)
		if (sprite->depth >= 25000 && sprite->depth <= 25008)
			letters.push_back(sprite);
	ASSERT_EQ(9u, letters.size());
	for (size_t i = 1; i < letters.size(); i++)
		EXPECT_GT(letters[i]->X(), letters[i - 1]->X());
	int waving = letters[8]->Y();
	for (int i = 0; i < 10; i++)
		greeting.Step();
	EXPECT_LT(letters[0]->Y(), waving - 60) << "the first has risen";
	EXPECT_NEAR(letters[8]->Y(), 300, 60) << "the last still waves";

	int frames = 0;
	while (greeting.running && frames++ < 200)
		greeting.Step();
	EXPECT_FALSE(greeting.running);
	EXPECT_GT(greeting.count, static_cast<int>(CGreeting::GO_AT));
	for (const CSprite* letter : letters)
		EXPECT_TRUE(letter->IsHidden());
	greeting.Begin();
	EXPECT_FALSE(letters[0]->IsHidden());
}
