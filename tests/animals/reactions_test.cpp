// What single species do about the ball beyond their tables.
#include "animals/bears.h"
#include "animals/camel.h"
#include "animals/chicken.h"
#include "animals/dog.h"
#include "animals/flamingo.h"
#include "animals/kangaroo.h"
#include "animals/panda.h"
#include "animals/perching_birds.h"
#include "animals/skunk.h"
#include "animals/snake.h"
#include "animals/species_numbers.h"
#include "animals/animal_test_support.h"

#include "field/ball.h"
#include "field/crate.h"
#include "media/display.h"
#include "media/sprite.h"
#include "state/game_data.h"

// A ball too small for anything; animals can only be made of pictures that are there.
class ReactionTest : public AnimalTest
{
protected:
	void SetUp() override
	{
		AnimalTest::SetUp();
		for (const SpeciesEntry& entry : AllSpecies()) {
			for (const std::string& file : AllPictureFiles(*entry.table)) {
				if (!g_display->HasImage(file))
					GTEST_SKIP() << file << " is not in the container";
			}
		}
		MakeBallAndPaddle();
		SetBallStage(0);
		PutBall(20, 60, 0, 0);
	}
	// True when the action came up within the time.
	static bool ComesTo(const CElementAnimal* animal, const std::string& name, int frames = 4000)
	{
		for (int i = 0; i < frames && animal->currentAction->name != name; i++) {
			FieldTick();
			StepSprites();
		}
		return animal->currentAction->name == name;
	}
};

TEST_F(ReactionTest, ABearGrowlsComesDownAndGrowlsAgainWhenTouchedUpright)
{
	CBear* bear = new CBear(300, 250, true);
	EXPECT_FALSE(bear->OnBallHit());
	EXPECT_EQ(bear->bumpAction, bear->currentAction);
	ASSERT_TRUE(ComesTo(bear, "growl", 60));
	EXPECT_FALSE(bear->OnBallHit());
	EXPECT_STREQ("growl", bear->currentAction->name) << "nothing disturbs a growl";
	ASSERT_TRUE(ComesTo(bear, "reared:rearup", 60));
	EXPECT_EQ(SPECIES_BEAR, bear->OnBump());
	EXPECT_STREQ("growl", bear->currentAction->name);
	ASSERT_TRUE(ComesTo(bear, "sink:rearup", 300));
	ASSERT_TRUE(ComesTo(bear, "stand", 60));

	bear->OnBallHit();
	Run();
	SetBallStage(bear->requiredStage);
	EXPECT_TRUE(bear->OnBallHit()) << "in the chain it can be caught as well";
	EXPECT_TRUE(bear->dead);
}

TEST_F(ReactionTest, ACamelThatIsDownIgnoresASecondTouch)
{
	CCamel* camel = new CCamel(300, 250, true);
	camel->OnBallHit();
	Run(4);
	int frame = camel->currentSprite->Frame();
	EXPECT_FALSE(camel->OnBallHit());
	EXPECT_EQ(frame, camel->currentSprite->Frame());
	SetBallStage(camel->requiredStage);
	EXPECT_TRUE(camel->OnBallHit());
}

TEST_F(ReactionTest, APandaLiesDownInAnotherOutlineAndGetsUpInItsFirst)
{
	CPanda* panda = new CPanda(300, 250, true);
	float before  = panda->bodyOffsetY[0];
	EXPECT_FALSE(panda->OnBallHit());
	EXPECT_TRUE(panda->startled);
	EXPECT_NE(before, panda->bodyOffsetY[0]);
	ASSERT_TRUE(ComesTo(panda, "lie:roll", 60));
	EXPECT_FALSE(panda->OnBallHit());
	EXPECT_STREQ("lie:roll", panda->currentAction->name);
	ASSERT_TRUE(ComesTo(panda, "stand"));
	EXPECT_FALSE(panda->startled);
	EXPECT_EQ(before, panda->bodyOffsetY[0]);
}

TEST_F(ReactionTest, AFlamingoStandsLooksAndStaggersInTheStanceOfItsLastChange)
{
	CFlamingo* flamingo  = new CFlamingo(300, 250, true);
	AnimalAction* look   = ActionNamed(flamingo, "look");
	CSprite* oneLeg      = flamingo->idleAction->spriteLeft;
	CSprite* lookOne     = look->spriteLeft;
	CSprite* lookBackOne = look->exitRight;
	CSprite* stunnedOne  = flamingo->bumpAction->spriteRight;
	for (bool two : {true, false}) {
		ASSERT_TRUE(ComesTo(flamingo, "changefoot"));
		EXPECT_EQ(two, flamingo->onTwoLegs);
		EXPECT_EQ(!two, flamingo->idleAction->spriteLeft == oneLeg);
		EXPECT_EQ(!two, look->spriteLeft == lookOne);
		EXPECT_EQ(!two, look->exitRight == lookBackOne);
		EXPECT_EQ(!two, flamingo->bumpAction->spriteRight == stunnedOne);
		ASSERT_TRUE(ComesTo(flamingo, "stand"));
	}
}

