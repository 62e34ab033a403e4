// The paddle: shapes and outlines, the held ball, its tools, flames and prompts.
#include "field/paddle.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/crate.h"
#include "field/paddle_parts.h"
#include "field/sidebar.h"
#include "media/input.h"
#include "media/sprite.h"
#include "state/game_data.h"
#include "support/field_test.h"

class PaddleTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		MakeBallAndPaddle();
		paddle->SetMouseX(400);
		paddle->ResetBall();
		Tick(4);
	}

	CSprite* Part(int part) { return paddle->parts->sprites[part]; }
	bool Shown(int part) { return !Part(part)->IsHidden(); }
	void Step(int frames = 1) // with the animations, as a whole frame
	{
		for (int i = 0; i < frames; i++) {
			Tick();
			for (CSprite* sprite : paddle->parts->sprites)
				sprite->Step();
			for (CSprite* bumper : paddle->parts->bumpers)
				bumper->Step();
		}
	}
	void Drive(int pixels, int frames)
	{
		for (int i = 0; i < frames; i++) {
			paddle->SetMouseX(paddle->GetTarget() + pixels);
			Step();
		}
	}
	int ShownBumper() // -1 when not exactly one shows
	{
		int shown = -1;
		for (int i = 0; i < BUMPERS; i++) {
			if (paddle->parts->bumpers[i]->IsHidden())
				continue;
			if (shown != -1)
				return -1;
			shown = i;
		}
		return shown;
	}
	void Change(int which)
	{
		switch (which) {
		case 0:
			return paddle->BecomeWide();
		case 1:
			return paddle->EndWide();
		case 2:
			return paddle->BecomeFlat();
		case 3:
			return paddle->EndFlat();
		case 4:
			return paddle->BecomeSticky();
		default:
			return paddle->EndSticky();
		}
	}
	void SetShape(PaddleShape shape) // over the real operations
	{
		paddle->EndSticky();
		paddle->EndWide();
		paddle->EndFlat();
		if (shape / 2 == 1)
			paddle->BecomeWide();
		if (shape / 2 == 2)
			paddle->BecomeFlat();
		if (shape % 2)
			paddle->BecomeSticky();
		ASSERT_EQ(shape, paddle->shape);
	}
};

TEST_F(PaddleTest, PartsStandInTheOrderOfTheirNumbers)
{
	for (int i = 0; i < PADDLE_PARTS; i++)
		EXPECT_EQ(i, PlaceOfPart(i).part);
}

TEST_F(PaddleTest, MouseRunsOverTheWholeWindow)
{
	struct {
		int mouse, x;
	} cases[] = {{400, 346 - 38}, {0, -38}, {800, 693 - 38}, {-300, -259 - 38}, {1, -38}};
	for (const auto& each : cases) {
		paddle->SetMouseX(each.mouse);
		EXPECT_EQ(each.x, paddle->GetX()) << each.mouse;
		EXPECT_EQ(each.mouse, paddle->GetTarget());
		EXPECT_EQ(each.x - 10, paddle->body->X());
		EXPECT_EQ(514, paddle->body->Y());
	}
}

TEST_F(PaddleTest, EntersFromOffTheField)
{
	CPaddle fresh;
	EXPECT_EQ(-297, fresh.GetX());
	EXPECT_TRUE(fresh.shootable);
	EXPECT_EQ(SHAPE_NORMAL, fresh.shape);
	RemoveFromElementList(&fresh);
}

