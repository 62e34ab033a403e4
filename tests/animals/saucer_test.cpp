// The saucer, its shots, and the alien that falls out of it.
#include "animals/alien.h"
#include "animals/alien_shot.h"
#include "animals/ufo.h"
#include "animals/animal_test_support.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/fence.h"
#include "field/fence_post.h"
#include "field/obstacle_grid.h"
#include "field/paddle.h"
#include "field/rock.h"
#include "field/sidebar.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <set>

class SaucerTest : public AnimalTest
{
protected:
	static CCrate* Crate(int x, int y)
	{
		return new CCrate(x, y, 0, 0, 0, false, false, false, nullptr, 0);
	}
	static std::vector<CAlienShot*> Shots()
	{
		std::vector<CAlienShot*> shots;
		for (CElement* element : CElement::ElementList)
			if (CAlienShot* shot = dynamic_cast<CAlienShot*>(element))
				shots.push_back(shot);
		return shots;
	}
	static CAlien* TheAlien()
	{
		for (CElementAnimal* animal : CElementAnimal::AnimalList)
			if (CAlien* alien = dynamic_cast<CAlien*>(animal))
				return alien;
		return nullptr;
	}
	// A shot right above a point on the ground that it will meet.
	static CAlienShot* ShotOver(float x, float y, int stun = 30)
	{
		CAlienShot* shot = new CAlienShot(x + 8, y - 60, stun, nullptr, nullptr);
		shot->fallSpeed  = 5;
		return shot;
	}
	void RunWhileFalling(const CAlienShot* shot)
	{
		for (int i = 0; i < 200 && !shot->shotSprite->IsHidden(); i++)
			Run();
		EXPECT_TRUE(shot->shotSprite->IsHidden());
	}
	static CAlien* LandedAlien(int x, int y, bool boss = false)
	{
		CAlien* alien = new CAlien(x, y, boss);
		alien->StandAtOnce();
		return alien;
	}
};

TEST_F(SaucerTest, ItDriftsInsideTheFieldAndItsOutlineIsClosedAndGoesAlong)
{
	WallIn(60);
	CUFO* saucer = new CUFO(340, 220, false);
	EXPECT_EQ(1, CElementAnimal::CountToRescue());
	std::set<int> columns;
	for (int i = 0; i < 2000; i++) {
		Run();
		ASSERT_GT(saucer->CentreX(), 38);
		ASSERT_LT(saucer->CentreX(), 693 - 38);
		ASSERT_LT(saucer->CentreY(), 480 - 38);
		ASSERT_LE(std::max(std::abs(saucer->vx), std::abs(saucer->vy)), 3);
		columns.insert(static_cast<int>(saucer->x) / 50);
	}
	EXPECT_GT(columns.size(), 4u);
	const std::vector<ObstaclePoint*>& ring = saucer->bodyPoints;
	ASSERT_GE(ring.size(), 6u);
	EXPECT_FLOAT_EQ(saucer->x + saucer->bodyOffsetX[0], ring[0]->x);
	for (size_t i = 0; i < ring.size(); i++) {
		const ObstaclePoint* next = ring[(i + 1) % ring.size()];
		EXPECT_LE(PointDistance(ring[i]->x, ring[i]->y, next->x, next->y),
		          int(CElement::JOIN_DISTANCE));
	}
}

TEST_F(SaucerTest, ItSteersTowardThePaddle)
{
	MakeBallAndPaddle();
	CUFO* saucer = new CUFO(340, 220, false);
	for (int mouse : {0, 800}) {
		paddle->SetMouseX(mouse);
		for (int i = 0; i < 50; i++) {
			saucer->steerTimer = 0;
			saucer->Update();
			EXPECT_TRUE(mouse == 0 ? saucer->accelX <= 0 : saucer->accelX >= 0);
			EXPECT_LE(std::abs(saucer->accelX), 0.2f);
			EXPECT_TRUE(saucer->steerTimer >= 30 && saucer->steerTimer < 60);
		}
	}
}

TEST_F(SaucerTest, WhatIsInTheWayTurnsItBackAtAFifthOfItsSpeed)
{
	CUFO* saucer = new CUFO(340, 220, false);
	AddObstaclePoint(new CTestScenery, saucer->CentreX() + 39, saucer->CentreY());
	saucer->steerTimer = 20;
	saucer->vx         = 3;
	saucer->vy         = 1;
	float x            = saucer->x;
	saucer->Update();
	EXPECT_EQ(x, saucer->x);
	EXPECT_FLOAT_EQ(-0.6f, saucer->vx);
	EXPECT_FLOAT_EQ(-0.2f, saucer->vy);
	EXPECT_EQ(0, saucer->steerTimer);
}

