// Capture, bump, hints, and where an animal may stand.
#include "animals/animal_test_support.h"

#include "field/ball.h"
#include "field/obstacle_grid.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <cmath>

// clang-format off
static const BodyPoint s_body[] = { { 5, 10 }, { 10, 20 }, { 20, 10 } };
static const ActionRow s_rows[] = {
	{ "stand", ACTION_IDLE,  ".",   0, ROLE_NONE, "", { .time = Frames(3) } },
	{ "quack", ACTION_BUMP,  "0-7", 0, ROLE_BUMP, "", { .hold = Frames(5) } },
};
static const SpeciesTable STANDER = { "duck", s_rows, {}, s_body, {}, {} };
// clang-format on

typedef AnimalTest CaptureTest;

// The waiting depends on how good the player is.
class HintTest : public AnimalTest
{
protected:
	void SetUp() override
	{
		AnimalTest::SetUp();
		SetSkill(0);
		ASSERT_LE(g_gameData->SkillRating(), 8000);
	}
	static void SetSkill(float average)
	{
		g_gameData->profile.skillCount   = 20;
		g_gameData->profile.skillAverage = average;
		g_gameData->profile.skillSum     = 20 * average;
	}
};
typedef AnimalTest RoomTest;

TEST_F(CaptureTest, WithoutABallNothingHappens)
{
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	EXPECT_FALSE(animal->CanCapture());
	EXPECT_FALSE(animal->OnBallHit());
	EXPECT_EQ(animal->idleAction, animal->currentAction);
}

TEST_F(CaptureTest, ABallBigEnoughTakesTheAnimalAtOnce)
{
	MakeBallAndPaddle();
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	SetBallStage(animal->requiredStage);
	g_play.levelScore = 0;
	int load          = ball->load;
	EXPECT_TRUE(animal->OnBallHit()) << "true means that the ball goes on";
	EXPECT_TRUE(animal->dead);
	EXPECT_TRUE(animal->currentSprite->IsHidden());
	EXPECT_EQ(nullptr, animal->firstPoint) << "no outline is left";
	EXPECT_GT(ball->load, load);
	EXPECT_GT(g_play.levelScore, 0);
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(animal->species));
	EXPECT_EQ(0, CElementAnimal::CountToRescue());
	Run(5);
	EXPECT_TRUE(animal->currentSprite->IsHidden()) << "a dead animal stays away";
}

TEST_F(CaptureTest, ABallTooSmallMakesItBumpAndBounces)
{
	MakeBallAndPaddle();
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	SetBallStage(animal->requiredStage - 1);
	EXPECT_FALSE(animal->OnBallHit());
	EXPECT_EQ(animal->bumpAction, animal->currentAction);
	EXPECT_FALSE(animal->dead);
	EXPECT_EQ(0, g_gameData->RescuedThisLevel(animal->species));
}

TEST_F(CaptureTest, ASecondBumpTakesTheFirstBackToItsEntry)
{
	MakeBallAndPaddle();
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	SetBallStage(animal->requiredStage - 1);
	animal->OnBallHit();
	for (int i = 0; i < 60 && animal->bumpAction->phase == PHASE_ENTRY; i++)
		Run();
	ASSERT_EQ(PHASE_MIDDLE, animal->bumpAction->phase);
	animal->OnBallHit();
	EXPECT_EQ(PHASE_ENTRY, animal->bumpAction->phase);
	EXPECT_EQ(animal->bumpAction, animal->currentAction);
}

TEST_F(CaptureTest, AnInactiveAnimalCannotBeCaught)
{
	MakeBallAndPaddle();
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	SetBallStage(18);
	animal->active = false;
	EXPECT_FALSE(animal->OnBallHit());
	EXPECT_FALSE(animal->dead);
}

