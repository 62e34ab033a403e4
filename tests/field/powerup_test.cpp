// Falling prizes: how they fall, where they are caught and what each kind does.
#include "field/powerup.h"

#include "field/ball.h"
#include "field/barrier.h"
#include "field/element_point.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "media/sprite.h"
#include "state/game_data.h"
#include "support/field_test.h"

class PowerupTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
		paddle->SetMouseX(400);
		paddle->ResetBall();
		PutBall(300, 200, 3, -4);
		g_levelGameData->notes = LevelNotes();
	}

	// Right over the paddle: the next Update catches it.
	CPowerup* Drop(int kind)
	{
		CPowerup* powerup = new CPowerup(paddle->GetX() + 43, 300, kind, false, 0);
		int lower         = powerup->carried->Y() + powerup->carried->Height();
		powerup->y += static_cast<float>(540 - lower);
		return powerup;
	}
	CPowerup* CatchOne(int kind)
	{
		CPowerup* powerup = Drop(kind);
		powerup->Update();
		EXPECT_TRUE(powerup->caught) << kind;
		return powerup;
	}
};

TEST_F(PowerupTest, FallsTwoPixelsAFrameAndSways)
{
	CPowerup* powerup = new CPowerup(300, 100, POWERUP_SLOW, false, 0);
	EXPECT_FLOAT_EQ(280, powerup->x);
	EXPECT_FLOAT_EQ(65, powerup->y);
	powerup->Update();
	EXPECT_FLOAT_EQ(67, powerup->y);
	EXPECT_FLOAT_EQ(0.34f, powerup->sway);
	EXPECT_FLOAT_EQ(-0.93f + 0.34f, powerup->vx);
	EXPECT_FLOAT_EQ(280 - 0.59f, powerup->x);
	float left = powerup->x, right = powerup->x;
	for (int i = 0; i < 150; i++) {
		powerup->Update();
		left  = std::min(left, powerup->x);
		right = std::max(right, powerup->x);
	}
	EXPECT_FLOAT_EQ(67 + 300, powerup->y);
	EXPECT_GT(right - left, 5);
	EXPECT_LT(right - left, 120) << "it sways about its line";
}

TEST_F(PowerupTest, ComesDownFromItsHeightBeforeItFalls)
{
	CPowerup* powerup = new CPowerup(300, 100, POWERUP_SLOW, false, 10);
	powerup->Update();
	EXPECT_FLOAT_EQ(10, powerup->z);
	EXPECT_FLOAT_EQ(65, powerup->y);
	for (int i = 0; i < 20 && (powerup->z != 0 || powerup->vz != 0); i++)
		powerup->Update();
	EXPECT_FLOAT_EQ(0, powerup->z);
	EXPECT_FLOAT_EQ(65, powerup->y);
	powerup->Update();
	EXPECT_FLOAT_EQ(67, powerup->y);
}

TEST_F(PowerupTest, BalloonsInflateFirstAndStayInTheField)
{
	CPowerup* powerup = new CPowerup(5, 100, POWERUP_MONEY, false, 0);
	EXPECT_TRUE(powerup->balloons->IsHidden());
	EXPECT_EQ(31, powerup->bag->FrameCount());
	EXPECT_EQ(nullptr, powerup->icon);
	for (int i = 0; i < 25; i++) {
		powerup->inflate->Step();
		powerup->Update();
		EXPECT_GE(powerup->x, 0);
	}
	EXPECT_TRUE(powerup->inflate->IsHidden());
	EXPECT_FALSE(powerup->balloons->IsHidden());
	CPowerup* right = new CPowerup(900, 100, POWERUP_GROW, false, 0);
	EXPECT_FLOAT_EQ(693 - static_cast<float>(right->balloons->Width()), right->x);
	EXPECT_EQ(18, right->icon->FrameCount());
	EXPECT_EQ(right->disc->X() + 6, right->icon->X());
	EXPECT_EQ(right->disc->Y() + 5, right->icon->Y());
}

