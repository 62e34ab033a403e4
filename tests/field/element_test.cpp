// The life cycle of elements, the outline's points and lines, touch circles, the field tick.
#include "field/element.h"

#include "support/field_test.h"

#include <cmath>

// Counts what the field does to it.
class CProbe : public CElementNoMove
{
public:
	void Place() override {}
	void Update() override
	{
		updates++;
		if (makesAnother)
			made = new CProbe();
		makesAnother = false;
	}
	const char* ClassName() const override { return "CProbe"; }

	int updates       = 0;
	bool makesAnother = false;
	CProbe* made      = nullptr;
};

class ElementTest : public FieldTest
{
protected:
	std::vector<CElement*> Owners()
	{
		std::vector<CElement*> owners;
		for (const ObstaclePoint* point : CElement::ObstaclePointList)
			owners.push_back(point->owner);
		return owners;
	}
};

TEST_F(ElementTest, BaseAnswersAreHarmless)
{
	CProbe* probe = new CProbe();
	EXPECT_FALSE(probe->OnBallHit()) << "false: the ball reflects";
	EXPECT_EQ(-1, probe->OnBump());
	probe->OnStun(30);
	probe->Break(true, 1, 2);
	EXPECT_TRUE(probe->active);
	EXPECT_FALSE(probe->dead || probe->shotProof || probe->shootable);
}

TEST_F(ElementTest, TickUpdatesAllAndLeavesNewOnesForTheNextFrame)
{
	CProbe* first       = new CProbe();
	CProbe* dead        = new CProbe();
	dead->dead          = true;
	first->makesAnother = true;
	Tick();
	ASSERT_NE(nullptr, first->made);
	EXPECT_EQ(3u, CElement::ElementList.size()) << "a new element is in the list at once";
	EXPECT_EQ(1, first->updates);
	EXPECT_EQ(1, dead->updates) << "dead elements decide for themselves to do nothing";
	EXPECT_EQ(0, first->made->updates);
	EXPECT_EQ(1, CElement::FrameCounter);
	Tick();
	EXPECT_EQ(1, first->made->updates);
}

TEST_F(ElementTest, RepeatedHitInOneFrameIsZeroFramesAgo)
{
	CProbe* probe = new CProbe();
	Tick(5);
	EXPECT_EQ(5, probe->FramesSinceLastHit());
	EXPECT_EQ(0, probe->FramesSinceLastHit());
	Tick(2);
	EXPECT_EQ(2, probe->FramesSinceLastHit());
}

TEST_F(ElementTest, LineEndsOnItsCornerWithNoGapWiderThanTheJoiningRule)
{
	CProbe* probe = new CProbe();
	struct {
		float x2, y2;
		size_t points;
	} lines[] = {{100, 50, 1}, {111, 50, 2}, {111.1f, 50, 3}, {100, 150, 11}, {130, 90, 6}};
	for (const auto& line : lines) {
		RemoveObstaclePoints(probe);
		AddObstacleLine(probe, 100, 50, line.x2, line.y2);
		ASSERT_EQ(line.points, CElement::ObstaclePointList.size());
		float x = 100, y = 50;
		for (const ObstaclePoint* point : CElement::ObstaclePointList) {
			float gap = std::hypot(point->x - x, point->y - y);
			EXPECT_LE(gap, 11.0001f);
			EXPECT_TRUE(gap > 0 || line.points == 1) << "the start itself is not laid";
			x = point->x;
			y = point->y;
		}
		EXPECT_FLOAT_EQ(line.x2, x);
		EXPECT_FLOAT_EQ(line.y2, y);
	}
}

TEST_F(ElementTest, RemovingOneOwnerKeepsTheOthersInOrder)
{
	CProbe *a = new CProbe(), *b = new CProbe(), *c = new CProbe();
	CProbe* pattern[] = {a, b, a, c, b, b, c, a};
	for (int i = 0; i < 8; i++)
		AddObstaclePoint(pattern[i], static_cast<float>(i), 10);
	ObstaclePoint own{500, 20, b};
	AddObstacleRecord(&own);

	RemoveObstaclePoints(b);
	EXPECT_EQ((std::vector<CElement*>{a, a, c, c, a}), Owners());
	EXPECT_EQ(-1, own.cell);
	RemoveObstaclePoints(b); // has none left
	AddObstacleRecord(&own);
	EXPECT_EQ((std::vector<CElement*>{a, a, c, c, a, b}), Owners()) << "goes to the end";
	unsigned int order = 0;
	for (const ObstaclePoint* point : CElement::ObstaclePointList) {
		EXPECT_GT(point->order, order);
		order = point->order;
	}
	RemoveObstaclePoints(b);
}

TEST_F(ElementTest, RemovedPointStaysReadableUntilTheFieldIsCleared)
{
	CProbe* probe              = new CProbe();
	const ObstaclePoint* point = AddObstaclePoint(probe, 12, 34);
	RemoveObstaclePoints(probe);
	EXPECT_TRUE(CElement::ObstaclePointList.empty());
	EXPECT_FLOAT_EQ(12, point->x);
	EXPECT_EQ(probe, point->owner);
}

TEST_F(ElementTest, DeletedElementTakesItsPointsAndCirclesAlong)
{
	CProbe *stays = new CProbe(), *goes = new CProbe();
	AddObstaclePoint(stays, 1, 1);
	AddObstacleLine(goes, 0, 0, 100, 0);
	AddTouchCircle(goes, 5, 5, 5);
	AddTouchCircle(stays, 6, 6, 5);
	RemoveFromElementList(goes);
	delete goes;
	EXPECT_EQ(std::vector<CElement*>{stays}, Owners());
	ASSERT_EQ(1u, CElement::TouchCircleList.size());
	EXPECT_EQ(stays, CElement::TouchCircleList[0]->owner);
	EXPECT_EQ(std::vector<CElement*>{stays}, CElement::ElementList);
}

TEST_F(ElementTest, ClearFieldLeavesNothing)
{
	CProbe apart; // was taken out of the list, but keeps its points
	RemoveFromElementList(&apart);
	AddObstaclePoint(&apart, 300, 300);
	CProbe* probe = new CProbe();
	AddObstacleLine(probe, 0, 0, 600, 0);
	ClearField();
	EXPECT_TRUE(CElement::ElementList.empty());
	EXPECT_TRUE(CElement::ObstaclePointList.empty());
	EXPECT_FALSE(AnyObstacleNear(300, 300, 50)) << "the search must be empty, too";
	EXPECT_EQ(nullptr, apart.firstPoint);
}

TEST_F(ElementTest, NearIncludesTheRadiusItself)
{
	CProbe* probe = new CProbe();
	AddObstaclePoint(probe, 103, 204);
	EXPECT_TRUE(AnyObstacleNear(100, 200, 5));
	EXPECT_FALSE(AnyObstacleNear(100, 200, 4.99f));
}

TEST_F(ElementTest, TouchCirclesGoByOwner)
{
	CProbe *a = new CProbe(), *b = new CProbe();
	AddTouchCircle(a, 1, 1, 1);
	AddTouchCircle(b, 2, 2, 2);
	AddTouchCircle(a, 3, 3, 3);
	RemoveTouchCircles(a);
	ASSERT_EQ(1u, CElement::TouchCircleList.size());
	EXPECT_FLOAT_EQ(2, CElement::TouchCircleList[0]->radius);
	RemoveTouchCircles(a);
	EXPECT_EQ(1u, CElement::TouchCircleList.size());
}
