// The behaviour machine: phases, follow-ups, chance, walking, falling.
#include "animals/animal_test_support.h"

#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <map>
#include <set>

// clang-format off
static const BodyPoint s_body[] = { { 5, 10 }, { 10, 20 }, { 20, 10 } };

static const ActionRow s_phases[] = {
	{ "stand", ACTION_IDLE,  ".",   0, ROLE_NONE, "", { .time = Frames(3) } },
	{ "look",  ACTION_LOOK,  "0-4", 1, ROLE_NONE, "", { .hold = Frames(7) } },
	{ "quack", ACTION_BUMP,  "0-7", 0, ROLE_BUMP, "" },
};
static const SpeciesTable PHASES = { "duck", s_phases, {}, s_body, {}, {} };

static const ActionRow s_choice[] = {
	{ "stand",        ACTION_IDLE,  ".",   0, ROLE_NONE, "",                   { .time = Frames(1) } },
	{ "one:stand",    ACTION_EXTRA, ".",   1, ROLE_NONE, "",                   { .time = Frames(1) } },
	{ "three:stand",  ACTION_EXTRA, ".",   3, ROLE_NONE, "",                   { .time = Frames(1) } },
	{ "fork:stand",   ACTION_EXTRA, ".",   0, ROLE_NONE, "one/three/twice",    { .time = Frames(1) } },
	{ "twice:stand",  ACTION_EXTRA, ".",   0, ROLE_NONE, "one",
	  { .time = Frames(2), .repeats = Frames(2) } },
	{ "open:stand",   ACTION_EXTRA, ".",   0, ROLE_NONE, ANY,                  { .time = Frames(1) } },
};
static const SpeciesTable CHOICE = { "duck", s_choice, {}, s_body, {}, {} };

static const ActionRow s_walker[] = {
	{ "stand",  ACTION_IDLE, ".",   0, ROLE_NONE, "", { .time = Frames(1) } },
	{ "walkup", ACTION_WALK, "0-7", 1, ROLE_NONE, "", { .time = Frames(20) } },
	{ "quack",  ACTION_BUMP, "0-7", 0, ROLE_BUMP, "" },
	{ "fall:look", ACTION_FALL, "0-1", 0, ROLE_NONE, "land" },
	{ "land:look", ACTION_LAND, "2-4", 0, ROLE_NONE, "" },
};
static const SpeciesTable WALKER = { "duck", s_walker, {}, s_body, {}, {} };
// clang-format on

// clang-format off
static const ActionRow s_hen[] = {
	{ "stand", ACTION_IDLE, ".",   0, ROLE_NONE, "" },
	{ "quack", ACTION_LAY,  "0-7", 0, ROLE_BUMP, "",
	  { .sounds = {"duck_quack.ogg", "duck_quack2.ogg"}, .soundDelay = 4,
	    .extraSound = "duckling_quack.ogg", .extraDelay = 2 } },
};
static const SpeciesTable HEN = { "duck", s_hen, {}, s_body, {}, {} };
// clang-format on

class BehaviourTest : public AnimalTest
{
protected:
	void WalkNow(CTestAnimal* animal)
	{
		animal->currentAction = animal->idleAction;
		animal->walkCounter   = 5;
		Run(); // idle, whatever it did before
		animal->walkCounter = 1;
		Run(); // and now the only thing to choose is the walk
	}
};

