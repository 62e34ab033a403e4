// The choice of a player and the box for a name.
#include "screens/profile.h"

#include "field/sidebar.h"
#include "media/input.h"
#include "screens/player_name.h"
#include "screens/screen_test.h"
#include "state/game_data.h"

#include <SDL.h>

class ProfileTest : public ScreenTest
{
protected:
	void Open()
	{
		screen = std::make_unique<CControllerProfile>();
		Start(screen.get());
	}
	void TearDown() override
	{
		screen.reset();
		ScreenTest::TearDown();
	}
	void ClickRow(int k) { Click(400, 220 + 20 * k); }
	void Type(const std::string& word)
	{
		for (char letter : word)
			Key(letter);
	}
	std::vector<std::string> Names() const
	{
		std::vector<std::string> names;
		for (int i = 0; i < g_gameData->ProfileCount(); i++)
			names.push_back(g_gameData->ProfileNameAt(i));
		return names;
	}

	std::unique_ptr<CControllerProfile> screen;
};

using List = std::vector<std::string>;

TEST_F(ProfileTest, CurrentPlayerIsSelectedAndInSight)
{
	WriteProfiles({"a", "b", "c", "d", "e", "f"}, 5);
	Open();
	EXPECT_EQ(5, screen->selectedRow);
	EXPECT_EQ(2, screen->firstRow);
	screen.reset();
	g_gameData->SwitchProfile("b");
	Open();
	EXPECT_EQ(1, screen->selectedRow);
	EXPECT_EQ(0, screen->firstRow);
}

TEST_F(ProfileTest, DoubleClickSelectsButTwoRowsAreTwoSelections)
{
	WriteProfiles({"a", "b", "c"}, 0);
	Open();
	ClickRow(1);
	EXPECT_EQ(1, screen->selectedRow);
	EXPECT_GT(screen->clickGuard, 0);
	ClickRow(2);
	EXPECT_EQ(2, screen->selectedRow);
	EXPECT_FALSE(IsBack());
	Frame(20);
	ClickRow(2);
	EXPECT_FALSE(IsBack()) << "too late for a double click";
	ClickRow(3);
	EXPECT_EQ(2, screen->selectedRow) << "no such row";
	ClickRow(2);
	EXPECT_TRUE(IsBack());
	EXPECT_STREQ("c", g_gameData->CurrentProfileName());
}

TEST_F(ProfileTest, SelectingKeepsTheOldPlayersRecordsAndTakesTheNewOnes)
{
	g_gameData->profile.levels[0].score = 50;
	g_gameData->SetMouseSpeed(2);
	g_gameData->SaveProfile();
	g_gameData->CreateProfile("kim");
	g_gameData->profile.systemCursorOn = 0;
	g_gameData->SaveProfile();
	g_gameData->SwitchProfile("PLAYER 1");
	g_gameData->profile.levels[1].score = 7;
	Open();
	ClickRow(1);
	Click(368, 317); // select
	EXPECT_TRUE(IsBack());
	EXPECT_STREQ("kim", g_gameData->CurrentProfileName());
	EXPECT_EQ(0, g_play.levelScore);
	EXPECT_FALSE(g_input->systemCursorMode) << "his mouse comes with him";
	g_gameData->SwitchProfile("PLAYER 1");
	EXPECT_EQ(57, g_play.levelScore) << "saved before he left";
}

TEST_F(ProfileTest, FourRowsDoNotScrollAndFiveDo)
{
	WriteProfiles({"a", "b", "c", "d"}, 0);
	Open();
	for (int id : {CControllerProfile::BUTTON_DOWN, CControllerProfile::BUTTON_UP}) {
		screen->OnGuiEvent(id, 0);
		EXPECT_EQ(0, screen->firstRow);
	}
	screen.reset();
	g_gameData->CreateProfile("e");
	g_gameData->SwitchProfile("a");
	Open();
	for (int row : {1, 1}) {
		screen->OnGuiEvent(CControllerProfile::BUTTON_DOWN, 0);
		EXPECT_EQ(row, screen->firstRow);
	}
	screen->OnGuiEvent(CControllerProfile::BUTTON_UP, 0);
	EXPECT_EQ(0, screen->firstRow);
}

TEST_F(ProfileTest, KeysRunOverRowsAndWidgets)
{
	WriteProfiles({"a", "b"}, 0);
	Open();
	EXPECT_EQ(0, screen->focus);
	for (int place : {1, 4, 5, 6, 7, 8, 9, 0}) {
		Key(SDLK_DOWN);
		EXPECT_EQ(place, screen->focus);
		Frame(3);
		EXPECT_EQ(place, screen->focus) << "the pointer agrees";
		EXPECT_EQ(place < 4 ? place : 1, screen->selectedRow);
	}
	for (int place : {9, 8, 7, 6, 5, 4, 1}) {
		Key(SDLK_LEFT);
		Frame(3);
		EXPECT_EQ(place, screen->focus);
	}
	Key(SDLK_RETURN);
	EXPECT_TRUE(IsBack());
	EXPECT_STREQ("b", g_gameData->CurrentProfileName()) << "Return on a row selects it";
}