TEST_F(SaucerTest, ItChargesThenFiresAndABossDoesSoFasterAndStunsForLonger)
{
	for (bool boss : {false, true}) {
		CUFO* saucer      = new CUFO(340, 220, boss);
		saucer->fireTimer = 1;
		Run();
		EXPECT_EQ(saucer->antennaCharge, saucer->antennaSprite);
		Run(25);
		EXPECT_EQ(saucer->antennaVibrate, saucer->antennaSprite);
		EXPECT_EQ(saucer->pilotFire, saucer->pilotSprite) << "the pilot raises his gun";
		Run((boss ? 30 : 90) - 25);
		EXPECT_TRUE(Shots().empty());
		float muzzle = 0;
		Run();
		ASSERT_EQ(1u, Shots().size());
		CAlienShot* shot = Shots()[0];
		muzzle           = saucer->CentreX() + 2;
		EXPECT_FLOAT_EQ(muzzle, shot->x);
		EXPECT_FLOAT_EQ(saucer->y, shot->y);
		EXPECT_EQ(boss ? 60 : 30, shot->stunFrames);
		EXPECT_EQ(saucer, shot->firedByUfo);
		EXPECT_EQ(saucer->pilotFireBack, saucer->pilotSprite);
		EXPECT_EQ(saucer->antennaFire, saucer->antennaSprite);
		EXPECT_TRUE(saucer->fireTimer >= 30 && saucer->fireTimer <= (boss ? 90 : 60));
		EXPECT_LT(shot->shotSprite->Depth(), saucer->currentSprite->Depth()) << "behind the hull";
		for (int i = 0; i < 21 && !shot->shotSprite->IsHidden(); i++)
			Run();
		EXPECT_GT(shot->shotSprite->Depth(), saucer->currentSprite->Depth());
		ClearField();
	}
}

TEST_F(SaucerTest, ThePilotLeansBackAndForthWithTheFlight)
{
	CUFO* saucer      = new CUFO(340, 220, false);
	saucer->fireTimer = 10000;
	auto fly          = [&](float speed) {
        saucer->vx = speed;
        saucer->Place();
	};
	fly(-2.5f);
	EXPECT_EQ(saucer->pilotMoveLeft[0], saucer->pilotSprite);
	fly(2);
	EXPECT_EQ(saucer->pilotMoveLeft[1], saucer->pilotSprite);
	fly(2.5f);
	EXPECT_EQ(saucer->pilotMoveRight[0], saucer->pilotSprite);
	EXPECT_TRUE(saucer->pilotSit->IsHidden());
	saucer->Laugh();
	fly(2.5f);
	EXPECT_EQ(saucer->pilotLaugh, saucer->pilotSprite) << "a laugh is had out";
	for (int i = 0; i < 60; i++) {
		StepSprites();
		fly(0);
	}
	EXPECT_EQ(saucer->pilotSit, saucer->pilotSprite);
}

TEST_F(SaucerTest, SixHitsOfABigBallBlowItUpAndTheAlienFallsOut)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	CUFO* saucer      = new CUFO(340, 220, true);
	saucer->fireTimer = 10000;
	SetBallStage(9);
	EXPECT_FALSE(saucer->OnBallHit());
	EXPECT_EQ(0, saucer->damage) << "too small a ball";
	EXPECT_EQ(saucer->pilotStunned, saucer->pilotSprite);

	SetBallStage(10);
	for (int stage = 1; stage <= 5; stage++) {
		EXPECT_FALSE(saucer->OnBallHit());
		ASSERT_EQ(stage, saucer->damage);
		EXPECT_EQ(saucer->hullSprites[stage], saucer->currentSprite);
		EXPECT_FALSE(saucer->rimSprites[stage]->IsHidden());
		EXPECT_TRUE(saucer->hullSprites[stage - 1]->IsHidden());
		EXPECT_FALSE(saucer->OnBallHit());
		EXPECT_EQ(stage, saucer->damage) << "the hull is still buckling";
		Run(20);
	}
	EXPECT_EQ(nullptr, TheAlien());
	g_play.levelScore = 0;
	int middle        = static_cast<int>(saucer->CentreX());
	int top           = static_cast<int>(saucer->y);
	EXPECT_FALSE(saucer->OnBallHit());
	EXPECT_TRUE(saucer->dead);
	EXPECT_EQ(nullptr, saucer->firstPoint);
	EXPECT_EQ(500, g_play.levelScore);
	for (const CSprite* part : {saucer->currentSprite, saucer->lightsSprite, saucer->domeSprite,
	                            saucer->shadowSprite, saucer->pilotSprite, saucer->antennaSprite})
		EXPECT_TRUE(part->IsHidden());
	EXPECT_FALSE(saucer->explosionSprite->IsHidden());
	CAlien* alien = TheAlien();
	ASSERT_NE(nullptr, alien);
	EXPECT_TRUE(alien->boss);
	EXPECT_NEAR(middle + 2, alien->CentreX(), 0.5);
	EXPECT_NEAR(top - 5, alien->CentreY(), 0.5);
	EXPECT_EQ(1, CElementAnimal::CountToRescue()) << "the alien in place of the saucer";
	Run(40);
	EXPECT_TRUE(saucer->explosionSprite->IsHidden());
	EXPECT_FALSE(saucer->OnBallHit());
	EXPECT_EQ(1, CElementAnimal::CountToRescue());
}

