// The ball: its size, speed, skins, load, what it shows inside and behind it.
#include "field/ball.h"

#include "field/ball_physics.h"
#include "field/element_point.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"
#include "state/game_data.h"
#include "support/field_test.h"

#include <cmath>

class BallTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
	}

	static float Length(float x, float y) { return std::sqrt(x * x + y * y); }
};

TEST_F(BallTest, StartsHeldAtBaseSpeedAndAppearsAfterThreeFrames)
{
	EXPECT_TRUE(ball->IsHeld());
	EXPECT_FLOAT_EQ(0.1f, ball->vx) << "the speed factor of a fresh profile is 1";
	EXPECT_FLOAT_EQ(-7, ball->vy);
	EXPECT_EQ(ball, g_ball);
	for (int frame = 1; frame <= 3; frame++) {
		Tick();
		EXPECT_TRUE(ball->currentSprite->IsHidden()) << frame;
		EXPECT_TRUE(ball->shadowSprites[0]->IsHidden()) << frame;
	}
	Tick();
	EXPECT_FALSE(ball->currentSprite->IsHidden());
	EXPECT_FALSE(ball->shadowSprites[0]->IsHidden());
}

TEST_F(BallTest, RadiusFollowsThePictureAndTheGlass)
{
	EXPECT_FLOAT_EQ(15, ball->Radius()) << "28 / 2 + 1";
	for (int stage = 1; stage <= 18; stage++) {
		ball->SetStage(stage);
		EXPECT_FLOAT_EQ(static_cast<float>(28 + 4 * stage) / 2 - 1, ball->Radius()) << stage;
		EXPECT_FALSE(ball->big) << "only Grow makes it big";
	}
	ball->SetStage(11);
	ball->Grow();
	EXPECT_TRUE(ball->big);
	EXPECT_FLOAT_EQ(38 - 5, ball->Radius());
	ball->Shrink();
	EXPECT_FALSE(ball->big);
	EXPECT_FLOAT_EQ(36 - 1, ball->Radius());
}

TEST_F(BallTest, StageIsHeldToItsRangeAndNamesTheSizes)
{
	ball->SetStage(-4);
	EXPECT_EQ(0, ball->GetStage());
	ball->Shrink();
	EXPECT_EQ(0, ball->GetStage());
	ball->SetStage(30);
	ball->Grow();
	EXPECT_EQ(18, ball->GetStage());
	for (int stage = 0; stage <= 18; stage++) {
		ball->SetStage(stage);
		EXPECT_EQ(stage < 6, ball->IsSmall()) << stage;
		EXPECT_EQ(stage >= 6 && stage < 12, ball->IsMedium()) << stage;
		EXPECT_EQ(stage >= 12, ball->IsLarge()) << stage;
		EXPECT_EQ(ball->stageSprites[stage][0], ball->currentSprite);
	}
}

TEST_F(BallTest, LoadDecidesTheStage)
{
	const int stages[] = {0, 1, 2, 3, 4, 5, 6, 6, 7, 7, 8, 8, 9, 9, 9, 10, 10, 10, 10};
	for (int load = 1; load < 19; load++) {
		ball->stage = 0;
		ball->load  = load - 1;
		ball->AddContent(POINT_APPLE);
		EXPECT_EQ(stages[load], ball->GetStage()) << "load " << load;
	}
	struct {
		int load, stage;
	} edges[] = {{18, 10}, {19, 11}, {23, 11}, {24, 12}, {29, 12}, {30, 13},
	             {36, 13}, {37, 14}, {43, 14}, {44, 15}, {52, 15}, {53, 16},
	             {60, 16}, {61, 17}, {73, 17}, {74, 18}, {500, 18}};
	for (const auto& edge : edges) {
		ball->stage = 0;
		ball->load  = edge.load - 1;
		ball->AddContent(POINT_ACORN);
		EXPECT_EQ(edge.stage, ball->GetStage()) << "load " << edge.load;
		EXPECT_FALSE(ball->big);
	}
}

TEST_F(BallTest, ContentOnlyEverRaisesTheStage)
{
	ball->SetStage(10);
	ball->AddContent(POINT_APPLE);
	EXPECT_EQ(10, ball->GetStage());
	ball->load = 30;
	ball->SetStage(14);
	ball->Shrink();
	ball->Shrink();
	EXPECT_EQ(12, ball->GetStage());
	ball->AddContent(POINT_APPLE);
	EXPECT_EQ(13, ball->GetStage()) << "back to what the load says";
}

