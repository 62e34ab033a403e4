// Trees: foot, fruit, power-ups, shaking, and what climbers ask of them.
#include "support/field_test.h"

#include "animals/tree_climber.h"
#include "field/element_point.h"
#include "field/powerup.h"
#include "field/tree.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <cmath>

class TreeTest : public FieldTest
{
protected:
	// Three frames later, so that it counts.
	static void Hit(CTree* tree)
	{
		CElement::FrameCounter += 3;
		tree->OnBallHit();
	}
	static size_t PointsOf(const CElement* owner)
	{
		size_t count = 0;
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			count += point->owner == owner;
		return count;
	}
	static bool AllAtHome(const CTree* tree, const std::vector<float>& home)
	{
		for (int i = 0; i < tree->foliageCount; i++)
			if (tree->foliage[i].x != home[static_cast<size_t>(2 * i)] ||
			    tree->foliage[i].y != home[static_cast<size_t>(2 * i + 1)])
				return false;
		return true;
	}
	static std::vector<float> Places(const CTree* tree)
	{
		std::vector<float> places;
		for (int i = 0; i < tree->foliageCount; i++)
			places.insert(places.end(), {tree->foliage[i].x, tree->foliage[i].y});
		return places;
	}
};

TEST_F(TreeTest, EveryTreeStandsOnItsPlace)
{
	struct {
		int kind, size, variant, shiftX, shiftY, foliage;
	} rows[] = {
	    {TREE_PALM, 0, 0, 16, 188, 12},  {TREE_PALM, 0, 1, 68, 175, 14},
	    {TREE_PALM, 0, 2, 26, 182, 13},  {TREE_PALM, 0, 3, 16, 164, 14},
	    {TREE_PALM, 0, 4, 17, 155, 12},  {TREE_PALM, 0, 5, 33, 147, 11},
	    {TREE_PALM, 0, 6, 15, 125, 11},  {TREE_PINE, 2, 0, 10, 46, 5},
	    {TREE_PINE, 3, 1, 8, 35, 5},     {TREE_PINE, 0, 0, 6, 26, 5},
	    {TREE_PINE, 1, 1, 5, 21, 5},     {TREE_GREEN, 2, 0, 52, 95, 16},
	    {TREE_ORANGE, 2, 1, 66, 95, 16}, {TREE_RED, 2, 2, 70, 97, 16},
	    {TREE_RED, 1, 0, 13, 80, 8},     {TREE_GREEN, 1, 1, 13, 80, 8},
	    {TREE_ORANGE, 0, 0, 43, 68, 10}, {TREE_GREEN, 0, 1, 45, 69, 10},
	};
	for (const auto& row : rows) {
		SCOPED_TRACE(testing::Message() << row.kind << " " << row.size << " " << row.variant);
		CTree* tree = new CTree(300, 400, row.kind, row.size, row.variant);
		EXPECT_EQ(300 - row.shiftX, tree->trunk->X());
		EXPECT_EQ(400 - row.shiftY, tree->trunk->Y());
		EXPECT_EQ(400, tree->trunk->Depth());
		EXPECT_EQ(row.foliage, tree->foliageCount);
		EXPECT_TRUE(tree->isTree);
		EXPECT_GE(PointsOf(tree), 4u);
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			EXPECT_TRUE(std::fabs(point->x - 300) < 20 && std::fabs(point->y - 400) < 4)
			    << point->x << ", " << point->y;
		ClearField();
	}
}

TEST_F(TreeTest, CrownHidesTheLowerPartOfAClimber)
{
	for (int variant = 0; variant < 3; variant++) {
		CTree* tree          = new CTree(300, 300, TREE_GREEN, 2, variant);
		const CSprite* crown = tree->foliage[tree->crownIndex].sprite;
		EXPECT_EQ(variant == 0 ? 3 : variant == 1 ? 0 : 1, tree->crownIndex);
		EXPECT_EQ(303, crown->Depth());
		EXPECT_EQ(302, tree->CrownDepth());
		EXPECT_EQ(crown->X() + crown->Width() / 2, tree->CrownX());
		EXPECT_EQ(crown->Y() + 9, tree->TrunkBaseY() - tree->CrownZ());
		ClearField();
	}
	CTree* pine = new CTree(300, 300, TREE_PINE, 2, 0);
	EXPECT_EQ(pine->foliage[0].sprite->Y() + 15, pine->TrunkBaseY() - pine->CrownZ());
	for (int i = 1; i < pine->foliageCount; i++)
		EXPECT_GT(pine->foliage[i - 1].sprite->Depth(), pine->foliage[i].sprite->Depth());
}