TEST_F(SaucerTest, TheRayOfThePaddleCountsThreeStagesWhereItReaches)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	CUFO* saucer = new CUFO(340, 220, false);
	int reach    = saucer->collisionSprite->Width() / 2 + 5;
	saucer->OnBlast(340 + reach + 1, 5);
	EXPECT_EQ(0, saucer->damage);
	saucer->OnBlast(340 + reach, 5);
	EXPECT_EQ(3, saucer->damage);
	saucer->damage = 4;

	paddle->LoadDestructo();
	paddle->SetMouseX(0);
	EXPECT_TRUE(paddle->FireDestructo());
	EXPECT_FALSE(saucer->dead) << "the paddle stands elsewhere";
	paddle->SetMouseX(static_cast<int>(saucer->CentreX() / 693 * 800));
	EXPECT_TRUE(paddle->FireDestructo());
	EXPECT_TRUE(saucer->dead) << "past six at once";
	ASSERT_NE(nullptr, TheAlien());
}

TEST_F(SaucerTest, ItIsNeverPointedAt)
{
	CUFO* saucer       = new CUFO(340, 220, false);
	saucer->hintFrames = 100;
	Run();
	EXPECT_TRUE(saucer->hintArrow->IsHidden());
	EXPECT_TRUE(saucer->hintText->IsHidden());
}

TEST_F(SaucerTest, AShotBreaksCratesAndFencesSilently)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	CCrate* crate     = Crate(200, 300);
	CFencePost* post  = new CFencePost(400, 300);
	CFence* fence     = new CFence(post, FENCE_RIGHT, 0, true);
	g_play.levelScore = 0;
	for (CElement* target : {static_cast<CElement*>(crate), static_cast<CElement*>(fence)}) {
		const ObstaclePoint* point = target->firstPoint;
		ASSERT_NE(nullptr, point);
		CAlienShot* shot = ShotOver(point->x, point->y);
		RunWhileFalling(shot);
		EXPECT_FALSE(shot->splashSprite->IsHidden());
		Run(30);
		EXPECT_TRUE(shot->splashSprite->IsHidden());
	}
	EXPECT_TRUE(crate->broken);
	EXPECT_TRUE(fence->broken);
	EXPECT_EQ(0, g_play.levelScore);
}

TEST_F(SaucerTest, AShotPassesAnimalsAndEndsBelowTheScreenOrOnARock)
{
	CElementAnimal* cow = NewAnimal(SPECIES_COW, 200, 300, true);
	CAlienShot* shot    = ShotOver(cow->firstPoint->x, cow->firstPoint->y);
	RunWhileFalling(shot);
	EXPECT_FALSE(cow->dead);
	EXPECT_TRUE(shot->splashSprite->IsHidden()) << "it met nothing";
	EXPECT_GE(shot->y, 600);

	CRock* rock = new CRock(450, 300, 0, 0, false);
	shot        = ShotOver(rock->firstPoint->x, rock->firstPoint->y);
	RunWhileFalling(shot);
	EXPECT_FALSE(shot->splashSprite->IsHidden());
	EXPECT_FALSE(rock->dead);
}

TEST_F(SaucerTest, AShotStunsThePaddleByItsOutlineOrItsBodyAndTheShooterLaughs)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	paddle->SetMouseX(400);
	CUFO* saucer      = new CUFO(340, 220, false);
	saucer->fireTimer = 10000;
	int middle        = paddle->GetX() + 35;
	CAlienShot* shot  = new CAlienShot(middle + 8.0f, 440, 30, nullptr, saucer);
	RunWhileFalling(shot);
	EXPECT_TRUE(paddle->IsStunned());
	EXPECT_EQ(saucer->pilotLaugh, saucer->pilotSprite);
	EXPECT_FALSE(shot->splashSprite->IsHidden());
	Run(40);
	EXPECT_FALSE(paddle->IsStunned());

	RemoveObstaclePoints(paddle);
	CAlien* alien = LandedAlien(200, 200);
	shot          = new CAlienShot(middle + 8.0f + 45, 440, 60, alien, nullptr);
	RunWhileFalling(shot);
	EXPECT_TRUE(paddle->IsStunned());
	EXPECT_STREQ("laugh", alien->currentAction->name);
	Run(70);
	shot = new CAlienShot(middle + 8.0f + 46, 440, 60, alien, nullptr);
	RunWhileFalling(shot);
	EXPECT_FALSE(paddle->IsStunned()) << "just beside it";
}