TEST_F(BallTest, HeavierBallIsFasterByTheFactorsRatio)
{
	PutBall(300, 300, 3, -4);
	float before = g_levelGameData->BallSpeedFactor();
	ball->AddContent(71);
	float after = g_levelGameData->BallSpeedFactor();
	ASSERT_GT(after, before);
	EXPECT_NEAR(5 * after / before, ball->Speed(), 1e-4f);
}

TEST_F(BallTest, EveryKindThatReachesTheBallHasWeightAndPictures)
{
	int kinds = 0;
	for (int kind = -1; kind <= 80; kind++) {
		std::vector<std::string> images = ContentImages(kind);
		bool reaches                    = kind >= 1 && kind <= 76 && kind != 6;
		EXPECT_EQ(reaches, ContentWeight(kind) > 0) << kind;
		EXPECT_EQ(reaches, !images.empty()) << kind;
		for (const std::string& image : images)
			EXPECT_TRUE(g_display->HasImage(image)) << image;
		kinds += reaches;
	}
	EXPECT_EQ(75, kinds);
	EXPECT_EQ(18, ContentWeight(71)) << "elephant";
	EXPECT_EQ(3, ContentWeight(36)) << "duckling";
	EXPECT_EQ(3, ContentWeight(POINT_COCONUT));
	EXPECT_EQ(4u, ContentImages(5).size()) << "sheep";
	EXPECT_EQ(std::vector<std::string>{"kangajoeybubbleright.png"}, ContentImages(45));
	EXPECT_EQ("butterflyBupleft0.png", ContentImages(75)[0]);
}

TEST_F(BallTest, UnknownKindsAndCoinsAreLeftOut)
{
	for (int kind : {-1, 0, 6, 77, 1000})
		ball->AddContent(kind);
	EXPECT_EQ(0, ball->load);
	EXPECT_TRUE(ball->contents.empty());
}

TEST_F(BallTest, FruitAndEggsAreCounted)
{
	for (int kind : {POINT_APPLE, POINT_APPLE2, POINT_ACORN, POINT_PINECONE, POINT_EGG_LEFT,
	                 POINT_EGG_RIGHT, POINT_COCONUT})
		ball->AddContent(kind);
	ball->AddContent(22);
	EXPECT_EQ(2, ball->AppleCount());
	EXPECT_EQ(1, ball->AcornCount());
	EXPECT_EQ(1, ball->PineconeCount());
	EXPECT_EQ(2, ball->EggCount());
	EXPECT_EQ(1, ball->CoconutCount());
	EXPECT_EQ(6 + 3 + 15, ball->load);
	EXPECT_EQ(8u, ball->contents.size());
}

TEST_F(BallTest, ButterflySetsASmallBallsLoadToThree)
{
	ball->load = 1;
	ball->SetStage(1);
	ball->AddContent(74);
	EXPECT_EQ(3, ball->load);
	ball->AddContent(75);
	EXPECT_EQ(4, ball->load) << "at stage 3 it adds one";
}

TEST_F(BallTest, SmallThingsBeyondSixtyCountButAreNotShown)
{
	for (int i = 0; i < 70; i++)
		ball->AddContent(POINT_APPLE);
	EXPECT_EQ(60u, ball->contents.size());
	EXPECT_EQ(70, ball->load);
	EXPECT_EQ(70, ball->AppleCount());
	ball->AddContent(9);
	EXPECT_EQ(61u, ball->contents.size()) << "animals may pass that number";
}

TEST_F(BallTest, ContentsStayInsideTheGlass)
{
	const int kinds[] = {5, 9, 36, POINT_APPLE, POINT_COCONUT, POINT_ACORN};
	for (int kind : kinds)
		ball->AddContent(kind);
	ball->SetStage(12);
	PutBall(300, 300, 4, -5);
	bool slid = false;
	for (int frame = 0; frame < 600; frame++) {
		ball->Update();
		float glass = static_cast<float>(ball->currentSprite->Width() / 2) - 1;
		for (const BallContent* content : ball->contents) {
			slid = slid || content->sliding;
			// One step beyond the wall at most: 2.8 pixels is the longest.
			EXPECT_LE(Length(content->x, content->y), glass - content->radius - 5 + 2.9f) << frame;
			EXPECT_EQ(299, content->sprite->Depth()) << "behind the glass";
		}
	}
	EXPECT_TRUE(slid);
}

