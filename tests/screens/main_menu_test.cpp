// The main menu: its pages, what each button opens, and what follows when that returns.
#include "screens/main_menu.h"

#include "field/sidebar.h"
#include "frame/program.h"
#include "media/gui.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/menu_animals.h"
#include "screens/menu_bubbles.h"
#include "screens/open_address.h"
#include "screens/screen_test.h"
#include "state/game_data.h"

#include <SDL.h>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

class MainMenuTest : public ScreenTest
{
protected:
	void SetUp() override
	{
		ScreenTest::SetUp();
		menu = std::make_unique<CControllerMain>();
		Start(menu.get());
	}
	void TearDown() override
	{
		menu.reset();
		g_moreGamesAddress.clear();
		ScreenTest::TearDown();
	}
	void Settle() // until the buttons have turned or been pressed out
	{
		int frames = 0;
		while (menu->active && (menu->busy || menu->menuState > MENU_OPTIONS) && frames++ < 200)
			Frame();
		ASSERT_LT(frames, 200);
	}
	void ClickButton(int button)
	{
		static const int tops[] = {0, 108, 189, 270, 351};
		Click(button == 0 ? 600 : 629, tops[button] + 10);
	}
	void Choose(int button)
	{
		ClickButton(button);
		Settle();
	}

	std::unique_ptr<CControllerMain> menu;
};

TEST_F(MainMenuTest, PressesAreIgnoredWhileItOpens)
{
	EXPECT_TRUE(menu->busy);
	EXPECT_EQ(MENU_ROOT, menu->menuState);
	ClickButton(1);
	Key(SDLK_ESCAPE);
	EXPECT_EQ(MENU_ROOT, menu->menuState);
	EXPECT_EQ(-1, menu->menuFocus);
	Settle();
	EXPECT_FALSE(menu->busy);
	ClickButton(1);
	EXPECT_EQ(MENU_TO_ACHIEVEMENTS, menu->menuState);
}

TEST_F(MainMenuTest, PagesTurnThereAndBack)
{
	Settle();
	const struct {
		int button;
		MenuState there, page, back;
	} rows[] = {{1, MENU_TO_ACHIEVEMENTS, MENU_ACHIEVEMENTS, MENU_FROM_ACHIEVEMENTS},
	            {2, MENU_TO_OPTIONS, MENU_OPTIONS, MENU_FROM_OPTIONS}};
	for (const auto& row : rows) {
		ClickButton(row.button);
		EXPECT_EQ(row.there, menu->menuState);
		ClickButton(4);
		EXPECT_EQ(row.there, menu->menuState) << "nothing is pressed while they turn";
		Settle();
		EXPECT_EQ(row.page, menu->menuState);
		ClickButton(4);
		EXPECT_EQ(row.back, menu->menuState);
		Settle();
		EXPECT_EQ(MENU_ROOT, menu->menuState);
	}
	Choose(2);
	Key(SDLK_ESCAPE);
	EXPECT_EQ(MENU_FROM_OPTIONS, menu->menuState);
}

// A press stands at the page's state plus the button until it has been played out.
TEST_F(MainMenuTest, EachButtonHasItsStateAndItsScreen)
{
	const struct {
		int page, button, state;
		const char* screen;
	} rows[] = {{0, 0, 8, "CControllerGameType"},  {1, 0, 13, "CControllerGameType"},
	            {2, 0, 18, "CControllerGameType"}, {0, 3, 11, "CControllerDialog"},
	            {1, 1, 14, "CControllerMain"},     {1, 2, 15, "CControllerMain"},
	            {1, 3, 16, "CControllerMain"},     {2, 1, 19, "CControllerInstructions"},
	            {2, 2, 20, "CControllerOptions"},  {2, 3, 21, "CControllerCredits"},
	            {0, 4, 12, "CFakeController"}};
	for (const auto& row : rows) {
		menu = std::make_unique<CControllerMain>();
		Start(menu.get());
		Settle();
		if (row.page)
			Choose(row.page);
		ClickButton(row.button);
		EXPECT_EQ(row.state, menu->menuState) << row.state;
		Frame();
		EXPECT_EQ(row.state, menu->menuState) << "it is played out first";
		Settle();
		Frame();
		EXPECT_EQ(row.screen, Screen()) << row.state;
		if (Screen() == "CControllerMain") {
			EXPECT_EQ(MENU_ACHIEVEMENTS, menu->menuState) << "it refuses, and stays";
		}
	}
}

TEST_F(MainMenuTest, PlayAsksWhatToDoWithARun)
{
	Settle();
	g_play.levelScore = 100;
	Choose(0);
	ASSERT_EQ("CControllerGameContinue", Screen());
	g_gameData->profile.levels[0].score       = 100;
	g_gameData->profile.levels[0].doneThisRun = 1;
	Click(415, 340); // a new game
	EXPECT_EQ("CControllerGameType", Screen());
	EXPECT_EQ(0, g_gameData->TotalScore()) << "the old run is over";
	Click(424, 340); // for kids
	EXPECT_TRUE(g_gameData->IsKidsMode());
	EXPECT_EQ("CControllerMap", Screen());
}

