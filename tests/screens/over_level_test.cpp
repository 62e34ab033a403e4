// The screens that open over a level: dialog, bonus card, pause menu, tally, and the way back.
#include "screens/bonus_intro.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/in_game.h"
#include "screens/level_tally.h"

#include "animals/species_numbers.h"
#include "field/ball.h"
#include "field/sidebar.h"
#include "level/level_kinds.h"
#include "media/gui.h"
#include "media/input.h"
#include "sound/sound_manager.h"
#include "state/game_data.h"
#include "support/field_test.h"

#include <SDL.h>

static const int RESULT_NOT_SET = RESULT_NONE;

class OverLevelTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		CreateUiSounds();
	}
	void TearDown() override
	{
		DeleteUiSounds();
		g_currentController = nullptr;
		FieldTest::TearDown();
	}
	void Open(CController& screen)
	{
		screen.Activate(nullptr, true);
		screen.Update();
	}
	void Key(CController& screen, int key)
	{
		screen.OnKey(false, key);
		screen.OnKey(true, key);
		screen.Update();
	}
	void Click(CController& screen, int x, int y)
	{
		g_input->Warp(x, y);
		screen.Update();
		screen.OnMouseButton(true, false, false);
		screen.OnMouseButton(true, false, true);
	}
};

TEST_F(OverLevelTest, EveryDialogAnswersByMouseAndByKeyboard)
{
	for (int kind : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15}) {
		const bool single = kind == 3 || kind == 5 || kind == 10 || kind == 11 || kind == 15;
		{
			CControllerDialog dialog(kind, true);
			Open(dialog);
			EXPECT_EQ(single ? 1u : 2u, GuiWidgets.size()) << kind;
			Key(dialog, SDLK_ESCAPE);
			EXPECT_EQ(RESULT_NOT_SET, dialog.result) << "Escape does nothing in a dialog";
			Click(dialog, single ? 343 : 423, 341);
			EXPECT_EQ(RESULT_RETURN, dialog.result) << kind;
			EXPECT_EQ(single ? 0 : 1, dialog.answer) << kind;
		}
		CControllerDialog dialog(kind, false);
		Open(dialog);
		Key(dialog, SDLK_RIGHT);
		Key(dialog, SDLK_RETURN);
		EXPECT_EQ(RESULT_RETURN, dialog.result) << kind;
		EXPECT_EQ(0, dialog.answer) << "the first button has the focus first, " << kind;
	}
}

TEST_F(OverLevelTest, ADialogThatIsNotAnsweredSaysNo)
{
	CControllerDialog dialog(DIALOG_DELETE_USER, true);
	Open(dialog);
	RequestQuit(&dialog);
	EXPECT_EQ(RESULT_QUIT, dialog.result);
	EXPECT_EQ(1, dialog.answer);
}

TEST_F(OverLevelTest, EveryBonusLevelHasItsCard)
{
	for (int level = 1; level <= 182; level++) {
		if (!IsBonusKind(KindOfLevel(level)))
			continue;
		CControllerBonusIntro card(level);
		Open(card);
		Key(card, level % 2 ? SDLK_ESCAPE : SDLK_RETURN);
		EXPECT_EQ(RESULT_RETURN, card.result) << level;
	}
}

TEST_F(OverLevelTest, ThePauseMenuWrapsAndHandsBackWhatWasChosen)
{
	{
		CControllerInGame menu;
		g_input->Warp(5, 5);
		Open(menu);
		EXPECT_EQ(-1, menu.selected);
		Key(menu, SDLK_RETURN);
		EXPECT_EQ(RESULT_NOT_SET, menu.result) << "nothing is chosen yet";
		Key(menu, SDLK_UP);
		EXPECT_EQ(CControllerInGame::MAIN_MENU, menu.selected);
		Key(menu, SDLK_DOWN);
		EXPECT_EQ(CControllerInGame::RESUME, menu.selected);
		Key(menu, SDLK_RETURN);
		EXPECT_EQ(0, menu.result);
	}
	const int results[][3] = {{331, 180, 0}, {351, 400, 1}, {351, 435, 3}};
	for (const int* row : results) {
		CControllerInGame menu;
		Open(menu);
		Click(menu, row[0], row[1]);
		EXPECT_EQ(row[2], menu.result);
	}
	CControllerInGame menu;
	Open(menu);
	Click(menu, 351, 295);
	EXPECT_EQ(RESULT_NOT_SET, menu.result) << "a screen that is not there is refused";
	Key(menu, SDLK_ESCAPE);
	EXPECT_EQ(0, menu.result);
}

