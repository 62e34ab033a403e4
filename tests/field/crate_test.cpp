// Crates and barrels: damage, stacks, contents, perches.
#include "field/crate.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/element_point.h"
#include "field/powerup.h"
#include "field/sidebar.h"
#include "level/parts.h"
#include "media/sprite.h"
#include "screens/game.h"
#include "support/field_test.h"

#include <algorithm>
#include <cmath>

class CrateTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
	}

	static bool Hit(CElement* element)
	{
		CElement::FrameCounter += 10;
		return element->OnBallHit();
	}

	static std::vector<ObstaclePoint*> PointsOf(const CElement* element)
	{
		std::vector<ObstaclePoint*> points;
		for (ObstaclePoint* point : CElement::ObstaclePointList) {
			if (point->owner == element)
				points.push_back(point);
		}
		return points;
	}

	static int PointsOnField(int kind)
	{
		return std::count_if(CElementPoint::PointList.begin(), CElementPoint::PointList.end(),
		                     [=](CElementPoint* point) { return point->firstKind == kind; });
	}
};

// Counts how often it was startled.
class CStartledAnimal : public CElementAnimal
{
public:
	void Place() override {}
	void Update() override {}
	void BeginFlight() override { flights++; }
	const char* ClassName() const override { return "CStartledAnimal"; }

	int flights = 0;
};

TEST_F(CrateTest, SizeOfBallDecidesHowManyHitsACrateTakes)
{
	static const struct {
		int stage, hits;
	} CASES[] = {{0, 3}, {5, 3}, {6, 2}, {11, 2}, {12, 1}, {18, 1}};
	for (const auto& row : CASES) {
		SCOPED_TRACE(row.stage);
		SetBallStage(row.stage);
		CCrate* crate = Crate(300, 300);
		for (int hit = 1; hit <= row.hits; hit++) {
			EXPECT_FALSE(crate->broken) << hit;
			EXPECT_FALSE(Hit(crate)) << "the ball always bounces off";
		}
		EXPECT_TRUE(crate->broken);
		EXPECT_EQ(3, crate->hits);
		EXPECT_TRUE(PointsOf(crate).empty());
		EXPECT_TRUE(crate->currentSprite->IsHidden());
		EXPECT_FALSE(crate->explosion->IsHidden());
	}
}

TEST_F(CrateTest, DamageShowsOnItsWayToBreaking)
{
	CCrate* crate = Crate(300, 300);
	Hit(crate);
	EXPECT_EQ(crate->light, crate->currentSprite);
	EXPECT_FALSE(crate->light->IsHidden());
	EXPECT_TRUE(crate->base->IsHidden());
	Hit(crate);
	EXPECT_EQ(crate->heavy, crate->currentSprite);

	SetBallStage(8);
	CCrate* other = Crate(400, 300);
	Hit(other);
	EXPECT_EQ(other->heavy, other->currentSprite) << "a medium ball skips the light damage";
	EXPECT_EQ(2, other->hits);
}

TEST_F(CrateTest, BulldozerGoesThroughAtOnce)
{
	ball->SetSkinBulldozer();
	CCrate* crate = Crate(300, 300);
	EXPECT_TRUE(Hit(crate));
	EXPECT_TRUE(crate->broken);
}

TEST_F(CrateTest, HitsCloserThanThreeFramesAreOne)
{
	CCrate* crate = Crate(300, 300);
	Hit(crate);
	CElement::FrameCounter += 2;
	crate->OnBallHit();
	EXPECT_EQ(1, crate->hits);
	CElement::FrameCounter += 3;
	crate->OnBallHit();
	EXPECT_EQ(2, crate->hits);
}

TEST_F(CrateTest, FootprintIsAClosedDiamondUnderTheLowestLayerOnly)
{
	CCrate* crate  = Crate(300, 200);
	CCrate* barrel = Barrel(400, 200);
	CCrate* upper  = Crate(300, 200, 1);
	EXPECT_TRUE(PointsOf(upper).empty());

	static const struct {
		int left, right, top, bottom;
	} BOXES[] = {{-22, 20, -7, 5}, {-14, 15, 6, 16}};
	int i     = 0;
	for (CCrate* foot : {crate, barrel}) {
		float left = 1000, right = 0, top = 1000, bottom = 0;
		std::vector<ObstaclePoint*> points = PointsOf(foot);
		for (size_t n = 0; n < points.size(); n++) {
			const ObstaclePoint *a = points[n], *b = points[(n + 1) % points.size()];
			EXPECT_LE(std::hypot(a->x - b->x, a->y - b->y), int(CElement::JOIN_DISTANCE));
			left   = std::min(left, a->x);
			right  = std::max(right, a->x);
			top    = std::min(top, a->y);
			bottom = std::max(bottom, a->y);
		}
		float centreX = foot == crate ? 300 : 400;
		EXPECT_FLOAT_EQ(centreX + BOXES[i].left, left);
		EXPECT_FLOAT_EQ(centreX + BOXES[i].right, right);
		EXPECT_FLOAT_EQ(200 + BOXES[i].top, top);
		EXPECT_FLOAT_EQ(200 + BOXES[i].bottom, bottom);
		i++;
	}
}