TEST_F(CaptureTest, TheGravityBallPullsOnlyWhatItCouldTake)
{
	MakeBallAndPaddle();
	CTestAnimal* near = new CTestAnimal(STANDER, 300, 200);
	SetBallStage(near->requiredStage);
	ball->SetSkinGravity();
	PutBall(330, 200, 0, 0);
	Run();
	float pulled = near->x;
	Run(30);
	EXPECT_GT(near->x, pulled) << "toward the ball";
	EXPECT_FLOAT_EQ(near->x + 5, near->bodyPoints[0]->x) << "with its outline";

	float before        = near->x;
	near->requiredStage = ball->GetStage() + 1;
	Run(10);
	EXPECT_EQ(before, near->x);
}

TEST_F(HintTest, TheTimerStartsAtFiveAnimalsAndOverWithEachChange)
{
	std::vector<CTestAnimal*> herd;
	for (int i = 0; i < 6; i++)
		herd.push_back(new CTestAnimal(STANDER, 100 + 80 * i, 200));
	Run(3);
	EXPECT_EQ(-1, CElementAnimal::hintTimer) << "six are too many";
	herd[0]->LeaveField();
	Run();
	EXPECT_EQ(400 * 5 - 1, CElementAnimal::hintTimer);
	Run(100);
	herd[1]->LeaveField();
	Run();
	EXPECT_EQ(400 * 4 - 1, CElementAnimal::hintTimer);
	herd[2]->optional = true;
	Run();
	EXPECT_EQ(400 * 3 - 1, CElementAnimal::hintTimer) << "the optional one does not count";
}

TEST_F(HintTest, EachHintWaitsLonger)
{
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	std::vector<int> shownAt;
	for (int frame = 1; frame < 5000 && shownAt.size() < 3; frame++) {
		bool before = animal->hintFrames > 0;
		Tick();
		if (!before && animal->hintFrames > 0)
			shownAt.push_back(frame);
	}
	ASSERT_EQ(3u, shownAt.size());
	EXPECT_EQ(400 + 1, shownAt[0]);
	EXPECT_NEAR(1200, shownAt[1] - shownAt[0], 1);
	EXPECT_NEAR(2000, shownAt[2] - shownAt[1], 1);
	EXPECT_FALSE(animal->hintArrow->IsHidden());
	EXPECT_EQ(animal->collisionSprite->Width() / 2 + static_cast<int>(animal->x),
	          animal->hintArrow->X() + animal->hintArrow->Width() / 2);
}

TEST_F(HintTest, AGoodPlayerWaitsLonger)
{
	new CTestAnimal(STANDER, 300, 200);
	SetSkill(10);
	ASSERT_GE(g_gameData->SkillRating(), 12001);
	Run();
	EXPECT_EQ(900 - 1, CElementAnimal::hintTimer);
}

TEST_F(HintTest, ANewAnimalStartsTheCycleOver)
{
	new CTestAnimal(STANDER, 300, 200);
	CElementAnimal::hintCycle = 4;
	new CTestAnimal(STANDER, 400, 200);
	EXPECT_EQ(0, CElementAnimal::hintCycle);
}

// The walk over the whole list that the fast answer has to agree with.
static bool PlainMayMoveTo(const CElementAnimal* self, float cx, float cy, bool anywhere)
{
	float r = static_cast<float>(self->bodyRadius);
	if (!self->active)
		return false;
	if (!anywhere && (cx <= r || cx >= 693 - r || cy >= 480 - r))
		return false;
	for (const ObstaclePoint* point : CElement::ObstaclePointList) {
		const CElement* owner = point->owner;
		if ((self->ignoresTrees && owner->isTree) || (self->leader && owner->follower))
			continue;
		if (!owner->isAnimal || !self->collisionSprite || !owner->collisionSprite) {
			if (owner != self && PointDistance(point->x, point->y, cx, cy) <= r)
				return false;
			continue;
		}
		const CElementAnimal* other = static_cast<const CElementAnimal*>(owner);
		float otherX = other->CentreX(), otherY = other->CentreY();
		float there = PointDistance(otherX, otherY, cx, cy);
		if (there > r + static_cast<float>(other->bodyRadius) || other == self)
			continue;
		if (self->follower && other->leader)
			return false;
		if (there <= PointDistance(otherX, otherY, self->CentreX(), self->CentreY()))
			return false;
	}
	return true;
}

