// Hand-worked bounces, the order in which owners are asked, and many random fields.
#include "field/ball_physics.h"

#include "field/ball.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "state/game_data.h"
#include "support/field_test.h"

#include <cmath>

static std::vector<CElement*> s_asked; // owners, in the order in which they were asked

// Solid, open, or open for good, as a test needs it.
class CTarget : public CElementNoMove
{
public:
	void Place() override {}
	void Update() override {}
	bool OnBallHit() override
	{
		s_asked.push_back(this);
		hits++;
		RemoveTouchCircles(this);
		if (vanishes)
			RemoveObstaclePoints(this);
		return vanishes || lets;
	}
	const char* ClassName() const override { return "CTarget"; }

	int hits      = 0;
	bool vanishes = false; // takes its points away and lets the ball through
	bool lets     = false; // lets it through and keeps them
};

// The radius of the smallest ball, whose picture is 28 wide, is 15.
class BallPhysicsTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
		paddle->SetMouseX(-300); // out of the way
		ASSERT_FLOAT_EQ(15, ball->Radius());
		s_asked.clear();
	}

	static CTarget* Line(float x1, float y1, float x2, float y2)
	{
		CTarget* target = new CTarget();
		AddObstaclePoint(target, x1, y1);
		AddObstacleLine(target, x1, y1, x2, y2);
		return target;
	}

	void ExpectBall(float x, float y, float vx, float vy, float tolerance = 0.002f)
	{
		EXPECT_NEAR(x, ball->x, tolerance);
		EXPECT_NEAR(y, ball->y, tolerance);
		EXPECT_NEAR(vx, ball->vx, tolerance);
		EXPECT_NEAR(vy, ball->vy, tolerance);
	}
};

TEST(BallPhysicsAngles, HeadingsRunClockwiseFromUp)
{
	EXPECT_NEAR(0, std::sin(HeadingOf(0, -1)), 1e-4f) << "0 or just below the full turn";
	EXPECT_NEAR(HALF_PI_SHORT, HeadingOf(1, 0), 1e-5f);
	EXPECT_NEAR(PI_SHORT, HeadingOf(0, 1), 1e-5f);
	EXPECT_NEAR(THREE_HALVES_PI, HeadingOf(-1, 0), 1e-5f);
	EXPECT_NEAR(1, Wrap(1 + TWO_PI_SHORT), 1e-5f);
	EXPECT_NEAR(TWO_PI_SHORT - 1, Wrap(-1), 1e-5f);
	EXPECT_FLOAT_EQ(0, Wrap(TWO_PI_SHORT));
}

TEST(BallPhysicsAngles, SegmentMeetsCircleLargerRootFirst)
{
	Vec2 a{}, b{};
	ASSERT_EQ(2, LineCircleHits(-20, 0, 20, 0, 0, 0, 10, a, b));
	EXPECT_NEAR(10, a.x, 1e-4f);
	EXPECT_NEAR(-10, b.x, 1e-4f);
	ASSERT_EQ(1, LineCircleHits(-20, 0, 0, 0, 0, 0, 10, a, b)) << "ends inside the circle";
	EXPECT_NEAR(-10, a.x, 1e-4f) << "the second root alone comes first";
	EXPECT_EQ(1, LineCircleHits(-20, 10, 20, 10, 0, 0, 10, a, b)) << "a tangent";
	EXPECT_NEAR(0, a.x, 1e-4f);
	EXPECT_EQ(0, LineCircleHits(-20, 10.1f, 20, 10.1f, 0, 0, 10, a, b));
	EXPECT_EQ(0, LineCircleHits(11, 0, 20, 0, 0, 0, 10, a, b)) << "both roots lie before it";
	EXPECT_EQ(0, LineCircleHits(10, 0, 10, 0, 0, 0, 10, a, b)) << "no length, no crossing";
}

TEST_F(BallPhysicsTest, FreeBallMovesByItsVelocity)
{
	PutBall(300, 300, 3, -4);
	physics->Step();
	ExpectBall(303, 296, 3, -4);
	EXPECT_TRUE(s_asked.empty());
}

