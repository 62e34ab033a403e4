// Climbing, falling and sitting in trees: the monkey, and a climber made of a table.
#include "animals/monkey.h"
#include "animals/animal_test_support.h"

#include "field/ball.h"
#include "field/tree.h"
#include "media/sprite.h"

#include <set>

// clang-format off
static const BodyPoint s_body[] = { { 5, 10 }, { 10, 20 }, { 20, 10 } };
static const ActionRow s_rows[] = {
	{ "stand",     ACTION_IDLE,  ".",   0, ROLE_NONE, "" },
	{ "look",      ACTION_LOOK,  "0-4", 1, ROLE_NONE, "",    { .inTree = true } },
	{ "quack",     ACTION_BUMP,  "0-7", 0, ROLE_BUMP, "" },
	{ "walkup",    ACTION_WALK,  "0-7", 2, ROLE_NONE, "" },
	{ "land:look", ACTION_LAND,  "2-4", 0, ROLE_NONE, "" },
	{ "fall:look", ACTION_FALL,  "0-1", 0, ROLE_NONE, "land" },
	{ "climb:walkup", ACTION_CLIMB, "0-7", 0, ROLE_NONE, "" },
};
static const SpeciesTable CLIMBER = { "duck", s_rows, {}, s_body, {}, {} };
// clang-format on

class CTestClimber : public CElementTreeClimber
{
public:
	CTestClimber(int centreX, int centreY, bool left)
	{
		Build();
		PlaceAt(centreX, centreY, left);
	}
	CTestClimber(CTree* tree, bool left)
	{
		Build();
		PlaceInCrown(tree, left);
	}
	const char* ClassName() const override { return "CTestClimber"; }

private:
	void Build()
	{
		species       = 68;
		bodyRadius    = 15;
		weight        = 4;
		requiredStage = 8;
		speedX        = 1.5f;
		mayTurn       = true;
		BuildActions(CLIMBER);
	}
};

class ClimberTest : public AnimalTest
{
protected:
	void SetUp() override
	{
		AnimalTest::SetUp();
		WallIn(40);
		tree = new CTree(350, 300, TREE_GREEN, 0, 0);
		foot = static_cast<float>(tree->TrunkBaseY());
	}
	// The monkey's middle right at the trunk, its feet at the trunk's.
	CMonkey* MonkeyAtTrunk(float dx = 0)
	{
		CMonkey* monkey = new CMonkey(350, 300, true);
		int middle      = tree->trunk->X() + tree->trunk->Width() / 2;
		monkey->x       = static_cast<float>(middle - monkey->collisionSprite->Width() / 2) + dx;
		monkey->y       = foot - static_cast<float>(monkey->collisionSprite->Height());
		monkey->Place();
		return monkey;
	}
	void RunTo(CMonkey* monkey, CMonkey::State state, int most = 3000)
	{
		for (int i = 0; i < most && monkey->state != state; i++)
			Run();
		ASSERT_EQ(state, monkey->state);
	}
	CTree* tree = nullptr;
	float foot  = 0;
};

TEST_F(ClimberTest, AMonkeyAtATrunkClimbsAndSitsInTheCrown)
{
	CMonkey* monkey = MonkeyAtTrunk();
	Run();
	ASSERT_EQ(CMonkey::CLIMB, monkey->state);
	EXPECT_EQ(monkey, tree->climber);
	RunTo(monkey, CMonkey::POP_UP);
	EXPECT_FLOAT_EQ(tree->CrownZ() + 10, monkey->z);
	EXPECT_EQ(nullptr, monkey->firstPoint) << "out of the ball's reach";
	RunTo(monkey, CMonkey::SIT);
	EXPECT_EQ(tree->CrownDepth(), monkey->currentSprite->Depth());
	std::set<int> states;
	for (int i = 0; i < 3000; i++) {
		Run();
		states.insert(monkey->state);
	}
	EXPECT_EQ((std::set<int>{CMonkey::SIT, CMonkey::LOOK}), states) << "up there it only looks";
}

TEST_F(ClimberTest, AShakenMonkeyFallsThrowsATantrumAndMustRunOnceBeforeItClimbs)
{
	CMonkey* monkey = new CMonkey(tree, true);
	Run(3);
	EXPECT_EQ(nullptr, monkey->firstPoint);
	monkey->ShakeOut();
	ASSERT_EQ(CMonkey::FALL, monkey->state);
	EXPECT_FALSE(monkey->currentSprite->behindFoliage);
	float z = monkey->z;
	Run(4);
	monkey->ShakeOut();
	EXPECT_LT(monkey->z, z) << "a second shake does not start the fall over";
	RunTo(monkey, CMonkey::LANDING);
	EXPECT_EQ(nullptr, tree->climber);
	EXPECT_EQ(0, monkey->z);
	RunTo(monkey, CMonkey::TANTRUM);
	EXPECT_TRUE(monkey->moving);
	bool ran = false;
	for (int i = 0; i < 6000 && monkey->moving; i++) {
		Run();
		ran |= monkey->state == CMonkey::RUN;
		EXPECT_EQ(nullptr, monkey->currentTree);
	}
	EXPECT_TRUE(ran);
	EXPECT_FALSE(monkey->moving);
}