TEST_F(MainMenuTest, ContinuedRunKeepsItsScore)
{
	Settle();
	g_play.levelScore                   = 100;
	g_gameData->profile.levels[0].score = 100;
	Choose(0);
	Click(270, 340);
	EXPECT_EQ(100, g_gameData->TotalScore());
	EXPECT_EQ("CControllerMap", Screen().substr(0, 14));
}

TEST_F(MainMenuTest, ClosedWindowOpensNothingOnTheWayOut)
{
	Settle();
	Choose(0);
	ASSERT_EQ("CControllerGameType", Screen());
	CloseWindow();
	EXPECT_EQ("CControllerMain", Screen());
	Frame();
	EXPECT_TRUE(IsBack());
	EXPECT_EQ(RESULT_QUIT, root.result);
}

TEST_F(MainMenuTest, MoreGamesLeavesForTheBrowserOnlyWhenWanted)
{
	Settle();
	Choose(3);
	Click(421, 339); // cancel
	EXPECT_EQ("CControllerMain", Screen());
	EXPECT_EQ(MENU_ROOT, menu->menuState);
	EXPECT_FALSE(menu->busy) << "the opening runs only once";
	Choose(3);
	Click(259, 339); // okay
	Frame();
	EXPECT_TRUE(IsBack());
	EXPECT_EQ(RESULT_QUIT, root.result);
}

TEST_F(MainMenuTest, KeysMoveTheFocusOverSixPlaces)
{
	Settle();
	for (int place : {0, 1, 2, 3, 4, 5, 0}) {
		Key(SDLK_DOWN);
		EXPECT_EQ(place, menu->menuFocus);
		Frame(5);
		EXPECT_EQ(place, menu->menuFocus) << "the pointer has come along";
	}
	Key(SDLK_LEFT);
	EXPECT_EQ(5, menu->menuFocus);
	Frame(3);
	Key(SDLK_SPACE);
	EXPECT_EQ("CControllerProfile", Screen());
	Key(SDLK_ESCAPE);
	EXPECT_EQ("CControllerMain", Screen());
}

TEST_F(MainMenuTest, ReturnWithoutFocusPressesNothing)
{
	Settle();
	Key(SDLK_RETURN);
	EXPECT_EQ(MENU_ROOT, menu->menuState);
	Key(SDLK_UP);
	EXPECT_EQ(5, menu->menuFocus);
}

TEST_F(MainMenuTest, ButtonReleasedOverAnotherFiresThatOne)
{
	Settle();
	Point(600, 10);
	menu->OnMouseButton(true, false, false);
	Point(629, 118);
	menu->OnMouseButton(true, false, true);
	EXPECT_EQ(MENU_TO_ACHIEVEMENTS, menu->menuState);
	Settle();
	Point(629, 361);
	menu->OnMouseButton(true, false, true); // pressed nowhere
	EXPECT_EQ(MENU_ACHIEVEMENTS, menu->menuState);
}

TEST_F(MainMenuTest, PictureLives)
{
	CMenuBubbles bubbles;
	CMenuAnimals animals;
	std::set<const CSprite*> seen;
	int most = 0;
	for (int i = 0; i < 4000; i++) {
		bubbles.Step();
		animals.Step();
		g_render->Update(true);
		int rising = 0;
		for (const CSprite* sprite : bubbles.sprites)
			if (!sprite->IsHidden()) {
				seen.insert(sprite);
				rising++;
			}
		most = std::max(most, rising);
		for (const CSprite* sprite : animals.idlers)
			if (!sprite->IsStopped())
				seen.insert(sprite);
		for (const CSprite* sprite : animals.fish)
			if (!sprite->IsHidden()) {
				seen.insert(sprite);
				EXPECT_GE(sprite->X(), 0);
				EXPECT_LE(sprite->X() + sprite->Width(), 800);
			}
		EXPECT_NE(animals.idlers[0]->IsHidden(), animals.idlers[1]->IsHidden())
		    << "there is one professor, at frame " << i;
	}
	EXPECT_EQ(19u + 15u + 2u, seen.size());
	EXPECT_GT(most, 3);
	EXPECT_LE(most, 19);
}

// With the address of a fake handler's folder first in PATH.
TEST(OpenAddress, GoesToTheHandlerAsItIsAndEmptyNowhere)
{
	CTempFolder folder;
	const std::string out = folder.path + "out", handler = folder.path + "xdg-open";
	std::ofstream(handler) << "#!/bin/sh\nprintf '%s' \"$1\" > " << out << ".part\nmv " << out
	                       << ".part " << out << "\n";
	std::filesystem::permissions(handler, std::filesystem::perms::owner_all);
	const std::string before = std::getenv("PATH");
	setenv("PATH", (folder.path + ":" + before).c_str(), 1);
	OpenAddress("");
	OpenAddress("http://example.org/a b;c");
	for (int i = 0; i < 200 && !std::filesystem::exists(out); i++)
		std::this_thread::sleep_for(std::chrono::milliseconds(20));
	setenv("PATH", before.c_str(), 1);
	std::string text;
	std::getline(std::ifstream(out), text);
	EXPECT_EQ("http://example.org/a b;c", text);
}
