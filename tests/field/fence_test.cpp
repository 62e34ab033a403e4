// Fence sections and posts: geometry of chains, damage, wear.
#include "field/fence.h"

#include "field/ball.h"
#include "field/fence_post.h"
#include "field/sidebar.h"
#include "level/parts.h"
#include "media/sprite.h"
#include "support/field_test.h"

#include <cmath>
#include <string>

class FenceTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
		SetBallStage(0);
	}

	static bool Hit(CElement* element)
	{
		CElement::FrameCounter += 10;
		return element->OnBallHit();
	}

	static int CountPoints(const CElement* element)
	{
		int count = 0;
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			count += point->owner == element;
		return count;
	}
};

TEST_F(FenceTest, EachStyleReachesItsFarPost)
{
	static const struct {
		int direction, style, dx, dy;
	} CASES[] = {
	    {FENCE_RIGHT, 0, 51, 0},   {FENCE_LEFT, 0, -51, 0},   {FENCE_RIGHT, 1, 33, 21},
	    {FENCE_LEFT, 1, -33, -21}, {FENCE_RIGHT, 2, 33, -21}, {FENCE_LEFT, 2, -33, 21},
	};
	for (const auto& row : CASES) {
		SCOPED_TRACE(row.direction * 10 + row.style);
		CFencePost* start = new CFencePost(300, 200);
		CFence* fence     = new CFence(start, row.direction, row.style, true);
		CFencePost* far   = fence->FarPost(row.direction);
		ASSERT_NE(nullptr, far);
		EXPECT_EQ(300 + row.dx, far->x);
		EXPECT_EQ(200 + row.dy, far->y);
		EXPECT_EQ(start, fence->FarPost(1 - row.direction));
		EXPECT_EQ(1u, start->sections.size());
		EXPECT_EQ(1u, far->sections.size());
	}
}

// A ball must not slip between the rails of neighbouring sections.
TEST_F(FenceTest, RailsOfAChainHoldTogether)
{
	FenceChain(100, 200, {{FENCE_RIGHT, 0}, {FENCE_RIGHT, 1}, {FENCE_RIGHT, 2}, {FENCE_RIGHT, 0}});
	for (const ObstaclePoint* point : CElement::ObstaclePointList) {
		if (point->owner->ClassName() != std::string("CFence"))
			continue;
		bool toTheRight = point->x >= 270; // the chain's end
		for (const ObstaclePoint* other : CElement::ObstaclePointList) {
			float distance = std::hypot(other->x - point->x, other->y - point->y);
			toTheRight = toTheRight || (other->x > point->x && distance <= CElement::JOIN_DISTANCE);
		}
		EXPECT_TRUE(toTheRight) << point->x << ", " << point->y;
	}
}

TEST_F(FenceTest, TakesDamageAsACrateDoes)
{
	CFence* fence = FenceChain(300, 200, {{FENCE_RIGHT, 0}});
	EXPECT_GT(CountPoints(fence), 0);
	EXPECT_FALSE(Hit(fence));
	EXPECT_EQ(fence->light, fence->currentSprite);
	EXPECT_FALSE(Hit(fence));
	EXPECT_EQ(fence->heavy, fence->currentSprite);
	EXPECT_FALSE(Hit(fence));
	EXPECT_TRUE(fence->broken);
	EXPECT_EQ(3, fence->hits);
	EXPECT_EQ(0, CountPoints(fence));
	EXPECT_EQ(15, g_play.levelScore);

	SetBallStage(6);
	CFence* second = FenceChain(300, 300, {{FENCE_RIGHT, 0}});
	Hit(second);
	EXPECT_EQ(2, second->hits);
	ball->SetSkinBulldozer();
	EXPECT_TRUE(Hit(second));
	EXPECT_TRUE(second->broken);
}

TEST_F(FenceTest, PostLooksAsWornAsItsBestSection)
{
	CFence* last     = FenceChain(100, 200, {{FENCE_RIGHT, 0}, {FENCE_RIGHT, 0}});
	CFence* first    = CFence::FenceList[0];
	CFencePost* post = last->leftPost;
	ASSERT_EQ(first->rightPost, post);
	Hit(first);
	Tick();
	EXPECT_EQ(0, post->state);
	EXPECT_FALSE(post->base->IsHidden());
	EXPECT_EQ(1, first->leftPost->state) << "its only section is damaged";
	EXPECT_FALSE(first->leftPost->light->IsHidden());

	Hit(last);
	Tick();
	EXPECT_EQ(1, post->state);
	EXPECT_FALSE(post->light->IsHidden());
	first->BreakDown(false);
	Tick();
	EXPECT_EQ(1, post->state) << "one section still holds";
	last->BreakDown(false);
	Tick();
	EXPECT_EQ(3, post->state);
	for (CSprite* sprite : {post->base, post->light, post->heavy})
		EXPECT_TRUE(sprite->IsHidden());
}

TEST_F(FenceTest, BlastReachesTwoPixelsBeyondTheRails)
{
	CFence* fence = FenceChain(300, 200, {{FENCE_RIGHT, 0}});
	int half      = fence->base->Width() / 2;
	int middle    = fence->base->X() + half;
	fence->OnBlast(middle + half + 2 + 5 + 1, 5);
	EXPECT_FALSE(fence->broken);
	fence->OnBlast(middle + half + 2 + 5, 5);
	EXPECT_TRUE(fence->broken);
}

TEST_F(FenceTest, BirdsFindFreeSections)
{
	FenceChain(300, 200, {{FENCE_RIGHT, 0}, {FENCE_RIGHT, 0}});
	EXPECT_EQ(2, CFence::CountStanding(30, true));
	CFence* second = CFence::NthFree(1, 30);
	ASSERT_EQ(CFence::FenceList[1], second);
	second->BreakDown(true);
	EXPECT_EQ(1, CFence::CountStanding(30, true));
	EXPECT_EQ(0, g_play.levelScore) << "a shot section scores nothing";
}
