// The level runner: what it builds, what ends a level, what input does when.
#include "screens/game.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/crate.h"
#include "field/element_point.h"
#include "field/fence.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "level/bonus_rules.h"
#include "level/level_catalogue.h"
#include "level/story_pages.h"
#include "media/display.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "screens/level_timer.h"
#include "state/game_data.h"
#include "support/field_test.h"

#include <SDL.h>

class GameTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		SDL_Event event;
		while (SDL_PollEvent(&event))
			;
		g_gameData->SetInstructionsSeen();
		game = std::make_unique<CControllerGame>(1);
		game->Activate(nullptr, true);
	}
	void TearDown() override
	{
		game.reset();
		g_currentController = nullptr;
		FieldTest::TearDown();
	}
	void Frames(int count)
	{
		for (int i = 0; i < count; i++)
			game->Update();
	}
	void UntilPlay()
	{
		for (int i = 0; i < 400 && std::string(game->StateName()) != "play"; i++)
			game->Update();
		ASSERT_STREQ("play", game->StateName());
	}
	void Launch()
	{
		game->OnMouseButton(true, false, false);
		Frames(1);
		game->OnMouseButton(true, false, true);
		Frames(1);
	}
	void RescueAll()
	{
		for (CElementAnimal* animal : CElementAnimal::AnimalList)
			if (!animal->optional)
				animal->LeaveField();
	}

	std::unique_ptr<CControllerGame> game;
};

TEST_F(GameTest, Level1StandsAsItIsLaidDown)
{
	int points = 0, barrels = 0, apples = 0, coins = 0, prizes = 0, upper = 0;
	for (const CCrate* crate : CCrate::CrateList) {
		barrels += crate->barrel;
		apples += crate->appleCrate;
		coins += crate->contents == POINT_COIN && !crate->containsPowerup;
		prizes += crate->containsPowerup;
		upper += crate->layer > 0;
	}
	for (const CElement* element : CElement::ElementList)
		points += std::string(element->ClassName()) == "CElementPoint";
	EXPECT_EQ(29u, CCrate::CrateList.size());
	EXPECT_EQ(12, barrels);
	EXPECT_EQ(3, apples);
	EXPECT_EQ(5, coins);
	EXPECT_EQ(8, prizes);
	EXPECT_EQ(6, upper);
	EXPECT_EQ(14, CFence::CountStanding(0, false));
	EXPECT_EQ(11, game->animalsAtStart);
	EXPECT_EQ(16u, CElementAnimal::AnimalList.size()) << "five butterflies besides";
	EXPECT_EQ(0, points);
	EXPECT_STREQ("CBackground", CElement::ElementList.front()->ClassName());
	EXPECT_EQ(43, g_gameData->obstaclesAtStart);
}

TEST_F(GameTest, MachineDrivesInAndStopsInTheMiddle)
{
	EXPECT_TRUE(game->paddleEntering);
	Frames(1);
	EXPECT_LT(game->paddle->GetX(), 0);
	int before = game->paddle->GetX(), frames = 0;
	while (game->paddleEntering && frames++ < 300) {
		game->Update();
		EXPECT_GE(game->paddle->GetX(), before);
		before = game->paddle->GetX();
	}
	EXPECT_FALSE(game->paddleEntering);
	EXPECT_NEAR(346.5, game->paddle->GetX() + 30, 4);
	EXPECT_TRUE(game->ball->IsHeld());
	EXPECT_NEAR(game->paddle->GetX() + 36, game->ball->x, 3) << "the ball rides on its crest";
}

TEST_F(GameTest, ButtonsWorkOnlyOncePlayIsOpen)
{
	Frames(3);
	game->OnMouseButton(true, false, false);
	Frames(1);
	EXPECT_TRUE(game->ball->IsHeld());
	EXPECT_EQ(-1, game->elapsed);
	UntilPlay();
	EXPECT_TRUE(game->ball->IsHeld()) << "the early press is not stored";
	Launch();
	EXPECT_FALSE(game->ball->IsHeld());
	EXPECT_GE(game->elapsed, 0);
}

TEST_F(GameTest, ATapBetweenTwoFramesLaunches)
{
	UntilPlay();
	game->OnMouseButton(true, false, false);
	game->OnMouseButton(true, false, true);
	Frames(1);
	EXPECT_FALSE(game->ball->IsHeld());
}

