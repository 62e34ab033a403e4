// The close-ups: what their dots and buttons do, and what returning screens leave behind.
#include "screens/map_group.h"

#include "field/sidebar.h"
#include "media/display.h"
#include "media/gui.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/map.h"
#include "screens/map_group1.h"
#include "screens/map_test_support.h"

TEST_F(MapTest, DotsGrowInAlongThePathAndTheNextLevelIsChosen)
{
	Finish(1, 12);
	CControllerMapGroup* group = OpenGroup(GROUP_A);
	EXPECT_EQ(nullptr, group->DotOfLevel(30)) << "its gate is not finished";
	EXPECT_EQ(nullptr, group->DotOfLevel(62));
	const CGuiButtonMapDot* last = group->DotOfLevel(61);
	EXPECT_EQ(DOT_GROW, last->animation);
	EXPECT_EQ(50, last->animationDelay + 2) << "51 dots, two frames gone";
	EXPECT_EQ(0, group->SelectedLevel());
	Frames(21);
	EXPECT_EQ(13, group->SelectedLevel());
	Frames(60);
	EXPECT_EQ(DOT_IDLE, last->animation);
}

TEST_F(MapTest, LockedLevelsRefuseAndPlayedOnesAskFirst)
{
	Finish(1, 3);
	OpenGroup(GROUP_A);
	Group()->OnGuiEvent(FIRST_DOT_ID + 7, -1);
	Frames();
	ExpectDialog(DIALOG_LEVEL_LOCKED);
	AnswerDialog(0);

	Group()->OnGuiEvent(FIRST_DOT_ID + 1, 1);
	Frames();
	ExpectDialog(DIALOG_LEVEL_PLAYED);
	AnswerDialog(1);
	ASSERT_NE(nullptr, Group());
	Group()->OnGuiEvent(FIRST_DOT_ID + 1, 1);
	Frames();
	AnswerDialog(0);
	ExpectLevel(2);
}

TEST_F(MapTest, DoubleClickAndKeyboardBothPlayADot)
{
	Finish(1, 3);
	CControllerMapGroup* group = OpenGroup(GROUP_A);
	Frames(80);
	const CSprite* open = group->DotOfLevel(4)->current;
	Point(open->X() + open->Width() / 2, open->Y() + open->Height() / 2);
	Frames();
	Click();
	Frames(5);
	EXPECT_EQ("CControllerMapGroup1", Screen());
	Click();
	ExpectLevel(4);
	EndLevel(-2);

	Point(5, 590);
	Frames(20);
	EXPECT_EQ(4, Group()->SelectedLevel()) << "a level given up stays chosen";
	Key(SDLK_LEFT);
	Frames(2);
	EXPECT_EQ(3, Group()->SelectedLevel()) << "the arrows set out from the chosen dot";
	Key(SDLK_SPACE);
	ExpectDialog(DIALOG_LEVEL_PLAYED);
}

TEST_F(MapTest, PlayStartsTheChosenLevelOrTheNextOne)
{
	Finish(1, 5);
	OpenGroup(GROUP_A);
	Key(SDLK_RETURN); // nothing has focus: Play is the default
	ExpectLevel(6);
	EndLevel(-2);
	Frames(20);
	Group()->SelectLevel(2);
	Group()->OnGuiEvent(MAP_PLAY, 0);
	Frames();
	ExpectDialog(DIALOG_LEVEL_PLAYED);
	AnswerDialog(1);
	EXPECT_EQ(2, Group()->SelectedLevel());
	Group()->StartLevel(9);
	ExpectLevel(9);
}

