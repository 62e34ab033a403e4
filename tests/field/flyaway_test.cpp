// Rising numbers: places and timing of their digits.
#include "field/flyaway.h"

#include "field/ball.h"
#include "field/paddle.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "support/field_test.h"

class FlyawayTest : public FieldTest
{
protected:
	static void Frame()
	{
		FieldTick();
		g_render->Update(true);
	}
};

TEST_F(FlyawayTest, DigitsAppearFromTheLeftTwoFramesApart)
{
	CFlyaway* number = new CFlyaway(250, false, false, 300, 200, false);
	ASSERT_EQ(3, number->digits);
	for (int frame = 1; frame <= 5; frame++) {
		Frame();
		for (int i = 0; i < 3; i++)
			EXPECT_EQ(frame < 1 + 2 * i, number->sprites[i]->IsHidden()) << frame << " " << i;
	}
}

TEST_F(FlyawayTest, ShownDigitsRiseTwoPixelsAFrameAndHideWhenPlayed)
{
	CFlyaway* number = new CFlyaway(7, false, false, 300, 200, false);
	CSprite* digit   = number->sprites[0];
	int y            = digit->Y();
	EXPECT_EQ(200 - digit->Height() / 2, y);
	Frame();
	EXPECT_EQ(y - 2, digit->Y());
	Frame();
	EXPECT_EQ(y - 4, digit->Y());
	int frames = 2;
	while (!number->dead && frames < 60) {
		Frame();
		frames++;
	}
	EXPECT_TRUE(digit->IsHidden());
	EXPECT_GE(frames, 16) << "sixteen pictures, a frame each";
	EXPECT_LE(frames, 18);
}

TEST_F(FlyawayTest, StartsCentredAtThePlaceThePaddleOrTheBall)
{
	CFlyaway* placed = new CFlyaway(1234, false, false, 300, 200, false);
	EXPECT_EQ(300 - 3 * 10 / 2 - placed->sprites[0]->Width() / 2, placed->startX);
	CFlyaway* lost = new CFlyaway(5, false, false, CFlyaway::AT_BALL, CFlyaway::AT_BALL, false);
	EXPECT_EQ(0, lost->x);

	MakeBallAndPaddle();
	PutBall(320, 240, 0, -5);
	CFlyaway* atBall = new CFlyaway(5, false, false, CFlyaway::AT_BALL, CFlyaway::AT_BALL, false);
	EXPECT_EQ(320, atBall->x);
	EXPECT_EQ(240, atBall->y);
	paddle->SetMouseX(400);
	CFlyaway* onPaddle = new CFlyaway(5, false, true, 0, 0, false);
	EXPECT_EQ(paddle->GetX() + 36, onPaddle->x);
	EXPECT_EQ(514, onPaddle->y);
}

TEST_F(FlyawayTest, DollarStandsInFrontAndThePanelFormIsWider)
{
	CFlyaway* money = new CFlyaway(25, true, false, 300, 200, true);
	ASSERT_EQ(3, money->digits);
	for (int i = 0; i < 6; i++)
		Frame();
	EXPECT_EQ(money->startX + 13, money->sprites[1]->X());
	EXPECT_EQ(money->startX + 26, money->sprites[2]->X());
	EXPECT_EQ(900300, money->sprites[0]->Depth());
	EXPECT_TRUE(money->sprites[0]->overlay);
	EXPECT_EQ(1, (new CFlyaway(0, false, false, 1, 1, false))->digits);
}
