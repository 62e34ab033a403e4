// What the sheep, the duck family and the butterfly do beyond their tables.
#include "animals/butterfly.h"
#include "animals/duck.h"
#include "animals/duckling.h"
#include "animals/sheep.h"
#include "animals/species_numbers.h"
#include "animals/animal_test_support.h"

#include "field/ball.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <cmath>
#include <map>
#include <set>

typedef AnimalTest DuckTest;
typedef AnimalTest ButterflyTest;
typedef AnimalTest SheepTest;

static const int FAMILY_TROPHY = 14;

TEST_F(DuckTest, TheFamilyTrophyAsksForTheDuckFirstAndAllDucklings)
{
	CDuck* duck  = new CDuck(300, 200, true);
	CDuckling* a = new CDuckling(340, 200, duck);
	CDuckling* b = new CDuckling(370, 210, duck);
	duck->LeaveField();
	Run();
	EXPECT_TRUE(duck->tookDuckFirst);
	a->LeaveField();
	Run();
	EXPECT_FALSE(g_gameData->HasTrophy(FAMILY_TROPHY));
	b->LeaveField();
	Run();
	EXPECT_TRUE(g_gameData->HasTrophy(FAMILY_TROPHY));
	EXPECT_TRUE(duck->familyChecked);
}

TEST_F(DuckTest, ADucklingTakenFirstSpoilsTheFamilyTrophy)
{
	CDuck* duck  = new CDuck(300, 200, true);
	CDuckling* a = new CDuckling(340, 200, duck);
	CDuckling* b = new CDuckling(370, 210, duck);
	a->LeaveField();
	Run();
	duck->LeaveField();
	Run();
	b->LeaveField();
	Run();
	EXPECT_FALSE(g_gameData->HasTrophy(FAMILY_TROPHY));
}

TEST_F(DuckTest, ADuckWithoutDucklingsWinsNothing)
{
	CDuck* duck = new CDuck(300, 200, true);
	duck->LeaveField();
	Run(3);
	EXPECT_FALSE(g_gameData->HasTrophy(FAMILY_TROPHY));
	EXPECT_FALSE(duck->tookDuckFirst);
}

TEST_F(DuckTest, DucklingsFaceTheirDuckAndComeAfterHer)
{
	WallIn(60);
	CDuck* duck      = new CDuck(450, 300, false);
	CDuckling* right = new CDuckling(600, 300, duck);
	CDuckling* left  = new CDuckling(150, 150, duck);
	EXPECT_TRUE(right->facingLeft);
	EXPECT_FALSE(left->facingLeft);
	EXPECT_EQ(2u, duck->dependants.size());
	duck->active = false; // she stays where she is
	float before = std::hypot(left->CentreX() - duck->CentreX(), left->CentreY() - duck->CentreY());
	Run(900);
	float after = std::hypot(left->CentreX() - duck->CentreX(), left->CentreY() - duck->CentreY());
	EXPECT_LT(after, before / 2);
	EXPECT_GT(after, duck->bodyRadius + left->bodyRadius - 1) << "and do not push past her";
}

TEST_F(DuckTest, ADucklingGoesOnAfterItsDuckIsCaught)
{
	WallIn(60);
	CDuck* duck      = new CDuck(450, 300, false);
	CDuckling* young = new CDuckling(200, 300, duck);
	Run(20);
	duck->LeaveField();
	float before = young->x;
	Run(200);
	EXPECT_NE(before, young->x);
}

TEST_F(DuckTest, ADuckQuacksInTwoWays)
{
	MakeBallAndPaddle();
	CDuck* duck = new CDuck(300, 200, true);
	SetBallStage(0);
	std::set<CSound*> heard;
	for (int i = 0; i < 30; i++) {
		duck->OnBallHit();
		heard.insert(duck->bumpAction->sounds[0]);
	}
	EXPECT_EQ(2u, heard.size());
}

TEST_F(ButterflyTest, AnyBallTakesItAndItsColourIsItsSpecies)
{
	MakeBallAndPaddle();
	std::set<int> colours;
	SetBallStage(0);
	for (int i = 0; i < 30; i++) {
		CButterfly* butterfly = new CButterfly(300, 200, true);
		colours.insert(butterfly->colour);
		EXPECT_TRUE(butterfly->OnBallHit());
		EXPECT_EQ(SPECIES_BUTTERFLY_A + butterfly->colour, butterfly->species);
		EXPECT_TRUE(butterfly->dead);
	}
	EXPECT_EQ(3u, colours.size());
	EXPECT_EQ(30, g_gameData->rescuesThisLevel);
}

