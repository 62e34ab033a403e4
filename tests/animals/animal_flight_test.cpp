// Flight from a perch, and where it ends.
#include "animals/animal_test_support.h"

#include "field/crate.h"
#include "field/fence.h"
#include "field/fence_post.h"
#include "frame/random.h"
#include "media/sprite.h"

#include <cmath>

// clang-format off
static const BodyPoint s_body[] = { { 5, 10 }, { 10, 20 }, { 20, 10 } };
static const ActionRow s_rows[] = {
	{ "stand",       ACTION_IDLE,   ".",   0, ROLE_NONE,   "" },
	{ "quack",       ACTION_BUMP,   "0-7", 0, ROLE_BUMP,   "", { .perched = true } },
	{ "walkup",      ACTION_FLIGHT, "0-7", 0, ROLE_FLIGHT, "glide", { .time = Between(30, 120) } },
	{ "glide:walkup", ACTION_FLIGHT, "0-7", 0, ROLE_NONE,  "walkup" },
};
static const SpeciesTable BIRD = { "duck", s_rows, {}, s_body, {}, {} };
// clang-format on

class FlightTest : public AnimalTest
{
protected:
	static CCrate* Crate(int x, int y)
	{
		return new CCrate(x, y, 0, 0, 0, false, false, false, nullptr, 0);
	}
	static CTestAnimal* BirdOn(CCrate* crate)
	{
		CTestAnimal* bird = new CTestAnimal(BIRD, 300, 200);
		bird->FlyAsPerchingBird();
		bird->crateOffsetLeft = 4;
		bird->crateOffsetY    = -2;
		bird->ClearBody();
		bird->PlaceOn(crate, true);
		return bird;
	}
	// True when it came down within the time.
	bool FlyOut(CTestAnimal* bird)
	{
		for (int i = 0; i < 6000 && bird->flying; i++) {
			Run();
			if (bird->flying && bird->y - bird->z < -20)
				ADD_FAILURE() << "left the screen";
		}
		return !bird->flying;
	}
};

TEST_F(FlightTest, APerchedBirdHasNoOutlineAndSitsOnItsPerch)
{
	CCrate* crate     = Crate(300, 300);
	CTestAnimal* bird = BirdOn(crate);
	Run(5);
	Perch perch = crate->PerchPlace();
	EXPECT_EQ(bird, crate->occupant);
	EXPECT_TRUE(bird->perched);
	EXPECT_EQ(nullptr, bird->firstPoint);
	EXPECT_FLOAT_EQ(perch.x - bird->collisionSprite->Width() / 2 + 4, bird->x);
	EXPECT_FLOAT_EQ(perch.y - 2, bird->y + bird->collisionSprite->Height());
	EXPECT_FLOAT_EQ(perch.z, bird->z);
	EXPECT_EQ(CCrate::OccupantDepth(bird), bird->currentSprite->Depth());
}

TEST_F(FlightTest, WithoutAFreePerchItLandsOnOpenGroundForGood)
{
	WallIn();
	CCrate* crate     = Crate(300, 300);
	CTestAnimal* bird = BirdOn(crate);
	ScatterPoints(12);
	bird->BeginFlight();
	EXPECT_TRUE(bird->flying);
	Run(2);
	EXPECT_EQ(CElementAnimal::FLIGHT_DEPTH, bird->currentSprite->Depth());
	ASSERT_TRUE(FlyOut(bird));
	EXPECT_EQ(0, bird->z);
	EXPECT_FALSE(bird->perched);
	EXPECT_FALSE(AnyObstacleNear(static_cast<int>(bird->x), static_cast<int>(bird->y), 40));
	EXPECT_EQ(bird->idleAction, bird->currentAction);
	Run();
	EXPECT_NE(nullptr, bird->firstPoint) << "on the ground it can be caught";
}

TEST_F(FlightTest, WithManyFreePerchesItMostlyTakesOneAndMarksItAtOnce)
{
	std::vector<CCrate*> crates;
	for (int i = 0; i < 30; i++)
		crates.push_back(Crate(60 + 60 * (i % 10), 220 + 80 * (i / 10)));
	CTestAnimal* bird = BirdOn(crates[0]);
	int perches       = 0;
	for (int i = 0; i < 60; i++) {
		for (CCrate* crate : crates)
			crate->occupant = nullptr;
		bird->ChooseLandingSpot();
		if (bird->landsOnGround)
			continue;
		perches++;
		int marked = 0;
		for (CCrate* crate : crates)
			marked += crate->occupant == bird;
		EXPECT_EQ(1, marked);
	}
	EXPECT_GT(perches, 5);
	EXPECT_LT(perches, 60) << "the ground stays a choice";

	do {
		for (CCrate* crate : crates)
			crate->occupant = nullptr;
		bird->flying = bird->descending = true;
		bird->ChooseLandingSpot();
	} while (bird->landsOnGround);
	bird->currentAction = bird->flightAction;
	bird->flightCounter = 0;
	ASSERT_TRUE(FlyOut(bird));
	EXPECT_TRUE(bird->perched);
	EXPECT_FLOAT_EQ(bird->landY, bird->y);
	EXPECT_EQ(nullptr, bird->firstPoint);
}

TEST_F(FlightTest, FewPerchesAreNeverTaken)
{
	CTestAnimal* bird = BirdOn(Crate(60, 300));
	for (int i = 1; i < 8; i++)
		Crate(60 + 60 * i, 300);
	for (int i = 0; i < 20; i++) {
		bird->ChooseLandingSpot();
		EXPECT_TRUE(bird->landsOnGround);
	}
}

TEST_F(FlightTest, AFieldWithoutRoomKeepsItInTheAir)
{
	CTestAnimal* bird = BirdOn(Crate(300, 300));
	CElement* scenery = new CTestScenery;
	for (int y = 280; y < 480; y += 30) {
		for (int x = 0; x < 693; x += 30)
			AddObstaclePoint(scenery, static_cast<float>(x), static_cast<float>(y));
	}
	bird->BeginFlight();
	Run(600);
	EXPECT_TRUE(bird->flying);
	RemoveObstaclePoints(scenery);
	EXPECT_TRUE(FlyOut(bird)) << "and it lands when there is room again";
}

TEST_F(FlightTest, WhatHasNoFlightStaysPut)
{
	CTestAnimal* bird  = BirdOn(Crate(300, 300));
	bird->flightAction = nullptr;
	bird->BeginFlight();
	EXPECT_FALSE(bird->flying);
}
