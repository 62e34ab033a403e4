// The bitmap font.
#include "media/font.h"

#include "media/display.h"

#include <cstdio>

struct GlyphName {
	char character;
	const char* file;
};

// clang-format off
static const GlyphName s_signs[] = {
	{ '\'', "fontapostrophe.png" },
	{ '(',  "fontbracketopen.png" },
	{ ')',  "fontbracketclose.png" },
	{ ':',  "fontcolon.png" },
	{ ';',  "fontsemicolon.png" },
	{ ',',  "fontcomma.png" },
	{ '.',  "fontperiod.png" },
	{ '$',  "fontdollarsign.png" },
	{ '!',  "fontexclamation.png" },
	{ '?',  "fontquestion.png" },
	{ '-',  "fonthyphen.png" },
	{ '`',  "fontquotesopen.png" },
	{ '"',  "fontquotesclose.png" },
	{ '\1', "fontetc.png" },
};
// clang-format on

static bool IsBetween(char character, char first, char last)
{
	return character >= first && character <= last;
}

std::string GlyphFile(char character)
{
	for (const GlyphName& sign : s_signs)
		if (sign.character == character)
			return sign.file;
	const char* format = "UNKNOWN FONT CHARACTER: %c #%i";
	if (IsBetween(character, 'A', 'Z'))
		format = "fontbig%c.png";
	else if (IsBetween(character, 'a', 'z'))
		format = "fontsmall%c.png";
	else if (IsBetween(character, '0', '9'))
		format = "fontnumber%c.png";
	char name[64];
	snprintf(name, sizeof name, format, character, static_cast<unsigned char>(character));
	return name;
}

void DrawText(const std::string& text, int image, TextAlignment alignment, int x, int y)
{
	const int length = static_cast<int>(text.size()) * FONT_CELL_WIDTH;
	int penX = x, penY = y;
	if (alignment == TEXT_CENTRE)
		penX -= length / 2;
	if (alignment == TEXT_RIGHT)
		penX -= length;
	for (char character : text) {
		if (character == '\n') {
			penX = x;
			penY += FONT_LINE_HEIGHT;
			continue;
		}
		if (character != ' ')
			g_display->DrawFile(GlyphFile(character), image, penX, penY, false);
		penX += FONT_CELL_WIDTH;
	}
}