TEST_F(ClimberTest, AFallingMonkeyCannotBeTouched)
{
	MakeBallAndPaddle();
	SetBallStage(18);
	CMonkey* monkey = new CMonkey(tree, true);
	monkey->ShakeOut();
	for (int i = 0; i < 200 && monkey->state == CMonkey::FALL; i++) {
		EXPECT_EQ(nullptr, monkey->firstPoint);
		EXPECT_FALSE(monkey->OnBallHit());
		Run();
	}
	EXPECT_FALSE(monkey->dead);
	Run(2);
	EXPECT_NE(nullptr, monkey->firstPoint);
	EXPECT_TRUE(monkey->OnBallHit());
	EXPECT_TRUE(monkey->dead);
}

TEST_F(ClimberTest, OfTwoMonkeysAtOneTrunkTheFirstTakesIt)
{
	CMonkey* first  = MonkeyAtTrunk(-1);
	CMonkey* second = MonkeyAtTrunk(1);
	Run();
	EXPECT_EQ(CMonkey::CLIMB, first->state);
	EXPECT_EQ(first, tree->climber);
	Run(30);
	EXPECT_NE(CMonkey::CLIMB, second->state);
	EXPECT_EQ(nullptr, second->currentTree);
}

TEST_F(ClimberTest, AMonkeyShakenFromTheTrunkFallsBehindTheLeaves)
{
	CMonkey* monkey = MonkeyAtTrunk();
	Run(30);
	ASSERT_EQ(CMonkey::CLIMB, monkey->state);
	ASSERT_GT(monkey->z, 0);
	monkey->ShakeOut();
	EXPECT_TRUE(monkey->currentSprite->behindFoliage);
	EXPECT_EQ(0, monkey->currentSprite->FramesFromEnd());
	RunTo(monkey, CMonkey::LANDING);
	EXPECT_EQ(nullptr, tree->climber);
}

TEST_F(ClimberTest, APalmIsNotClimbed)
{
	CTree* palm = new CTree(150, 300, TREE_PALM, 0, 0);
	EXPECT_EQ(nullptr,
	          CTree::FreeTreeAt(static_cast<float>(palm->trunk->X() + palm->trunk->Width() / 2),
	                            static_cast<float>(palm->TrunkBaseY()), 5, 5));
}

TEST_F(ClimberTest, ATooSmallBallMakesItThrowATantrumOnce)
{
	MakeBallAndPaddle();
	SetBallStage(0);
	CMonkey* monkey = new CMonkey(150, 200, true);
	Run();
	EXPECT_FALSE(monkey->OnBallHit());
	EXPECT_EQ(CMonkey::TANTRUM, monkey->state);
	Run(10);
	int frame = monkey->currentSprite->Frame();
	EXPECT_FALSE(monkey->OnBallHit());
	EXPECT_EQ(frame, monkey->currentSprite->Frame());
	RunTo(monkey, CMonkey::SIT);
}

TEST_F(ClimberTest, AMonkeyOnTheGroundRunsAndStaysOutOfThings)
{
	tree->climber   = new CTestAnimal(CLIMBER, 600, 100); // no tree is free
	CMonkey* monkey = new CMonkey(350, 420, true);
	std::set<int> states;
	for (int i = 0; i < 3000; i++) {
		Run();
		states.insert(monkey->state);
		ASSERT_GT(monkey->CentreX(), monkey->bodyRadius);
		ASSERT_LT(monkey->CentreX(), 693 - monkey->bodyRadius);
	}
	EXPECT_EQ((std::set<int>{CMonkey::SIT, CMonkey::RUN, CMonkey::LOOK}), states);
}

TEST_F(ClimberTest, AClimberOfATableFallsLandsWalksAndClimbsAgain)
{
	CTestClimber* climber = new CTestClimber(tree, true);
	for (int i = 0; i < 600; i++) {
		Run();
		ASSERT_NE(ACTION_WALK, climber->currentAction->kind) << "in the crown it does not walk";
	}
	EXPECT_EQ(tree->CrownDepth(), climber->currentSprite->Depth());
	climber->ShakeOut();
	std::string kinds;
	bool onGround = false;
	for (int i = 0; i < 6000 && !climber->inTree; i++)
		Run();
	for (int i = 0; i < 300 && climber->z > 0; i++)
		Run();
	onGround = climber->z == 0 && !climber->currentTree;
	EXPECT_TRUE(onGround);
	EXPECT_TRUE(climber->moving);
	Run(2);
	EXPECT_NE(nullptr, climber->firstPoint);
	for (int i = 0; i < 2000 && climber->moving; i++)
		Run();
	ASSERT_FALSE(climber->moving) << "it has walked";

	climber->x = static_cast<float>(tree->trunk->X() + tree->trunk->Width() / 2 -
	                                climber->collisionSprite->Width() / 2);
	climber->y = foot - static_cast<float>(climber->collisionSprite->Height() / 2);
	climber->Place();
	climber->currentAction = ActionNamed(climber, "look");
	Run(2);
	ASSERT_EQ(tree, climber->currentTree);
	EXPECT_EQ(ACTION_CLIMB, climber->currentAction->kind);
	for (int i = 0; i < 400 && !climber->inTree; i++)
		Run();
	EXPECT_TRUE(climber->inTree);
	EXPECT_FLOAT_EQ(tree->CrownZ() + 10, climber->z);
	EXPECT_EQ(nullptr, climber->firstPoint);
}
