// The perching birds on their perches, with and without a free one to fly to.
#include "animals/perching_birds.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/fence_post.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <set>

// How a bird gets its two kinds of perch; a snowy owl is never put on a fence.
struct BirdMaker {
	const BirdPage* page;
	CElementAnimal* (*onCrate)(CCrate* crate, bool left);
	CElementAnimal* (*onFence)(CFence* fence, bool left);
};

#define PUT(className, placeName)                                                                  \
	[](placeName* place, bool left) -> CElementAnimal* { return new className(place, left); }

static const BirdMaker s_birds[] = {
    {&BLUEBIRD_PAGE, PUT(CBlueBird, CCrate), PUT(CBlueBird, CFence)},
    {&CROW_PAGE, PUT(CCrow, CCrate), PUT(CCrow, CFence)},
    {&OWL_PAGE, PUT(COwl, CCrate), PUT(COwl, CFence)},
    {&PIGEON_PAGE, PUT(CPigeon, CCrate), PUT(CPigeon, CFence)},
    {&SNOWY_OWL_PAGE, PUT(CSnowyOwl, CCrate), nullptr},
    {&VULTURE_PAGE, PUT(CVulture, CCrate), PUT(CVulture, CFence)},
};

// One test for each bird.
class PerchingBirdTest : public AnimalTest, public testing::WithParamInterface<BirdMaker>
{
protected:
	static CCrate* Crate(int x, int y)
	{
		return new CCrate(x, y, 0, 0, 0, false, false, false, nullptr, 0);
	}
	static void ExpectToSit(const CElementAnimal* bird, const Perch& perch,
	                        const PerchOffsets& offsets, bool left)
	{
		EXPECT_TRUE(bird->perched);
		EXPECT_EQ(nullptr, bird->firstPoint) << "out of the ball's reach";
		int width = bird->collisionSprite->Width(), height = bird->collisionSprite->Height();
		EXPECT_EQ(perch.x - width / 2 + (left ? offsets.left : offsets.right), bird->x);
		EXPECT_EQ(perch.y + offsets.y - height, bird->y);
		EXPECT_EQ(perch.z, bird->z);
	}
	void FlyOut(const CElementAnimal* bird)
	{
		for (int i = 0; i < 6000 && bird->flying; i++)
			Run();
		ASSERT_FALSE(bird->flying);
		Run();
	}
};

TEST_P(PerchingBirdTest, SitsByItsOwnOffsetsAndNeverWalksThere)
{
	for (bool left : {true, false}) {
		CCrate* crate        = Crate(300, 300);
		CElementAnimal* bird = GetParam().onCrate(crate, left);
		EXPECT_EQ(bird, crate->occupant);
		ExpectToSit(bird, crate->PerchPlace(), GetParam().page->onCrate, left);
		for (int i = 0; i < 1500; i++) {
			Run();
			ASSERT_NE(ACTION_WALK, bird->currentAction->kind);
		}
		if (GetParam().onFence) {
			CFence* fence = new CFence(new CFencePost(500, 300), FENCE_RIGHT, 0, true);
			bird          = GetParam().onFence(fence, left);
			EXPECT_EQ(bird, fence->occupant);
			ExpectToSit(bird, fence->PerchPlace(), GetParam().page->onFence, left);
		}
		ClearField();
	}
}

TEST_P(PerchingBirdTest, WithoutAFreePerchComesDownOnOpenGroundForGoodAndIsCaughtThere)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	WallIn();
	CCrate* crate        = Crate(300, 300);
	CElementAnimal* bird = GetParam().onCrate(crate, true);
	crate->BreakDown(true);
	EXPECT_TRUE(bird->flying);
	EXPECT_EQ(nullptr, crate->occupant);
	ASSERT_NO_FATAL_FAILURE(FlyOut(bird));
	EXPECT_FALSE(bird->perched);
	EXPECT_EQ(0, bird->z);
	EXPECT_NE(nullptr, bird->firstPoint);
	std::set<int> kinds;
	for (int i = 0; i < 4000; i++) {
		Run();
		ASSERT_FALSE(bird->flying);
		kinds.insert(bird->currentAction->kind);
	}
	EXPECT_EQ(FindRow(*bird->table, "walk") != nullptr, kinds.count(ACTION_WALK) > 0);
	EXPECT_EQ(1u, kinds.count(ACTION_LOOK));
	SetBallStage(bird->requiredStage);
	EXPECT_TRUE(bird->OnBallHit());
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(GetParam().page->species));
}

TEST_P(PerchingBirdTest, WithManyFreePerchesTwoNeverAimAtTheSame)
{
	std::vector<CCrate*> crates;
	for (int i = 0; i < 30; i++)
		crates.push_back(Crate(60 + 60 * (i % 10), 220 + 80 * (i / 10)));
	CElementAnimal* first  = GetParam().onCrate(crates[0], true);
	CElementAnimal* second = GetParam().onCrate(crates[1], false);
	int shared             = 0;
	for (int i = 0; i < 60; i++) {
		for (CCrate* crate : crates)
			crate->occupant = nullptr;
		first->ChooseLandingSpot();
		second->ChooseLandingSpot();
		bool both = !first->landsOnGround && !second->landsOnGround;
		shared += both;
		ASSERT_FALSE(both && first->landX == second->landX && first->landY == second->landY);
	}
	EXPECT_GT(shared, 0);
}

INSTANTIATE_TEST_SUITE_P(Six, PerchingBirdTest, testing::ValuesIn(s_birds),
                         [](const testing::TestParamInfo<BirdMaker>& info) {
	                         return std::string(info.param.page->table->prefix);
                         });
