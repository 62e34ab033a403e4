// The shield: rising, holding, and who may use it up.
#include "field/barrier.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "media/sprite.h"
#include "state/game_data.h"
#include "support/field_test.h"

class BarrierTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
		paddle->SetMouseX(-300);
	}

	void Step(int frames)
	{
		for (int i = 0; i < frames; i++) {
			barrier->Update();
			for (CSprite* sprite :
			     {barrier->mainSprite, barrier->topSprite, barrier->pulseLeft, barrier->pulseRight})
				sprite->Step();
		}
	}
	static int PointsOf(const CElement* owner)
	{
		int count = 0;
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			count += point->owner == owner;
		return count;
	}
};

TEST_F(BarrierTest, RisesInEightFramesAndIsSolidAtOnce)
{
	barrier->Raise(200);
	EXPECT_TRUE(barrier->rising);
	EXPECT_FALSE(barrier->IsUp());
	int points = PointsOf(barrier);
	EXPECT_EQ(64, points) << "693 pixels at most 11 apart";
	float floor = static_cast<float>(600 - barrier->mainSprite->Height());
	for (const ObstaclePoint* point : CElement::ObstaclePointList)
		EXPECT_TRUE(point->owner != barrier || point->y == floor);
	Step(7);
	EXPECT_FALSE(barrier->IsUp());
	Step(1);
	EXPECT_TRUE(barrier->IsUp());
	EXPECT_FALSE(barrier->mainSprite->IsHidden());
	barrier->Raise(300); // up already
	EXPECT_EQ(points, PointsOf(barrier));
}

TEST_F(BarrierTest, PulseRunsBetweenTheWalls)
{
	barrier->Raise(200);
	Step(8);
	float left = 693, right = 0;
	for (int i = 0; i < 600; i++) {
		Step(1);
		left  = std::min(left, barrier->pulseX);
		right = std::max(right, barrier->pulseX);
		EXPECT_NE(barrier->pulseLeft->IsHidden(), barrier->pulseRight->IsHidden());
		EXPECT_EQ(barrier->pulseSpeed > 0, !barrier->pulseRight->IsHidden());
	}
	EXPECT_GE(left, 0);
	EXPECT_LT(left, 40);
	EXPECT_LE(right, 693);
	EXPECT_GT(right, 653);
}

TEST_F(BarrierTest, FirstTouchUsesItUpInRegularPlay)
{
	sidebar->timers[TIMER_BARRIER] = UNTIL_USED_UP;
	sidebar->comboCount            = 4;
	barrier->Raise(200);
	Step(10);
	PutBall(300, 550, 0, 12);
	physics->Step();
	EXPECT_LT(ball->vy, 0);
	EXPECT_EQ(0, PointsOf(barrier)) << "open for the next one";
	EXPECT_EQ(0, sidebar->comboCount);
	EXPECT_EQ(1, barrier->bumpStep);
	Step(60);
	EXPECT_FALSE(barrier->IsUp());
	EXPECT_TRUE(barrier->mainSprite->IsHidden() && barrier->topSprite->IsHidden());
	EXPECT_TRUE(barrier->pulseLeft->IsHidden() && barrier->pulseRight->IsHidden());
	EXPECT_EQ(0, sidebar->timers[TIMER_BARRIER]);
	EXPECT_EQ(-1, barrier->bumpStep);
}

TEST_F(BarrierTest, StaysInKidsModeWithItsOptionOn)
{
	g_gameData->profile.kidsMode      = 1;
	g_gameData->profile.kidsBarrierOn = 1;
	barrier->Raise(200);
	Step(10);
	EXPECT_FALSE(barrier->OnBallHit());
	EXPECT_TRUE(barrier->IsUp());
	EXPECT_GT(PointsOf(barrier), 0);
	g_gameData->profile.kidsBarrierOn = 0;
	barrier->OnBallHit();
	EXPECT_EQ(0, PointsOf(barrier)) << "without the option it is used up";
}

TEST_F(BarrierTest, CanBeRaisedAgainWhileItGoesDown)
{
	barrier->Raise(200);
	Step(10);
	barrier->Lower();
	barrier->Lower(); // does nothing more
	Step(2);
	barrier->Raise(250);
	EXPECT_TRUE(barrier->rising);
	EXPECT_EQ(64, PointsOf(barrier));
	Step(8);
	EXPECT_TRUE(barrier->IsUp());
	Step(60);
	EXPECT_TRUE(barrier->IsUp()) << "the going down is forgotten";
}

TEST_F(BarrierTest, LowerBeforeItIsUpDoesNothing)
{
	barrier->Lower();
	EXPECT_TRUE(barrier->mainSprite->IsHidden());
	barrier->Raise(200);
	barrier->Lower();
	EXPECT_EQ(64, PointsOf(barrier));
}
