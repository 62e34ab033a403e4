// A field to test on: the services, no level, and on demand ball, paddle, panel and shield.
#pragma once

#include "field/ball_physics.h"
#include "support/world.h"

#include <gtest/gtest.h>
#include <memory>

class CBall;
class CBarrier;
class CPaddle;
class CSidebar;

// Each test starts with an empty field, a fresh profile, the counters of a new run and the seed 1.
class FieldTest : public testing::Test
{
protected:
	static void SetUpTestSuite();
	static void TearDownTestSuite();
	void SetUp() override;
	void TearDown() override;

	// Panel, paddle, ball, shield and physics, made and published in the level runner's order.
	void MakeBallAndPaddle();
	void Tick(int frames = 1);                          // the elements only
	void Play(int frames = 1);                          // physics, then the elements
	void PutBall(float x, float y, float vx, float vy); // in flight
	void SetBallStage(int stage);                       // with no sound and no easing

	static std::unique_ptr<CWorld> s_world;
	CSidebar* sidebar = nullptr;
	CPaddle* paddle   = nullptr;
	CBall* ball       = nullptr;
	CBarrier* barrier = nullptr;
	std::unique_ptr<BallPhysics> physics;
};
