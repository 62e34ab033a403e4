// Instructions, hint page, credits, and the choices before a game.
#include "screens/credits.h"
#include "screens/game_continue.h"
#include "screens/game_type.h"
#include "screens/instructions.h"
#include "screens/instructions_small.h"

#include "field/sidebar.h"
#include "screens/screen_test.h"
#include "state/game_data.h"

#include <SDL.h>

class SmallScreensTest : public ScreenTest
{
};

TEST_F(SmallScreensTest, PagesCloseByAnyKeyAndByTheirButton)
{
	const struct {
		CController* (*make)();
		int buttonX, buttonY;
	} rows[] = {
	    {[]() -> CController* { return new CControllerInstructions; }, 626, 516},
	    {[]() -> CController* { return new CControllerInstructionsSmall; }, 583, 314},
	    {[]() -> CController* { return new CControllerCredits; }, 495, 443},
	};
	for (const auto& row : rows) {
		for (SDLKey key : {SDLK_ESCAPE, SDLK_x, SDLK_RETURN}) {
			std::unique_ptr<CController> page(row.make());
			Start(page.get());
			Key(key);
			EXPECT_TRUE(IsBack()) << page->Name() << key;
		}
		std::unique_ptr<CController> page(row.make());
		Start(page.get());
		Click(row.buttonX + 10, row.buttonY + 10);
		EXPECT_TRUE(IsBack()) << page->Name();
	}
}

TEST_F(SmallScreensTest, OneDiscAtATimeIsTold)
{
	CControllerInstructions page;
	Start(&page);
	EXPECT_EQ(-1, page.ShownDisc());
	for (int i = 0; i < CControllerInstructions::DISCS; i++) {
		Point(450 + i % 4 * 48, 160 + i / 4 * 40);
		EXPECT_EQ(i, page.ShownDisc());
	}
	Point(300, 160);
	EXPECT_EQ(-1, page.ShownDisc());
}

TEST_F(SmallScreensTest, SequenceArmsOnlyInItsOrder)
{
	auto credits = std::make_unique<CControllerCredits>();
	Start(credits.get());
	for (SDLKey key : {SDLK_z, SDLK_q, SDLK_q})
		Key(key);
	EXPECT_FALSE(credits->IsArmed());
	EXPECT_FALSE(IsBack()) << "its letters never close the page";
	Key(SDLK_z);
	EXPECT_TRUE(credits->IsArmed());
	Key(SDLK_q);
	EXPECT_TRUE(credits->IsArmed());
	Key(SDLK_6);
	EXPECT_TRUE(IsBack()) << "a digit without a meaning is any key";

	credits = std::make_unique<CControllerCredits>();
	Start(credits.get());
	Key(SDLK_1);
	EXPECT_TRUE(IsBack());
	EXPECT_EQ(0, g_gameData->PercentComplete());
}

TEST_F(SmallScreensTest, ArmedDigitsGiveWhatTheyPromise)
{
	CControllerCredits credits;
	Start(&credits);
	Key(SDLK_q);
	Key(SDLK_z);
	Key(SDLK_1);
	EXPECT_EQ(100, g_gameData->PercentComplete());
	EXPECT_FALSE(g_gameData->IsLevelDoneThisRun(0));
	EXPECT_TRUE(g_gameData->IsIslandOpen(ISLAND_COUNT - 1));
	Key(SDLK_2);
	EXPECT_EQ(32, g_gameData->SpeciesFoundCount());
	Key(SDLK_3);
	EXPECT_EQ(0, g_gameData->SpeciesMissingCount());
	const int lives = g_play.lives, money = g_play.money;
	Key(SDLK_4);
	Key(SDLK_5);
	Key(SDLK_5);
	EXPECT_EQ(lives + 100, g_play.lives);
	EXPECT_EQ(money + 10000, g_play.money);
	EXPECT_FALSE(IsBack());
	Key(SDLK_ESCAPE);
	EXPECT_TRUE(IsBack());
}

TEST_F(SmallScreensTest, GameTypeSetsTheModeOnlyWhenItDiffers)
{
	const struct {
		int before, key, after, runAsKids; // run: counted as kids before
	} rows[] = {{0, SDLK_RIGHT, 0, 1}, {1, SDLK_LEFT, 1, 0}};
	for (const auto& row : rows) {
		g_gameData->profile.kidsMode        = row.before;
		g_gameData->profile.runCountsAsKids = row.runAsKids;
		CControllerGameType screen;
		Start(&screen);
		Key(SDLK_ESCAPE);
		EXPECT_FALSE(IsBack()) << "it wants an answer";
		Key(row.key);
		Frame(2);
		Key(SDLK_RETURN);
		EXPECT_TRUE(IsBack());
		EXPECT_EQ(row.after, g_gameData->IsKidsMode());
		EXPECT_EQ(row.runAsKids, g_gameData->GetRunCountsAsKids()) << "not touched";
	}
	CControllerGameType screen;
	Start(&screen);
	Click(261, 340);
	EXPECT_FALSE(g_gameData->IsKidsMode());
	EXPECT_EQ(0, g_gameData->GetRunCountsAsKids()) << "follows a change of mode";
}

TEST_F(SmallScreensTest, ContinueTellsWhichButtonItWas)
{
	for (bool newGame : {false, true}) {
		CControllerGameContinue screen;
		Start(&screen);
		Click(newGame ? 415 : 270, 340);
		EXPECT_TRUE(IsBack());
		EXPECT_EQ(newGame, screen.newGame);
	}
	CControllerGameContinue closed;
	Start(&closed);
	CloseWindow();
	EXPECT_FALSE(closed.newGame);
}