TEST_F(PowerupTest, CatchZoneIsTheLowerEdgeOverThePaddle)
{
	struct {
		int lower;
		bool caught;
	} heights[] = {{522, false}, {523, true}, {592, true}, {593, false}};
	for (const auto& each : heights) { // each falls 2 more before the test
		CPowerup* powerup = Drop(POWERUP_DOUBLE);
		powerup->y += static_cast<float>(each.lower - 540);
		powerup->Update();
		EXPECT_EQ(each.caught, powerup->caught) << each.lower;
	}
	struct {
		int leftEdge; // of the disc, from the paddle's anchor
		bool caught;
	} sides[] = {{-45, false}, {85, true}, {86, false}};
	for (const auto& each : sides) {
		CPowerup* powerup = Drop(POWERUP_DOUBLE);
		powerup->vx = powerup->sway = 0;
		int shift                   = paddle->GetX() + each.leftEdge - powerup->carried->X();
		powerup->x = static_cast<float>(static_cast<int>(powerup->x) + shift) + 0.5f;
		powerup->Update();
		EXPECT_EQ(each.caught, powerup->caught) << each.leftEdge;
	}
}

TEST_F(PowerupTest, CaughtPrizeBurstsOnceAndFallsOnUnseen)
{
	CPowerup* powerup = CatchOne(POWERUP_FAST);
	int score         = g_play.levelScore;
	EXPECT_TRUE(powerup->carried->IsHidden() && powerup->icon->IsHidden());
	EXPECT_FALSE(powerup->sparkle->IsHidden());
	for (int i = 0; i < 150; i++) {
		powerup->sparkle->Step();
		powerup->burst->Step();
		powerup->Update();
	}
	EXPECT_TRUE(powerup->sparkle->IsHidden() && powerup->burst->IsHidden());
	EXPECT_TRUE(powerup->gone);
	EXPECT_EQ(score, g_play.levelScore) << "caught once";
}

TEST_F(PowerupTest, MissedBagIsNoted)
{
	CPowerup* disc = new CPowerup(650, 100, POWERUP_DOUBLE, false, 0);
	disc->y        = 601;
	disc->Update();
	EXPECT_TRUE(disc->gone);
	EXPECT_FALSE(g_levelGameData->notes.missedBag);
	CPowerup* bag = CatchOne(POWERUP_MONEY);
	bag->y        = 601;
	bag->Update();
	EXPECT_FALSE(g_levelGameData->notes.missedBag) << "that one was caught";
	CPowerup* missed = new CPowerup(650, 100, POWERUP_MONEY, false, 0);
	missed->y        = 601;
	missed->Update();
	EXPECT_TRUE(missed->gone);
	EXPECT_TRUE(g_levelGameData->notes.missedBag);
	float y = missed->y;
	missed->Update();
	EXPECT_FLOAT_EQ(y, missed->y) << "gone is gone";
}

TEST_F(PowerupTest, EachKindStartsItsTimer)
{
	for (int kind = POWERUP_DOUBLE; kind <= POWERUP_FANS; kind++) {
		for (int& timer : sidebar->timers)
			timer = 0;
		CatchOne(kind);
		for (int i = 0; i < POWERUP_TIMERS; i++)
			EXPECT_EQ(i == kind - 2, sidebar->timers[i] > 0) << "kind " << kind << " timer " << i;
	}
}

TEST_F(PowerupTest, MoneyBagGivesTwentyFiveAndNoScore)
{
	CatchOne(POWERUP_MONEY);
	EXPECT_EQ(25, g_play.money);
	EXPECT_EQ(0, g_play.levelScore);
	CatchOne(POWERUP_RAIN);
	EXPECT_EQ(100, g_play.levelScore);
}

