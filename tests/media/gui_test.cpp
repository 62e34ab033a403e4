// Buttons, check boxes, focus, slider, text field, door, font.
#include "media/gui.h"

#include "media/cursor.h"
#include "media/display.h"
#include "media/fake_controller.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "media/gui_check_box.h"
#include "media/gui_door.h"
#include "media/gui_slider.h"
#include "media/gui_text_input.h"
#include "media/input.h"
#include "media/media_test.h"
#include "media/render_manager.h"
#include "media/sprite.h"

class GuiTest : public MediaTest
{
protected:
	GuiTest()
	{
		g_leftButtonDown = false;
		g_focusedWidget  = -1;
	}
	std::unique_ptr<CGuiButton> Button(int x, int id, bool isDefault = false,
	                                   const std::string& pressed = "")
	{
		return std::make_unique<CGuiButton>(x, 100, id, &screen, "red.bmp", "blue.bmp", "green.bmp",
		                                    pressed, isDefault, false, 3, 4);
	}
	void Point(int x, int y = 110)
	{
		input->x = x;
		input->y = y;
		GuiStepAll();
	}
	void Click()
	{
		GuiMouseEdge(false);
		GuiMouseEdge(true);
	}

	CFakeController screen;
};

TEST_F(GuiTest, ReleaseFiresTheButtonUnderThePointer)
{
	const auto left = Button(100, 1), right = Button(200, 2);
	Point(110);
	GuiMouseEdge(false);
	Point(210);
	EXPECT_EQ("", screen.Take()) << "not on the press";
	GuiMouseEdge(true);
	EXPECT_EQ("gui:2,0 ", screen.Take());
	GuiMouseEdge(true);
	EXPECT_EQ("", screen.Take()) << "a release without a press";
	Point(500);
	Click();
	EXPECT_EQ("", screen.Take());
}

TEST_F(GuiTest, ButtonShowsRolloverAndSinksWhilePressed)
{
	const auto plain = Button(100, 1), pressable = Button(200, 2, false, "white.bmp");
	EXPECT_EQ(103, plain->shadow->X());
	EXPECT_EQ(104, plain->shadow->Y());
	Point(110);
	EXPECT_TRUE(plain->base->IsHidden());
	EXPECT_FALSE(plain->rollover->IsHidden());
	GuiMouseEdge(false);
	Point(110);
	EXPECT_EQ(102, plain->rollover->X());
	EXPECT_EQ(102, plain->rollover->Y());
	Point(210);
	EXPECT_FALSE(plain->base->IsHidden());
	EXPECT_TRUE(plain->rollover->IsHidden());
	EXPECT_FALSE(pressable->pressed->IsHidden());
	EXPECT_TRUE(pressable->rollover->IsHidden());
	g_leftButtonDown = false;
	Point(210);
	EXPECT_TRUE(pressable->pressed->IsHidden());
	EXPECT_EQ(200, pressable->rollover->X());
	pressable->HideWidget();
	Point(210);
	EXPECT_EQ(-1, g_focusedWidget);
	EXPECT_TRUE(pressable->shadow->IsHidden());
	pressable->ShowWidget();
	EXPECT_FALSE(pressable->base->IsHidden());
}

TEST_F(GuiTest, FirstOfTwoOverlappingWidgetsTakesTheFocus)
{
	const auto first = Button(100, 1), second = Button(110, 2);
	Point(115);
	EXPECT_EQ(first->index, g_focusedWidget);
	EXPECT_TRUE(second->rollover->IsHidden());
}

TEST_F(GuiTest, ReturnPressesTheFocusedElseTheDefaultButton)
{
	GuiPress(true); // no widget at all
	const auto plain = Button(100, 1), chosen = Button(200, 2, true);
	Point(500);
	EXPECT_TRUE(GuiKey(SDLK_RETURN));
	EXPECT_EQ("gui:2,0 ", screen.Take());
	Click();
	EXPECT_EQ("", screen.Take()) << "the mouse presses no default";
	Point(110);
	EXPECT_TRUE(GuiKey(SDLK_SPACE));
	EXPECT_EQ("gui:1,0 ", screen.Take());
	EXPECT_FALSE(GuiKey(SDLK_a));
	chosen->isDefault = false;
	Point(500);
	GuiKey(SDLK_KP_ENTER);
	EXPECT_EQ("", screen.Take());
}

