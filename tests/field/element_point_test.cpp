// Small things: flight, rest, eggs, the gravity ball, what the ball gets.
#include "field/element_point.h"

#include "field/background.h"
#include "field/ball.h"
#include "field/sidebar.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "support/field_test.h"

class PointTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
	}

	static const TouchCircle* CircleOf(const CElement* element)
	{
		for (const TouchCircle* circle : CElement::TouchCircleList) {
			if (circle->owner == element)
				return circle;
		}
		return nullptr;
	}

	static CElementPoint* Lying(float x, float y, int kind)
	{
		CElementPoint* point = new CElementPoint(x, y, 0, kind, 0, 0, 0);
		point->Update();
		return point;
	}
};

TEST_F(PointTest, CannotBeTakenInFlightAndCanAtRest)
{
	CElementPoint* coin = new CElementPoint(300, 300, 5, POINT_COIN, 1, 0, 3);
	coin->Update();
	EXPECT_EQ(nullptr, CircleOf(coin));
	EXPECT_FLOAT_EQ(301, coin->x);
	EXPECT_FLOAT_EQ(8, coin->z);
	EXPECT_FLOAT_EQ(2.5f, coin->vz);
	for (int i = 0; i < 60 && coin->bouncing; i++)
		coin->Update();
	EXPECT_FALSE(coin->bouncing);
	EXPECT_EQ(0, coin->z);
	const TouchCircle* circle = CircleOf(coin);
	ASSERT_NE(nullptr, circle);
	EXPECT_FLOAT_EQ(3, circle->radius);
	EXPECT_FLOAT_EQ(coin->x + coin->sprite->Width() / 2, circle->x);
	EXPECT_FLOAT_EQ(coin->y + coin->sprite->Height() / 2, circle->y);
}

TEST_F(PointTest, FastFallBouncesWithATwelfthOfItsSpeedAndAQuarterOfItsDrift)
{
	CElementPoint* apple = new CElementPoint(300, 300, 10, POINT_APPLE, 4, 0, -13);
	apple->Update();
	EXPECT_TRUE(apple->bouncing);
	EXPECT_FLOAT_EQ(0.1f, apple->z);
	EXPECT_FLOAT_EQ(13.5f / 12, apple->vz);
	EXPECT_FLOAT_EQ(1, apple->vx);

	CElementPoint* slow = new CElementPoint(300, 300, 10, POINT_APPLE, 4, 0, -11.5f);
	slow->Update();
	EXPECT_FALSE(slow->bouncing) << "a fall of exactly 12 comes to rest";
}

TEST_F(PointTest, OutsideTheFieldItIsGoneWithoutAScore)
{
	CElementPoint* left  = Lying(-1, 300, POINT_APPLE);
	CElementPoint* right = Lying(694, 300, POINT_APPLE);
	for (CElementPoint* point : {left, right}) {
		EXPECT_TRUE(point->dead);
		EXPECT_TRUE(point->sprite->IsHidden());
		EXPECT_EQ(nullptr, CircleOf(point));
	}
	EXPECT_FALSE(Lying(0, 300, POINT_APPLE)->dead);
	EXPECT_EQ(0, g_play.levelScore);
}

TEST_F(PointTest, StaysBelowTheWall)
{
	CBackground* background = g_background = new CBackground(BackgroundLook());
	int top                                = background->FieldTop();
	CElementPoint* point                   = Lying(300, top - 20, POINT_APPLE);
	EXPECT_FLOAT_EQ(top - 15, point->y);
	const TouchCircle* circle = CircleOf(point);
	ASSERT_NE(nullptr, circle);
	EXPECT_FLOAT_EQ(point->y + point->sprite->Height() / 2, circle->y) << "the circle comes along";
	EXPECT_FLOAT_EQ(top - 19, Lying(300, top - 19, POINT_APPLE)->y);
}