class TallyTest : public OverLevelTest
{
protected:
	void SetUp() override
	{
		OverLevelTest::SetUp();
		g_gameData->OnLevelStart(1);
		SetPlayScore(g_play.levelScore + 700);
		g_gameData->secondsThisLevel = 45;
	}
	void UntilDone(CControllerLevelTally& tally)
	{
		for (int i = 0; i < 400 && !tally.done; i++)
			tally.Update();
		EXPECT_TRUE(tally.done);
	}
};

TEST_F(TallyTest, SettlesEverythingBeforeItShowsAnything)
{
	g_gameData->OnAnimalRescued(SPECIES_SHEEP);
	g_gameData->OnAnimalRescued(SPECIES_SHEEP);
	g_gameData->OnAnimalRescued(SPECIES_MONKEY);
	const int gained = g_gameData->ScoreGainedThisLevel();
	CControllerLevelTally tally({}, {});
	EXPECT_EQ(std::deque<int>({SPECIES_SHEEP, SPECIES_MONKEY}), tally.speciesList);
	EXPECT_EQ(std::deque<int>({2, 1}), tally.speciesCounts);
	EXPECT_EQ(3000, tally.bonusTotal);
	EXPECT_EQ(gained, tally.levelGain);
	EXPECT_EQ(gained + 3000, tally.levelTotal);
	EXPECT_EQ(tally.levelTotal, g_gameData->profile.levels[0].score);
	EXPECT_TRUE(g_gameData->newSpeciesQueue.empty());
	EXPECT_FALSE(tally.done);
}

TEST_F(TallyTest, SkippingChangesOnlyWhatIsShown)
{
	g_gameData->OnAnimalRescued(SPECIES_SHEEP);
	CControllerLevelTally tally({}, {});
	Open(tally);
	const int score = g_play.levelScore;
	g_input->Warp(20, 300);
	tally.Update();
	tally.OnMouseButton(true, false, false);
	tally.OnMouseButton(true, false, true);
	EXPECT_TRUE(tally.skipRequested);
	tally.Update();
	EXPECT_TRUE(tally.done);
	for (int i = 0; i < 20; i++)
		tally.Update();
	EXPECT_EQ(score, g_play.levelScore);
	EXPECT_EQ(RESULT_NOT_SET, tally.result);
}

TEST_F(TallyTest, EveryTypeShowsItsStepsAndEnds)
{
	const int record[] = {1, 3, 2, 0};
	for (int type = TALLY_REGULAR; type <= TALLY_EGG; type++)
		for (int a : {0, 2, 30}) {
			g_gameData->OnLevelStart(1);
			CControllerLevelTally tally({type, a, 30, 8, 4}, record);
			Open(tally);
			UntilDone(tally);
			for (int i = 0; i < 30; i++)
				tally.Update();
		}
}

TEST_F(TallyTest, ManyNewFacesAndSpeciesFindRoom)
{
	for (int i = 0; i < DENSE_SPECIES; i++)
		g_gameData->OnAnimalRescued(SpeciesOfIndex(i));
	for (int i = 0; i < 9; i++)
		g_gameData->OnAnimalRescued(SPECIES_BUTTERFLY_A);
	CControllerLevelTally tally({}, {});
	EXPECT_EQ(63u, tally.speciesList.size()) << "all but the alien";
	Open(tally);
	UntilDone(tally);
}

TEST_F(TallyTest, ItsButtonsRetryGoOnOrLeave)
{
	struct {
		int button, result;
		bool replay;
	} cases[] = {{0, 0, true}, {1, 0, false}, {2, 3, false}};
	for (const auto& row : cases) {
		g_gameData->OnLevelStart(1);
		CControllerLevelTally tally({}, {});
		Open(tally);
		g_input->Warp(5, 5);
		tally.Update();
		for (int i = 0; i <= row.button; i++)
			Key(tally, SDLK_DOWN);
		Key(tally, SDLK_RETURN);
		EXPECT_EQ(row.result, tally.result);
		EXPECT_EQ(row.replay, tally.replay);
	}
}

TEST_F(TallyTest, APerfectBonusIsNoted)
{
	CControllerLevelTally tally({TALLY_EGG, 24}, {});
	EXPECT_EQ(1, g_gameData->profile.levels[0].topGrade);
}