TEST_F(GuiTest, FocusWalksRoundPastHiddenAndDisabledWidgets)
{
	auto a = Button(100, 1), b = Button(200, 2), c = Button(300, 3), d = Button(400, 4);
	b->disabled = true;
	c->HideWidget();
	Point(500);
	const auto walk = [&](int key) {
		GuiKey(key);
		input->Poll(&screen);
		GuiStepAll();
		return g_focusedWidget;
	};
	EXPECT_EQ(a->index, walk(SDLK_DOWN));
	EXPECT_EQ(110, CursorX()) << "the pointer goes along";
	EXPECT_TRUE(IsCursorHidden());
	EXPECT_EQ(d->index, walk(SDLK_RIGHT));
	EXPECT_EQ(a->index, walk(SDLK_DOWN));
	EXPECT_EQ(d->index, walk(SDLK_UP));
	EXPECT_EQ(a->index, walk(SDLK_LEFT));
	// The indices of the others stay when one goes, and a new one gets a number of its own.
	b.reset();
	const auto e = Button(450, 5);
	EXPECT_NE(d->index, e->index);
	EXPECT_EQ(-1, g_focusedWidget) << "a new widget clears the focus";
	EXPECT_EQ(a->index, walk(SDLK_DOWN));
	EXPECT_EQ(d->index, walk(SDLK_DOWN));
	EXPECT_EQ(e->index, walk(SDLK_DOWN));
	for (CGuiButtonBase* widget : GuiWidgets)
		widget->disabled = true;
	GuiFocusNext(false); // must come to an end
}

TEST_F(GuiTest, CheckBoxFlipsAndTellsItsValue)
{
	CGuiCheckBox box(100, 100, 7, &screen);
	EXPECT_TRUE(box.value);
	box.SetChecked(false);
	EXPECT_EQ("", screen.Take());
	EXPECT_FALSE(box.base[0]->IsHidden());
	EXPECT_TRUE(box.base[1]->IsHidden());
	Point(110);
	EXPECT_FALSE(box.rollover[0]->IsHidden());
	Click();
	EXPECT_EQ("gui:7,1 ", screen.Take());
	EXPECT_TRUE(box.rollover[0]->IsHidden());
	Point(110);
	EXPECT_FALSE(box.rollover[1]->IsHidden());
	box.HideWidget();
	box.SetChecked(false);
	EXPECT_TRUE(box.base[0]->IsHidden()) << "a hidden box stays hidden";
}

TEST_F(GuiTest, SliderWidthFollowsItsValue)
{
	CGuiSlider slider(100, 100);
	const int widths[] = {0, 12, 22, 32, 42, 52, 62, 72, 82, 92, 102, 114};
	for (int value = 0; value <= 11; value++) {
		slider.SetValue(value);
		EXPECT_EQ(widths[value], slider.bar->Width()) << value;
	}
	slider.Raise();
	EXPECT_EQ(11, slider.Value());
	slider.Lower();
	EXPECT_EQ(10, slider.Value());
	slider.SetDisabled(true);
	EXPECT_FALSE(slider.greyOut->IsHidden());
	EXPECT_EQ(77, slider.greyOut->X());
	slider.Lower();
	EXPECT_EQ(10, slider.Value());
	slider.SetValue(-4);
	EXPECT_EQ(0, slider.Value());
}

TEST_F(GuiTest, TextFieldTakesFifteenLettersOfItsKind)
{
	const int images = display->DecodedImages();
	{
		CGuiTextInput field(100, 100);
		field.OnFieldKey(SDLK_a, false);
		field.OnFieldKey(SDLK_a, true);
		field.OnFieldKey(SDLK_LSHIFT, false);
		field.OnFieldKey(SDLK_RSHIFT, false);
		field.OnFieldKey(SDLK_a, false);
		field.OnFieldKey(SDLK_RSHIFT, true);
		field.OnFieldKey(SDLK_b, false);
		field.OnFieldKey(SDLK_7, false);
		field.OnFieldKey(SDLK_SPACE, false);
		field.OnFieldKey(SDLK_TAB, false);
		field.OnFieldKey(SDLK_PERIOD, false);
		EXPECT_EQ("aAb7 ", field.Text());
		EXPECT_PRED2(Near, WHITE, ImagePixel(field.field->FirstImage(), 7, 10));
		EXPECT_PRED2(Near, RED, ImagePixel(field.field->FirstImage(), 17, 10));
		field.OnFieldKey(SDLK_BACKSPACE, false);
		field.OnFieldKey(SDLK_DELETE, false);
		EXPECT_EQ("aAb", field.Text());
		EXPECT_PRED2(Near, BLUE, ImagePixel(field.field->FirstImage(), 37, 10)) << "rubbed out";
		field.AddText("cccccccccccccccccc");
		EXPECT_EQ("aAbcccccccccccc", field.Text());
		for (int i = 0; i < 20; i++)
			field.AddCharacter(8);
		EXPECT_EQ("", field.Text());
		field.AddText("cab");
	}
	EXPECT_EQ(images, display->DecodedImages());
	EXPECT_EQ("", CGuiTextInput(0, 0).Text()) << "a new field empties the text";
}

TEST_F(GuiTest, TextCursorBlinksAfterTheLastLetter)
{
	CGuiTextInput field(100, 100);
	field.AddText("ab");
	std::string shown;
	for (int i = 0; i < 25; i++) {
		field.StepField();
		shown += field.cursor->IsHidden() ? '.' : '#';
	}
	EXPECT_EQ("#######..........#######.", shown);
	EXPECT_EQ(126, field.cursor->X());
	EXPECT_EQ(104, field.cursor->Y());
}

