// The box that asks for a player's name.
#include "screens/name_box.h"

#include "media/gui.h"
#include "media/gui_button.h"
#include "media/gui_text_input.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "screens/refuse.h"

#include <SDL.h>

static const int CARD_DEPTH = 760000;

// clang-format off
static const CardPart s_parts[] = {
	{ "endgame_namebox.png",         222, 205 },
	{ "endgame_nameconfirmtext.png", 242, 222 },
};
// clang-format on

CControllerName::CControllerName(bool forNewProfile) : newProfile(forNewProfile)
{
	Open();
}

CControllerName::~CControllerName()
{
	Close();
}

void CControllerName::Build()
{
	card = new CCard(CARD_DEPTH, false);
	card->Draw(s_parts);
	input  = new CGuiTextInput(275, 266);
	okay   = NewButton(this, BUTTON_OKAY, 456, 266, "endgame_button_okay", true);
	cancel = NewButton(this, BUTTON_CANCEL, 456, 302, "endgame_button_cancel");
}

void CControllerName::TearDown()
{
	delete okay;
	delete cancel;
	delete input;
	delete card;
	okay = cancel = nullptr;
	input         = nullptr;
	card          = nullptr;
}

void CControllerName::Step()
{
	input->StepField();
}

static bool IsShift(int key)
{
	return key == SDLK_LSHIFT || key == SDLK_RSHIFT;
}

void CControllerName::OnKey(bool released, int key)
{
	if (!active)
		return;
	if (!released || IsShift(key))
		input->OnFieldKey(key, released);
	else if (key == SDLK_ESCAPE)
		EndByKey();
	else if (key != SDLK_SPACE)
		GuiKey(key);
}

void CControllerName::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	if (id == BUTTON_CANCEL) {
		SetResult(RESULT_RETURN);
		return;
	}
	if (input->Text().find_first_not_of(' ') == std::string::npos) {
		Refuse();
		return;
	}
	text      = input->Text();
	cancelled = false;
	SetResult(RESULT_RETURN);
}