TEST_F(CrateTest, TowerOfThreeComesDownOneLayerAndLaysItsFootprintWhenItLands)
{
	CCrate* foot   = Crate(300, 200);
	CCrate* middle = Crate(300, 200, 1);
	CCrate* top    = Crate(300, 200, 2);
	StackCrate(foot, middle);
	StackCrate(middle, top);
	EXPECT_EQ(foot->currentSprite->Depth() + 2, top->currentSprite->Depth());

	SetBallStage(12);
	Hit(foot);
	EXPECT_TRUE(middle->falling);
	EXPECT_TRUE(top->falling);
	EXPECT_EQ(0, middle->layer);
	EXPECT_EQ(1, top->layer);
	EXPECT_TRUE(PointsOf(middle).empty()) << "it is still in the air";
	EXPECT_EQ(200 - 20 + 30, middle->currentSprite->Depth());
	EXPECT_EQ(middle->currentSprite->Depth() + 1, top->currentSprite->Depth());

	int frames = 0;
	while (middle->falling && frames < 60) {
		EXPECT_TRUE(PointsOf(middle).empty());
		Tick();
		frames++;
	}
	EXPECT_EQ(11, frames) << "26 pixels under half a pixel per frame and frame";
	EXPECT_FALSE(PointsOf(middle).empty());
	EXPECT_EQ(0, middle->z);
	EXPECT_EQ(middle->squash, middle->currentSprite);
	Tick(5);
	EXPECT_EQ(26, top->z);
	EXPECT_TRUE(PointsOf(top).empty());
	EXPECT_FALSE(top->broken);
}

TEST_F(CrateTest, SpillsAsManyOfItsKindAsItHolds)
{
	SetBallStage(12);
	Hit(new CCrate(300, 300, 0, POINT_COIN, 4, false, false, false, nullptr, 0));
	EXPECT_EQ(4, PointsOnField(POINT_COIN));
	Hit(FruitCrate(400, 300, POINT_ACORN, 5));
	EXPECT_EQ(5, PointsOnField(POINT_ACORN));
	for (const CElementPoint* point : CElementPoint::PointList) {
		EXPECT_GT(point->z, 3.9f) << "thrown up";
		EXPECT_GT(point->vz, 1.9f);
	}
	size_t before = CElementPoint::PointList.size();
	Hit(Crate(500, 300));
	EXPECT_EQ(before, CElementPoint::PointList.size());
	EXPECT_TRUE(CPowerup::PowerupList.empty());
}

TEST_F(CrateTest, PrizeComesDownFromItsMiddle)
{
	SetBallStage(12);
	CCrate* crate = PrizeCrate(300, 300, POWERUP_GRAVITY);
	Hit(crate);
	ASSERT_EQ(1u, CPowerup::PowerupList.size());
	EXPECT_EQ(POWERUP_GRAVITY, CPowerup::PowerupList[0]->kind);
	EXPECT_TRUE(CElementPoint::PointList.empty());
}

TEST_F(CrateTest, NumberBySkillStaysInItsRangeAndAppleCratesAlwaysAsk)
{
	for (int i = 0; i < 20; i++) {
		int coins = CoinCrate(300, 300)->value;
		EXPECT_GE(coins, 1);
		EXPECT_LE(coins, 5);
	}
	CCrate* apples = new CCrate(300, 300, 0, 0, 77, true, true, true, nullptr, 0);
	EXPECT_EQ(POINT_APPLE, apples->contents);
	EXPECT_LE(apples->value, 5);
	EXPECT_FALSE(apples->barrel);
	EXPECT_FALSE(apples->containsPowerup);
}

TEST_F(CrateTest, AnchorGivesThePlaceAsAnOffset)
{
	CCrate* anchor = Crate(300, 300);
	CCrate* near   = Crate(3, -2, 1, anchor);
	EXPECT_EQ(anchor->x + 3, near->x);
	EXPECT_EQ(anchor->y - 2, near->y);
	EXPECT_EQ(26, near->z);
	EXPECT_EQ(37, Barrel(0, 0, 1, anchor)->z);
}

TEST_F(CrateTest, BlastReachesWhatStandsOnTheGroundNearby)
{
	CCrate* foot   = Crate(300, 200);
	CCrate* upper  = Crate(300, 200, 1);
	CCrate* far    = Crate(400, 200);
	CCrate* middle = Crate(500, 200);
	StackCrate(foot, upper);
	int half = foot->base->Width() / 2;
	int edge = foot->base->X() + half + half + 5;
	CElementBreakable::BlastAll(edge, 5);
	EXPECT_TRUE(foot->broken);
	EXPECT_FALSE(upper->broken);
	EXPECT_FALSE(far->broken);

	upper->OnBlast(300, 5);
	EXPECT_FALSE(upper->broken) << "it is in the air";
	middle->OnBlast(middle->base->X() + half + half + 6, 5);
	EXPECT_FALSE(middle->broken);
}