TEST_F(RoomTest, TheFastAnswerIsThatOfTheWalkOverAllPoints)
{
	int allowed = 0, asked = 0;
	for (int field = 0; field < 20; field++) {
		ScatterPoints(150)->isTree = field % 2;
		std::vector<CTestAnimal*> herd;
		for (int i = 0; i < 25; i++) {
			int centreX          = RandomWhole(20, 670);
			int centreY          = RandomWhole(60, 470);
			CTestAnimal* animal  = new CTestAnimal(STANDER, centreX, centreY);
			animal->bodyRadius   = RandomWhole(8, 40);
			animal->leader       = i % 5 == 0;
			animal->follower     = i % 5 == 1;
			animal->ignoresTrees = i % 3 == 0;
			animal->active       = i != 7;
			herd.push_back(animal);
		}
		for (CTestAnimal* animal : herd) {
			for (int i = 0; i < 40; i++) {
				float cx      = animal->CentreX() + RandomRange(-60, 60);
				float cy      = animal->CentreY() + RandomRange(-60, 60);
				bool anywhere = Coin();
				bool answer   = animal->MayMoveTo(cx, cy, anywhere);
				ASSERT_EQ(PlainMayMoveTo(animal, cx, cy, anywhere), answer);
				allowed += answer;
				asked++;
			}
		}
		ClearField();
	}
	EXPECT_GT(allowed, asked / 20) << "both answers have to come up";
	EXPECT_LT(allowed, asked * 19 / 20);
}

TEST_F(RoomTest, TheEdgesOfTheFieldAreClosedButAtTheTop)
{
	CTestAnimal* animal = new CTestAnimal(STANDER, 300, 200);
	float r             = static_cast<float>(animal->bodyRadius);
	EXPECT_FALSE(animal->MayMoveTo(r, 200, false));
	EXPECT_TRUE(animal->MayMoveTo(r + 0.5f, 200, false));
	EXPECT_FALSE(animal->MayMoveTo(693 - r, 200, false));
	EXPECT_FALSE(animal->MayMoveTo(300, 480 - r, false));
	EXPECT_TRUE(animal->MayMoveTo(300, 480 - r, true));
	EXPECT_TRUE(animal->MayMoveTo(300, -50, false));
	animal->active = false;
	EXPECT_FALSE(animal->MayMoveTo(300, 200, true));
}

TEST_F(RoomTest, OverlappingAnimalsMayPartButComeNoCloser)
{
	CTestAnimal* a = new CTestAnimal(STANDER, 300, 200);
	CTestAnimal* b = new CTestAnimal(STANDER, 310, 200);
	EXPECT_TRUE(a->MayMoveTo(a->CentreX() - 2, a->CentreY(), false));
	EXPECT_FALSE(a->MayMoveTo(a->CentreX() + 2, a->CentreY(), false));
	EXPECT_FALSE(a->MayMoveTo(a->CentreX(), a->CentreY(), false)) << "the same distance";
	EXPECT_TRUE(b->MayMoveTo(b->CentreX() + 2, b->CentreY(), false));
	b->LeaveField();
	EXPECT_TRUE(a->MayMoveTo(a->CentreX() + 2, a->CentreY(), false));
}

TEST_F(RoomTest, ALeaderPassesItsFollowersAndAFollowerStopsAtItsLeader)
{
	CTestAnimal* leader   = new CTestAnimal(STANDER, 300, 200);
	CTestAnimal* follower = new CTestAnimal(STANDER, 315, 200);
	leader->leader        = true;
	follower->follower    = true;
	EXPECT_TRUE(leader->MayMoveTo(310, 200, false));
	EXPECT_FALSE(follower->MayMoveTo(317, 200, false)) << "not even away, while they overlap";
	EXPECT_TRUE(follower->MayMoveTo(340, 200, false));
}