TEST_F(ReactionTest, ASnakeRattlesByWhatItWasDoing)
{
	CSnake* snake = new CSnake(300, 250, true);
	ASSERT_TRUE(ComesTo(snake, "look"));
	snake->OnBallHit();
	EXPECT_STREQ("lookrattle", snake->currentAction->name);
	snake->OnBallHit();
	EXPECT_STREQ("lookrattle", snake->currentAction->name) << "it goes on with that one";
	ASSERT_TRUE(ComesTo(snake, "stand", 200));
	snake->OnBallHit();
	EXPECT_STREQ("rattle", snake->currentAction->name);
}

TEST_F(ReactionTest, ADogSleepsUntilItsTimeOrTheBall)
{
	CDog* plain = new CDog(150, 250, true);
	CDog* deep  = new CDog(450, 250, true, true);
	Run(599);
	EXPECT_STREQ("sleep", plain->currentAction->name);
	Run(620);
	EXPECT_STRNE("sleep", plain->currentAction->name);
	EXPECT_STREQ("sleep", deep->currentAction->name);
	EXPECT_FALSE(deep->OnBallHit());
	EXPECT_STREQ("wake:sleep", deep->currentAction->name);
	ASSERT_TRUE(ComesTo(deep, "stand", 200));
	EXPECT_FALSE(deep->OnBallHit());
	EXPECT_STREQ("bark", deep->currentAction->name) << "awake it barks";
}

TEST_F(ReactionTest, ASkunkSpraysOnceAMomentAfterTheTouch)
{
	CSkunk* skunk = new CSkunk(300, 250, true);
	float sum     = g_gameData->profile.skillSum;
	EXPECT_FALSE(skunk->OnBallHit());
	float after = g_gameData->profile.skillSum;
	EXPECT_LT(after, sum);
	EXPECT_EQ(57, skunk->sprayTimer);
	Run(5);
	EXPECT_FALSE(skunk->OnBallHit());
	EXPECT_EQ(52, skunk->sprayTimer) << "no second spray";
	EXPECT_EQ(after, g_gameData->profile.skillSum);
	Run(60);
	EXPECT_EQ(-1, skunk->sprayTimer);
}

TEST_F(ReactionTest, AKangarooLetsItsJoeyOutOnceWhereThereIsRoom)
{
	CKangaroo* kangaroo = new CKangaroo(90, 250, false);
	EXPECT_FALSE(kangaroo->OnBallHit());
	EXPECT_TRUE(kangaroo->hasJoey) << "too near the edge";
	kangaroo->LeaveField();

	kangaroo = new CKangaroo(300, 250, false);
	EXPECT_EQ(1, CElementAnimal::CountToRescue());
	EXPECT_FALSE(kangaroo->OnBallHit());
	EXPECT_FALSE(kangaroo->hasJoey);
	Run(60);
	ASSERT_EQ(2, CElementAnimal::CountToRescue());
	EXPECT_EQ(SPECIES_KANGAROO_JOEY, CElementAnimal::AnimalList.back()->species);
	kangaroo->OnBallHit();
	Run(60);
	EXPECT_EQ(2, CElementAnimal::CountToRescue());
}

TEST_F(ReactionTest, AHenTakenWithAllItsEggsWholeWinsATrophy)
{
	CChicken* barren = new CChicken(200, 250, true);
	barren->LeaveField();
	Run(2);
	EXPECT_FALSE(g_gameData->HasTrophy(16)) << "a hen without eggs wins nothing";

	CChicken* hen = new CChicken(400, 250, true);
	hen->OnBallHit();
	Run(10);
	ASSERT_EQ(1u, hen->dependants.size());
	hen->LeaveField();
	Run(2);
	EXPECT_TRUE(g_gameData->HasTrophy(16));
}

TEST_F(ReactionTest, ABirdHasAnOutlineOnOpenGroundOnly)
{
	CCrate* crate = new CCrate(300, 300, 0, 0, 0, false, false, false, nullptr, 0);
	CPigeon* bird = new CPigeon(crate, true);
	for (int i = 0; i < 800; i++) {
		Run();
		ASSERT_NE(ACTION_WALK, bird->currentAction->kind) << "on its perch it does not walk";
	}
	EXPECT_EQ(nullptr, bird->firstPoint);
	crate->occupant = nullptr;
	bird->BeginFlight();
	for (int i = 0; i < 6000 && bird->flying; i++)
		Run();
	EXPECT_FALSE(bird->flying);
	Run();
	EXPECT_EQ(bird->perched, bird->firstPoint == nullptr);
}