// Steps until the door has come to rest; -1 when it never does.
static int Steps(CGuiDoor& door, CRenderManager& render)
{
	for (int i = 1; i < 200; i++) {
		door.StepDoor();
		if (!door.IsOpening() && !door.IsClosing())
			return i;
		render.Update(true);
	}
	return -1;
}

TEST_F(GuiTest, DoorOpensAndClosesToWhereItWas)
{
	CGuiDoor door(700, 100);
	EXPECT_TRUE(door.IsClosed());
	door.RequestClose();
	EXPECT_EQ(1, Steps(door, *render)) << "a closed door has nothing to close";
	door.RequestOpen();
	door.StepDoor();
	EXPECT_TRUE(door.IsOpening());
	EXPECT_GT(Steps(door, *render), 24);
	EXPECT_TRUE(door.IsOpen());
	for (CSprite* part : {door.rightRubber, door.rightPanel, door.rightHandle}) {
		EXPECT_EQ(794, part->X());
		EXPECT_EQ(0, part->Width());
	}
	for (CSprite* part : {door.leftRubber, door.leftPanel, door.leftHandle}) {
		EXPECT_EQ(700, part->X());
		EXPECT_EQ(0, part->Width());
	}
	EXPECT_TRUE(door.bothHandles->IsHidden());
	door.RequestClose();
	EXPECT_GT(Steps(door, *render), 24);
	EXPECT_TRUE(door.IsClosed());
	EXPECT_EQ(732, door.leftRubber->X());
	EXPECT_EQ(748, door.rightRubber->X());
	EXPECT_EQ(15, door.leftRubber->Width());
	EXPECT_EQ(747, door.rightPanel->X());
	EXPECT_EQ(47, door.leftPanel->Width());
	EXPECT_EQ(47, door.rightPanel->Width());
	EXPECT_FALSE(door.bothHandles->IsHidden());
	EXPECT_EQ(0, door.bothHandles->Frame());
}

TEST_F(GuiTest, DoorTurnsRoundWhileItsHandlesCloseAndOpensAgain)
{
	CGuiDoor door(700, 100);
	door.RequestOpen();
	Steps(door, *render);
	door.RequestClose();
	do {
		door.StepDoor();
		render->Update(true);
	} while (door.bothHandles->IsHidden());
	door.RequestOpen();
	door.StepDoor();
	EXPECT_TRUE(door.IsClosed());
	door.StepDoor();
	EXPECT_TRUE(door.IsOpening());
	EXPECT_GT(Steps(door, *render), 0);
	EXPECT_TRUE(door.IsOpen());
}

TEST_F(GuiTest, GlyphsHaveTheirFiles)
{
	EXPECT_EQ("fontbigQ.png", GlyphFile('Q'));
	EXPECT_EQ("fontsmallz.png", GlyphFile('z'));
	EXPECT_EQ("fontnumber0.png", GlyphFile('0'));
	EXPECT_EQ("fontquotesopen.png", GlyphFile('`'));
	EXPECT_EQ("fontquotesclose.png", GlyphFile('"'));
	EXPECT_EQ("fontetc.png", GlyphFile('\1'));
	EXPECT_EQ("UNKNOWN FONT CHARACTER: % #37", GlyphFile('%'));
	const int image = display->NewImage(50, 50);
	EXPECT_EXIT(DrawText("%", image, TEXT_LEFT, 0, 0), testing::ExitedWithCode(1), "");
	display->ReleaseImage(image);
}

// The columns of cells, ten pixels each, that hold something in the row of the given pixel.
static std::string Cells(int image, int y)
{
	std::string cells;
	for (int x = 5; x < 100; x += 10)
		cells += Near(BLACK, ImagePixel(image, x, y)) ? '.' : '#';
	return cells;
}

TEST_F(GuiTest, TextIsAlignedByItsWholeLength)
{
	struct Case {
		const char* text;
		TextAlignment alignment;
		int x;
		const char *first, *second; // lines
	};
	const Case cases[] = {
	    {"ab c", TEXT_LEFT, 10, ".##.#.....", ".........."},
	    {"abcabc", TEXT_CENTRE, 50, "..######..", ".........."},
	    {"abc", TEXT_RIGHT, 50, "..###.....", ".........."},
	    {"abc\nab", TEXT_CENTRE, 60, "...###....", "......##.."},
	};
	for (const Case& one : cases) {
		SCOPED_TRACE(one.text);
		const int image = display->NewImage(100, 50);
		DrawText(one.text, image, one.alignment, one.x, 0);
		EXPECT_EQ(one.first, Cells(image, 10));
		EXPECT_EQ(one.second, Cells(image, 30));
		display->ReleaseImage(image);
	}
}
