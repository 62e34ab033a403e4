// The options, felt at once, and the control keys.
#include "screens/options.h"

#include "field/barrier.h"
#include "media/display.h"
#include "media/font.h"
#include "media/gui.h"
#include "media/gui_check_box.h"
#include "media/gui_slider.h"
#include "media/input.h"
#include "media/render_manager.h"
#include "screens/key_names.h"
#include "screens/options_controls.h"
#include "screens/screen_test.h"
#include "state/game_data.h"

#include <SDL.h>
#include <set>

class OptionsTest : public ScreenTest
{
protected:
	void Open()
	{
		options = std::make_unique<CControllerOptions>();
		Start(options.get());
	}
	void TearDown() override
	{
		options.reset();
		ScreenTest::TearDown();
	}
	void Press(int id, int times = 1)
	{
		for (int i = 0; i < times; i++)
			options->OnGuiEvent(id, 0);
	}
	void Flip(int box) // as a click on it
	{
		options->boxes[box - CControllerOptions::BOX_SYSTEM_CURSOR]->Press(false, true);
	}

	std::unique_ptr<CControllerOptions> options;
};

TEST_F(OptionsTest, ScreenShowsWhatTheProfileHolds)
{
	g_gameData->profile.soundVolume    = 3;
	g_gameData->profile.musicVolume    = 0;
	g_gameData->profile.mouseSpeed     = 1.7f;
	g_gameData->profile.effectsOn      = 0;
	g_gameData->profile.quizOn         = 0;
	g_gameData->profile.systemCursorOn = 0;
	Open();
	EXPECT_EQ(3, options->soundSlider->Value());
	EXPECT_EQ(0, options->musicSlider->Value());
	EXPECT_EQ(9, options->mouseSlider->Value());
	EXPECT_FALSE(options->mouseSlider->IsDisabled());
	const bool expected[] = {false, g_display->IsFullscreen(), false, true, false, true};
	for (int i = 0; i < CControllerOptions::BOXES; i++)
		EXPECT_EQ(expected[i], options->boxes[i]->value) << i;
	options.reset();

	g_gameData->profile.mouseSpeed = 1.05f;
	Open();
	EXPECT_EQ(0, options->mouseSlider->Value()) << "a speed that is not on the list";
}

TEST_F(OptionsTest, SlidersActAtOnceAndStopAtTheirEnds)
{
	g_gameData->profile.systemCursorOn = 0;
	Open();
	Click(390, 160); // sound down
	EXPECT_EQ(10, g_gameData->GetSoundVolume());
	Press(CControllerOptions::SOUND_LOWER, 20);
	EXPECT_EQ(0, g_gameData->GetSoundVolume());
	Press(CControllerOptions::MUSIC_RAISE, 20);
	EXPECT_EQ(11, g_gameData->GetMusicVolume());
	Press(CControllerOptions::MOUSE_RAISE, 20);
	EXPECT_FLOAT_EQ(3, g_gameData->GetMouseSpeed());
	EXPECT_FLOAT_EQ(3, g_input->speed);
	Press(CControllerOptions::MOUSE_LOWER, 20);
	EXPECT_FLOAT_EQ(0.15f, g_input->speed);
}

TEST_F(OptionsTest, SystemCursorKeepsThePointerAndRestsTheSpeed)
{
	Open();
	EXPECT_TRUE(options->mouseSlider->IsDisabled());
	Press(CControllerOptions::MOUSE_RAISE);
	EXPECT_FLOAT_EQ(1, g_gameData->GetMouseSpeed());
	Point(455, 246);
	Flip(CControllerOptions::BOX_SYSTEM_CURSOR);
	EXPECT_FALSE(g_input->systemCursorMode);
	EXPECT_FALSE(options->mouseSlider->IsDisabled());
	EXPECT_EQ(455, g_input->x);
	EXPECT_EQ(246, g_input->y);
	Flip(CControllerOptions::BOX_SYSTEM_CURSOR);
	EXPECT_TRUE(g_input->systemCursorMode);
	EXPECT_TRUE(options->mouseSlider->IsDisabled());
}