TEST_F(PointTest, GravityBallPullsWhatLies)
{
	PutBall(320, 300, 0, -5);
	CElementPoint* point = Lying(300, 300, POINT_APPLE);
	Tick();
	EXPECT_FLOAT_EQ(300, point->x) << "an ordinary ball pulls nothing";
	ball->SetSkinGravity();
	point->Update();
	EXPECT_GT(point->x, 300);
	const TouchCircle* circle = CircleOf(point);
	ASSERT_NE(nullptr, circle);
	EXPECT_FLOAT_EQ(point->x + point->sprite->Width() / 2, circle->x);
}

TEST_F(PointTest, BallTakesItAndItsKindCounts)
{
	static const struct {
		int kind, load, score, money;
	} CASES[] = {{POINT_ACORN, 1, 1, 0}, {POINT_COCONUT, 3, 1, 0}, {POINT_COIN, 0, 0, 1}};
	for (const auto& row : CASES) {
		SCOPED_TRACE(row.kind);
		g_play.levelScore = g_play.money = 0;
		int load                         = ball->load;
		CElementPoint* point             = Lying(300, 300, row.kind);
		EXPECT_TRUE(point->OnBallHit());
		EXPECT_TRUE(point->dead);
		EXPECT_EQ(nullptr, CircleOf(point));
		EXPECT_EQ(load + row.load, ball->load);
		EXPECT_EQ(row.score, g_play.levelScore);
		EXPECT_EQ(row.money, g_play.money);
		EXPECT_EQ(0, g_play.animalsSaved);
		EXPECT_EQ(0, sidebar->comboCount) << "no animal";
	}
}

TEST_F(PointTest, ApplesOfTheSecondSetAreAKindOfTheirOwn)
{
	int second = 0;
	for (int i = 0; i < 60; i++) {
		CElementPoint* apple = Lying(300, 300, POINT_APPLE);
		EXPECT_EQ(POINT_APPLE, apple->firstKind);
		EXPECT_TRUE(apple->kind == POINT_APPLE || apple->kind == POINT_APPLE2);
		second += apple->kind == POINT_APPLE2;
	}
	EXPECT_GT(second, 10);
	EXPECT_LT(second, 50);
	EXPECT_FALSE(CElementPoint::AnyCoinLeft());
	CElementPoint* coin = Lying(300, 300, POINT_COIN);
	EXPECT_EQ(47, coin->sprite->FrameCount());
	EXPECT_TRUE(CElementPoint::AnyCoinLeft());
	coin->OnBallHit();
	EXPECT_FALSE(CElementPoint::AnyCoinLeft());
}

TEST_F(PointTest, EggCanBeTakenOnlyWhenItHasComeOut)
{
	static const struct {
		int kind;
		float shift;
	} CASES[] = {{POINT_EGG_LEFT, 27}, {POINT_EGG_RIGHT, 2}};
	for (const auto& row : CASES) {
		SCOPED_TRACE(row.kind);
		CElementPoint* egg = new CElementPoint(300, 300, 0, row.kind, 0, 0, 0);
		EXPECT_EQ(14, egg->hatching->FrameCount());
		egg->OnBallHit();
		EXPECT_FALSE(egg->dead);
		int frames = 0;
		while (egg->hatching && frames < 100) {
			EXPECT_EQ(nullptr, CircleOf(egg));
			Tick();
			g_render->Update(true);
			frames++;
		}
		EXPECT_GE(frames, 14);
		EXPECT_LT(frames, 18);
		EXPECT_FLOAT_EQ(300 + row.shift, egg->x);
		EXPECT_FLOAT_EQ(309, egg->y);
		EXPECT_NE(nullptr, CircleOf(egg));
		egg->OnBallHit();
		EXPECT_TRUE(egg->dead);
	}
	EXPECT_EQ(2, ball->EggCount());
	EXPECT_EQ(0, sidebar->comboCount);
	EXPECT_EQ(2, g_play.animalsSaved);
}