TEST_F(BallPhysicsTest, WallsReflectTheMotionLeftInTheFrame)
{
	PutBall(20, 300, -8, 0); // meets the wall after 5 pixels
	physics->Step();
	ExpectBall(18, 300, 8, 0);
	PutBall(20, 300, -6, 8); // half of ten: 5/6 of the way
	physics->Step();
	ExpectBall(16, 308, 6, 8);
	PutBall(673, 300, 8, 0);
	physics->Step();
	ExpectBall(675, 300, -8, 0);
}

TEST_F(BallPhysicsTest, WallRepairPutsTheBallBackAndTheWallThenReflectsIt)
{
	for (int i = 0; i < 2 * 19; i++) { // plain and with the thicker glass of a big ball
		int stage = i / 2;
		SetBallStage(stage);
		ball->big = i % 2;
		float r   = ball->Radius();
		PutBall(r - 3, 300, -5, 0); // head on: the smallest distance
		physics->Step();
		EXPECT_GE(ball->x, r) << stage;
		EXPECT_NEAR(5, ball->vx, 0.01f) << stage << ": rounding must not hide the wall";
		PutBall(693 - r + 3, 300, 5, 0);
		physics->Step();
		EXPECT_LE(ball->x, 693 - r) << stage;
		EXPECT_NEAR(-5, ball->vx, 0.01f) << stage;
	}
}

// Above 0 and below 600 there is no wall to reflect at, only the repair that holds the ball in.
TEST_F(BallPhysicsTest, WallEndsAtTheFieldsEdges)
{
	PutBall(20, 640, -8, 0);
	physics->Step();
	ExpectBall(12, 640, -8, 0);
	physics->Step();
	ExpectBall(7.01f, 640, -8, 0, 0.01f);
}

TEST_F(BallPhysicsTest, FloorReflectsUpward)
{
	CTarget* floor = Line(200, 400, 400, 400);
	PutBall(300, 380, 3, 10); // face meets after 5 of 10 down
	physics->Step();
	ExpectBall(303, 380, 3, -10);
	EXPECT_EQ(1, floor->hits);
	physics->Step();
	ExpectBall(306, 370, 3, -10);
	EXPECT_EQ(1, floor->hits) << "it is leaving";
}

TEST_F(BallPhysicsTest, SlopeMirrorsTheMotion)
{
	Line(200, 300, 300, 400); // 45 degrees, falling to the right
	PutBall(280, 340, 0, 40); // straight down: leaves to the right
	physics->Step();
	EXPECT_NEAR(40, ball->vx, 0.01f);
	EXPECT_NEAR(0, ball->vy, 0.01f);
	// The face touches when the centre is 15 * sqrt(2) above the line's y of 380.
	float touchY = 380 - 15 * std::sqrt(2.0f);
	EXPECT_NEAR(touchY, ball->y, 0.05f);
	EXPECT_NEAR(280 + 40 - (touchY - 340), ball->x, 0.05f);
}

// The end of a line is met beside its face: the tangent is the ball's own, at the place from which
// it started, where the hit point lies on its circle.
TEST_F(BallPhysicsTest, CornerMirrorsAtTheBallsTangent)
{
	CTarget* target = new CTarget();
	AddObstaclePoint(target, 300, 400);
	AddObstaclePoint(target, 300, 410);
	// 9 beside the point: the circle is met 12 below its centre, 8 further down.
	PutBall(291, 380, 0, 10);
	physics->Step();
	// The normal is (9, 12) / 15: (0, 10) becomes (0, 10) - 2 * 8 * (0.6, 0.8).
	EXPECT_NEAR(-9.6f, ball->vx, 0.01f);
	EXPECT_NEAR(-2.8f, ball->vy, 0.01f);
	EXPECT_NEAR(291 - 9.6f * 0.2f, ball->x, 0.01f);
	EXPECT_NEAR(388 - 2.8f * 0.2f, ball->y, 0.01f);
	EXPECT_EQ(1, target->hits);
}