TEST_F(SaucerTest, TheAlienLandsFirstAndTheBallPassesItMeanwhile)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	SetBallStage(18);
	CAlien* alien = new CAlien(300, 250, false);
	for (int i = 0; i < 29; i++) {
		EXPECT_FALSE(alien->OnBallHit());
		ASSERT_FALSE(alien->stunnedOnce);
		Run();
		ASSERT_EQ(nullptr, alien->firstPoint) << "frame " << i;
		ASSERT_GT(alien->z, 0);
	}
	Run();
	EXPECT_EQ(0, alien->z);
	EXPECT_NE(nullptr, alien->firstPoint);
	EXPECT_FALSE(alien->OnBallHit());
	EXPECT_TRUE(alien->stunnedOnce);
}

TEST_F(SaucerTest, OneHitStunsTheAlienAndASecondInTimeTakesIt)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	SetBallStage(10);
	CAlien* alien = LandedAlien(300, 250);
	Run();
	float standing = alien->bodyOffsetY[0];
	EXPECT_FALSE(alien->OnBallHit());
	EXPECT_FALSE(alien->OnBallHit()) << "in the same moment";
	EXPECT_NE(standing, alien->bodyOffsetY[0]) << "it goes down";
	Run(2);
	EXPECT_FALSE(alien->hintArrow->IsHidden());
	EXPECT_FALSE(alien->hintText->IsHidden()) << "take it now";
	EXPECT_FALSE(alien->OnBallHit());
	EXPECT_FALSE(alien->dead) << "not before it reels";
	Run(10);
	SetBallStage(9);
	EXPECT_FALSE(alien->OnBallHit()) << "too small a ball";
	SetBallStage(10);
	g_play.levelScore = 0;
	EXPECT_TRUE(alien->OnBallHit());
	EXPECT_TRUE(alien->dead);
	EXPECT_TRUE(sidebar->alienCaught);
	EXPECT_EQ(1000, g_play.levelScore);
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(SPECIES_ALIEN));
	Run();
	EXPECT_TRUE(alien->hintArrow->IsHidden());
}

TEST_F(SaucerTest, AStunThatIsNotFollowedUpPassesAndTheNextHitStunsAgain)
{
	MakeBallAndPaddle();
	PutBall(20, 60, 0, 0);
	SetBallStage(18);
	CAlien* alien = LandedAlien(300, 250);
	EXPECT_FALSE(alien->OnBallHit());
	int frames = 0;
	for (Run(2); frames < 400 && alien->stunnedOnce; frames++)
		Run();
	EXPECT_LT(frames, 150);
	EXPECT_GT(frames, 60) << "time for the ball to come back";
	Run();
	EXPECT_TRUE(alien->hintArrow->IsHidden());
	EXPECT_FALSE(alien->OnBallHit());
	EXPECT_TRUE(alien->stunnedOnce);
	EXPECT_FALSE(alien->dead);
}

TEST_F(SaucerTest, TheAlienShootsFromItsFeetOnceAFireAndABossStunsForLonger)
{
	for (bool boss : {false, true}) {
		CAlien* alien        = LandedAlien(300, 250, boss);
		AnimalAction* fire   = ActionNamed(alien, "firegun");
		alien->currentAction = fire;
		for (int i = 0; i < 200 && (i < 2 || alien->currentAction == fire); i++)
			Run();
		ASSERT_EQ(1u, Shots().size());
		EXPECT_EQ(boss ? 60 : 30, Shots()[0]->stunFrames);
		EXPECT_EQ(alien, Shots()[0]->firedBy);
		EXPECT_FLOAT_EQ(alien->CentreX(), Shots()[0]->x);
		ClearField();
	}
}

TEST_F(SaucerTest, TheAlienHidesBehindACrateAndThenNotForLong)
{
	CAlien* alien = LandedAlien(300, 250);
	CCrate* crate = Crate(300, 250);
	crate->base->SetPos(300 - crate->base->Width() / 2, 260 - crate->base->Height() / 2);
	RemoveObstaclePoints(crate);
	Run();
	EXPECT_STREQ("crouch", alien->currentAction->name);
	EXPECT_EQ(700, alien->crouchCooldown);
	int frames = 0;
	for (; frames < 1000 && alien->currentAction->name == std::string("crouch"); frames++)
		Run();
	EXPECT_GT(frames, 150);
	EXPECT_LT(frames, 420);
	bool again = false;
	for (int i = 0; i < 700 - frames - 2; i++) {
		Run();
		alien->x = 300 - static_cast<float>(alien->collisionSprite->Width() / 2);
		again |= alien->currentAction->name == std::string("crouch");
	}
	EXPECT_FALSE(again);
}