TEST_F(OptionsTest, BoxesFlipTheirOptions)
{
	Open();
	Flip(CControllerOptions::BOX_EFFECTS);
	Flip(CControllerOptions::BOX_HINT_PAGES);
	Flip(CControllerOptions::BOX_QUIZ);
	EXPECT_FALSE(g_gameData->EffectsOn());
	EXPECT_FALSE(g_gameData->HintPagesOn());
	EXPECT_EQ(0, g_gameData->profile.quizOn);
	Flip(CControllerOptions::BOX_EFFECTS);
	EXPECT_TRUE(g_gameData->EffectsOn());

	const bool before = g_display->IsFullscreen();
	Flip(CControllerOptions::BOX_FULLSCREEN);
	EXPECT_EQ(g_display->IsFullscreen(), options->boxes[1]->value);
	if (g_display->IsFullscreen() != before)
		g_display->ToggleFullscreen();
}

TEST_F(OptionsTest, ShieldGoesDownAfterAQuestionAndComesUpWithoutOne)
{
	MakeBallAndPaddle();
	g_gameData->profile.kidsMode = 1;
	barrier->Raise(300);
	Tick(20); // frames of the field
	ASSERT_TRUE(barrier->IsUp());
	Open();
	Flip(CControllerOptions::BOX_BARRIER);
	ASSERT_EQ("CControllerDialog", Screen());
	Click(421, 339); // rather not
	ASSERT_EQ("CControllerOptions", Screen());
	EXPECT_TRUE(g_gameData->KidsBarrierOn());
	EXPECT_TRUE(options->boxes[5]->value) << "shown as it stands";

	Flip(CControllerOptions::BOX_BARRIER);
	Click(259, 339); // yes
	EXPECT_FALSE(g_gameData->KidsBarrierOn());
	Frame();
	for (int i = 0; i < 60; i++) {
		g_render->Update(true);
		FieldTest::Tick();
	}
	EXPECT_FALSE(barrier->IsUp());

	Flip(CControllerOptions::BOX_BARRIER);
	EXPECT_EQ("CControllerOptions", Screen());
	EXPECT_TRUE(g_gameData->KidsBarrierOn());
	FieldTest::Tick(20);
	EXPECT_TRUE(barrier->IsUp());
}

TEST_F(OptionsTest, ShieldStaysAwayInTheRegularGame)
{
	MakeBallAndPaddle();
	g_gameData->profile.kidsBarrierOn = 0;
	Open();
	Flip(CControllerOptions::BOX_BARRIER);
	EXPECT_TRUE(g_gameData->KidsBarrierOn());
	FieldTest::Tick(20);
	EXPECT_FALSE(barrier->IsUp());
}

// Widgets come back after a child, the board never leaves, and the keyboard reaches everything.
TEST_F(OptionsTest, EveryWidgetIsReachedByKey)
{
	Open();
	std::set<int> ids;
	for (int i = 0; i < CControllerOptions::WIDGETS; i++) {
		Key(SDLK_DOWN);
		Frame(2);
		ASSERT_GE(g_focusedWidget, 0);
		ids.insert(GuiWidgets.at(static_cast<size_t>(g_focusedWidget))->id);
	}
	EXPECT_EQ(static_cast<size_t>(CControllerOptions::WIDGETS), ids.size());
	Key(SDLK_RETURN); // the last one: back
	EXPECT_TRUE(IsBack());
	Open();
	Key(SDLK_ESCAPE);
	EXPECT_TRUE(IsBack());
}

class ControlsTest : public ScreenTest
{
protected:
	void SetUp() override
	{
		ScreenTest::SetUp();
		controls = std::make_unique<CControllerOptionsControls>();
		Start(controls.get());
	}
	void TearDown() override
	{
		controls.reset();
		ScreenTest::TearDown();
	}

