// What keys are called on the controls screen.
#include "screens/key_names.h"

#include <SDL.h>

static const char* const NO_NAME = "UNKNOWN";
static const int CASE_STEP       = 32; // from a letter to its capital

// clang-format off
static const struct {
	int code;
	const char* name;
} s_names[] = {
	{ SDLK_BACKSPACE, "Backspace" },     { SDLK_TAB, "Tab" },
	{ SDLK_CLEAR, "Clear" },             { SDLK_RETURN, "Return" },
	{ SDLK_PAUSE, "Pause" },             { SDLK_ESCAPE, "Escape" },
	{ SDLK_SPACE, "Spacebar" },          { SDLK_EXCLAIM, "Exclam'tn" },
	{ SDLK_QUOTEDBL, "Dbl Quote" },      { SDLK_HASH, "Hash" },
	{ SDLK_DOLLAR, "Dollar" },           { SDLK_AMPERSAND, "Ampersand" },
	{ SDLK_QUOTE, "Quote" },             { SDLK_LEFTPAREN, "Left Paren" },
	{ SDLK_RIGHTPAREN, "Rght Paren" },   { SDLK_ASTERISK, "Asterix" },
	{ SDLK_PLUS, "Plus" },               { SDLK_COMMA, "Comma" },
	{ SDLK_MINUS, "Minus" },             { SDLK_PERIOD, "Period" },
	{ SDLK_SLASH, "Slash" },             { SDLK_COLON, "Colon" },
	{ SDLK_SEMICOLON, "Semicolon" },     { SDLK_LESS, "Less" },
	{ SDLK_EQUALS, "Equals" },           { SDLK_GREATER, "Greater" },
	{ SDLK_QUESTION, "Question" },       { SDLK_LEFTBRACKET, "Left Brack" },
	{ SDLK_BACKSLASH, "Backslash" },     { SDLK_RIGHTBRACKET, "Rght Brack" },
	{ SDLK_CARET, "Caret" },             { SDLK_UNDERSCORE, "Underscore" },
	{ SDLK_BACKQUOTE, "Backquote" },     { SDLK_DELETE, "Delete" },
	{ SDLK_KP_PERIOD, "NP Period" },     { SDLK_KP_DIVIDE, "NP Divide" },
	{ SDLK_KP_MULTIPLY, "NP Mltply" },   { SDLK_KP_MINUS, "NP Minus" },
	{ SDLK_KP_PLUS, "NP Plus" },         { SDLK_KP_ENTER, "NP Enter" },
	{ SDLK_KP_EQUALS, "NP Equals" },     { SDLK_UP, "Up Arrow" },
	{ SDLK_DOWN, "Dwn Arrow" },          { SDLK_RIGHT, "Rgt Arrow" },
	{ SDLK_LEFT, "Lft Arrow" },          { SDLK_INSERT, "Insert" },
	{ SDLK_HOME, "Home" },               { SDLK_END, "End" },
	{ SDLK_PAGEUP, "Page Up" },          { SDLK_PAGEDOWN, "Page Down" },
	{ SDLK_NUMLOCK, "Num Lock" },        { SDLK_CAPSLOCK, "Caps Lock" },
	{ SDLK_SCROLLOCK, "Scrl Lock" },     { SDLK_RSHIFT, "Rgt Shift" },
	{ SDLK_LSHIFT, "Lft Shift" },        { SDLK_RCTRL, "Rght CTRL" },
	{ SDLK_LCTRL, "Left CTRL" },         { SDLK_RALT, "Right ALT" },
	{ SDLK_LALT, "Left ALT" },           { SDLK_RMETA, "Rght Meta" },
	{ SDLK_LMETA, "Left Meta" },         { SDLK_LSUPER, "Lft Wndws" },
	{ SDLK_RSUPER, "Rgt Wndws" },        { SDLK_MODE, "Mode" },
	{ SDLK_COMPOSE, "Compose" },         { SDLK_HELP, "Help" },
	{ SDLK_PRINT, "Print" },             { SDLK_SYSREQ, "SysReq" },
	{ SDLK_BREAK, "Break" },             { SDLK_MENU, "Menu" },
	{ SDLK_POWER, "Power" },             { SDLK_EURO, "Euro" },
	{ SDLK_UNDO, "Undo" },
};
// clang-format on

std::string KeyName(int code)
{
	if (code >= SDLK_a && code <= SDLK_z)
		return std::string(1, static_cast<char>(code - CASE_STEP));
	if (code >= SDLK_0 && code <= SDLK_9)
		return std::string(1, static_cast<char>(code));
	if (code >= SDLK_F1 && code <= SDLK_F15)
		return "F" + std::to_string(code - SDLK_F1 + 1);
	if (code >= SDLK_KP0 && code <= SDLK_KP9)
		return "Numpad " + std::to_string(code - SDLK_KP0);
	for (const auto& row : s_names)
		if (row.code == code)
			return row.name;
	return NO_NAME;
}