TEST_F(TreeTest, TwoHitsWithinThreeFramesCountOnce)
{
	CTree* tree            = new CTree(300, 300, TREE_GREEN, 2, 0);
	CElement::FrameCounter = 10;
	EXPECT_FALSE(tree->OnBallHit()) << "the ball bounces";
	EXPECT_TRUE(g_gameData->notes.tree);
	int thrown = tree->fruitThrown;
	EXPECT_GE(thrown, 1);
	CElement::FrameCounter = 12;
	tree->OnBallHit();
	EXPECT_EQ(thrown, tree->fruitThrown);
	CElement::FrameCounter = 15;
	tree->OnBallHit();
	EXPECT_GT(tree->fruitThrown, thrown);
}

TEST_F(TreeTest, EachKindThrowsItsFruitNearTheCrown)
{
	struct {
		int kind, size, fruit, most;
	} rows[] = {{TREE_GREEN, 2, POINT_APPLE, 5},  {TREE_ORANGE, 0, POINT_ACORN, 3},
	            {TREE_RED, 1, POINT_ACORN, 3},    {TREE_PINE, 3, POINT_PINECONE, 4},
	            {TREE_PALM, 2, POINT_COCONUT, 2}, {TREE_PINE, 7, POINT_PINECONE, 1}};
	for (const auto& row : rows) {
		SCOPED_TRACE(testing::Message() << row.kind << " " << row.size);
		CTree* tree = new CTree(350, 350, row.kind, row.size, -1);
		for (int i = 0; i < 12; i++) {
			int before = tree->fruitThrown;
			Hit(tree);
			EXPECT_TRUE(tree->fruitThrown > before && tree->fruitThrown <= before + row.most);
		}
		EXPECT_EQ(static_cast<size_t>(tree->fruitThrown), CElementPoint::PointList.size());
		for (const CElementPoint* point : CElementPoint::PointList) {
			EXPECT_EQ(row.fruit, point->firstKind);
			EXPECT_LE(std::fabs(point->x - tree->CrownX()), 110);
			EXPECT_GT(point->z, 0);
			EXPECT_FLOAT_EQ(1, point->vy);
			EXPECT_LE(std::fabs(point->vx), row.kind == TREE_PALM ? 1 : 0.5f);
		}
		ClearField();
	}
}

TEST_F(TreeTest, DropsEndButShakingGoesOn)
{
	CTree* tree = new CTree(350, 300, TREE_GREEN, 2, 0);
	for (int i = 0; i < 600; i++)
		Hit(tree);
	EXPECT_EQ(5, tree->powerupsGiven);
	EXPECT_EQ(5u, CPowerup::PowerupList.size());
	EXPECT_TRUE(tree->fruitThrown >= 100 && tree->fruitThrown < 105) << tree->fruitThrown;
	EXPECT_TRUE(tree->shaking);
}

TEST_F(TreeTest, TreesThatGiveNoPowerups)
{
	CTree* front = new CTree(300, 620, TREE_GREEN, 0, 0);
	EXPECT_EQ(0u, PointsOf(front)) << "a picture in front of the field";
	EXPECT_TRUE(front->noDrops);
	EXPECT_TRUE((new CTree(20, 300, TREE_GREEN, 2, 0))->noDrops) << "partly out at the left";
	EXPECT_TRUE((new CTree(680, 300, TREE_GREEN, 2, 0))->noDrops);
	CTree* inside = new CTree(350, 300, TREE_GREEN, 2, 0);
	EXPECT_FALSE(inside->noDrops);
	CTree::SetBonusLevel();
	for (int i = 0; i < 100; i++)
		Hit(inside);
	EXPECT_EQ(0, inside->powerupsGiven);
}

TEST_F(TreeTest, ShakeComesHomeAgain)
{
	for (unsigned seed = 1; seed <= 20; seed++) {
		SeedRandom(seed);
		CTree* tree             = new CTree(350, 300, TREE_RED, 2, 1);
		std::vector<float> home = Places(tree);
		tree->Shake(1.2f, 0.9f);
		EXPECT_FALSE(AllAtHome(tree, home));
		int frames = 0;
		while (tree->shaking && frames < 60) {
			CTree::SwayStep();
			for (int i = 0; i < tree->foliageCount; i++)
				EXPECT_LE(std::hypot(tree->foliage[i].x - home[static_cast<size_t>(2 * i)],
				                     tree->foliage[i].y - home[static_cast<size_t>(2 * i + 1)]),
				          2.41f);
			frames++;
		}
		EXPECT_GE(frames, 4) << "one round at 1.2 radians a frame at most";
		EXPECT_LE(frames, 14);
		EXPECT_TRUE(AllAtHome(tree, home));
		ClearField();
	}
}