TEST_F(BallTest, ContentsOfTheSmallestBallsAreCentred)
{
	ball->AddContent(POINT_APPLE);
	PutBall(200, 210, 3, 4);
	Tick();
	const CSprite* sprite = ball->contents[0]->sprite;
	EXPECT_EQ(200 - sprite->Width() / 2, sprite->X());
	EXPECT_EQ(210 - sprite->Height() / 2, sprite->Y());
}

TEST_F(BallTest, SkinsReplaceEachOther)
{
	ball->SetSkinBulldozer();
	EXPECT_TRUE(ball->IsBulldozer() && !ball->IsGravity());
	EXPECT_EQ(ball->stageSprites[0][SKIN_BULLDOZER], ball->currentSprite);
	ball->SetSkinGravity();
	EXPECT_TRUE(ball->IsGravity() && !ball->IsBulldozer());
	EXPECT_TRUE(ball->stageSprites[0][SKIN_BULLDOZER]->IsHidden());
	ball->SetSkinNormal();
	EXPECT_FALSE(ball->IsGravity() || ball->IsBulldozer());
}

TEST_F(BallTest, NewStageIsPlacedAtOnce)
{
	Tick(4);
	PutBall(300, 250, 3, -5);
	ball->SetStage(18);
	EXPECT_EQ(250, ball->currentSprite->X());
	EXPECT_EQ(200, ball->currentSprite->Y());
	EXPECT_EQ(250, ball->currentSprite->Depth());
	EXPECT_TRUE(ball->stageSprites[0][0]->IsHidden());
	EXPECT_TRUE(ball->shadowSprites[0]->IsHidden());
}

TEST_F(BallTest, FlatFlightIsSteepenedAtTheSameSpeed)
{
	PutBall(300, 300, -8, 0);
	for (int i = 0; i < 60; i++) {
		Tick();
		EXPECT_NEAR(8, ball->Speed(), 1e-3f);
	}
	EXPECT_GE(ball->vy, 1.2f) << "down, from a level flight";
	float vy = ball->vy;
	Tick(10);
	EXPECT_FLOAT_EQ(vy, ball->vy) << "steep enough is left alone";
	PutBall(300, 300, 8, -0.5f);
	Tick();
	EXPECT_LT(ball->vy, -0.5f);
}

TEST_F(BallTest, SpeedUpAndSlowDownTakeEachOtherBack)
{
	PutBall(300, 300, 3, -4);
	ball->SpeedUp();
	EXPECT_NEAR(6.5f, ball->Speed(), 1e-4f);
	ball->SlowDown();
	EXPECT_NEAR(5, ball->Speed(), 1e-4f);
	ball->ResetSpeed();
	EXPECT_FLOAT_EQ(-7, ball->vy);
}

TEST_F(BallTest, EasingReturnsByHalfAPixelAFrame)
{
	PutBall(300, 300, 6, -8);
	ball->StartEasing(0.1f);
	ball->StartEasing(0.1f); // already easing
	EXPECT_NEAR(1, ball->Speed(), 1e-4f);
	ball->EaseBack(); // half a pixel times the part of the speed that it has
	EXPECT_NEAR(1 + 0.5f * 0.1f, ball->Speed(), 1e-4f);
	int frames = 1;
	while (ball->easing && frames < 200) {
		ball->EaseBack();
		frames++;
		EXPECT_LE(ball->Speed(), 10.0001f);
	}
	EXPECT_FALSE(ball->easing);
	EXPECT_NEAR(10, ball->Speed(), 2e-4f);
	EXPECT_NEAR(6, ball->vx, 1e-3f);
}

TEST_F(BallTest, FanAddsOnePixelAndIsCappedOnAFlyingBall)
{
	PutBall(300, 300, 0, -8);
	ball->BlowFrom(300, 544);
	EXPECT_NEAR(-9, ball->vy, 1e-4f);
	ball->BlowFrom(300, 544);
	EXPECT_NEAR(-10, ball->vy, 1e-4f) << "a quarter above the remembered speed is allowed";
	ball->BlowFrom(300, 544);
	EXPECT_NEAR(-8, ball->vy, 1e-4f) << "beyond it falls back to the remembered speed";
	EXPECT_TRUE(ball->easing);

	ball->easing = false;
	ball->held   = true;
	ball->BlowFrom(300, 544);
	EXPECT_NEAR(-8, ball->vy, 1e-4f) << "a held ball is not blown";
	EXPECT_FALSE(ball->easing);
}

