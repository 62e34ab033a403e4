// A map to walk about in: a root above it, progress made to order, keys and the pointer.
#include "screens/map_test_support.h"

#include "media/gui.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "screens/dialog.h"
#include "screens/game.h"
#include "screens/map.h"
#include "sound/sound_manager.h"

void MapTest::SetUp()
{
	FieldTest::SetUp();
	CreateUiSounds();
	SDL_Event event;
	while (SDL_PollEvent(&event))
		;
	g_leftButtonDown = false;
	g_focusedWidget = g_selectedMapDot = -1;
	g_gameData->currentLevel           = NO_LEVEL;
	g_gameData->ResetProgress();
	Point(400, 205);
	root.Activate(nullptr, true);
}

void MapTest::TearDown()
{
	map.reset();
	g_currentController = nullptr;
	DeleteUiSounds();
	FieldTest::TearDown();
}

void MapTest::Finish(int first, int last)
{
	for (int level = first; level <= last; level++) {
		LevelRecord& record = g_gameData->profile.levels[level - 1];
		record.doneEver = record.doneThisRun = 1;
		g_gameData->OpenIsland(CGameData::IslandOpenedBy(level));
	}
}

void MapTest::OpenMap(int goToCurrentGroup)
{
	map = std::make_unique<CControllerMap>(goToCurrentGroup);
	root.Push(map.get());
	Frames();
}

CControllerMapGroup* MapTest::OpenGroup(IslandGroup group)
{
	OpenMap(0);
	map->choice = group == GROUP_A ? CHOICE_WEST : group == GROUP_B ? CHOICE_SOUTH : CHOICE_EAST;
	Key(SDLK_RETURN);
	Frames();
	return Group();
}

void MapTest::Frames(int count)
{
	for (int i = 0; i < count; i++) {
		if (g_game)
			g_game->skipFrame = true;
		ControllerChainTick();
		g_render->Update(true);
	}
}

void MapTest::Key(SDLKey key)
{
	g_currentController->OnKey(true, key);
	Frames();
}

void MapTest::Point(int x, int y)
{
	g_input->x = x;
	g_input->y = y;
}

void MapTest::Click()
{
	g_currentController->OnMouseButton(true, false, false);
	g_currentController->OnMouseButton(true, false, true);
	Frames();
}

CControllerMapGroup* MapTest::Group() const
{
	return dynamic_cast<CControllerMapGroup*>(g_currentController);
}

void MapTest::ExpectDialog(int kind)
{
	const CControllerDialog* dialog = dynamic_cast<CControllerDialog*>(g_currentController);
	ASSERT_NE(nullptr, dialog) << Screen();
	EXPECT_EQ(kind, dialog->kind);
}

void MapTest::AnswerDialog(int button)
{
	g_currentController->OnGuiEvent(button, 0);
	Frames();
}

void MapTest::EndLevel(int lastFinished)
{
	ASSERT_NE(nullptr, g_game) << Screen();
	if (lastFinished > 0)
		Finish(lastFinished, lastFinished);
	g_game->lastFinishedLevel = lastFinished;
	g_game->SetResult(RESULT_RETURN);
	Frames();
}

void MapTest::ExpectLevel(int started)
{
	EXPECT_EQ("CControllerGame", Screen());
	const CControllerMapGroup* above =
	    dynamic_cast<CControllerMapGroup*>(g_currentController->parent);
	ASSERT_NE(nullptr, above);
	EXPECT_EQ(started, above->startedLevel);
}