TEST_F(GameTest, TheLaunchingPressFiresNoRay)
{
	UntilPlay();
	game->paddle->LoadDestructo();
	Launch();
	EXPECT_EQ(2, game->paddle->ammo);
	game->OnMouseButton(true, false, false);
	Frames(1);
	EXPECT_EQ(2, game->paddle->ammo);
	game->OnMouseButton(true, false, true);
	Frames(1);
	EXPECT_EQ(1, game->paddle->ammo) << "fired on the release";
}

TEST_F(GameTest, RescueEndsTheLevelAndSavesIt)
{
	UntilPlay();
	Launch();
	g_play.levelScore += 500;
	g_gameData->rescuesThisLevel = 2;
	RescueAll();
	Frames(2);
	EXPECT_TRUE(game->levelOver);
	EXPECT_TRUE(g_gameData->IsLevelDoneEver(0));
	game->OnMouseMove(10, 10);
	int frames = 0;
	while (g_currentController == game.get() && frames++ < 300)
		game->Update();
	EXPECT_GT(game->paddle->GetX(), SCREEN_WIDTH);
	ASSERT_STREQ("CControllerLevelTally", g_currentController->Name());
	g_currentController->SetResult(RESULT_RETURN);
	ControllerChainTick();
	Frames(2);
	EXPECT_EQ(RESULT_RETURN, game->result);
	EXPECT_EQ(1, game->lastFinishedLevel);
	EXPECT_EQ(500 + 25000, g_gameData->profile.levels[0].score) << "with the bonus for its time";
	EXPECT_EQ(2, g_gameData->profile.levels[0].rescues);
	EXPECT_EQ(2, g_gameData->FirstLevelNotDone());
}

TEST_F(GameTest, PausesByItselfWhenTheWindowLosesTheKeys)
{
	UntilPlay();
	SDL_Event event    = {};
	event.type         = SDL_ACTIVEEVENT;
	event.active.gain  = 0;
	event.active.state = SDL_APPINPUTFOCUS;
	game->OnKey(false, g_gameData->GetKey(KEY_LEFT));
	SDL_PushEvent(&event);
	Frames(1);
	ASSERT_STREQ("CControllerInGame", g_currentController->Name());
	g_currentController->SetResult(RESULT_RETURN);
	ControllerChainTick();
	const int x = game->paddle->GetTarget();
	Frames(5);
	EXPECT_EQ(x, game->paddle->GetTarget()) << "a key that was held counts as let go";
}

TEST_F(GameTest, GameOverResetsTheRunAndLeaves)
{
	UntilPlay();
	g_gameData->profile.levels[4].score = 900;
	g_play.gameOver                     = true;
	Frames(1);
	EXPECT_EQ(RESULT_RETURN, game->result);
	EXPECT_EQ(-2, game->lastFinishedLevel);
	EXPECT_EQ(0, g_gameData->TotalScore());
	EXPECT_FALSE(g_play.gameOver);
	EXPECT_EQ(4, g_play.lives);
}

TEST_F(GameTest, ReloadGivesAFreshLevel)
{
	UntilPlay();
	Launch();
	CCrate::CrateList[0]->BreakDown(true);
	size_t sprites = g_render->sprites.size();
	game->levelNumber--;
	game->ReloadLevel();
	EXPECT_EQ(1, game->levelNumber);
	EXPECT_EQ(29, CCrate::CountStanding(0, false));
	EXPECT_TRUE(game->paddleEntering);
	EXPECT_EQ(-1, game->elapsed);
	EXPECT_LE(g_render->sprites.size(), sprites) << "nothing of the old level is left";
}

TEST_F(GameTest, ANumberWithoutARoutineBecomesLevel1)
{
	game.reset();
	game = std::make_unique<CControllerGame>(183);
	game->Activate(nullptr, true);
	EXPECT_EQ(1, game->levelNumber);
	EXPECT_EQ(11, game->animalsAtStart);
}

