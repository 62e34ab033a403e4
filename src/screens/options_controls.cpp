// The control keys.
#include "screens/options_controls.h"

#include "media/display.h"
#include "media/font.h"
#include "media/gui_button.h"
#include "media/render_manager.h"
#include "media/sprite.h"
#include "screens/buttons.h"
#include "screens/card.h"
#include "screens/key_names.h"

static const int CARD_DEPTH   = 710000;
static const int CURSOR_DEPTH = 900300;
static const int CURSOR_X     = 431; // pixels
static const int CURSOR_DOWN  = 5;   // below the top of its input
static const int INPUT_X      = 423;
static const int INPUT_Y      = 166;
static const int INPUT_STEP   = 69;
static const int TEXT_X       = 8; // within the input
static const int TEXT_Y       = 7;
static const int BLINK_FRAMES = 8; // shown for as long, then hidden a frame longer

// clang-format off
static const CardPart s_parts[] = {
	{ "optionsmain.png",             225,  51 },
	{ "optionscontrolsdivisions.png", 247, 141 },
	{ "optionscontrolstitle.png",    312,  65 },
	{ "optionscontrolstextA.png",    280, 171 },
	{ "optionscontrolstextB.png",    280, 240 },
	{ "optionscontrolstextC.png",    280, 302 },
	{ "optionscontrolstextD.png",    280, 372 },
};
// clang-format on

CControllerOptionsControls::CControllerOptionsControls()
{
	for (int i = 0; i < CONTROL_KEYS; i++)
		pendingKeys[i] = g_gameData->GetKey(i);
	Open();
}

CControllerOptionsControls::~CControllerOptionsControls()
{
	Close();
}

void CControllerOptionsControls::Build()
{
	card = new CCard(CARD_DEPTH, false);
	card->Draw(s_parts);
	for (int i = 0; i < CONTROL_KEYS; i++) {
		widgets[i] = NewButton(this, i, INPUT_X, INPUT_Y + i * INPUT_STEP, "optionscontrolsinput");
		DrawInput(i, KeyName(pendingKeys[i]));
	}
	widgets[BUTTON_RESET]  = NewButton(this, BUTTON_RESET, 330, 433, "optionsbuttonreset");
	widgets[BUTTON_SAVE]   = NewButton(this, BUTTON_SAVE, 330, 470, "optionsbuttonsave");
	widgets[BUTTON_CANCEL] = NewButton(this, BUTTON_CANCEL, 402, 470, "optionsbuttoncancel");

	cursor = new CSprite(CURSOR_X, INPUT_Y + CURSOR_DOWN, CURSOR_DEPTH, SPRITE_OVERLAY);
	cursor->AddFile("optionscontrolscursor.png");
	cursor->Hide();
}

void CControllerOptionsControls::TearDown()
{
	for (CGuiButton*& widget : widgets) {
		delete widget;
		widget = nullptr;
	}
	delete cursor;
	delete card;
	cursor = nullptr;
	card   = nullptr;
}

// Puts a fresh copy of the file in the place of the sprite's picture, with the text on it.
static void Redraw(CSprite* sprite, const std::string& file, const std::string& text)
{
	for (int image : sprite->frames)
		g_display->ReleaseImage(image);
	sprite->frames.clear();
	const int image = g_display->LoadImage(file, true);
	DrawText(text, image, TEXT_LEFT, TEXT_X, TEXT_Y);
	sprite->AddImage(image);
}

void CControllerOptionsControls::DrawInput(int input, const std::string& text)
{
	CSprite* base = widgets[input]->base;
	Redraw(base, "optionscontrolsinputbase.png", text);
	Redraw(widgets[input]->rollover, "optionscontrolsinputrollover.png", text);
	g_render->AddExtraRect(base->x, base->y, base->width, base->height);
}

void CControllerOptionsControls::Step()
{
	cursor->hidden = true;
	if (!editing)
		return;
	blink--;
	cursor->hidden = blink < 1;
	cursor->SetPos(CURSOR_X, INPUT_Y + (editing - 1) * INPUT_STEP + CURSOR_DOWN);
	if (blink < -BLINK_FRAMES)
		blink = BLINK_FRAMES;
}

// While an input waits every key belongs to it.
void CControllerOptionsControls::OnKey(bool released, int key)
{
	if (!active || !editing)
		CScreen::OnKey(released, key);
	else if (released)
		TakeKey(key);
}

void CControllerOptionsControls::OnOtherKey(bool released, int key)
{
	if (released && key == SDLK_ESCAPE)
		EndByKey();
}

void CControllerOptionsControls::OnGuiEvent(int id, int)
{
	if (!active)
		return;
	switch (id) {
	case BUTTON_RESET:
		ResetKeys();
		break;
	case BUTTON_SAVE:
		SaveKeys();
		break;
	case BUTTON_CANCEL:
		SetResult(RESULT_RETURN);
		break;
	default:
		OpenInput(id + 1);
	}
}

void CControllerOptionsControls::OpenInput(int input)
{
	if (editing)
		DrawInput(editing - 1, KeyName(pendingKeys[editing - 1]));
	editing = input;
	DrawInput(input - 1, "");
	blink = BLINK_FRAMES;
}

void CControllerOptionsControls::TakeKey(int key)
{
	pendingKeys[editing - 1] = key;
	DrawInput(editing - 1, KeyName(key));
	editing = 0;
}

void CControllerOptionsControls::ResetKeys()
{
	const ProfileRecord fresh;
	editing = 0;
	for (int i = 0; i < CONTROL_KEYS; i++) {
		pendingKeys[i] = fresh.keyCode[i];
		DrawInput(i, KeyName(pendingKeys[i]));
	}
}

void CControllerOptionsControls::SaveKeys()
{
	for (int i = 0; i < CONTROL_KEYS; i++)
		g_gameData->SetKey(i, pendingKeys[i]);
	SetResult(RESULT_RETURN);
}
