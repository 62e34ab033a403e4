// Drums: patience, clouds, blasts.
#include "field/drum.h"

#include "field/breakable.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "state/game_data.h"
#include "support/field_test.h"

class DrumTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
	}

	static void Hit(CElement* element)
	{
		CElement::FrameCounter += 10;
		EXPECT_FALSE(element->OnBallHit()) << "a ball always bounces off a drum";
	}
};

TEST_F(DrumTest, SpewsAtTheThirdHitAndAtEveryOneAfter)
{
	CDrum* drum = new CDrum(300, 300, true);
	EXPECT_TRUE(g_gameData->notes.drum);
	Hit(drum);
	EXPECT_EQ(drum->light, drum->currentSprite);
	Hit(drum);
	EXPECT_EQ(drum->heavy, drum->currentSprite);
	EXPECT_FALSE(g_gameData->notes.drumFired);
	float skill = g_gameData->profile.skillSum;

	Hit(drum);
	EXPECT_EQ(drum->spewing, drum->currentSprite);
	EXPECT_TRUE(g_gameData->notes.drumFired);
	EXPECT_LT(g_gameData->profile.skillSum, skill);
	EXPECT_EQ(drum->clouds[0], drum->currentCloud);
	EXPECT_FALSE(drum->currentCloud->IsHidden());
	Hit(drum);
	EXPECT_EQ(drum->clouds[1], drum->currentCloud) << "sides take turns";
	EXPECT_EQ(3, drum->hits);
}

TEST_F(DrumTest, HitsCloserThanThreeFramesAreOne)
{
	CDrum* drum = new CDrum(300, 300, false);
	Hit(drum);
	CElement::FrameCounter += 2;
	drum->OnBallHit();
	EXPECT_EQ(1, drum->hits);
}

TEST_F(DrumTest, BlastMakesItSpewAtOnceAndLeavesItStanding)
{
	CDrum* drum = new CDrum(300, 300, false);
	int reach   = drum->base->X() + drum->base->Width() / 2 + drum->base->Width() / 2 + 5;
	drum->OnBlast(reach + 1, 5);
	EXPECT_EQ(0, drum->hits);
	CElementBreakable::BlastAll(reach, 5);
	EXPECT_EQ(3, drum->hits);
	EXPECT_EQ(drum->clouds[1], drum->currentCloud);
	EXPECT_FALSE(CElement::ObstaclePointList.empty());
}

TEST_F(DrumTest, CloudTestLooksAtItsMiddleAndUpperThird)
{
	CDrum* drum = new CDrum(300, 300, true);
	int x       = drum->base->X() + drum->base->Width() / 2;
	int y       = drum->base->Y() + drum->base->Height() / 3;
	EXPECT_TRUE(CDrum::AnyCloudAt(x + drum->base->Width() / 4, y - 10, 10));
	EXPECT_FALSE(CDrum::AnyCloudAt(x + drum->base->Width() / 4 + 1, y, 10));
	EXPECT_FALSE(CDrum::AnyCloudAt(x, y + 11, 10));
}

TEST_F(DrumTest, UpsetCountsOnceForEachDrumOnADodgeballLevel)
{
	FieldTest::TearDown();
	CControllerGame game(1);
	CDrum* drum = new CDrum(300, 300, true);
	drum->Spew();
	EXPECT_EQ(0, game.rules.dodgeHits);
	game.rules.isDodgeball = true;
	drum->Spew();
	drum->Spew();
	EXPECT_EQ(1, game.rules.dodgeHits);
}