TEST_F(GameTest, EveryEndRuleEndsItsOwnKindOnly)
{
	UntilPlay();
	EXPECT_FALSE(LevelHasEnded(*game));

	game->rules.isBonusLevel = true;
	game->ball->y            = SCREEN_HEIGHT + 2 * game->ball->Radius() + 1;
	EXPECT_TRUE(LevelHasEnded(*game)) << "a bonus level ends with its ball";
	game->rules = LevelRules();
	EXPECT_FALSE(LevelHasEnded(*game));
	game->ball->y = 300;

	game->rules.isDodgeball = true;
	game->AddDodgeHit();
	EXPECT_FALSE(LevelHasEnded(*game)) << "no limit, no end";
	game->rules.dodgeLimit = 2;
	EXPECT_FALSE(LevelHasEnded(*game));
	game->AddDodgeHit();
	EXPECT_TRUE(LevelHasEnded(*game));
	game->rules = LevelRules();
	game->AddDodgeHit();
	EXPECT_EQ(0, game->rules.dodgeHits) << "upsets count on dodgeball levels only";

	game->rules.isOrder    = true;
	game->rules.orderCount = 2;
	game->rules.orderNext  = 1;
	game->RecordOrderBreak(2);
	EXPECT_FALSE(LevelHasEnded(*game));
	game->RecordOrderBreak(1);
	EXPECT_TRUE(LevelHasEnded(*game));
	EXPECT_EQ(2, game->rules.orderRecord[0]);
	EXPECT_EQ(1, game->rules.orderRecord[1]);
	for (int i = 0; i < 30; i++)
		game->RecordOrderBreak(9); // beyond the record: counted, not stored
	game->rules = LevelRules();

	game->rules.isDemolition = true;
	EXPECT_FALSE(LevelHasEnded(*game));
	for (CCrate* crate : CCrate::CrateList)
		crate->broken = true;
	for (CFence* fence : CFence::FenceList)
		fence->broken = true;
	EXPECT_TRUE(LevelHasEnded(*game));
	game->rules = LevelRules();

	game->SetLevelTimer(0, false);
	EXPECT_TRUE(LevelHasEnded(*game));
}

TEST_F(GameTest, TallyIsToldTheTypeAndTheValues)
{
	ChildRequest request;
	FillTally(*game, request);
	EXPECT_EQ(0, request.tallyType);

	game->rules.isBonusLevel = true;
	game->rules.isDodgeball  = true;
	game->rules.dodgeVariant = 3;
	game->rules.dodgeLimit   = 4;
	game->rules.dodgeHits    = 1;
	FillTally(*game, request);
	EXPECT_EQ(3, request.tallyType);
	EXPECT_EQ(3, request.tallyValues[0]);
	EXPECT_EQ(4, request.tallyValues[1]);

	game->rules.isDodgeball  = false;
	game->rules.isDemolition = true;
	game->startCount         = 43;
	FillTally(*game, request);
	EXPECT_EQ(10, request.tallyType);
	EXPECT_EQ(43, request.tallyValues[0]);
	EXPECT_EQ(43, request.tallyValues[1]);

	game->rules.isDemolition = false;
	EXPECT_EXIT(FillTally(*game, request), testing::ExitedWithCode(1), "");
}

TEST(StoryPages, EachStandsAtItsLevel)
{
	EXPECT_EQ(1, StoryAtStart(1));
	EXPECT_EQ(4, StoryAtStart(9));
	EXPECT_EQ(22, StoryAtStart(147));
	EXPECT_EQ(NO_STORY, StoryAtStart(3));
	EXPECT_EQ(10, StoryAtEnd(12));
	EXPECT_EQ(46, StoryOfSidePath(160));
	EXPECT_EQ(STORY_FINAL, StoryOfAlien(182));
	EXPECT_EQ(100, StoryValue(20, 19, 0));
	EXPECT_EQ(600, StoryValue(22, 147, 0));
	EXPECT_EQ(83, StoryValue(34, 83, 83));
}

TEST(LevelCatalogue, KnowsItsLevelsAndNoOthers)
{
	EXPECT_TRUE(HasLevel(1));
	EXPECT_STREQ("First meadow", LevelName(1));
	EXPECT_FALSE(HasLevel(0));
	EXPECT_FALSE(HasLevel(183));
	EXPECT_STREQ("", LevelName(183));
}