TEST_F(BehaviourTest, ALookHasEntryHoldAndTheEntryBackward)
{
	CTestAnimal* animal = new CTestAnimal(PHASES, 300, 200);
	AnimalAction* look  = ActionNamed(animal, "look");
	ASSERT_EQ(look, animal->currentAction) << "the only one with a weight";
	std::string phases;
	CSprite* last = nullptr;
	int held      = 0;
	for (int i = 0; i < 60 && animal->currentAction == look; i++) {
		if (animal->currentSprite != last || look->phase != phases.back() - '0')
			phases += static_cast<char>('0' + look->phase);
		last = animal->currentSprite;
		held += look->phase == PHASE_MIDDLE;
		Run();
	}
	EXPECT_EQ("012", phases);
	EXPECT_EQ(7, held) << "frames of the hold";
	EXPECT_EQ(animal->idleAction, animal->currentAction);
	EXPECT_EQ(look->spriteLeft->frames.front(), look->exitLeft->frames.back());
	EXPECT_EQ(look->spriteLeft->frames.back(), look->exitLeft->frames.front());
}

TEST_F(BehaviourTest, ChanceGoesByWeight)
{
	CTestAnimal* animal = new CTestAnimal(CHOICE, 300, 200);
	std::map<std::string, int> seen;
	for (int i = 0; i < 4000; i++) {
		animal->currentAction = nullptr;
		animal->AdvanceBehaviour();
		seen[animal->currentAction->name]++;
	}
	EXPECT_EQ(2u, seen.size());
	EXPECT_NEAR(1000, seen["one:stand"], 120);
	EXPECT_NEAR(3000, seen["three:stand"], 120);
}

TEST_F(BehaviourTest, WithoutAnyWeightTheFirstActionIsTaken)
{
	CTestAnimal* animal = new CTestAnimal(CHOICE, 300, 200);
	for (AnimalAction* action : animal->actions)
		action->weight = 0;
	unsigned long calls   = RandomCalls();
	animal->currentAction = nullptr;
	animal->AdvanceBehaviour();
	EXPECT_EQ(animal->actions[0], animal->currentAction);
	EXPECT_EQ(calls, RandomCalls()) << "no draw";
}

// On a perch the sum still counts the skipped ones, so their share falls to the first action.
TEST_F(BehaviourTest, WhatMayNotRunOnAPerchLeavesItsShareToTheIdleAction)
{
	CTestAnimal* animal                          = new CTestAnimal(CHOICE, 300, 200);
	ActionNamed(animal, "one:stand")->notPerched = false;
	animal->perched                              = true;
	std::map<std::string, int> seen;
	for (int i = 0; i < 1000; i++) {
		animal->currentAction = nullptr;
		animal->AdvanceBehaviour();
		seen[animal->currentAction->name]++;
	}
	EXPECT_NEAR(250, seen["one:stand"], 60);
	EXPECT_NEAR(750, seen["stand"], 60);
	EXPECT_EQ(0, seen["three:stand"]);

	// One that comes before an allowed action gives its share to it.
	ActionNamed(animal, "one:stand")->notPerched   = true;
	ActionNamed(animal, "three:stand")->notPerched = false;
	for (int i = 0; i < 200; i++) {
		animal->currentAction = nullptr;
		animal->AdvanceBehaviour();
		EXPECT_STREQ("three:stand", animal->currentAction->name);
	}
}

TEST_F(BehaviourTest, FollowUpsHaveEqualChancesAndReplaceTheDraw)
{
	CTestAnimal* animal = new CTestAnimal(CHOICE, 300, 200);
	std::map<std::string, int> seen;
	for (int i = 0; i < 900; i++) {
		animal->currentAction = ActionNamed(animal, "fork:stand");
		animal->AdvanceBehaviour(); // starts it
		animal->AdvanceBehaviour(); // and it is over
		seen[animal->currentAction->name]++;
	}
	for (const char* name : {"one:stand", "three:stand", "twice:stand"})
		EXPECT_NEAR(300, seen[name], 60) << name;
}

TEST_F(BehaviourTest, RepeatsPlayTheActionInARow)
{
	CTestAnimal* animal   = new CTestAnimal(CHOICE, 300, 200);
	AnimalAction* twice   = ActionNamed(animal, "twice:stand");
	animal->currentAction = twice;
	int frames            = 0;
	for (; frames < 50; frames++) {
		animal->AdvanceBehaviour();
		if (animal->currentAction != twice)
			break;
	}
	EXPECT_EQ(4, frames) << "two frames, twice";
	EXPECT_EQ(ActionNamed(animal, "one:stand"), animal->currentAction);
	EXPECT_EQ(-1, twice->repeatsLeft) << "ready for the next time";
}