TEST_F(PowerupTest, KindsChangeTheBall)
{
	CatchOne(POWERUP_BULLDOZER);
	EXPECT_TRUE(ball->IsBulldozer());
	CatchOne(POWERUP_GRAVITY);
	EXPECT_TRUE(ball->IsGravity());
	CatchOne(POWERUP_GROW);
	EXPECT_EQ(2, ball->GetStage());
	CatchOne(POWERUP_FAST);
	EXPECT_NEAR(6.5f, ball->Speed(), 1e-3f);
	CatchOne(POWERUP_FAST);
	EXPECT_NEAR(6.5f, ball->Speed(), 1e-3f) << "the second only restarts the timer";
	CatchOne(POWERUP_SLOW);
	EXPECT_NEAR(5, ball->Speed(), 1e-3f);
	CatchOne(POWERUP_SLOW);
	EXPECT_NEAR(5, ball->Speed(), 1e-3f);
}

TEST_F(PowerupTest, KindsChangeThePaddleTheShieldAndTheLives)
{
	CatchOne(POWERUP_WIDE);
	EXPECT_TRUE(paddle->IsWide());
	CatchOne(POWERUP_SHRINK);
	EXPECT_EQ(SHAPE_NORMAL, paddle->shape);
	CatchOne(POWERUP_SHRINK);
	EXPECT_TRUE(paddle->IsFlat());
	CatchOne(POWERUP_STICKY);
	EXPECT_TRUE(paddle->IsSticky());
	CatchOne(POWERUP_DESTRUCTO);
	EXPECT_EQ(2, paddle->ammo);
	CatchOne(POWERUP_BARRIER);
	EXPECT_TRUE(barrier->rising);
	EXPECT_FLOAT_EQ(static_cast<float>(paddle->GetX() + 41), barrier->pulseX);
	int lives = g_play.lives;
	CatchOne(POWERUP_LIFE);
	EXPECT_EQ(lives + 1, g_play.lives);
}

TEST_F(PowerupTest, RainThrowsThirtyFruitsOneWay)
{
	size_t before = CElementPoint::PointList.size();
	CatchOne(POWERUP_RAIN);
	ASSERT_EQ(before + 30, CElementPoint::PointList.size());
	float wind = CElementPoint::PointList[before]->vx;
	for (size_t i = before; i < before + 30; i++) {
		const CElementPoint* point = CElementPoint::PointList[i];
		EXPECT_FLOAT_EQ(wind, point->vx);
		EXPECT_TRUE(point->firstKind >= 1 && point->firstKind <= 3);
		EXPECT_TRUE(point->x >= -200 && point->x <= 893);
		EXPECT_TRUE(point->y >= 200 && point->y <= 500);
		EXPECT_TRUE(point->z >= 500 && point->z <= 700);
		EXPECT_TRUE(point->vz >= -15 && point->vz <= -7);
	}
}

TEST_F(PowerupTest, RandomKindIsPickedByTheGameData)
{
	for (int i = 0; i < 50; i++) {
		CPowerup* powerup = new CPowerup(300, 100, POWERUP_RANDOM, false, 0);
		EXPECT_TRUE(powerup->kind >= POWERUP_MONEY && powerup->kind <= POWERUP_FANS);
	}
	EXPECT_EQ(50u, CPowerup::PowerupList.size());
}

TEST_F(PowerupTest, FanPushesAwayByTwoAndAHalf)
{
	CPowerup* powerup = new CPowerup(320, 135, POWERUP_SLOW, false, 0);
	CPowerup* left    = new CPowerup(320, 135, POWERUP_SLOW, false, 0);
	left->gone        = true;
	float centreX     = 300 + static_cast<float>(powerup->balloons->Width()) / 2;
	CPowerup::BlowAll(centreX, 544);
	EXPECT_FLOAT_EQ(300, powerup->x);
	EXPECT_FLOAT_EQ(97.5f, powerup->y);
	EXPECT_FLOAT_EQ(100, left->y);
}