TEST_F(ButterflyTest, NothingWaitsForIt)
{
	CButterfly* butterfly = new CButterfly(300, 200, true);
	EXPECT_EQ(0, CElementAnimal::CountToRescue());
	butterfly->hintFrames = 100;
	Run();
	EXPECT_TRUE(butterfly->hintArrow->IsHidden());
}

TEST_F(ButterflyTest, AtTheEdgeItTurnsWithinAMoment)
{
	WallIn(60);
	CButterfly* butterfly    = new CButterfly(660, 300, false);
	butterfly->currentAction = butterfly->actions[2];
	Run();
	int longestStill = 0, still = 0;
	float lastX = butterfly->x, lastY = butterfly->y;
	for (int i = 0; i < 2000; i++) {
		if (butterfly->currentAction->kind != ACTION_FLUTTER)
			butterfly->currentAction = butterfly->actions[2];
		Run();
		still        = butterfly->x == lastX && butterfly->y == lastY ? still + 1 : 0;
		longestStill = std::max(longestStill, still);
		lastX        = butterfly->x;
		lastY        = butterfly->y;
	}
	EXPECT_LT(longestStill, 40);
}

// A change of direction changes the pictures but does not wind the clock of the flutter back.
TEST_F(ButterflyTest, AFlutterEndsInItsTime)
{
	WallIn(60);
	CButterfly* butterfly    = new CButterfly(340, 250, false);
	butterfly->currentAction = butterfly->actions[2];
	int frames               = 0;
	for (; frames < 400 && butterfly->currentAction->kind == ACTION_FLUTTER; frames++)
		Run();
	EXPECT_LE(frames, 202);
}

TEST_F(SheepTest, EveryStateComesUpAndReturnsToStanding)
{
	WallIn(60);
	CSheep* sheep = new CSheep(300, 250, true);
	std::map<int, int> entered;
	CSheep::State last = sheep->state;
	for (int i = 0; i < 20000; i++) {
		Run();
		if (sheep->state != last) {
			EXPECT_TRUE(last == CSheep::STAND || sheep->state == CSheep::STAND);
			entered[sheep->state]++;
		}
		last = sheep->state;
	}
	EXPECT_GT(entered[CSheep::GRAZE], entered[CSheep::LOOK_BACK]);
	EXPECT_GT(entered[CSheep::WALK], 5);
	EXPECT_GT(entered[CSheep::LOOK_BACK], 5);
	EXPECT_EQ(0, entered[CSheep::STUNNED]);
}

TEST_F(SheepTest, ATooSmallBallStunsItThenItStaresThenItStands)
{
	MakeBallAndPaddle();
	CSheep* sheep = new CSheep(300, 250, true);
	SetBallStage(sheep->requiredStage - 1);
	EXPECT_FALSE(sheep->OnBallHit());
	EXPECT_EQ(CSheep::STUNNED, sheep->state);
	Run(4);
	CSprite* stunned = sheep->currentSprite;
	int frame        = stunned->Frame();
	EXPECT_FALSE(sheep->OnBallHit());
	EXPECT_EQ(frame, stunned->Frame()) << "a second touch does not start it over";
	std::string states;
	for (int i = 0; i < 200 && sheep->state != CSheep::STAND; i++) {
		if (states.empty() || states.back() != '0' + sheep->state)
			states += static_cast<char>('0' + sheep->state);
		Run();
	}
	EXPECT_EQ("57", states);
	EXPECT_EQ(CSheep::STAND, sheep->state);
}

TEST_F(SheepTest, ABallBigEnoughTakesIt)
{
	MakeBallAndPaddle();
	CSheep* sheep = new CSheep(300, 250, true);
	SetBallStage(sheep->requiredStage);
	EXPECT_TRUE(sheep->OnBallHit());
	EXPECT_TRUE(sheep->dead);
	EXPECT_EQ(1, g_gameData->RescuedThisLevel(SPECIES_SHEEP));
}