TEST_F(BallPhysicsTest, MotionAlongASegmentMeetsOnlyItsEnds)
{
	CTarget* target = new CTarget();
	AddObstaclePoint(target, 330, 300);
	AddObstaclePoint(target, 340, 300);
	PutBall(310, 300, 8, 0); // parallel: 5 to the near end, head on
	physics->Step();
	ExpectBall(312, 300, -8, 0, 0.01f);
}

TEST_F(BallPhysicsTest, SinglePointStopsNothing)
{
	CTarget* target = new CTarget();
	AddObstaclePoint(target, 300, 400);
	AddObstaclePoint(target, 312.5f, 400); // too far apart to join
	PutBall(306, 380, 0, 10);
	physics->Step();
	EXPECT_FLOAT_EQ(390, ball->y);
}

TEST_F(BallPhysicsTest, PaddleSendsTheBallAlongItsNormalWhereverItCameFrom)
{
	paddle->SetMouseX(400);
	float left  = static_cast<float>(paddle->GetX());
	float crest = left + 36;
	struct {
		float atX;   // where the ball comes down, from the crest
		float slope; // rise of the outline there, by its table
	} places[] = {{-12.5f, 1.5f / 5}, {-22.5f, 2.5f / 5}, {12.5f, -1.5f / 5}, {22.5f, -2.5f / 5}};
	for (const auto& place : places) {
		float lengthOf = std::sqrt(1 + place.slope * place.slope);
		float nx = -place.slope / lengthOf, ny = -1 / lengthOf;
		// Start on the normal through the middle of the segment, fly against it and across it.
		float midX                              = crest + place.atX;
		int index                               = static_cast<int>((midX - left + 9) / 5);
		const std::vector<ObstaclePoint*>& list = CElement::ObstaclePointList;
		float midY                              = (list[index]->y + list[index + 1]->y) / 2;
		for (float swing : {0.0f, 0.4f, -0.4f}) {
			float dirX = -nx + swing * ny, dirY = -ny - swing * nx;
			PutBall(midX + nx * 15 - dirX * 3, midY + ny * 15 - dirY * 3, dirX * 8, dirY * 8);
			float speed = ball->Speed();
			physics->Step();
			EXPECT_NEAR(nx * speed, ball->vx, 0.02f) << place.atX << " " << swing;
			EXPECT_NEAR(ny * speed, ball->vy, 0.02f) << place.atX << " " << swing;
		}
	}
}

TEST_F(BallPhysicsTest, PaddleAlwaysSendsUpward)
{
	paddle->SetMouseX(400);
	float crest = static_cast<float>(paddle->GetX()) + 36;
	for (float offset = -70; offset <= 70; offset += 3.5f) {
		for (float vx : {-6.0f, 0.0f, 6.0f}) {
			PutBall(crest + offset, 470, vx, 7);
			for (int i = 0; i < 12 && ball->vy > 0; i++)
				physics->Step();
			EXPECT_TRUE(ball->vy < 0 || ball->y > 540) << offset;
		}
	}
}

TEST_F(BallPhysicsTest, PaddleTouchIsNotedAndClearsTheCombo)
{
	paddle->SetMouseX(400);
	sidebar->comboCount    = 3;
	g_levelGameData->notes = LevelNotes();
	PutBall(static_cast<float>(paddle->GetX()) + 36, 500, 0, 8);
	physics->Step();
	EXPECT_EQ(0, sidebar->comboCount);
	EXPECT_TRUE(g_levelGameData->notes.paddleTouch);
}

TEST_F(BallPhysicsTest, TouchingAnythingElseFreesTheGrab)
{
	Line(200, 400, 400, 400);
	paddle->grabGuard = 1;
	PutBall(300, 300, 0, 10);
	physics->Step();
	EXPECT_EQ(1, paddle->grabGuard);
	PutBall(20, 300, -8, 0);
	physics->Step();
	EXPECT_EQ(1, paddle->grabGuard) << "a wall has no owner";
	PutBall(300, 380, 0, 10);
	physics->Step();
	EXPECT_EQ(0, paddle->grabGuard);
}

