// The words of level routines: what they make.
#include "level/parts.h"

#include "animals/species_numbers.h"
#include "animals/stampede.h"
#include "support/field_test.h"

class PartsTest : public FieldTest
{
};

TEST_F(PartsTest, CrateWordsFillTheRightArguments)
{
	CCrate* plain  = Crate(300, 300);
	CCrate* prize  = PrizeCrate(300, 300, POWERUP_LIFE, 1);
	CCrate* barrel = PrizeBarrel(300, 300, POWERUP_MONEY);
	CCrate* order  = OrderCrate(300, 300, POWERUP_RAIN, 3);
	CCrate* coins  = CoinBarrel(300, 300);
	CCrate* apples = AppleCrate(300, 300, 2);

	EXPECT_EQ(0, plain->contents);
	EXPECT_FALSE(plain->containsPowerup);
	EXPECT_TRUE(prize->containsPowerup);
	EXPECT_EQ(POWERUP_LIFE, prize->contents);
	EXPECT_EQ(1, prize->layer);
	EXPECT_TRUE(barrel->barrel);
	EXPECT_EQ(POWERUP_MONEY, barrel->contents);
	EXPECT_EQ(3, order->orderNumber);
	EXPECT_EQ(POINT_COIN, coins->contents);
	EXPECT_FALSE(coins->containsPowerup);
	EXPECT_GT(coins->value, 0);
	EXPECT_TRUE(apples->appleCrate);
	EXPECT_EQ(2, apples->layer);
	EXPECT_EQ(POINT_COIN, Coin(100, 200)->kind);
}

static int CountPosts()
{
	int posts = 0;
	for (const CElement* element : CElement::ElementList)
		posts += dynamic_cast<const CFencePost*>(element) != nullptr;
	return posts;
}

TEST_F(PartsTest, ChainBuildsAPostMoreThanSections)
{
	CFence* last = FenceChain(100, 200, {{FENCE_RIGHT, LEVEL_RAILS}, {FENCE_RIGHT, FALLING_RAILS}});
	EXPECT_EQ(2u, CFence::FenceList.size());
	EXPECT_EQ(3, CountPosts());
	EXPECT_EQ(184, last->FarPost(FENCE_RIGHT)->x);
	EXPECT_EQ(221, last->FarPost(FENCE_RIGHT)->y);
}

// clang-format off
static const std::initializer_list<FenceStep> MEADOW_RING = {
	{FENCE_RIGHT, 0}, {FENCE_RIGHT, 1}, {FENCE_RIGHT, 1}, {FENCE_LEFT, 2},  {FENCE_LEFT, 0},
	{FENCE_LEFT, 2},  {FENCE_LEFT, 0},  {FENCE_LEFT, 0},  {FENCE_LEFT, 1},  {FENCE_LEFT, 1},
	{FENCE_RIGHT, 2}, {FENCE_RIGHT, 0}, {FENCE_RIGHT, 2}, {FENCE_RIGHT, 0},
};
// clang-format on

TEST_F(PartsTest, RingOfTheFirstMeadowEndsExactlyOnItsFirstPost)
{
	CFence* last = FenceChain(166, 345, MEADOW_RING);
	EXPECT_EQ(166, last->FarPost(FENCE_RIGHT)->x);
	EXPECT_EQ(345, last->FarPost(FENCE_RIGHT)->y);
}

TEST_F(PartsTest, RingHasAPostForEachSectionAndEveryPostHoldsTwo)
{
	CFence* last = FenceRing(166, 345, MEADOW_RING);
	EXPECT_EQ(14u, CFence::FenceList.size());
	EXPECT_EQ(14, CountPosts());
	EXPECT_EQ(CFence::FenceList[0]->leftPost, last->rightPost);
	for (const CFence* fence : CFence::FenceList) {
		ASSERT_NE(nullptr, fence->leftPost);
		ASSERT_NE(nullptr, fence->rightPost);
		EXPECT_EQ(2u, fence->leftPost->sections.size());
	}
}

TEST_F(PartsTest, AHerdIsMadeInTheOrderOfItsList)
{
	Herd(SPECIES_SHEEP, {{690, 300, -2.8f}, {720, 250, -2.4f}, {730, 370, -2.3f}});
	ASSERT_EQ(3u, CElementStampede::StampedeList.size());
	EXPECT_EQ(SPECIES_SHEEP, CElementStampede::stampedeSpecies);
	const CElementStampede* second = CElementStampede::StampedeList[1];
	EXPECT_EQ(-2.4f, second->speedX);
	EXPECT_NEAR(720, second->CentreX(), 0.5);
	EXPECT_NEAR(250, second->CentreY(), 0.5);
}