TEST_F(MapTest, FinishedLevelShrinksAndTheNextOneGrowsInChosen)
{
	Finish(1, 2);
	OpenGroup(GROUP_A);
	Group()->StartLevel(3);
	Frames();
	EndLevel(3);
	CControllerMapGroup* group = Group();
	ASSERT_NE(nullptr, group);
	EXPECT_EQ(2, group->lastFinishedIndex);
	EXPECT_EQ(DOT_SHRINK, group->DotOfLevel(3)->animation);
	EXPECT_EQ(DOT_GROW_SELECTED, group->DotOfLevel(4)->animation);
	EXPECT_EQ(14, group->DotOfLevel(4)->animationDelay);
	EXPECT_EQ(DOT_IDLE, group->DotOfLevel(5)->animation);
	Frames(30);
	EXPECT_EQ(DOT_COMPLETED, group->DotOfLevel(3)->state);
	EXPECT_EQ(4, group->SelectedLevel());
	EXPECT_TRUE(g_display->drawingEnabled);
}

TEST_F(MapTest, FinishedGateFillsItsBranchIn)
{
	Finish(1, 11);
	OpenGroup(GROUP_A);
	Group()->StartLevel(12);
	Frames();
	EndLevel(12);
	CControllerMapGroup* group = Group();
	for (int level = 13; level <= 17; level++) {
		ASSERT_NE(nullptr, group->DotOfLevel(level));
		EXPECT_EQ(level - 13, group->DotOfLevel(level)->animationDelay);
	}
	EXPECT_EQ(DOT_GROW, group->DotOfLevel(17)->animation);
	EXPECT_EQ(13, group->SelectedLevel());
	EXPECT_FALSE(group->DotOfLevel(18)->disabled);
}

TEST_F(MapTest, SixLevelsOpenTheirIslandOnTheWayBack)
{
	const int levels[] = {18, 40, 61, 90, 117, 146};
	for (int i = 0; i < 6; i++) {
		g_gameData->ResetProgress();
		OpenMap(1);
		Group()->StartLevel(levels[i]);
		Frames();
		g_game->lastFinishedLevel = levels[i];
		g_currentController->SetResult(RESULT_RETURN);
		Frames();
		for (int island = 1; island <= 6; island++)
			EXPECT_EQ(island == i + 1, g_gameData->IsIslandOpen(island)) << levels[i];
	}
}

TEST_F(MapTest, LastLevelOfAGroupLeadsToTheNext)
{
	Finish(1, 60);
	OpenGroup(GROUP_A);
	Group()->StartLevel(61);
	Frames();
	EndLevel(61);
	Frames(2);
	EXPECT_EQ("CControllerMapGroup2", Screen());
	Finish(62, 116);
	Group()->StartLevel(117);
	Frames();
	EndLevel(117);
	Frames(2);
	EXPECT_EQ("CControllerMapGroup3", Screen());
	Finish(118, 181);
	Group()->StartLevel(182);
	Frames();
	EndLevel(182);
	Frames(2);
	EXPECT_EQ("CControllerMapGroup3", Screen()) << "there is no other";
}

TEST_F(MapTest, ArrowsLeadToOpenNeighbours)
{
	OpenGroup(GROUP_A);
	Group()->OnGuiEvent(MAP_ARROW_A, 0);
	Frames();
	ExpectDialog(DIALOG_ISLANDS_LOCKED);
	AnswerDialog(0);
	EXPECT_EQ("CControllerMapGroup1", Screen());
	Finish(1, 61);
	const struct {
		MapButton arrow;
		const char* screen;
	} rows[] = {{MAP_ARROW_A, "CControllerMapGroup2"},
	            {MAP_ARROW_B1, "CControllerMapGroup1"},
	            {MAP_ARROW_A, "CControllerMapGroup2"},
	            {MAP_ARROW_B2, "CControllerMapGroup3"},
	            {MAP_ARROW_C, "CControllerMapGroup2"}};
	for (const auto& row : rows) {
		if (row.arrow == MAP_ARROW_B2)
			Finish(62, 117);
		Group()->OnGuiEvent(row.arrow, 0);
		Frames(2);
		EXPECT_EQ(row.screen, Screen());
	}
}