TEST_F(PaddleTest, OutlineFollowsShapeAndPlace)
{
	struct {
		PaddleShape shape;
		size_t points;
		float firstX, lastX, firstY, crestY;
	} cases[] = {
	    {SHAPE_NORMAL, 19, -9, 81, 31, 5.9f}, {SHAPE_NORMAL_STICKY, 19, -9, 81, 31, 5.9f},
	    {SHAPE_WIDE, 26, -25, 100, 33, 2.9f}, {SHAPE_WIDE_STICKY, 26, -25, 100, 33, 2.9f},
	    {SHAPE_FLAT, 17, -2, 78, 27, 11.9f},  {SHAPE_FLAT_STICKY, 17, -2, 78, 27, 11.9f},
	};
	for (const auto& each : cases) {
		SetShape(each.shape);
		paddle->SetMouseX(200 + 30 * each.shape);
		const std::vector<ObstaclePoint*>& list = CElement::ObstaclePointList;
		ASSERT_EQ(each.points, list.size()) << each.shape;
		float x = static_cast<float>(paddle->GetX()), crest = 600;
		EXPECT_FLOAT_EQ(x + each.firstX, list.front()->x);
		EXPECT_FLOAT_EQ(x + each.lastX, list.back()->x);
		EXPECT_FLOAT_EQ(514 + each.firstY, list.front()->y);
		for (size_t i = 0; i < list.size(); i++) {
			crest = std::min(crest, list[i]->y);
			EXPECT_FLOAT_EQ(x + each.firstX + 5 * static_cast<float>(i), list[i]->x);
			EXPECT_FLOAT_EQ(list[list.size() - 1 - i]->y, list[i]->y)
			    << (each.shape / 2 == 1 ? "" : "both halves are alike");
			if (each.shape / 2 == 1)
				break; // the wide one's table is not its own mirror near the crest
		}
		for (const ObstaclePoint* point : list)
			crest = std::min(crest, point->y);
		EXPECT_FLOAT_EQ(514 + each.crestY, crest);
	}
}

TEST_F(PaddleTest, EveryShapeChangeIsByTheTable)
{
	// Rows by change, columns by the shape before; the shape after.
	const int after[6][6] = {{2, 3, 2, 3, 0, 1}, {0, 1, 0, 1, 4, 5}, {4, 5, 0, 1, 4, 5},
	                         {0, 1, 2, 3, 0, 1}, {1, 1, 3, 3, 5, 5}, {0, 0, 2, 2, 4, 4}};
	for (int change = 0; change < 6; change++) {
		for (int from = 0; from < 6; from++) {
			SetShape(static_cast<PaddleShape>(from));
			Change(change);
			EXPECT_EQ(after[change][from], paddle->shape) << change << " from " << from;
			EXPECT_NE(-1, ShownBumper()) << "exactly one bumper shows";
		}
	}
}

TEST_F(PaddleTest, BumperPlaysToItsNewShapeAndBack)
{
	paddle->BecomeWide();
	EXPECT_EQ(BUMPER_NORMAL_WIDE, ShownBumper());
	const CSprite* bumper = paddle->parts->bumpers[BUMPER_NORMAL_WIDE];
	EXPECT_EQ(0, bumper->Frame());
	Step(12);
	EXPECT_EQ(7, bumper->Frame());
	EXPECT_TRUE(bumper->IsStopped());
	paddle->BecomeSticky();
	EXPECT_EQ(BUMPER_WIDE_STICKY, ShownBumper());
	paddle->EndWide();
	EXPECT_EQ(BUMPER_STICKY_WIDE, ShownBumper());
	Step(12);
	EXPECT_EQ(0, paddle->parts->bumpers[BUMPER_STICKY_WIDE]->Frame());
}

TEST_F(PaddleTest, LaunchPreparationPutsTheBallOnTheCrest)
{
	for (int shape = 0; shape < 6; shape++) {
		SetShape(static_cast<PaddleShape>(shape));
		PutBall(100, 100, 9, 9);
		paddle->ResetBall();
		EXPECT_FLOAT_EQ(static_cast<float>(paddle->GetX()) + 36, ball->x);
		EXPECT_FLOAT_EQ(504, ball->y);
		EXPECT_FLOAT_EQ(-7, ball->vy);
		EXPECT_TRUE(ball->IsHeld());
		EXPECT_EQ(1, paddle->grabGuard);
	}
}

TEST_F(PaddleTest, WallsPushAHeldBallInAndItComesBack)
{
	paddle->SetMouseX(0);
	EXPECT_FLOAT_EQ(15, ball->x);
	paddle->SetMouseX(800);
	EXPECT_FLOAT_EQ(693 - 15, ball->x);
	paddle->SetMouseX(400);
	EXPECT_FLOAT_EQ(static_cast<float>(paddle->GetX()) + 36, ball->x);
}

