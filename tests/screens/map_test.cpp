// The overview: its cycle of choices, closed groups, the way in and the way out.
#include "screens/map.h"

#include "media/gui.h"
#include "media/render_manager.h"
#include "screens/map_test_support.h"
#include "sound/sound_manager.h"

TEST_F(MapTest, KeysWalkTheFourChoicesRoundInBothDirections)
{
	OpenMap(0);
	EXPECT_EQ(CHOICE_WEST, map->choice) << "where the run stands";
	for (int wanted : {CHOICE_EAST, CHOICE_SOUTH, CHOICE_BACK, CHOICE_WEST}) {
		Key(wanted % 2 ? SDLK_DOWN : SDLK_RIGHT);
		EXPECT_EQ(wanted, map->choice);
	}
	for (int wanted : {CHOICE_BACK, CHOICE_SOUTH}) {
		Key(wanted % 2 ? SDLK_UP : SDLK_LEFT);
		EXPECT_EQ(wanted, map->choice);
	}
	Key(SDLK_DOWN);
	Key(SDLK_RETURN);
	EXPECT_EQ("CFakeController", Screen());
	EXPECT_EQ("map.mdt", CurrentMusicName());
}

TEST_F(MapTest, ClosedGroupsRefuseAndOpenOnesLetIn)
{
	OpenMap(0);
	for (int closed : {CHOICE_SOUTH, CHOICE_EAST}) {
		map->choice = closed;
		for (SDLKey key : {SDLK_RETURN, SDLK_SPACE, SDLK_KP_ENTER}) {
			Key(key);
			EXPECT_EQ("CControllerMap", Screen());
		}
	}
	Finish(1, 61);
	EXPECT_STREQ("CControllerMapGroup2", OpenGroup(GROUP_B)->Name());
	Finish(62, 117);
	EXPECT_STREQ("CControllerMapGroup3", OpenGroup(GROUP_C)->Name());
	EXPECT_STREQ("CControllerMapGroup1", OpenGroup(GROUP_A)->Name());
}

TEST_F(MapTest, PointerPicksAndClickingBesideTheIslandsDoesNothing)
{
	OpenMap(0);
	const auto move = [this](int x, int y) {
		Point(x, y);
		map->OnMouseMove(x, y);
	};
	move(415, 195);
	EXPECT_EQ(CHOICE_EAST, map->choice);
	move(420, 470);
	EXPECT_EQ(CHOICE_SOUTH, map->choice);
	move(790, 590);
	EXPECT_EQ(CHOICE_SOUTH, map->choice) << "the keys need one to start from";
	Click();
	EXPECT_EQ("CControllerMap", Screen());
	move(20, 230);
	EXPECT_EQ(CHOICE_WEST, map->choice);
	Click();
	EXPECT_EQ("CControllerMapGroup1", Screen());
}

TEST_F(MapTest, MarkOpensTheGroupWhereTheRunStands)
{
	const struct {
		int done;
		const char* group;
	} rows[] = {{0, "CControllerMapGroup1"},
	            {60, "CControllerMapGroup1"},
	            {61, "CControllerMapGroup2"},
	            {117, "CControllerMapGroup3"},
	            {182, "CControllerMapGroup3"}};
	for (const auto& row : rows) {
		Finish(1, row.done);
		OpenMap(1);
		EXPECT_EQ(row.group, Screen()) << row.done;
	}
	Key(SDLK_ESCAPE);
	Frames();
	EXPECT_EQ("CControllerMap", Screen()) << "and from there back to the overview";
	Key(SDLK_ESCAPE);
	EXPECT_EQ("CFakeController", Screen());
}

TEST_F(MapTest, LeavingLeavesNothingBehind)
{
	const size_t sprites = g_render->sprites.size();
	OpenGroup(GROUP_A);
	EXPECT_GT(g_render->sprites.size(), sprites + 200);
	EXPECT_EQ(11u + 61 - 15, GuiWidgets.size());
	map.reset();
	EXPECT_EQ(sprites, g_render->sprites.size());
	EXPECT_TRUE(GuiWidgets.empty());
}