TEST_F(MapTest, ResetStartsOverInTheFirstGroupAndLeavesTheOthers)
{
	Finish(1, 117);
	g_play.money = 70;
	for (IslandGroup where : {GROUP_A, GROUP_B, GROUP_C}) {
		g_gameData->ResetProgress();
		Finish(1, 117);
		OpenGroup(where);
		Group()->SelectLevel(FirstLevel(where));
		Group()->OnGuiEvent(MAP_RESET, 0);
		Frames();
		ExpectDialog(DIALOG_RESET_MAP);
		AnswerDialog(1);
		EXPECT_EQ(64, g_gameData->PercentComplete()) << "cancelled";
		Group()->OnGuiEvent(MAP_RESET, 0);
		Frames();
		AnswerDialog(0);
		EXPECT_EQ(0, g_gameData->PercentComplete());
		EXPECT_EQ(0, g_play.money);
		Frames();
		EXPECT_EQ(where == GROUP_A ? "CControllerMapGroup1" : "CControllerMap", Screen());
		if (Group()) {
			EXPECT_EQ(DOT_GROW, Group()->DotOfLevel(61)->animation) << "as at the first time";
			EXPECT_EQ(0, Group()->SelectedLevel());
		}
	}
}

TEST_F(MapTest, ModeChangesOnlyOnYes)
{
	OpenGroup(GROUP_A);
	for (int answer : {1, 0, 0}) {
		const bool before = g_gameData->IsKidsMode();
		Group()->OnGuiEvent(MAP_CHANGE, 0);
		Frames();
		ExpectDialog(DIALOG_CHANGE_MODE);
		AnswerDialog(answer);
		EXPECT_EQ(answer == 0 ? !before : before, g_gameData->IsKidsMode());
		EXPECT_EQ(answer == 0, g_gameData->GetRunCountsAsKids() == 1);
	}
}

TEST_F(MapTest, SecondPanelTakesThePlaceOfTheFirst)
{
	OpenGroup(GROUP_A);
	const auto shown = [](int id) {
		for (const CGuiButtonBase* widget : GuiWidgets)
			if (widget->id == id)
				return !widget->hidden;
		return false;
	};
	for (bool second : {false, true, false}) {
		for (int id : {MAP_RESET, MAP_CHANGE, MAP_ACHIEVEMENTS, MAP_MAIN_MENU})
			EXPECT_EQ(!second, shown(id)) << id;
		for (int id : {MAP_SANCTUARY, MAP_TROPHIES, MAP_HIGH_SCORES, MAP_BACK})
			EXPECT_EQ(second, shown(id)) << id;
		EXPECT_TRUE(shown(MAP_PLAY) && shown(MAP_ZOOM));
		Group()->OnGuiEvent(second ? MAP_BACK : MAP_ACHIEVEMENTS, 0);
		Frames();
	}
	Group()->OnGuiEvent(MAP_MAIN_MENU, 0);
	Frames(2);
	EXPECT_EQ("CFakeController", Screen()) << "past the overview";
}

TEST_F(MapTest, HelpPointsAtPlayUntilLevel1IsFinished)
{
	auto* first = dynamic_cast<CControllerMapGroup1*>(OpenGroup(GROUP_A));
	ASSERT_NE(nullptr, first->helpArrow);
	const int start = first->helpArrow->Y();
	Frames(3);
	EXPECT_NE(start, first->helpArrow->Y());
	for (const auto* widget : GuiWidgets)
		EXPECT_FALSE(
		    !widget->hidden && widget->id >= FIRST_DOT_ID &&
		    static_cast<const CGuiButtonMapDot*>(widget)->current->Overlaps(first->helpBox));
	first->StartLevel(1);
	Frames();
	EndLevel(1);
	EXPECT_EQ(nullptr, first->helpArrow);
}

TEST_F(MapTest, PauseMenusWayToTheMainMenuPassesThroughAllOfIt)
{
	OpenGroup(GROUP_A);
	Group()->StartLevel(1);
	Frames();
	g_currentController->SetResult(2);
	Frames();
	EXPECT_EQ("CControllerMapGroup1", Screen());
	Key(SDLK_ESCAPE); // a key on the way changes nothing
	EXPECT_EQ("CControllerMap", Screen());
	EXPECT_TRUE(GuiWidgets.empty());
	Frames();
	EXPECT_EQ("CFakeController", Screen());
}
