// The bitmap font: a picture a character, in cells of one width.
#pragma once

#include <string>

const int FONT_CELL_WIDTH  = 10; // pixels
const int FONT_LINE_HEIGHT = 20;

enum TextAlignment { TEXT_LEFT, TEXT_CENTRE, TEXT_RIGHT };

// The picture of a character. One that the font lacks gives a name that no archive holds, so that
// loading it ends the program with that name in the message.
std::string GlyphFile(char character);

// Writes text into an image. Alignment counts all characters of the text, line breaks too; every
// line after the first starts at x.
void DrawText(const std::string& text, int image, TextAlignment alignment, int x, int y);