TEST_F(TreeTest, SecondShakeStartsFromHome)
{
	CTree* tree             = new CTree(350, 300, TREE_GREEN, 1, 0);
	std::vector<float> home = Places(tree);
	for (int i = 0; i < 30; i++) {
		tree->Shake(1.2f, 0.9f);
		CTree::SwayStep();
	}
	while (tree->shaking)
		CTree::SwayStep();
	EXPECT_TRUE(AllAtHome(tree, home)) << "no drift from shakes that were cut short";
}

TEST_F(TreeTest, NothingSwaysWithTheEffectsOff)
{
	CTree* tree = new CTree(350, 300, TREE_GREEN, 2, 0);
	g_gameData->SetEffectsOn(false);
	CTree::WindStep();
	Hit(tree);
	EXPECT_FALSE(tree->shaking);
	EXPECT_GT(tree->fruitThrown, 0) << "fruit falls all the same";
}

TEST_F(TreeTest, WindLeavesAShakingTreeAlone)
{
	CTree* tree = new CTree(350, 300, TREE_GREEN, 2, 0);
	CTree::WindStep();
	ASSERT_TRUE(tree->shaking);
	EXPECT_LE(std::fabs(tree->foliage[0].swing.step), 0.2f);
	float angle = tree->foliage[0].swing.angle;
	CTree::WindStep();
	EXPECT_EQ(angle, tree->foliage[0].swing.angle);
	CElement::FrameCounter = 9;
	CTree::BlastAll();
	EXPECT_NE(angle, tree->foliage[0].swing.angle);
	EXPECT_GT(tree->fruitThrown, 0);
}

namespace
{
class CTestClimber : public CElementTreeClimber
{
public:
	void Place() override {}
	void Update() override {}
	const char* ClassName() const override { return "CTestClimber"; }
	void ShakeOut() override { shaken++; }
	int shaken = 0;
};
} // namespace

TEST_F(TreeTest, HolderOfAClimberIsNotOfferedAgain)
{
	CTree* first  = new CTree(300, 300, TREE_GREEN, 2, 0);
	CTree* second = new CTree(300, 301, TREE_GREEN, 2, 0);
	float atX     = first->trunk->X() + first->trunk->Width() / 2;
	float atY     = first->TrunkBaseY();
	EXPECT_EQ(first, CTree::FreeTreeAt(atX, atY, 8, 8));
	CTestClimber* climber = new CTestClimber;
	first->SetClimber(climber);
	EXPECT_EQ(second, CTree::FreeTreeAt(atX, atY, 8, 8));
	Hit(first);
	EXPECT_EQ(1, climber->shaken);
	first->SetClimber(nullptr);
	Hit(first);
	EXPECT_EQ(1, climber->shaken);
	EXPECT_EQ(nullptr, CTree::FreeTreeAt(atX + 9, atY, 8, 8));
	EXPECT_EQ(nullptr, CTree::FreeTreeAt(atX, atY + 10, 8, 8));
}

TEST_F(TreeTest, PalmsAndTreesAtTheEdgeAreNotClimbed)
{
	struct {
		int x, y, kind, size;
		bool free;
	} rows[] = {{300, 300, TREE_GREEN, 0, true},
	            {300, 300, TREE_PALM, 0, false},
	            {28, 300, TREE_GREEN, 0, false},
	            {667, 300, TREE_GREEN, 0, false},
	            {300, 60, TREE_GREEN, 2, false}};
	for (const auto& row : rows) {
		CTree* tree = new CTree(row.x, row.y, row.kind, row.size, 0);
		float atX   = tree->trunk->X() + tree->trunk->Width() / 2;
		EXPECT_EQ(row.free, CTree::FreeTreeAt(atX, tree->TrunkBaseY(), 8, 8) == tree)
		    << row.x << ", " << row.y << " kind " << row.kind;
		ClearField();
		EXPECT_TRUE(CTree::TreeList.empty());
	}
}
