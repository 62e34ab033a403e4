// Boxes, headings and texts that the pages over a level and those of the menu have in common.
#pragma once

#include "art/screens/kit.h"

// --- inks of texts
constexpr Colour PAINT_HEADING  = HexColour(0x8a4a18); // on paper
constexpr Colour PAINT_MONEY    = HexColour(0x2c7a24); // amounts on paper
constexpr Colour PAINT_ON_STEEL = HexColour(0xfffadb); // with an edge of PAINT_TEXT_BLUE
constexpr Colour PAINT_WELL     = HexColour(0xeeddb2);
constexpr Colour PAINT_WELL_NEW = HexColour(0xe2eecf); // greenish: news

// --- boxes as pictures of their own; what PaperPanel, SteelPanel and Plank of the kit leave open
// A well that fills its picture but for the rim of 1 px.
Image Well(int w, int h, Colour inside = PAINT_WELL, float radius = 7);
// <stem>left, middle and right.png: a well whose middle piece is laid side by side. left, middle
// and right in pixels.
void AddWellParts(Sink& sink, const std::string& stem, int left, int middle, int right, int h,
                  Colour inside = PAINT_WELL);
// Wooden sign of the given size with the title in its middle; the 6 px at the right and the 8 px
// below hold the shadow.
Image TitlePlank(int w, int h, const std::string& text, float size,
                 const TitleInk& ink = TITLE_YELLOW);
// Darker stripe behind every second row of a list.
void DrawBand(Canvas& canvas, float x, float y, float w, float h);

// --- texts on paper, without an edge
// One line as wide as its letters and spaces take, so that pieces stand side by side and make one
// sentence: all pieces of one size and height share a base line.
Image TextPiece(const std::string& text, float size, int height, Colour c = PAINT_TEXT);
// Lines broken at '\n', each centred on a picture of the given size. `step` is the distance of the
// lines, 0 for that of the face.
Image TextBlock(const std::string& text, float size, int w, int h, Colour c = PAINT_TEXT,
                float step = 0);
// The same, as high and wide as the text asks for, whose middle stands at `middle` when the picture
// is put to x = `left`: width is twice their distance.
Image TextAround(const std::string& text, float size, int left, int middle, Colour c = PAINT_TEXT,
                 float step = 0);
// Heading on steel or on wood: light with a dark edge, centred on a picture of the given size.
Image EdgedBlock(const std::string& text, float size, int w, int h, Colour face = PAINT_ON_STEEL,
                 Colour edge = PAINT_TEXT_BLUE, float edgeWidth = 1.6f);
