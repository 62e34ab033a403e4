// Dots of the map: clicks, keys, animations, focus.
#include "media/gui_map_dot.h"

#include "media/fake_controller.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "support/field_test.h"

#include <SDL.h>

class MapDotTest : public FieldTest
{
protected:
	void SetUp() override
	{
		FieldTest::SetUp();
		g_leftButtonDown = false;
		g_focusedWidget = g_selectedMapDot = -1;
		Point(700, 20);
	}
	std::unique_ptr<CGuiButtonMapDot> Dot(int x, int id, DotState state,
	                                      DotAnimation start = DOT_IDLE, int delay = 0,
	                                      DotKind kind = DOT_REGULAR)
	{
		return std::make_unique<CGuiButtonMapDot>(x, 200, id, &screen, kind, state, start, delay,
		                                          false);
	}
	void Point(int x, int y)
	{
		g_input->x = x;
		g_input->y = y;
	}
	void PointAt(const CGuiButtonMapDot& dot)
	{
		Point(dot.current->X() + dot.current->Width() / 2,
		      dot.current->Y() + dot.current->Height() / 2);
		Frames(1);
	}
	void Frames(int count)
	{
		for (int i = 0; i < count; i++) {
			GuiStepAll();
			g_render->Update(true);
		}
	}
	void Click()
	{
		GuiMouseEdge(false);
		GuiMouseEdge(true);
	}

	CFakeController screen;
};

TEST_F(MapDotTest, FirstClickSelectsAndASecondOneSoonAfterFires)
{
	const auto open = Dot(100, 1, DOT_INCOMPLETE), done = Dot(200, 2, DOT_COMPLETED);
	PointAt(*open);
	EXPECT_EQ(open->art->rollover, open->current);
	Click();
	EXPECT_EQ("", screen.Take());
	EXPECT_EQ(open->index, g_selectedMapDot);
	EXPECT_EQ(open->art->selected, open->current);
	Frames(14);
	Click();
	EXPECT_EQ("gui:1,0 ", screen.Take());

	PointAt(*done);
	Click();
	Frames(15);
	Click();
	EXPECT_EQ("", screen.Take()) << "too late: the second click is a first one again";
	Click();
	EXPECT_EQ("gui:2,1 ", screen.Take());
	Frames(1);
	EXPECT_EQ(open->art->plain, open->current) << "only one is selected";
}

TEST_F(MapDotTest, LockedDotAnswersAtOnceAndKeysPassItOver)
{
	const auto first = Dot(100, 1, DOT_COMPLETED), locked = Dot(200, 2, DOT_LOCKED),
	           star = Dot(300, 3, DOT_LOCKED, DOT_IDLE, 0, DOT_STAR),
	           last = Dot(400, 4, DOT_INCOMPLETE);
	PointAt(*locked);
	Click();
	EXPECT_EQ("gui:2,-1 ", screen.Take());
	EXPECT_EQ(-1, g_selectedMapDot);
	PointAt(*first);
	GuiFocusNext(false);
	EXPECT_EQ(last->index, g_selectedMapDot);
	EXPECT_TRUE(star->disabled);
}

TEST_F(MapDotTest, KeysSelectByMovingAndFireAtOnce)
{
	const auto first = Dot(100, 1, DOT_COMPLETED), second = Dot(200, 2, DOT_INCOMPLETE);
	for (int move = 0; move < 4; move++) {
		GuiFocusNext(false);
		EXPECT_EQ(move % 2 ? second->index : first->index, g_selectedMapDot);
	}
	EXPECT_EQ("", screen.Take()) << "coming back soon is no double click";
	GuiPress(true);
	EXPECT_EQ("gui:2,0 ", screen.Take());
	EXPECT_FALSE(first->Press(true, true)) << "without focus not even when forced";
}

TEST_F(MapDotTest, AreaReachesNineLeftSevenRightEightUpAndDown)
{
	const auto dot    = Dot(100, 1, DOT_INCOMPLETE);
	const int centreX = dot->current->X() + dot->current->Width() / 2;
	const int centreY = dot->current->Y() + dot->current->Height() / 2;
	const struct {
		int right, below;
		bool over;
	} rows[] = {{-9, 0, true},  {-10, 0, false}, {7, 0, true},  {8, 0, false}, {0, -8, true},
	            {0, -9, false}, {0, 8, true},    {0, 9, false}, {-9, 8, true}, {7, -8, true}};
	for (const auto& row : rows) {
		Point(centreX + row.right, centreY + row.below);
		EXPECT_EQ(row.over, dot->IsMouseOver()) << row.right << "," << row.below;
	}
	Point(centreX, centreY);
	dot->HideWidget();
	EXPECT_FALSE(dot->IsMouseOver());
	EXPECT_TRUE(dot->current->IsHidden());
	dot->ShowWidget();
	EXPECT_TRUE(dot->IsMouseOver());
}