TEST_F(ProfileTest, NewPlayerIsCreatedAndTheOldOneSaved)
{
	g_gameData->profile.levels[0].score = 50;
	Open();
	Click(368, 380); // add
	ASSERT_EQ("CControllerName", Screen());
	Type("bob 2");
	Key(SDLK_RETURN);
	ASSERT_EQ("CControllerProfile", Screen());
	EXPECT_EQ((List{"PLAYER 1", "bob 2"}), Names());
	EXPECT_STREQ("bob 2", g_gameData->CurrentProfileName());
	EXPECT_EQ(0, screen->selectedRow);
	EXPECT_EQ(2, screen->profileCount);
	g_gameData->SwitchProfile("PLAYER 1");
	EXPECT_EQ(50, g_gameData->TotalScore());
}

TEST_F(ProfileTest, NameInUseIsRefusedAndNothingChanges)
{
	WriteProfiles({"ann", "bob"}, 0);
	Open();
	for (int id : {CControllerProfile::BUTTON_ADD, CControllerProfile::BUTTON_RENAME}) {
		screen->OnGuiEvent(id, 0);
		Frame();
		Type("bob");
		Key(SDLK_RETURN);
		ASSERT_EQ("CControllerDialog", Screen());
		Frame();
		Key(SDLK_RETURN);
		EXPECT_EQ("CControllerProfile", Screen());
		EXPECT_EQ((List{"ann", "bob"}), Names()) << "its answer deletes nobody";
		Frame();
	}
	screen->OnGuiEvent(CControllerProfile::BUTTON_RENAME, 0);
	Frame();
	SDL_Event shift      = {};
	shift.type           = SDL_KEYDOWN;
	shift.key.keysym.sym = SDLK_LSHIFT;
	SDL_PushEvent(&shift);
	Type("bob"); // another name: it is in capitals
	Key(SDLK_RETURN);
	EXPECT_EQ((List{"BOB", "bob"}), Names());
	EXPECT_STREQ("BOB", g_gameData->CurrentProfileName());
}

TEST_F(ProfileTest, DeletingAsksAndKeepsTheSelectionInTheList)
{
	WriteProfiles({"ann", "bob"}, 1);
	Open();
	EXPECT_EQ(1, screen->selectedRow);
	Click(435, 317); // delete
	ASSERT_EQ("CControllerDialog", Screen());
	Click(421, 339); // rather not
	EXPECT_EQ((List{"ann", "bob"}), Names());
	Frame();
	screen->OnGuiEvent(CControllerProfile::BUTTON_DELETE, 0);
	Click(259, 339);
	EXPECT_EQ(List{"ann"}, Names());
	EXPECT_EQ(0, screen->selectedRow);
	screen->OnGuiEvent(CControllerProfile::BUTTON_DELETE, 0);
	Click(259, 339);
	EXPECT_EQ(List{"PLAYER 1"}, Names()) << "there is always one";
	CloseWindow();
	EXPECT_TRUE(IsBack());
}

TEST_F(ProfileTest, BoxTakesNoBlankNameAndNoMoreThanFifteenLetters)
{
	Open();
	screen->OnGuiEvent(CControllerProfile::BUTTON_ADD, 0);
	Frame();
	Key(SDLK_RETURN);
	EXPECT_EQ("CControllerName", Screen()) << "empty";
	Type("   ");
	Key(SDLK_RETURN);
	EXPECT_EQ("CControllerName", Screen()) << "blanks are letters, and not enough";
	for (int i = 0; i < 3; i++)
		Key(SDLK_BACKSPACE);
	Type("abcdefghijklmnopqrs");
	Key(SDLK_RETURN);
	EXPECT_EQ((List{"PLAYER 1", "abcdefghijklmno"}), Names());
	Frame();
	screen->OnGuiEvent(CControllerProfile::BUTTON_ADD, 0);
	Frame();
	Type("x");
	Click(476, 330); // cancel
	EXPECT_EQ("CControllerProfile", Screen());
	EXPECT_EQ(2, g_gameData->ProfileCount());
}

TEST_F(ProfileTest, LongListIsShownAndScrolledToItsEnd)
{
	for (int i = 0; i < 299; i++)
		g_gameData->profileNameByNumber[i + 1] = "n" + std::to_string(i);
	for (const auto& [number, name] : g_gameData->profileNameByNumber)
		g_gameData->profileNumberByName[name] = number;
	Open();
	EXPECT_EQ(300, screen->profileCount);
	for (int i = 0; i < 400; i++)
		screen->OnGuiEvent(CControllerProfile::BUTTON_DOWN, 0);
	EXPECT_EQ(296, screen->firstRow);
	ClickRow(3);
	EXPECT_EQ(299, screen->selectedRow);
}

// Letters that the font lacks would end the program when they are written.
TEST_F(ProfileTest, NameFromADamagedFileCanBeShown)
{
	g_gameData->RenameProfile("PLAYER 1", "a#b\x7f{~ C");
	EXPECT_EQ("a?b??? C", ShownName(g_gameData->CurrentProfileName()));
	Open();
	EXPECT_EQ("CControllerProfile", Screen());
	Click(368, 317);
	EXPECT_TRUE(IsBack());
}
