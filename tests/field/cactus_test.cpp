// Cacti: a small foot stops the ball, and a hit makes them shiver once.
#include "support/field_test.h"

#include "field/cactus.h"
#include "media/sprite.h"

class CactusTest : public FieldTest
{
};

TEST_F(CactusTest, EachKindStandsOnItsFoot)
{
	struct {
		int kind, variant, frames;
	} rows[] = {{3, 0, 12}, {3, 4, 12}, {3, 9, 12}, {2, 0, 12},  {2, 2, 12}, {1, 0, 1},
	            {1, 10, 1}, {0, 0, 1},  {0, 10, 1}, {3, -1, 12}, {0, -1, 1}};
	for (const auto& row : rows) {
		CCactus* cactus = new CCactus(300, 300, row.kind, row.variant);
		EXPECT_EQ(row.frames, cactus->sprite->FrameCount());
		EXPECT_EQ(300, cactus->sprite->Depth());
		EXPECT_TRUE(cactus->sprite->IsStopped());
		EXPECT_GE(CElement::ObstaclePointList.size(), 4u) << row.kind;
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			EXPECT_TRUE(point->x > 285 && point->x < 315 && point->y > 295 && point->y < 305)
			    << row.kind << ": " << point->x << ", " << point->y;
		ClearField();
	}
}

TEST_F(CactusTest, ShiversOnceAndStandsUpAgain)
{
	CCactus* cactus = new CCactus(300, 300, 3, 1);
	EXPECT_FALSE(cactus->OnBallHit()) << "the ball bounces";
	bool bent = false;
	for (int i = 0; i < 12; i++) {
		cactus->sprite->Step();
		bent = bent || cactus->sprite->Frame() != 0;
		Tick();
	}
	EXPECT_TRUE(bent);
	for (int i = 0; i < 20; i++) {
		cactus->sprite->Step();
		Tick();
	}
	EXPECT_TRUE(cactus->sprite->IsStopped());
	EXPECT_EQ(0, cactus->sprite->Frame());
}