TEST_F(BehaviourTest, AWalkWithoutRoomBecomesTheIdleActionAndUsesUpTheForcedDirection)
{
	CTestAnimal* animal = new CTestAnimal(WALKER, 300, 200);
	CElement* scenery   = new CTestScenery;
	AddObstaclePoint(scenery, 300 + 5, 200);
	animal->facingLeft      = true;
	animal->forcedDirection = 2;
	float before            = animal->x;
	WalkNow(animal);
	EXPECT_EQ(animal->idleAction, animal->currentAction);
	EXPECT_EQ(0, animal->forcedDirection);
	EXPECT_TRUE(animal->facingLeft) << "it has not turned";
	EXPECT_EQ(before, animal->x);
}

TEST_F(BehaviourTest, TheForcedDirectionDecidesTheNextWalkOnly)
{
	for (int direction : {1, 2, 1, 2}) {
		CTestAnimal* animal     = new CTestAnimal(WALKER, 300, 200 + direction);
		animal->forcedDirection = direction;
		WalkNow(animal);
		EXPECT_EQ(direction == 1, animal->facingLeft);
		EXPECT_EQ(0, animal->forcedDirection);
		animal->dead = true;
		RemoveObstaclePoints(animal);
	}
}

TEST_F(BehaviourTest, AnAnimalThatMayNotTurnWalksRight)
{
	CTestAnimal* animal = new CTestAnimal(WALKER, 300, 200);
	animal->mayTurn     = false;
	for (int i = 0; i < 5; i++) {
		WalkNow(animal);
		EXPECT_FALSE(animal->facingLeft);
	}
}

TEST_F(BehaviourTest, AWalkIntoACrateEndsWithoutEnteringIt)
{
	CTestAnimal* animal     = new CTestAnimal(WALKER, 300, 200);
	animal->forcedDirection = 2;
	WalkNow(animal);
	ASSERT_EQ(ACTION_WALK, animal->currentAction->kind);
	AddObstaclePoint(new CTestScenery, 321, 200);
	for (int i = 0; i < 12 && animal->currentAction->kind == ACTION_WALK; i++)
		Run();
	EXPECT_EQ(animal->idleAction, animal->currentAction);
	EXPECT_GT(321 - animal->CentreX(), animal->bodyRadius);
	EXPECT_LT(321 - animal->CentreX(), animal->bodyRadius + 2 * animal->speedX);
}

TEST_F(BehaviourTest, TheBodyGoesAlongAndIsMirroredWithTheFacing)
{
	CTestAnimal* animal     = new CTestAnimal(WALKER, 300, 200, true);
	animal->forcedDirection = 1;
	WalkNow(animal);
	Run(5);
	ASSERT_EQ(3u, animal->bodyPoints.size());
	EXPECT_FLOAT_EQ(animal->x + 5, animal->bodyPoints[0]->x);
	animal->facingLeft = false;
	Run();
	ASSERT_EQ(3u, animal->bodyPoints.size());
	float width = static_cast<float>(animal->collisionSprite->Width());
	EXPECT_FLOAT_EQ(width - 5, animal->bodyOffsetX[0]);
	EXPECT_EQ(3u, CElement::ObstaclePointList.size()) << "the old points are gone";
}