TEST_F(CrateTest, OnlyThePlayersCratesScore)
{
	SetBallStage(12);
	Hit(Crate(300, 300));
	EXPECT_EQ(10, g_play.levelScore);
	CCrate* shot = Crate(400, 300);
	shot->Break(true, 0, 0);
	EXPECT_TRUE(shot->broken);
	EXPECT_EQ(10, g_play.levelScore);
	shot->Break(false, 0, 0);
	EXPECT_EQ(10, g_play.levelScore) << "it cannot break twice";
}

TEST_F(CrateTest, PerchIsFreeWithoutBirdOrUpperCrateAndWithRoomAtItsSides)
{
	CCrate* crate = Crate(300, 300);
	CCrate* edge  = Crate(40, 300);
	EXPECT_EQ(2, CCrate::CountStanding(20, true));
	EXPECT_EQ(1, CCrate::CountStanding(60, true)) << "too near to the wall";
	EXPECT_EQ(crate, CCrate::NthFree(0, 60));
	EXPECT_EQ(edge, CCrate::NthFree(1, 20));
	EXPECT_EQ(nullptr, CCrate::NthFree(2, 20));

	CStartledAnimal* bird = new CStartledAnimal();
	crate->occupant       = bird;
	EXPECT_EQ(1, CCrate::CountStanding(20, true));
	EXPECT_EQ(2, CCrate::CountStanding(20, false));
	EXPECT_EQ(crate->currentSprite->Depth() + 1, CCrate::OccupantDepth(bird));
	EXPECT_EQ(-1, CCrate::OccupantDepth(nullptr));

	StackCrate(edge, Crate(40, 300, 1));
	EXPECT_EQ(1, CCrate::CountStanding(20, true)) << "only the top of the stack";
	EXPECT_EQ(26, CCrate::NthFree(0, 20)->PerchPlace().z);
}

TEST_F(CrateTest, BirdFliesUpWhenItsCrateIsHitOrFalls)
{
	CStartledAnimal* bird = new CStartledAnimal();
	CCrate* crate         = Crate(300, 300);
	crate->occupant       = bird;
	Hit(crate);
	EXPECT_EQ(1, bird->flights);
	EXPECT_EQ(nullptr, crate->occupant);

	CCrate* upper = Crate(300, 300, 1);
	StackCrate(crate, upper);
	upper->occupant = bird;
	crate->BreakDown(false);
	EXPECT_EQ(2, bird->flights);
	EXPECT_EQ(nullptr, upper->occupant);
}

TEST_F(CrateTest, QueriesFindStandingCrates)
{
	CCrate* crate = CoinCrate(300, 300);
	int x         = crate->base->X() + crate->base->Width() / 2;
	int y         = crate->base->Y() + crate->base->Height() / 2;
	EXPECT_TRUE(CCrate::AnyAt(x + 10, y - 10, 10, 10));
	EXPECT_FALSE(CCrate::AnyAt(x + 11, y, 10, 10));
	EXPECT_TRUE(CCrate::AnyHoldsCoinsOrApples());
	crate->BreakDown(true);
	EXPECT_FALSE(CCrate::AnyAt(x, y, 10, 10));
	EXPECT_FALSE(CCrate::AnyHoldsCoinsOrApples());
}

// What is told to the level runner while it exists.
class CrateInLevelTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		game = std::make_unique<CControllerGame>(1);
	}

	void TearDown() override
	{
		game.reset();
		FieldTest::TearDown();
	}

	std::unique_ptr<CControllerGame> game;
};

TEST_F(CrateInLevelTest, OrderNumbersAreReportedAsTheyBreak)
{
	game->rules.isOrder   = true;
	game->rules.orderNext = 1;
	CCrate* second        = OrderCrate(300, 300, POWERUP_MONEY, 2);
	CCrate* first         = OrderCrate(400, 300, POWERUP_MONEY, 1);
	EXPECT_FALSE(second->orderSprite->IsHidden());
	second->BreakDown(false);
	first->BreakDown(false);
	EXPECT_TRUE(second->orderSprite->IsHidden());
	EXPECT_EQ(2, game->rules.orderRecord[0]);
	EXPECT_EQ(1, game->rules.orderRecord[1]);
	EXPECT_EQ(3, game->rules.orderNext);
}

TEST_F(CrateInLevelTest, ABirdIsUpsetOnceHoweverOftenItsPerchesAreHit)
{
	CStartledAnimal* bird = new CStartledAnimal();
	CCrate* crate         = Crate(300, 300);
	crate->occupant       = bird;
	crate->BreakDown(false);
	EXPECT_EQ(0, game->rules.dodgeHits) << "only dodgeball levels count";

	game->rules.isDodgeball = true;
	for (int i = 0; i < 2; i++) {
		CCrate* next   = Crate(300, 300);
		next->occupant = bird;
		next->BreakDown(false);
	}
	EXPECT_EQ(3, bird->flights);
	EXPECT_EQ(1, game->rules.dodgeHits);
}
