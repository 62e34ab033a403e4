// Rocks: a band along the lower part stops the ball.
#include "support/field_test.h"

#include "field/rock.h"
#include "media/sprite.h"

class RockTest : public FieldTest
{
};

static bool HasPointAt(float x, float y)
{
	for (const ObstaclePoint* point : CElement::ObstaclePointList)
		if (point->x == x && point->y == y)
			return true;
	return false;
}

TEST_F(RockTest, BandGoesThroughItsCorners)
{
	CRock* rock = new CRock(300, 300, 0, 0, false);
	EXPECT_EQ(300 - rock->sprite->Width() / 2, rock->sprite->X());
	EXPECT_EQ(300 - rock->sprite->Height() + 15, rock->sprite->Y());
	EXPECT_EQ(300, rock->sprite->Depth());
	const int corners[][2] = {{0, 42}, {41, 46}, {58, 40}, {99, 40}, {94, 30}, {50, 28}, {4, 30}};
	for (const auto& corner : corners)
		EXPECT_TRUE(HasPointAt(rock->x + corner[0], rock->y + corner[1]))
		    << corner[0] << ", " << corner[1];
}

TEST_F(RockTest, EveryPictureHasItsBandOnIt)
{
	const int variants[] = {4, 6, 4};
	for (int kind = 0; kind < 3; kind++)
		for (int variant = 0; variant < variants[kind]; variant++) {
			CRock* rock      = new CRock(300, 300, kind, variant, variant % 2);
			const CSprite* s = rock->sprite;
			EXPECT_GT(CElement::ObstaclePointList.size(), 6u);
			for (const ObstaclePoint* point : CElement::ObstaclePointList) {
				EXPECT_TRUE(point->x >= s->X() && point->x <= s->X() + s->Width());
				EXPECT_TRUE(point->y >= s->Y() + s->Height() / 4 &&
				            point->y <= s->Y() + s->Height());
			}
			ClearField();
			EXPECT_TRUE(CRock::RockList.empty());
		}
}

TEST_F(RockTest, AnyAtLooksAroundTheMiddle)
{
	CRock* rock = new CRock(300, 300, 0, 0, true);
	int x       = rock->sprite->X() + rock->sprite->Width() / 2;
	int y       = rock->sprite->Y() + rock->sprite->Height() / 2;
	int third   = rock->sprite->Width() / 3;
	EXPECT_TRUE(CRock::AnyAt(x + third, y + 10, 10));
	EXPECT_FALSE(CRock::AnyAt(x + third + 1, y, 10));
	EXPECT_FALSE(CRock::AnyAt(x, y + 11, 10));
}