TEST_F(BallPhysicsTest, EmbeddedPointPushesTheBallOutAndAway)
{
	CTarget* target = new CTarget();
	AddObstaclePoint(target, 300, 310);
	PutBall(300, 300, 6, 8); // 5 too deep: the push is within the motion
	physics->Step();
	ExpectBall(300, 285, 0, -10); // 295, and once more by the new velocity
	EXPECT_EQ(1, target->hits);

	PutBall(300, 300, 0.3f, 0.4f); // the push is longer than the motion
	physics->Step();
	ExpectBall(300, 295, 0.3f, 0.4f);

	PutBall(300, 295.005f, 0, -5); // barely in: only touched
	physics->Step();
	ExpectBall(300, 290.005f, 0, -5);
}

TEST_F(BallPhysicsTest, PointAtTheVeryCentreIsLeftUpward)
{
	CTarget* target = new CTarget();
	AddObstaclePoint(target, 300, 300);
	PutBall(300, 300, 0, 8);
	physics->Step();
	ExpectBall(300, 285, 0, 8); // 15 out, more than the motion
}

TEST_F(BallPhysicsTest, EmbeddedPointOfTheNearestOwnerCountsAndTheFirstWinsATie)
{
	CTarget *first = new CTarget(), *second = new CTarget(), *far = new CTarget();
	AddObstaclePoint(far, 300, 312);
	AddObstaclePoint(first, 310, 300);
	AddObstaclePoint(second, 290, 300);
	PutBall(300, 300, 6, 8);
	physics->Step();
	EXPECT_EQ(std::vector<CElement*>{first}, s_asked);
	EXPECT_LT(ball->x, 300) << "pushed away from the first";
}

TEST_F(BallPhysicsTest, EmbeddedOwnerThatLetsThroughDoesNotStopTheMotion)
{
	CTarget* target  = new CTarget();
	target->vanishes = true;
	AddObstaclePoint(target, 300, 310);
	PutBall(300, 300, 3, 4);
	physics->Step();
	ExpectBall(303, 304, 3, 4);
	EXPECT_EQ(1, target->hits);
}

TEST_F(BallPhysicsTest, HeldBallIsNotSweptButTouchesCirclesAndIsPushed)
{
	CTarget *circle = new CTarget(), *point = new CTarget();
	AddTouchCircle(circle, 300, 320, 5);
	PutBall(300, 300, 0, -7);
	ball->held = true;
	physics->Step();
	EXPECT_EQ(1, circle->hits);
	EXPECT_FLOAT_EQ(300, ball->y);
	AddObstaclePoint(point, 300, 312);
	physics->Step();
	EXPECT_EQ(1, point->hits);
	EXPECT_LT(ball->y, 300);
}

TEST_F(BallPhysicsTest, TwoOwnersMetAtOnceAreBothAskedInTheSegmentsOrder)
{
	CTarget *left = new CTarget(), *right = new CTarget();
	AddObstaclePoint(left, 295, 400);
	AddObstaclePoint(right, 305, 400);
	PutBall(300, 380, 0, 10);
	physics->Step();
	// The pair comes up from both sides; the first side of the list wins at equal distance.
	EXPECT_EQ((std::vector<CElement*>{left, right}), s_asked);
	ExpectBall(300, 380, 0, -10);
}

TEST_F(BallPhysicsTest, OneOpenOwnerOfTwoLetsTheBallThrough)
{
	CTarget *left = new CTarget(), *right = new CTarget();
	left->vanishes = true;
	AddObstaclePoint(left, 295, 400);
	AddObstaclePoint(right, 305, 400);
	PutBall(300, 380, 0, 10);
	physics->Step();
	EXPECT_EQ(1, left->hits);
	EXPECT_EQ(1, right->hits) << "asked although the first has answered already";
	EXPECT_FLOAT_EQ(390, ball->y) << "a lone point stops nothing";
}

