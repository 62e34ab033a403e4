// The grid must give what a walk over the list gives, in the same order.
#include "field/obstacle_grid.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "frame/random.h"
#include "support/field_test.h"

class CPost : public CElementNoMove
{
public:
	void Place() override {}
	void Update() override {}
	const char* ClassName() const override { return "CPost"; }
};

class ObstacleGridTest : public FieldTest
{
protected:
	static const int OWNERS = 12;

	// Lines, loose points and points beyond all edges, then removals, re-entries and moves.
	void MakeRandomField(unsigned int seed)
	{
		SeedRandom(seed);
		for (CPost*& owner : owners)
			owner = new CPost();
		for (int i = 0; i < 25; i++)
			LayLine(owners[Rand() % OWNERS]);
		for (int i = 0; i < 120; i++)
			LayPoint(owners[Rand() % OWNERS]);
		RemoveObstaclePoints(owners[Rand() % OWNERS]);
		RemoveObstaclePoints(owners[Rand() % OWNERS]);
		LayLine(owners[0]);
		for (ObstaclePoint* point : CElement::ObstaclePointList) {
			if (Rand() % 3 == 0)
				MoveSomewhere(point);
		}
	}

	void RemoveRandomField()
	{
		for (CPost* owner : owners)
			RemoveObstaclePoints(owner);
	}

	static void LayLine(CElement* owner)
	{
		float x1 = RandomRange(-50, 740), y1 = RandomRange(-50, 650);
		float x2 = RandomRange(-50, 740), y2 = RandomRange(-50, 650);
		AddObstaclePoint(owner, x1, y1);
		AddObstacleLine(owner, x1, y1, x2, y2);
	}

	static void LayPoint(CElement* owner)
	{
		float x = RandomRange(-900, 1600), y = RandomRange(-900, 1600);
		AddObstaclePoint(owner, x, y);
	}

	static void MoveSomewhere(ObstaclePoint* point)
	{
		float x = RandomRange(-100, 793), y = RandomRange(-100, 700);
		MoveObstacle(point, x, y);
	}

	static std::vector<ObstaclePoint*> WalkNear(float x, float y, float radius)
	{
		std::vector<ObstaclePoint*> found;
		for (ObstaclePoint* point : CElement::ObstaclePointList) {
			if (PointDistance(x, y, point->x, point->y) <= radius)
				found.push_back(point);
		}
		return found;
	}

	CPost* owners[OWNERS];
};

TEST_F(ObstacleGridTest, NearEqualsTheWalkOverTheList)
{
	std::vector<ObstaclePoint*> found;
	size_t total = 0;
	for (unsigned int seed = 1; seed <= 40; seed++) {
		MakeRandomField(seed);
		for (int i = 0; i < 100; i++) {
			float x = RandomRange(-300, 1000), y = RandomRange(-300, 900);
			float radius = RandomRange(0, i % 10 == 0 ? 900.0f : 60.0f);
			g_obstacleGrid.Near(x, y, radius, found);
			ASSERT_EQ(WalkNear(x, y, radius), found) << "seed " << seed << " at " << x << " " << y;
			ASSERT_EQ(!found.empty(), g_obstacleGrid.AnyNear(x, y, radius));
			total += found.size();
		}
		ClearField();
	}
	EXPECT_GT(total, 10000u) << "the fields must not be so thin that nothing is compared";
}

TEST_F(ObstacleGridTest, PointRightAtTheRadiusIsFoundAcrossACellEdge)
{
	CPost* owner = new CPost();
	for (int i = 0; i < 64; i++)
		AddObstaclePoint(owner, static_cast<float>(i), 300);
	std::vector<ObstaclePoint*> found;
	for (int i = 0; i < 64; i++) {
		float x = static_cast<float>(i);
		g_obstacleGrid.Near(x, 300, 16, found);
		ASSERT_EQ(WalkNear(x, 300, 16), found) << i;
	}
}

// The candidates of the ball's pass: two nested walks over the whole list, walls first.
static std::vector<BallPhysics::Segment> WalkSegments(float x, float y, float reach)
{
	std::vector<BallPhysics::Segment> segments;
	if (x - reach <= 0)
		segments.push_back({0, 0, nullptr, 0, 600, nullptr});
	else if (x + reach >= 693)
		segments.push_back({693, 0, nullptr, 693, 600, nullptr});
	const std::vector<ObstaclePoint*>& list = CElement::ObstaclePointList;
	for (const ObstaclePoint* p : list) {
		if (PointDistance(x, y, p->x, p->y) > reach + 12)
			continue;
		for (const ObstaclePoint* q : list) {
			if ((q->x != p->x || q->y != p->y) && PointDistance(p->x, p->y, q->x, q->y) <= 12)
				segments.push_back({p->x, p->y, p->owner, q->x, q->y, q->owner});
		}
	}
	return segments;
}

static bool Same(const BallPhysics::Segment& a, const BallPhysics::Segment& b)
{
	return a.x1 == b.x1 && a.y1 == b.y1 && a.owner1 == b.owner1 && a.x2 == b.x2 && a.y2 == b.y2 &&
	       a.owner2 == b.owner2;
}

TEST_F(ObstacleGridTest, SegmentsOfAPassEqualTheWalkOverTheList)
{
	size_t total = 0;
	MakeBallAndPaddle();
	for (unsigned int seed = 1; seed <= 30; seed++) {
		MakeRandomField(seed);
		for (int i = 0; i < 30; i++) {
			PutBall(RandomRange(0, 693), 0, 0, 0);
			ball->y     = RandomRange(0, 600);
			float reach = RandomRange(10, 90);
			physics->CollectSegments(reach);
			std::vector<BallPhysics::Segment> walk = WalkSegments(ball->x, ball->y, reach);
			ASSERT_EQ(walk.size(), physics->segments.size()) << "seed " << seed;
			for (size_t k = 0; k < walk.size(); k++)
				ASSERT_TRUE(Same(walk[k], physics->segments[k])) << "seed " << seed << " " << k;
			total += walk.size();
		}
		RemoveRandomField();
	}
	EXPECT_GT(total, 1000u);
}

// The quick rejection of candidates must never reject one that is met.
TEST_F(ObstacleGridTest, NearestContactEqualsTheTestOfEveryCandidate)
{
	int contacts = 0;
	MakeBallAndPaddle();
	for (unsigned int seed = 1; seed <= 40; seed++) {
		MakeRandomField(seed);
		for (int i = 0; i < 60; i++) {
			PutBall(RandomRange(0, 693), 0, 0, 0);
			ball->y              = RandomRange(0, 600);
			physics->remainingDx = RandomRange(-30, 30);
			physics->remainingDy = i % 7 == 0 ? 0 : RandomRange(-30, 30);
			float remaining      = PointDistance(physics->remainingDx, physics->remainingDy, 0, 0);
			float r              = RandomRange(13, 50);
			physics->CollectSegments(remaining + r);

			BallPhysics::Contact best, each;
			for (const BallPhysics::Segment& segment : physics->segments) {
				if (physics->MeetsSegment(segment, r, remaining, each) &&
				    each.distance >= 0.0095f && (!best.segment || each.distance < best.distance))
					best = each;
			}
			BallPhysics::Contact found = physics->NearestContact(r, remaining);
			ASSERT_EQ(best.segment, found.segment) << "seed " << seed << " turn " << i;
			ASSERT_EQ(best.distance, found.distance);
			contacts += found.segment != nullptr;
		}
		RemoveRandomField();
	}
	EXPECT_GT(contacts, 300);
}