TEST_F(BallTest, PullFallsWithTheSquareAndStopsAtTheReach)
{
	PutBall(300, 300, 0, -8);
	ball->SetStage(3);
	float x = 350, y = 300;
	ball->PullToward(x, y, 1);
	EXPECT_NEAR(350 - 50 * (10.0f / 2501 * 10), x, 1e-3f);
	EXPECT_FLOAT_EQ(300, y);
	x = 350;
	ball->PullToward(x, y, 5);
	EXPECT_NEAR(350 - 50 * (10.0f / 2501 / 5 * 10), x, 1e-3f);
	x = 380, y = 380; // within 100 along both axes, but not straight
	ball->PullToward(x, y, 1);
	EXPECT_FLOAT_EQ(380, x);
	x = 305, y = 300; // so near that it would overshoot
	ball->PullToward(x, y, 1);
	EXPECT_FLOAT_EQ(305, x);
}

TEST_F(BallTest, ReboundSoundsKeepTheirDistance)
{
	ball->reboundCooldown = 0;
	unsigned long calls   = RandomCalls();
	ball->PlayRebound();
	ball->PlayRebound();
	EXPECT_EQ(1u, RandomCalls() - calls) << "one draw for one sound";
	EXPECT_EQ(3, ball->reboundCooldown);
	Tick(3);
	EXPECT_EQ(0, ball->reboundCooldown);
}

TEST_F(BallTest, LettingGoSoundsOnceAndHoldingIsSilent)
{
	ball->SetHeld(true);
	EXPECT_EQ(3, ball->reboundCooldown);
	unsigned long calls = RandomCalls();
	ball->SetHeld(false);
	ball->SetHeld(false); // the button is still down
	EXPECT_EQ(1u, RandomCalls() - calls);
	EXPECT_FALSE(ball->IsHeld());
}

TEST_F(BallTest, TrailGrowsWithTheBallAndNeverPassesItsTable)
{
	struct {
		int stage, most;
	} cases[] = {{0, 3}, {1, 3}, {2, 36 / 5 + 5}, {12, 20}, {18, 20}};
	PutBall(300, 300, 4, -5);
	for (const auto& each : cases) {
		ball->SetStage(each.stage);
		int seen = 0;
		for (int i = 0; i < 25; i++)
			ball->Update(); // those of the last stage have ended
		for (int i = 0; i < 60; i++) {
			ball->Update();
			int active = 0, shown = 0;
			for (const TrailBubble& bubble : ball->trail) {
				active += bubble.active;
				for (const auto& ofSize : bubble.sprites) {
					for (const CSprite* sprite : ofSize)
						shown += !sprite->IsHidden();
				}
				EXPECT_LE(bubble.active ? bubble.age : 0, 20);
			}
			EXPECT_EQ(active, ball->liveTrailBubbles);
			EXPECT_EQ(active, shown) << "one picture each";
			EXPECT_LE(active, each.most) << each.stage;
			seen = std::max(seen, active);
		}
		EXPECT_EQ(each.most, seen) << each.stage;
	}
}

TEST_F(BallTest, TrailWearsTheSkinAndShrinksWithAge)
{
	PutBall(300, 300, 4, -5);
	ball->SetStage(17);
	ball->Grow();
	ball->SetSkinGravity();
	Tick(30);
	for (int i = 0; i < 40; i++) {
		Tick();
		for (const TrailBubble& bubble : ball->trail) {
			if (!bubble.active)
				continue;
			int size = bubble.age > 13 ? 0 : bubble.age > 6 ? 1 : 2;
			EXPECT_EQ(bubble.sprites[size][SKIN_GRAVITY], bubble.current) << bubble.age;
		}
	}
}

TEST_F(BallTest, BallThatHasRunOutStillUpdates)
{
	PutBall(300, 300, 3, -4);
	for (int i = 0; i < 900; i++) {
		ball->ScaleSpeed(0.85f);
		Play();
		ASSERT_TRUE(std::isfinite(ball->x) && std::isfinite(ball->vy)) << i;
	}
}