TEST_F(BallPhysicsTest, OwnerThatRemovesItsPointsIsPassed)
{
	CTarget* wall  = Line(200, 400, 400, 400);
	wall->vanishes = true;
	PutBall(300, 380, 0, 10);
	physics->Step();
	ExpectBall(300, 390, 0, 10);
	EXPECT_EQ(1, wall->hits);
}

TEST_F(BallPhysicsTest, OwnerThatKeepsItsPointsReflectsWithoutBeingAskedAgain)
{
	CTarget* wall = Line(200, 400, 400, 400);
	wall->lets    = true;
	PutBall(300, 380, 0, 10);
	physics->Step();
	ExpectBall(300, 380, 0, -10);
	EXPECT_EQ(1, wall->hits);
}

TEST_F(BallPhysicsTest, CirclesTouchWithoutDeflecting)
{
	CTarget *touched = new CTarget(), *missed = new CTarget(), *second = new CTarget();
	AddTouchCircle(missed, 300, 318.1f, 3);
	AddTouchCircle(touched, 318, 300, 3);
	AddTouchCircle(second, 300, 283, 3);
	PutBall(300, 300, 0, -2);
	physics->Step();
	EXPECT_EQ((std::vector<CElement*>{touched, second}), s_asked);
	ExpectBall(300, 298, 0, -2);
}

// A gap between outlines, a pocket or a corner must not let the ball out, stop it, make it lose
// its speed or hang the frame.
TEST_F(BallPhysicsTest, BallStaysInARandomRoomAndKeepsItsSpeed)
{
	for (unsigned int seed = 1; seed <= 60; seed++) {
		SeedRandom(seed);
		std::vector<CTarget*> targets;
		targets.push_back(Line(1, 20, 692, 20));
		targets.push_back(Line(1, 580, 692, 580));
		for (int i = 0; i < 12; i++) {
			float x1 = RandomRange(60, 630), y1 = RandomRange(100, 500);
			float x2 = x1 + RandomRange(-80, 80), y2 = y1 + RandomRange(-80, 80);
			targets.push_back(Line(x1, y1, x2, y2));
		}
		SetBallStage(RandomWhole(0, 18));
		float heading = RandomRange(0, TWO_PI_SHORT), speed = RandomRange(4, 40);
		PutBall(346, 60, std::sin(heading) * speed, -std::cos(heading) * speed);
		for (int frame = 0; frame < 400; frame++) {
			physics->Step();
			ASSERT_TRUE(std::isfinite(ball->x) && std::isfinite(ball->y)) << seed;
			ASSERT_NEAR(speed, ball->Speed(), speed * 0.001f) << "seed " << seed;
			ASSERT_GT(ball->y, 0) << "out at the top, seed " << seed << " frame " << frame;
			ASSERT_LT(ball->y, 600) << "out at the bottom, seed " << seed << " frame " << frame;
			ASSERT_GT(ball->x, -41) << "seed " << seed << " frame " << frame;
			ASSERT_LT(ball->x, 734) << "seed " << seed << " frame " << frame;
		}
		for (CTarget* target : targets)
			RemoveObstaclePoints(target);
	}
}

TEST_F(BallPhysicsTest, FastBallTunnelsThroughNothing)
{
	CTarget* floor = Line(1, 450, 692, 450);
	for (int i = 0; i < 200; i++) {
		SeedRandom(static_cast<unsigned int>(i));
		float x = RandomRange(60, 630), vx = RandomRange(-60, 60), vy = RandomRange(60, 300);
		PutBall(x, 380, vx, vy);
		physics->Step();
		ASSERT_LT(ball->y, 450) << "turn " << i;
		ASSERT_LT(ball->vy, 0) << "turn " << i;
	}
	EXPECT_EQ(200, floor->hits);
}

TEST_F(BallPhysicsTest, WorksWithoutAPaddle)
{
	BallPhysics alone(ball, nullptr);
	CTarget* floor = Line(200, 400, 400, 400);
	PutBall(300, 380, 0, 10);
	alone.Step();
	EXPECT_EQ(1, floor->hits);
	AddObstaclePoint(floor, ball->x, ball->y + 5);
	alone.Step();
	EXPECT_EQ(2, floor->hits);
}
