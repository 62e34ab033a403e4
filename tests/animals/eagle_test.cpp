// The eagle: its life at rest, its states in the air, and where the ball can reach it.
#include "animals/eagle.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/fence_post.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <set>

class EagleTest : public AnimalTest
{
protected:
	static CCrate* Crate(int x, int y)
	{
		return new CCrate(x, y, 0, 0, 0, false, false, false, nullptr, 0);
	}
	static bool Aloft(const CEagle* eagle) { return eagle->state >= CElementBird::FLAP_UP; }
	bool LandsWithin(CEagle* eagle, int frames)
	{
		for (int i = 0; i < frames && eagle->flying; i++)
			Run();
		return !eagle->flying;
	}
};

TEST_F(EagleTest, OnAPerchItStandsBlinksLooksAndRufflesOutOfReach)
{
	CFencePost* post = new CFencePost(200, 300);
	CFence* fence    = new CFence(post, FENCE_RIGHT, 0, true);
	CEagle* birds[]  = {new CEagle(Crate(400, 300), true), new CEagle(fence, false)};
	EXPECT_EQ(birds[1], fence->occupant);
	for (CEagle* eagle : birds) {
		float x = eagle->x, y = eagle->y;
		std::set<int> states;
		for (int i = 0; i < 4000; i++) {
			Run();
			states.insert(eagle->state);
			ASSERT_EQ(nullptr, eagle->firstPoint);
		}
		EXPECT_EQ((std::set<int>{CEagle::STAND, CEagle::BLINK, CEagle::LOOK, CEagle::RUFFLE}),
		          states);
		EXPECT_EQ(x, eagle->x);
		EXPECT_EQ(y, eagle->y);
	}
}

TEST_F(EagleTest, AHitOnItsPerchSendsItUpBeatingAndGlidingByTurns)
{
	MakeBallAndPaddle();
	CCrate* crate = Crate(350, 400);
	CEagle* eagle = new CEagle(crate, true);
	crate->BreakDown(false);
	EXPECT_TRUE(eagle->flying);
	EXPECT_EQ(CElementBird::FLAP_UP, eagle->state);
	std::set<int> states;
	std::set<CSprite*> pictures;
	for (int i = 0; i < 1500; i++) {
		eagle->flightCounter = 60; // it does not come down
		Run();
		ASSERT_TRUE(eagle->state >= CElementBird::FLAP_UP && eagle->state <= CEagle::GLIDE_DOWN);
		ASSERT_EQ(nullptr, eagle->firstPoint);
		ASSERT_EQ(CElementAnimal::FLIGHT_DEPTH, eagle->currentSprite->Depth());
		ASSERT_GE(eagle->y - eagle->z, -3) << "it turns at the upper edge";
		ASSERT_LE(eagle->y - eagle->z, 500) << "and at the lower one";
		ASSERT_TRUE(eagle->x > -3 && eagle->x < 693);
		states.insert(eagle->state);
		pictures.insert(eagle->currentSprite);
	}
	EXPECT_EQ(4u, states.size());
	EXPECT_EQ(8u, pictures.size()) << "four states on two sides";
}

TEST_F(EagleTest, ItsStateSaysWhetherItRisesOrSinks)
{
	CEagle* eagle = new CEagle(Crate(350, 300), true);
	eagle->BeginFlight();
	for (int state : {CElementBird::FLAP_UP, CElementBird::FLAP_DOWN, CElementBird::GLIDE_UP,
	                  CElementBird::GLIDE_DOWN}) {
		eagle->state         = state;
		eagle->flightCounter = 60;
		float y              = eagle->y;
		eagle->UpdateFlight();
		bool up = state == CElementBird::FLAP_UP || state == CElementBird::GLIDE_UP;
		EXPECT_EQ(up, eagle->y < y) << state;
	}
	eagle->landX = eagle->x;
	eagle->landY = eagle->y + 50;
	eagle->state = CElementBird::GLIDE_UP;
	eagle->FaceLandingSpot();
	EXPECT_EQ(CElementBird::GLIDE_DOWN, eagle->state) << "the landing spot turns it, not its beat";
	EXPECT_TRUE(eagle->facingLeft) << "right below counts as left";
	eagle->landY = eagle->y;
	eagle->FaceLandingSpot();
	EXPECT_EQ(CElementBird::GLIDE_UP, eagle->state);
	eagle->state = CEagle::STUNNED;
	eagle->FaceLandingSpot();
	EXPECT_EQ(CEagle::STUNNED, eagle->state) << "a state of the ground stays";
}

TEST_F(EagleTest, WithoutAPerchItLandsOnOpenGroundAndCanBeCaughtThere)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	SetBallStage(9);
	CCrate* crate = Crate(350, 300);
	CEagle* eagle = new CEagle(crate, true);
	crate->BreakDown(true);
	ASSERT_TRUE(LandsWithin(eagle, 6000));
	EXPECT_EQ(0, eagle->z);
	EXPECT_FALSE(eagle->perched);
	EXPECT_EQ(CEagle::STAND, eagle->state);
	EXPECT_NE(nullptr, eagle->firstPoint);

	EXPECT_FALSE(eagle->OnBallHit());
	EXPECT_EQ(CEagle::STUNNED, eagle->state);
	Run(4);
	int frame = eagle->currentSprite->Frame();
	EXPECT_FALSE(eagle->OnBallHit());
	EXPECT_EQ(frame, eagle->currentSprite->Frame()) << "it is frightened once at a time";
	Run(60);
	EXPECT_NE(CEagle::STUNNED, eagle->state);

	SetBallStage(10);
	EXPECT_TRUE(eagle->OnBallHit());
	EXPECT_TRUE(eagle->dead);
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(SPECIES_EAGLE));
}

TEST_F(EagleTest, FromPerchToPerchItStaysOutOfReach)
{
	std::vector<CCrate*> crates;
	for (int i = 0; i < 30; i++)
		crates.push_back(Crate(60 + 60 * (i % 10), 220 + 80 * (i / 10)));
	CEagle* eagle = new CEagle(crates[0], true);
	do {
		for (CCrate* crate : crates)
			crate->occupant = nullptr;
		eagle->BeginFlight();
		eagle->flightCounter = 0;
		Run();
	} while (eagle->landsOnGround);
	ASSERT_TRUE(LandsWithin(eagle, 6000));
	Run();
	EXPECT_FALSE(Aloft(eagle));
	EXPECT_TRUE(eagle->perched);
	EXPECT_EQ(nullptr, eagle->firstPoint);
	EXPECT_EQ(eagle->landZ, eagle->z);
}
