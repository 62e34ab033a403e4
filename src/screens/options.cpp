// The options screen.
#include "screens/options.h"

#include "field/barrier.h"
#include "field/paddle.h"
#include "media/display.h"
#include "media/gui_button.h"
#include "media/gui_check_box.h"
#include "media/gui_slider.h"
#include "media/render_manager.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "screens/dialog.h"
#include "screens/mouse_mode.h"
#include "screens/options_controls.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <iterator>

static const int CARD_DEPTH   = 700000; // below the boards of its children
static const int FIRST_BOX    = CControllerOptions::BOX_SYSTEM_CURSOR;
static const int SLIDER_STEPS = 12;
static const int BARRIER_X    = 41; // pixels from the paddle's anchor

const float mouseSpeedSteps[SLIDER_STEPS] = {0.15f, 0.4f, 0.6f, 0.8f, 0.9f, 1.0f,
                                             1.1f,  1.2f, 1.4f, 1.7f, 2.0f, 3.0f};

// clang-format off
static const CardPart s_parts[] = {
	{ "optionsmain.png",      225,  51 },
	{ "optionsdivisions.png", 247, 140 },
	{ "optionstitle.png",     312,  67 },
	{ "optionstextA.png",     281, 151 },
	{ "optionstextB.png",     258, 224 },
	{ "optionstextC.png",     280, 293 },
	{ "optionsprof.png",      457, 273 },
};

static const struct {
	int id;
	const char* family;
	int x, y;
} s_buttons[CControllerOptions::BUTTONS] = {
	{ CControllerOptions::SOUND_LOWER,     "optionssliderbuttonminus", 380, 150 },
	{ CControllerOptions::SOUND_RAISE,     "optionssliderbuttonplus",  513, 150 },
	{ CControllerOptions::MUSIC_LOWER,     "optionssliderbuttonminus", 380, 177 },
	{ CControllerOptions::MUSIC_RAISE,     "optionssliderbuttonplus",  513, 177 },
	{ CControllerOptions::MOUSE_LOWER,     "optionssliderbuttonminus", 380, 223 },
	{ CControllerOptions::MOUSE_RAISE,     "optionssliderbuttonplus",  513, 223 },
	{ CControllerOptions::BUTTON_CONTROLS, "optionsbuttoncontrols",    348, 432 },
	{ CControllerOptions::BUTTON_BACK,     "optionsbuttonback",        348, 468 },
};

static const struct {
	int x, y;
} s_boxes[CControllerOptions::BOXES] = {
	{ 451, 242 }, { 424, 288 }, { 424, 312 }, { 424, 336 }, { 424, 360 }, { 424, 384 },
};
// clang-format on

static int StepOfSpeed(float speed)
{
	const float* found = std::find(std::begin(mouseSpeedSteps), std::end(mouseSpeedSteps), speed);
	return found == std::end(mouseSpeedSteps) ? 0 : static_cast<int>(found - mouseSpeedSteps);
}

CControllerOptions::CControllerOptions()
    : card(new CCard(CARD_DEPTH, true)), cluck(new CSound("chicken_cluck1.ogg"))
{
	card->Draw(s_parts);
	Open();
}

CControllerOptions::~CControllerOptions()
{
	Close();
	delete dialog;
	delete controls;
	delete cluck;
	delete card;
}

// The boxes stand between the sliders' buttons and the two at the bottom, as they are read.
void CControllerOptions::Build()
{
	for (int i = 0; i < BUTTONS; i++) {
		const auto& row = s_buttons[i];
		if (row.id == BUTTON_CONTROLS)
			BuildBoxes();
		buttons[i] = NewButton(this, row.id, row.x, row.y, row.family);
	}
	BuildSliders();
}

void CControllerOptions::BuildSliders()
{
	soundSlider = new CGuiSlider(398, 147);
	soundSlider->SetValue(g_gameData->GetSoundVolume());
	musicSlider = new CGuiSlider(398, 174);
	musicSlider->SetValue(g_gameData->GetMusicVolume());
	mouseSlider = new CGuiSlider(398, 220);
	mouseSlider->SetValue(StepOfSpeed(g_gameData->GetMouseSpeed()));
	mouseSlider->SetDisabled(g_gameData->SystemCursorOn());
}

