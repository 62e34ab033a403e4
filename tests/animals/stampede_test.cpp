// The herd: how it runs, what the ball does to it, and when it is through.
#include "animals/stampede.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/obstacle_grid.h"
#include "level/bonus_rules.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "state/game_data.h"

#include <set>

typedef AnimalTest StampedeTest;

TEST_F(StampedeTest, EverySpeciesRunsWithAClosedOutlineAtItsPlace)
{
	for (int species : {SPECIES_MONKEY, SPECIES_SHEEP, SPECIES_TURTLE, SPECIES_FROG,
	                    SPECIES_OSTRICH, SPECIES_CAT}) {
		for (float speed : {-2.5f, 2.5f}) {
			SCOPED_TRACE(species);
			CElementStampede* animal = new CElementStampede(species, 300, 250, speed);
			const CSprite* sprite    = animal->runSprite;
			EXPECT_EQ(species, CElementStampede::stampedeSpecies);
			EXPECT_EQ(300 - sprite->Width() / 2, animal->x);
			EXPECT_EQ(250 - sprite->Height() / 2, animal->y);
			EXPECT_EQ(sprite->Y() - 5 + sprite->Height(), sprite->Depth());
			const std::vector<ObstaclePoint*>& ring = animal->bodyPoints;
			ASSERT_GE(ring.size(), 6u);
			for (size_t i = 0; i < ring.size(); i++) {
				const ObstaclePoint* next = ring[(i + 1) % ring.size()];
				EXPECT_LE(PointDistance(ring[i]->x, ring[i]->y, next->x, next->y),
				          int(CElement::JOIN_DISTANCE));
			}
			ring[0]->owner->Update();
			EXPECT_FLOAT_EQ(300 - sprite->Width() / 2 + speed, animal->x);
			EXPECT_FLOAT_EQ(animal->x + animal->bodyOffsetX[0], ring[0]->x);
			ClearField();
		}
	}
	EXPECT_TRUE(CElementStampede::StampedeList.empty());
}

TEST_F(StampedeTest, TheHerdDoesNotMoveInStepAndNothingStopsIt)
{
	CElement* scenery = new CTestScenery;
	AddObstacleLine(scenery, 600, 100, 600, 400);
	std::set<int> frames;
	for (int i = 0; i < 20; i++)
		frames.insert((new CElementStampede(SPECIES_SHEEP, 700, 250, -2.5f))->runSprite->Frame());
	EXPECT_GT(frames.size(), 4u);
	CElementStampede* first = CElementStampede::StampedeList[0];
	float before            = first->x;
	Run(100);
	EXPECT_FLOAT_EQ(before - 250, first->x);
	EXPECT_EQ(250 - first->runSprite->Height() / 2, first->y);
}

TEST_F(StampedeTest, ABallBelowStageNineOnlyBouncesOffIt)
{
	MakeBallAndPaddle();
	CElementStampede* monkey = new CElementStampede(SPECIES_MONKEY, 300, 250, -2.5f);
	SetBallStage(8);
	const CSprite* before = monkey->currentSprite;
	EXPECT_FALSE(monkey->OnBallHit());
	Run();
	EXPECT_EQ(before, monkey->currentSprite);
	EXPECT_EQ(1, CElementAnimal::CountToRescue());

	SetBallStage(9);
	EXPECT_TRUE(monkey->OnBallHit());
	EXPECT_TRUE(monkey->dead);
	EXPECT_EQ(nullptr, monkey->firstPoint);
	EXPECT_TRUE(monkey->runSprite->IsHidden());
	EXPECT_EQ(0, CElementAnimal::CountToRescue());
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(SPECIES_MONKEY));
}

TEST_F(StampedeTest, ItIsThroughWhenEveryAnimalIsTakenOrWhollyOffTheFarSide)
{
	EXPECT_TRUE(CElementStampede::StampedeFinished());
	CElementStampede* left  = new CElementStampede(SPECIES_CAT, 300, 250, -2.5f);
	CElementStampede* right = new CElementStampede(SPECIES_CAT, 300, 250, 2.5f);
	float width             = static_cast<float>(left->runSprite->Width());
	right->LeaveField();

	left->x = 700;
	EXPECT_FALSE(CElementStampede::StampedeFinished()) << "it has not come in yet";
	left->x = -width;
	EXPECT_FALSE(CElementStampede::StampedeFinished()) << "its last pixel touches the edge";
	left->x = -width - 0.5f;
	EXPECT_TRUE(CElementStampede::StampedeFinished());

	right->dead = false;
	right->x    = -width - 1;
	EXPECT_FALSE(CElementStampede::StampedeFinished()) << "this one comes from there";
	right->x = 693.5f;
	EXPECT_FALSE(CElementStampede::StampedeFinished());
	right->x = 694;
	EXPECT_TRUE(CElementStampede::StampedeFinished());
	EXPECT_EQ(2, CElementAnimal::CountToRescue()) << "who ran off was not rescued";
}

TEST_F(StampedeTest, TheArrowsDoNotPointAtIt)
{
	CElementStampede* frog = new CElementStampede(SPECIES_FROG, 300, 250, -2.5f);
	frog->hintFrames       = 100;
	Run();
	EXPECT_TRUE(frog->hintArrow->IsHidden());
}

// The rules of a stampede, on a running level.
class StampedeRulesTest : public StampedeTest
{
protected:
	void SetUp() override
	{
		StampedeTest::SetUp();
		game = std::make_unique<CControllerGame>(1);
		game->Activate(nullptr, true);
	}
	void TearDown() override
	{
		game.reset();
		g_currentController = nullptr;
		StampedeTest::TearDown();
	}
	std::unique_ptr<CControllerGame> game;
};

TEST_F(StampedeRulesTest, AStampedeLevelEndsWithItsHerdAndTellsTheTallyWhatRan)
{
	CElementStampede* monkey = new CElementStampede(SPECIES_MONKEY, 300, 250, -2.5f);
	ASSERT_FALSE(LevelHasEnded(*game));
	monkey->x = -200;
	EXPECT_FALSE(LevelHasEnded(*game)) << "on other levels nobody asks";
	game->rules.isBonusLevel = game->rules.isStampede = true;
	EXPECT_TRUE(LevelHasEnded(*game));
	monkey->x = 300;
	EXPECT_FALSE(LevelHasEnded(*game));

	game->startCount = BonusStartCount(*game);
	EXPECT_EQ(12, game->startCount) << "eleven animals of the level, and the monkey";
	ChildRequest request;
	FillTally(*game, request);
	EXPECT_EQ(8, request.tallyType);
	EXPECT_EQ(12, request.tallyValues[0]);
	EXPECT_EQ(12, request.tallyValues[1]);
	EXPECT_EQ(SPECIES_MONKEY, request.tallyValues[2]);
}