TEST_F(PaddleTest, StickyBumperGrabsWhereTheBallTouchesAndAimsTheLaunch)
{
	paddle->BecomeSticky();
	paddle->grabGuard = 0;
	float touchX      = static_cast<float>(paddle->GetX()) + 60;
	PutBall(touchX, 480, 0, 9);
	for (int i = 0; i < 6 && !ball->IsHeld(); i++)
		physics->Step();
	ASSERT_TRUE(ball->IsHeld());
	EXPECT_FLOAT_EQ(CPaddle::MEASURE_OFFSET, paddle->ballOffset);
	EXPECT_EQ(1, paddle->grabGuard);
	EXPECT_EQ(0, paddle->bumpStep) << "a sticky bumper does not bump";
	float heldY = ball->y;
	Tick();
	EXPECT_NEAR(touchX, ball->x, 0.01f);
	paddle->SetMouseX(450);
	EXPECT_NEAR(static_cast<float>(paddle->GetX()) + 60, ball->x, 0.01f);
	EXPECT_FLOAT_EQ(heldY, ball->y);
	EXPECT_GT(ball->vx, 0) << "right of the crest it will go right";
	EXPECT_LT(ball->vy, 0);

	ball->SetHeld(false);
	Play(3);
	EXPECT_FALSE(ball->IsHeld()) << "the guard keeps the bumper from grabbing it again";
	EXPECT_LT(ball->y, heldY);
}

TEST_F(PaddleTest, PlainBumperBumps)
{
	const int lifts[] = {4, 3, 0, -2, -1, 0, 0, 0};
	EXPECT_FALSE(paddle->OnBallHit());
	EXPECT_EQ(3, paddle->bumperLift);
	float outlineY = CElement::ObstaclePointList[0]->y;
	for (int lift : lifts) {
		Tick();
		EXPECT_EQ(lift, paddle->bumperLift);
		EXPECT_EQ(505 + lift, paddle->parts->bumpers[0]->Y());
		EXPECT_FLOAT_EQ(outlineY, CElement::ObstaclePointList[0]->y);
	}
	EXPECT_EQ(0, paddle->bumpStep);
}

TEST_F(PaddleTest, LaunchPromptWaitsThenBlinks)
{
	PaddlePrompt& prompt = paddle->parts->launchPrompt;
	prompt.Restart();
	ball->SetHeld(true);
	for (int i = 0; i <= 300; i++) {
		Tick();
		ASSERT_TRUE(prompt.sprite->IsHidden()) << i;
	}
	for (int round = 0; round < 3; round++) {
		for (int i = 0; i < 32; i++) {
			Tick();
			ASSERT_EQ(i >= 24, prompt.sprite->IsHidden()) << round << " " << i;
		}
	}
	Tick();
	ASSERT_FALSE(prompt.sprite->IsHidden());
	PutBall(300, 300, 3, -4);
	Tick();
	EXPECT_TRUE(prompt.sprite->IsHidden()) << "launched";
}

TEST_F(PaddleTest, LaunchCutsTheLostBallMessageShort)
{
	g_play.readyTimer = 210;
	Tick();
	EXPECT_GT(g_play.readyTimer, 45);
	PutBall(300, 300, 3, -4);
	Tick();
	EXPECT_LE(g_play.readyTimer, 45);
}

TEST_F(PaddleTest, StunHoldsPaddleAndPointer)
{
	int x                  = paddle->GetX();
	g_levelGameData->notes = LevelNotes();
	paddle->OnStun(CPaddle::SHORT_STUN);
	EXPECT_TRUE(g_levelGameData->notes.stun);
	EXPECT_EQ(29, paddle->stunFrames);
	EXPECT_TRUE(Shown(PART_SHORT_GLOW) && !Shown(PART_LONG_GLOW) && Shown(PART_CRACKLE));
	paddle->SetMouseX(700);
	EXPECT_EQ(x, paddle->GetX());
	EXPECT_EQ(700, paddle->GetTarget());
	Tick(28);
	EXPECT_TRUE(paddle->IsStunned());
	Tick();
	EXPECT_FALSE(paddle->IsStunned());
	EXPECT_FALSE(Shown(PART_SHORT_GLOW) || Shown(PART_CRACKLE));
	paddle->SetMouseX(700);
	EXPECT_NE(x, paddle->GetX());

	paddle->OnStun(60);
	EXPECT_TRUE(Shown(PART_LONG_GLOW) && !Shown(PART_SHORT_GLOW));
	EXPECT_EQ(60, Part(PART_LONG_GLOW)->FrameCount());
	EXPECT_EQ(30, Part(PART_SHORT_GLOW)->FrameCount());
}