TEST_F(BehaviourTest, AnAssignedActionStartsWithTheNextFrame)
{
	CTestAnimal* animal = new CTestAnimal(PHASES, 300, 200);
	Run(3);
	animal->currentAction = animal->bumpAction;
	Run();
	EXPECT_EQ(animal->bumpAction->spriteLeft, animal->currentSprite);
	EXPECT_FALSE(animal->currentSprite->IsHidden());
	int shown = 0;
	for (AnimalAction* action : animal->actions) {
		for (CSprite* sprite : {action->spriteLeft, action->spriteRight, action->exitLeft})
			shown += sprite && !sprite->IsHidden();
	}
	EXPECT_EQ(1, shown);
}

TEST_F(BehaviourTest, AFallComesDownAndLandsOnce)
{
	CTestAnimal* animal   = new CTestAnimal(WALKER, 300, 200);
	animal->z             = 40;
	animal->currentAction = ActionNamed(animal, "fall:look");
	int frames            = 0;
	for (; frames < 60 && animal->currentAction->kind != ACTION_LAND; frames++)
		Run();
	EXPECT_EQ(ACTION_LAND, animal->currentAction->kind);
	EXPECT_EQ(0, animal->z);
	EXPECT_EQ(0, animal->vz);
	EXPECT_TRUE(animal->moving);
	EXPECT_GT(animal->landings, 1) << "told while it falls fast, and at the end";
	EXPECT_NEAR(15, frames, 2) << "40 pixels at half a pixel per frame per frame";
	animal->forcedDirection = 1;
	for (int i = 0; i < 200 && animal->moving; i++)
		Run();
	EXPECT_FALSE(animal->moving) << "a finished walk clears it";
}

TEST_F(BehaviourTest, AHenLaysOneEggAtTheEndOfTheFirstPicture)
{
	for (bool left : {true, false}) {
		CTestAnimal* hen   = new CTestAnimal(HEN, 300, 200, left);
		hen->currentAction = hen->bumpAction;
		for (int i = 0; i < 40 && hen->dependants.empty(); i++)
			Run();
		EXPECT_LE(hen->currentSprite->Frame(), 1);
		ASSERT_EQ(1u, hen->dependants.size());
		EXPECT_EQ(hen->x + (left ? 18 : -30), hen->dependants[0]->x);
		EXPECT_EQ(hen->y + 13, hen->dependants[0]->y);

		Run(40);
		EXPECT_EQ(1u, hen->dependants.size());
		hen->active        = false;
		hen->currentAction = hen->bumpAction;
		Run(40);
		EXPECT_EQ(1u, hen->dependants.size()) << "not while it is away";
		ClearField();
	}
}

TEST_F(BehaviourTest, TheSoundIsDrawnAtItsMomentUnlessTheLevelIsBeingBuilt)
{
	for (bool on : {true, false}) {
		CElementAnimal::animalSoundsOn = on;
		CTestAnimal* hen               = new CTestAnimal(HEN, 300, 200);
		hen->active                    = false; // no egg, which draws too
		hen->currentAction             = hen->bumpAction;
		unsigned long calls            = RandomCalls();
		Run(4);
		EXPECT_EQ(calls, RandomCalls());
		EXPECT_EQ(0, hen->bumpAction->soundCountdown);
		EXPECT_EQ(-1, hen->bumpAction->extraSoundCountdown);
		Run();
		EXPECT_EQ(calls + on, RandomCalls()) << "one of two";
		EXPECT_EQ(-1, hen->bumpAction->soundCountdown);
		Run(3);
		EXPECT_EQ(calls + on, RandomCalls()) << "and only once";
	}
}

TEST_F(BehaviourTest, EveryRandomSpanStaysWithinItsBounds)
{
	FrameSpan span = Between(15, 120);
	std::set<int> seen;
	for (int i = 0; i < 20000; i++)
		seen.insert(span.Draw());
	EXPECT_EQ(15, *seen.begin());
	EXPECT_GE(120, *seen.rbegin());
	EXPECT_LT(100u, seen.size());
	unsigned long calls = RandomCalls();
	EXPECT_EQ(7, Frames(7).Draw());
	EXPECT_EQ(calls, RandomCalls());
}