TEST_F(MapDotTest, StarSitsALittleUpAndLeft)
{
	const auto plain = Dot(100, 1, DOT_INCOMPLETE),
	           star  = Dot(100, 2, DOT_INCOMPLETE, DOT_IDLE, 0, DOT_STAR);
	EXPECT_EQ(plain->current->X() - 2, star->current->X());
	EXPECT_EQ(plain->current->Y() - 1, star->current->Y());
}

TEST_F(MapDotTest, GrowingDotWaitsAndCannotBePointedAt)
{
	const auto dot = Dot(100, 1, DOT_LOCKED, DOT_GROW, 5);
	PointAt(*dot);
	Frames(4);
	EXPECT_TRUE(dot->current->IsHidden());
	Frames(1);
	EXPECT_EQ(dot->art->grow, dot->current);
	EXPECT_FALSE(dot->current->IsHidden());
	EXPECT_EQ(-1, g_focusedWidget);
	Frames(5);
	EXPECT_EQ(DOT_GROW, dot->animation);
	Frames(1);
	EXPECT_EQ(DOT_ROLLOVER, dot->animation) << "the pointer has waited there";
}

TEST_F(MapDotTest, DotOfAFinishedLevelShrinksAndComesBackCompleted)
{
	const auto dot = Dot(100, 1, DOT_INCOMPLETE, DOT_SHRINK);
	EXPECT_EQ(dot->art->shrink, dot->current);
	Frames(7);
	EXPECT_EQ(DOT_COMPLETED, dot->state);
	EXPECT_EQ(dot->art->grow, dot->current) << "with no delay";
	Frames(6);
	EXPECT_EQ(DOT_IDLE, dot->animation);
	PointAt(*dot);
	GuiPress(true);
	EXPECT_EQ("gui:1,1 ", screen.Take());
}

TEST_F(MapDotTest, PressedWhileItShrinksItIsCompletedAtOnce)
{
	const auto dot = Dot(100, 1, DOT_INCOMPLETE, DOT_SHRINK);
	PointAt(*dot);
	GuiPress(true);
	EXPECT_EQ("gui:1,1 ", screen.Take());
	EXPECT_EQ(dot->art->selected, dot->current);
}

TEST_F(MapDotTest, NextDotGrowsInAsTheSelectedOneUnlessAnotherIsChosen)
{
	const auto other = Dot(100, 1, DOT_COMPLETED),
	           next  = Dot(200, 2, DOT_INCOMPLETE, DOT_GROW_SELECTED, 2);
	EXPECT_TRUE(next->IsSelected());
	Frames(3);
	EXPECT_EQ(next->art->selectedGrow, next->current);
	Frames(6);
	EXPECT_EQ(next->art->selected, next->current);
	const int rest = next->art->plain->Y();
	int lowest = rest, highest = rest;
	for (int i = 0; i < 28; i++) {
		Frames(1);
		lowest  = std::max(lowest, next->current->Y());
		highest = std::min(highest, next->current->Y());
	}
	EXPECT_EQ(rest + 2, lowest);
	EXPECT_EQ(rest - 2, highest);
	other->Select();
	Frames(1);
	EXPECT_EQ(next->art->plain, next->current);

	const auto late = Dot(300, 3, DOT_INCOMPLETE, DOT_GROW_SELECTED, 14);
	other->Select();
	Frames(1);
	EXPECT_EQ(DOT_IDLE, late->animation);
	EXPECT_FALSE(late->art->plain->IsHidden());
}

TEST_F(MapDotTest, DeletedDotLeavesNoneSelected)
{
	auto dot = Dot(100, 1, DOT_COMPLETED);
	dot->Select();
	dot.reset();
	EXPECT_EQ(-1, g_selectedMapDot);
	EXPECT_TRUE(GuiWidgets.empty());
}