TEST_F(PaddleTest, DestructoFiresTwiceAndNeverWithTheBallHeld)
{
	EXPECT_FALSE(paddle->FireDestructo()) << "nothing is loaded";
	paddle->LoadDestructo();
	EXPECT_FALSE(paddle->FireDestructo()) << "the ball is held";
	EXPECT_EQ(2, paddle->ammo);
	PutBall(300, 300, 3, -4);
	sidebar->timers[TIMER_DESTRUCTO] = UNTIL_USED_UP;
	EXPECT_TRUE(paddle->FireDestructo());
	EXPECT_TRUE(paddle->destructoLoaded);
	EXPECT_GT(sidebar->timers[TIMER_DESTRUCTO], 0);
	EXPECT_TRUE(paddle->FireDestructo());
	EXPECT_FALSE(paddle->destructoLoaded);
	EXPECT_EQ(0, sidebar->timers[TIMER_DESTRUCTO]);
	EXPECT_FALSE(paddle->FireDestructo());
	paddle->LoadDestructo();
	paddle->UnloadDestructo();
	EXPECT_FALSE(paddle->FireDestructo());
}

TEST_F(PaddleTest, RayShowsFromTheBeamsTopToTheBody)
{
	PutBall(300, 300, 3, -4);
	paddle->SetBeamTop(140);
	paddle->LoadDestructo();
	paddle->FireDestructo();
	CSprite* ray = paddle->parts->ray;
	int showing  = 0;
	for (int i = 0; i < 6; i++) {
		Tick();
		showing += !ray->IsHidden();
	}
	EXPECT_EQ(2, showing);
	EXPECT_EQ(140, ray->Y());
	EXPECT_EQ(514 - 140, ray->Height());
	EXPECT_EQ(paddle->GetX() + 38, ray->X() + ray->Width() / 2);
}

TEST_F(PaddleTest, RayBreaksWhatStandsInItsLine)
{
	int line    = paddle->GetX() + 38;
	CCrate* hit = new CCrate(line, 300, 0, 0, 0, false, false, false, nullptr, 0);
	CCrate* far = new CCrate(line - 150, 300, 0, 0, 0, false, false, false, nullptr, 0);
	PutBall(300, 400, 3, 4);
	paddle->LoadDestructo();
	paddle->FireDestructo();
	EXPECT_TRUE(hit->broken);
	EXPECT_FALSE(far->broken);
}

TEST_F(PaddleTest, RayPromptGivesWayToTheLaunchPrompt)
{
	PaddlePrompt &launch = paddle->parts->launchPrompt, &ray = paddle->parts->rayPrompt;
	paddle->LoadDestructo();
	PutBall(300, 300, 3, -4);
	ball->vx = ball->vy = 0; // it hangs: no physics here
	int shown           = 0;
	for (int i = 0; i < 340; i++) {
		paddle->Update();
		shown += !ray.sprite->IsHidden();
	}
	EXPECT_GT(shown, 20);
	EXPECT_FALSE(paddle->parts->sign->IsHidden());
	ball->held = true;
	for (int i = 0; i < 40; i++) {
		paddle->Update();
		EXPECT_TRUE(ray.sprite->IsHidden());
	}
	ball->held   = false;
	launch.timer = PaddlePrompt::TIMER_OFF;
	paddle->Update();
	EXPECT_FALSE(launch.IsBlinking()) << "launched: the launch prompt starts over";
	paddle->UnloadDestructo();
	paddle->Update();
	EXPECT_TRUE(paddle->parts->sign->IsHidden());
	EXPECT_EQ(PaddlePrompt::WAIT, ray.timer);
}

TEST_F(PaddleTest, FanBlowsTheBallAndIsNoted)
{
	g_levelGameData->notes = LevelNotes();
	PutBall(static_cast<float>(paddle->GetX()), 300, 0, -6);
	paddle->FanOn();
	EXPECT_TRUE(g_levelGameData->notes.fan);
	paddle->Update();
	EXPECT_NEAR(-7, ball->vy, 1e-3f);
	EXPECT_EQ(1, Part(PART_LEFT_FAN)->direction);
	paddle->FanOff();
	paddle->Update();
	EXPECT_TRUE(Part(PART_LEFT_FAN)->IsStopped());
	EXPECT_NEAR(-6, ball->vy, 1e-3f) << "eases back to the speed it had";
}