void CControllerOptions::BuildBoxes()
{
	const bool checked[BOXES] = {
	    g_gameData->SystemCursorOn(), g_display->IsFullscreen(),       g_gameData->EffectsOn(),
	    g_gameData->HintPagesOn(),    g_gameData->profile.quizOn != 0, g_gameData->KidsBarrierOn(),
	};
	for (int i = 0; i < BOXES; i++) {
		boxes[i] = new CGuiCheckBox(s_boxes[i].x, s_boxes[i].y, FIRST_BOX + i, this);
		boxes[i]->SetChecked(checked[i]);
	}
}

void CControllerOptions::TearDown()
{
	for (CGuiButton*& button : buttons) {
		delete button;
		button = nullptr;
	}
	for (CGuiCheckBox*& box : boxes) {
		delete box;
		box = nullptr;
	}
	for (CGuiSlider** slider : {&soundSlider, &musicSlider, &mouseSlider}) {
		delete *slider;
		*slider = nullptr;
	}
}

void CControllerOptions::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	if (id < FIRST_BOX) {
		TurnSlider(id);
	} else if (id < FIRST_BOX + BOXES) {
		TurnBox(id);
	} else if (id == BUTTON_CONTROLS) {
		MakeRoomForChild();
		Push(controls = new CControllerOptionsControls);
	} else {
		SetResult(RESULT_RETURN);
	}
}

void CControllerOptions::TurnSlider(int id)
{
	CGuiSlider* slider = id <= SOUND_RAISE   ? soundSlider
	                     : id <= MUSIC_RAISE ? musicSlider
	                                         : mouseSlider;
	if (slider->IsDisabled())
		return;
	if (id == SOUND_LOWER || id == MUSIC_LOWER || id == MOUSE_LOWER)
		slider->Lower();
	else
		slider->Raise();

	if (slider == soundSlider) {
		g_gameData->SetSoundVolume(slider->Value());
		cluck->Play();
	} else if (slider == musicSlider) {
		g_gameData->SetMusicVolume(slider->Value());
	} else {
		g_gameData->SetMouseSpeed(mouseSpeedSteps[slider->Value()]);
	}
}

void CControllerOptions::TurnBox(int id)
{
	switch (id) {
	case BOX_SYSTEM_CURSOR:
		ToggleSystemCursor();
		break;
	case BOX_FULLSCREEN:
		g_display->ToggleFullscreen();
		boxes[id - FIRST_BOX]->SetChecked(g_display->IsFullscreen());
		break;
	case BOX_EFFECTS:
		g_gameData->SetEffectsOn(!g_gameData->EffectsOn());
		break;
	case BOX_HINT_PAGES:
		g_gameData->SetHintPagesOn(!g_gameData->HintPagesOn());
		break;
	case BOX_QUIZ:
		g_gameData->SetQuizOn(!g_gameData->profile.quizOn);
		break;
	case BOX_BARRIER:
		ToggleBarrier();
		break;
	}
}

void CControllerOptions::ToggleSystemCursor()
{
	g_gameData->ToggleSystemCursor();
	ApplyMouseMode();
	mouseSlider->SetDisabled(g_gameData->SystemCursorOn());
}

// Doing without the shield asks first; having it back does not.
void CControllerOptions::ToggleBarrier()
{
	if (g_gameData->KidsBarrierOn()) {
		MakeRoomForChild();
		Push(dialog = new CControllerDialog(DIALOG_DISABLE_SHIELD, false));
		return;
	}
	g_gameData->SetKidsBarrierOn(true);
	if (g_gameData->IsKidsMode() && g_barrier && g_paddle)
		g_barrier->Raise(g_paddle->GetX() + BARRIER_X);
}

void CControllerOptions::MakeRoomForChild()
{
	PaintWithoutCursor();
	Close();
}

void CControllerOptions::Enter()
{
	if (dialog && dialog->answer == 0) {
		g_gameData->SetKidsBarrierOn(false);
		if (g_barrier)
			g_barrier->Lower();
	}
	delete dialog;
	delete controls;
	dialog   = nullptr;
	controls = nullptr;
	g_render->AddExtraRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
	Open();
}

void CControllerOptions::OnOtherKey(bool released, int key)
{
	if (released && key == SDLK_ESCAPE)
		EndByKey();
}
