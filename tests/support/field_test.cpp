// A field to test on: the services, no level, and on demand ball, paddle, panel and shield.
#include "support/field_test.h"

#include "animals/animal.h"
#include "field/background.h"
#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/barrier.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "state/game_data.h"

std::unique_ptr<CWorld> FieldTest::s_world;

void FieldTest::SetUpTestSuite()
{
	s_world = std::make_unique<CWorld>();
}

void FieldTest::TearDownTestSuite()
{
	s_world.reset();
}

void FieldTest::SetUp()
{
	SeedRandom(1);
	g_play = PlayCounters();
	g_gameData->ResetProfileDefaults();
	g_gameData->OnLevelStart(1);
	CElement::FrameCounter         = 0;
	CElementAnimal::hintTimer      = -1;
	CElementAnimal::hintBaseCount  = -1;
	CElementAnimal::animalSoundsOn = true;
}

void FieldTest::TearDown()
{
	physics.reset();
	ClearField();
	g_ball       = nullptr;
	g_paddle     = nullptr;
	g_barrier    = nullptr;
	g_sidebar    = nullptr;
	g_background = nullptr;
}

void FieldTest::MakeBallAndPaddle()
{
	sidebar = g_sidebar = new CSidebar();
	paddle = g_paddle = new CPaddle();
	ball = g_ball = new CBall();
	barrier = g_barrier = new CBarrier(ball);
	physics             = std::make_unique<BallPhysics>(ball, paddle);
}

void FieldTest::Tick(int frames)
{
	for (int i = 0; i < frames; i++)
		FieldTick();
}

void FieldTest::Play(int frames)
{
	for (int i = 0; i < frames; i++) {
		physics->Step();
		FieldTick();
	}
}

void FieldTest::PutBall(float x, float y, float vx, float vy)
{
	ball->held = false;
	ball->x    = x;
	ball->y    = y;
	ball->vx   = vx;
	ball->vy   = vy;
}

void FieldTest::SetBallStage(int stage)
{
	ball->SetStage(stage);
}