TEST_F(PaddleTest, SlowDriveBurnsTheSlowFlameOfTheOtherSide)
{
	g_levelGameData->notes = LevelNotes();
	Drive(10, 1);
	EXPECT_EQ(FLAME_STARTING, paddle->leftFlame);
	EXPECT_TRUE(Shown(FlamePart(FLAME_LEFT, FLAMES_SLOW, PHASE_START)));
	Drive(10, 14);
	EXPECT_EQ(FLAME_LOOPING, paddle->leftFlame);
	EXPECT_TRUE(Shown(FlamePart(FLAME_LEFT, FLAMES_SLOW, PHASE_LOOP)));
	EXPECT_FALSE(Shown(FlamePart(FLAME_LEFT, FLAMES_SLOW, PHASE_START)));
	EXPECT_EQ(FLAME_OFF, paddle->rightFlame);
	EXPECT_TRUE(Shown(MOVE_RIGHT_SLOW));
	Step(2);
	EXPECT_EQ(FLAME_GOING_OUT, paddle->leftFlame);
	Step(14);
	EXPECT_EQ(FLAME_OFF, paddle->leftFlame);
	EXPECT_TRUE(Shown(PART_PROFESSOR));
	EXPECT_FALSE(g_levelGameData->notes.fastPaddle);
}

TEST_F(PaddleTest, OneLongMoveTurnsTheFlamesFastUntilBothAreOut)
{
	paddle->SetMouseX(700);
	Step(40);
	g_levelGameData->notes = LevelNotes();
	Drive(-20, 3);
	EXPECT_TRUE(paddle->slowFlames) << "the pointer's 20 pixels are 17 of the paddle";
	Step(40);
	Drive(-60, 1);
	EXPECT_FALSE(paddle->slowFlames);
	EXPECT_TRUE(Shown(FlamePart(FLAME_RIGHT, FLAMES_FAST, PHASE_START)));
	Drive(-5, 3);
	EXPECT_FALSE(paddle->slowFlames) << "it stays fast while the flame burns";
	EXPECT_TRUE(g_levelGameData->notes.fastPaddle);
	Step(40);
	EXPECT_TRUE(paddle->slowFlames);
	for (int i = FlamePart(0, 0, 0); i < PART_PROFESSOR; i++)
		EXPECT_FALSE(Shown(i));
}

TEST_F(PaddleTest, FastFlameTakesOverFromTheSlowOneAtItsFrame)
{
	paddle->SetMouseX(200);
	Step(40);
	Drive(10, 6);
	int frame = Part(FlamePart(FLAME_LEFT, FLAMES_SLOW, PHASE_START))->Frame();
	ASSERT_GT(frame, 2);
	Drive(60, 1);
	const CSprite* fast = Part(FlamePart(FLAME_LEFT, FLAMES_FAST, PHASE_START));
	EXPECT_FALSE(fast->IsHidden());
	EXPECT_FALSE(Shown(FlamePart(FLAME_LEFT, FLAMES_SLOW, PHASE_START)));
	EXPECT_EQ(frame + 1, fast->Frame());
}

TEST_F(PaddleTest, ChangeOfDirectionTurnsTheProfessor)
{
	Drive(10, 5);
	Drive(-10, 2);
	EXPECT_TRUE(Shown(MOVE_LEFT_RIGHT_SLOW));
	EXPECT_FALSE(Shown(PART_PROFESSOR));
	Drive(60, 4);
	Drive(-60, 2);
	EXPECT_TRUE(Shown(MOVE_LEFT_RIGHT_FAST) || Shown(MOVE_RIGHT_LEFT_FAST));
}

TEST_F(PaddleTest, WheelsTurnWithTheDriveAndStopAfterIt)
{
	Drive(10, 2);
	EXPECT_EQ(1, Part(PART_LEFT_WHEEL)->direction);
	Drive(-10, 1);
	EXPECT_EQ(-1, Part(PART_RIGHT_WHEEL)->direction);
	Step(2);
	EXPECT_EQ(-1, Part(PART_RIGHT_WHEEL)->direction);
	Step(1);
	EXPECT_EQ(0, Part(PART_RIGHT_WHEEL)->direction);
}

TEST_F(PaddleTest, WorksWithoutABall)
{
	RemoveFromElementList(ball);
	delete ball;
	EXPECT_EQ(nullptr, g_ball);
	paddle->SetMouseX(300);
	paddle->ResetBall();
	paddle->BecomeSticky();
	EXPECT_FALSE(paddle->OnBallHit());
	paddle->FanOn();
	paddle->Update();
	paddle->LoadDestructo();
	EXPECT_TRUE(paddle->FireDestructo());
}
