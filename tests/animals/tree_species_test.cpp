// Koala, raccoon and squirrel at their trees.
#include "animals/tree_species.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/tree.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <set>

// One test for each of the three.
class TreeSpeciesTest : public AnimalTest, public testing::WithParamInterface<int>
{
protected:
	void SetUp() override
	{
		AnimalTest::SetUp();
		WallIn(40);
		tree = new CTree(350, 300, TREE_GREEN, 0, 0);
	}
	CElementTreeClimber* InCrown() const
	{
		if (GetParam() == SPECIES_KOALA)
			return new CKoala(tree, true);
		if (GetParam() == SPECIES_RACCOON)
			return new CRaccoon(tree, true);
		return new CSquirrel(tree, true);
	}
	// On the ground with its middle right at the trunk's foot, about to look for a tree.
	CElementTreeClimber* AtTrunk(float dx) const
	{
		CElementTreeClimber* climber =
		    static_cast<CElementTreeClimber*>(NewAnimal(GetParam(), 100, 400, true));
		PutAtTrunk(climber, dx);
		return climber;
	}
	void PutAtTrunk(CElementTreeClimber* climber, float dx) const
	{
		climber->currentAction = ActionNamed(climber, "look");
		climber->AdvanceBehaviour();
		climber->Place();
		const CSprite* looking = climber->currentSprite;
		int trunkX             = tree->trunk->X() + tree->trunk->Width() / 2;
		climber->x += static_cast<float>(trunkX - looking->X() - looking->Width() / 2) + dx;
		climber->y += static_cast<float>(tree->TrunkBaseY() - looking->Y() - looking->Height() / 2);
		climber->SyncBody();
		climber->Place();
	}
	static bool Climbs(const CElementAnimal* animal)
	{
		return animal->currentAction->kind == ACTION_CLIMB;
	}
	CTree* tree = nullptr;
};

TEST_P(TreeSpeciesTest, OfTwoAtOneTrunkTheFirstClimbsAndTheOtherWalksOn)
{
	CElementTreeClimber* first  = AtTrunk(-2);
	CElementTreeClimber* second = AtTrunk(2);
	Run(2);
	ASSERT_EQ(first, tree->climber);
	EXPECT_TRUE(Climbs(first));
	EXPECT_EQ(nullptr, second->currentTree);
	for (int i = 0; i < 400 && !first->inTree; i++)
		Run();
	ASSERT_TRUE(first->inTree);
	EXPECT_FLOAT_EQ(static_cast<float>(tree->CrownZ() + 10), first->z);
	EXPECT_EQ(nullptr, first->firstPoint);
	for (int i = 0; i < 1500; i++) {
		Run();
		ASSERT_FALSE(Climbs(second)) << "the tree is taken";
		ASSERT_FALSE(first->currentAction->kind == ACTION_WALK) << "up there it stays";
	}

	// The tree is free as soon as the first has let go, still in the air.
	first->ShakeOut();
	for (int i = 0; i < 60 && tree->climber; i++)
		Run();
	ASSERT_EQ(nullptr, tree->climber);
	EXPECT_GT(first->z, 0);
	PutAtTrunk(second, 0);
	Run(2);
	EXPECT_EQ(second, tree->climber);
}

TEST_P(TreeSpeciesTest, ShakenOutItFallsOnceAndIsCaughtOnlyOnTheGround)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	CElementTreeClimber* climber = InCrown();
	EXPECT_EQ(climber, tree->climber);
	EXPECT_EQ(nullptr, climber->firstPoint);
	SetBallStage(climber->requiredStage);
	climber->ShakeOut();
	float z = climber->z;
	for (int i = 0; i < 300 && climber->z > 0; i++) {
		EXPECT_FALSE(climber->OnBallHit()) << "in the air the ball passes it";
		Run();
		climber->ShakeOut();
		ASSERT_LE(climber->z, z + 0.5f) << "a second shake does not begin the fall anew";
		z = climber->z;
	}
	EXPECT_EQ(0, climber->z);
	for (int i = 0; i < 200 && climber->currentAction != climber->idleAction; i++)
		Run();
	EXPECT_NE(nullptr, climber->firstPoint);
	EXPECT_TRUE(climber->moving) << "it has to walk before it climbs again";
	EXPECT_TRUE(climber->OnBallHit());
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(GetParam()));
}

TEST_P(TreeSpeciesTest, ItsLandingHasThePictureOfTheThud)
{
	CElementTreeClimber* climber = InCrown();
	const CSprite* landing       = ActionNamed(climber, "land:fall")->spriteLeft;
	EXPECT_GE(landing->FrameCount() - 1, climber->thudFromEnd);
}

INSTANTIATE_TEST_SUITE_P(Three, TreeSpeciesTest,
                         testing::Values(SPECIES_KOALA, SPECIES_RACCOON, SPECIES_SQUIRREL),
                         [](const testing::TestParamInfo<int>& info) {
	                         return std::string(SpeciesPrefix(info.param));
                         });
