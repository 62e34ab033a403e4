// The text field.
#include "media/gui_text_input.h"

#include "media/display.h"
#include "media/font.h"
#include "media/sprite.h"

#include <SDL.h>
#include <cstring>

static const int FIELD_DEPTH  = 900100;
static const int CURSOR_DEPTH = 900200;
static const int TEXT_X       = 6; // pixels within the field
static const int TEXT_Y       = 6;
static const int CURSOR_Y     = 4;
static const int BLINK_FRAMES = 8; // shown for as long, then hidden a frame longer
static const int BACKSPACE    = 8; // character codes
static const int DELETE_KEY   = 127;
static const int CASE_STEP    = 32; // from a letter to its capital

static char s_text[CGuiTextInput::MAX_LENGTH + 1];

CGuiTextInput::CGuiTextInput(int newX, int newY) : field(nullptr), x(newX), y(newY)
{
	s_text[0] = '\0';
	Redraw();
	cursor = new CSprite(x + TEXT_X, y + CURSOR_Y, CURSOR_DEPTH);
	cursor->AddFile("profilenternamecursor.png");
}

CGuiTextInput::~CGuiTextInput()
{
	delete field;
	delete cursor;
}

std::string CGuiTextInput::Text() const
{
	return s_text;
}

void CGuiTextInput::StepField()
{
	blink--;
	cursor->hidden = blink < 1;
	if (blink >= 1)
		cursor->SetPos(x + TEXT_X + FONT_CELL_WIDTH * static_cast<int>(strlen(s_text)),
		               y + CURSOR_Y);
	if (blink < -BLINK_FRAMES)
		blink = BLINK_FRAMES;
}

void CGuiTextInput::AddCharacter(int c)
{
	const size_t length = strlen(s_text);
	if (c == BACKSPACE) {
		if (length > 0)
			s_text[length - 1] = '\0';
	} else if (length < MAX_LENGTH) {
		s_text[length]     = static_cast<char>(c);
		s_text[length + 1] = '\0';
	}
	Redraw();
}

void CGuiTextInput::AddText(const std::string& text)
{
	for (char character : text)
		AddCharacter(character);
}

// The text is drawn into the picture of the field, so each change starts from a clean copy.
void CGuiTextInput::Redraw()
{
	CSprite* old    = field;
	const int image = g_display->LoadImage("profileenternameinputfield.png", true);
	DrawText(s_text, image, TEXT_LEFT, TEXT_X, TEXT_Y);
	field = new CSprite(x, y, FIELD_DEPTH);
	field->AddImage(image);
	delete old;
}

void CGuiTextInput::OnFieldKey(int key, bool released)
{
	if (key == SDLK_LSHIFT || key == SDLK_RSHIFT) {
		shift = !released;
		return;
	}
	if (released)
		return;
	if ((key >= '0' && key <= '9') || key == ' ' || key == BACKSPACE)
		AddCharacter(key);
	else if (key == DELETE_KEY)
		AddCharacter(BACKSPACE);
	else if (key >= 'a' && key <= 'z')
		AddCharacter(shift ? key - CASE_STEP : key);
}