	std::unique_ptr<CControllerOptionsControls> controls;
};

TEST_F(ControlsTest, OpenInputTakesTheNextKeyWhateverItIs)
{
	Click(433, 176);
	EXPECT_EQ(1, controls->editing);
	Key(SDLK_ESCAPE);
	EXPECT_EQ(0, controls->editing);
	EXPECT_EQ(SDLK_ESCAPE, controls->pendingKeys[0]);
	EXPECT_FALSE(IsBack());
	Click(433, 176);
	Click(433, 245); // another one meanwhile
	EXPECT_EQ(2, controls->editing);
	Key(SDLK_UP); // in use elsewhere
	EXPECT_EQ(SDLK_UP, controls->pendingKeys[1]);
	EXPECT_EQ(SDLK_UP, controls->pendingKeys[2]);
	EXPECT_EQ(SDLK_ESCAPE, controls->pendingKeys[0]);
	Click(340, 480); // save
	EXPECT_TRUE(IsBack());
	EXPECT_EQ(SDLK_ESCAPE, g_gameData->GetKey(KEY_LEFT));
	EXPECT_EQ(SDLK_UP, g_gameData->GetKey(KEY_RIGHT));
}

TEST_F(ControlsTest, CancelKeepsTheKeysEvenAfterAReset)
{
	controls.reset();
	g_gameData->SetKey(KEY_LEFT, SDLK_a);
	controls = std::make_unique<CControllerOptionsControls>();
	Start(controls.get());
	EXPECT_EQ(SDLK_a, controls->pendingKeys[0]);
	Click(433, 245);
	Click(340, 443); // reset
	EXPECT_EQ(0, controls->editing);
	EXPECT_EQ(276, controls->pendingKeys[0]);
	EXPECT_EQ(275, controls->pendingKeys[1]);
	EXPECT_EQ(273, controls->pendingKeys[2]);
	EXPECT_EQ(32, controls->pendingKeys[3]);
	Click(430, 495); // cancel
	EXPECT_TRUE(IsBack());
	EXPECT_EQ(SDLK_a, g_gameData->GetKey(KEY_LEFT));
}

TEST_F(ControlsTest, KeyboardOpensFillsAndSaves)
{
	Key(SDLK_DOWN);
	Frame(2);
	Key(SDLK_RETURN);
	EXPECT_EQ(1, controls->editing);
	Key(SDLK_RETURN);
	EXPECT_EQ(SDLK_RETURN, controls->pendingKeys[0]);
	EXPECT_EQ(0, controls->editing);
	Key(SDLK_ESCAPE);
	EXPECT_TRUE(IsBack());
	EXPECT_EQ(276, g_gameData->GetKey(KEY_LEFT));
}

TEST_F(ControlsTest, EveryKeyHasANameThatCanBeWritten)
{
	EXPECT_EQ("A", KeyName(SDLK_a));
	EXPECT_EQ("7", KeyName(SDLK_7));
	EXPECT_EQ("F15", KeyName(SDLK_F15));
	EXPECT_EQ("Numpad 9", KeyName(SDLK_KP9));
	EXPECT_EQ("Exclam'tn", KeyName(33));
	EXPECT_EQ("Lft Arrow", KeyName(276));
	EXPECT_EQ("Undo", KeyName(322));
	EXPECT_EQ("UNKNOWN", KeyName(0));
	EXPECT_EQ("UNKNOWN", KeyName(SDLK_WORLD_0));
	EXPECT_EQ("UNKNOWN", KeyName(-5));
	for (int code = 0; code < SDLK_LAST + 10; code++) {
		const std::string name = KeyName(code);
		EXPECT_LE(name.size(), 19u) << code;
		for (char letter : name)
			EXPECT_TRUE(letter == ' ' || g_display->HasImage(GlyphFile(letter))) << name;
	}
}
