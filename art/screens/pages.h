// Parts of the small pages: boards, notes, figures, keys and the mouse.
#pragma once

#include "art/animals/figure.h"
#include "art/screens/frames.h"

// A board whose lower `sill` pixels are a bar of wood, for buttons.
Image SillPanel(int w, int h, int sill, float frame = 10);

// --- texts
// One label of one or more lines, right-aligned to x; y is its middle.
void PrintLabel(Canvas& canvas, const std::string& text, float x, float y, float size);
// Heading with a wrapped text below it, left-aligned; the block's middle stands at y.
void PrintNote(Canvas& canvas, const std::string& heading, const std::string& text, float x,
               float y, float width);
// Wrapped plain text in the face of long texts; its middle stands at y.
void PrintText(Canvas& canvas, const std::string& text, float size, float x, float y, float width,
               Align align = Align::Left, Colour c = PAINT_TEXT);

// --- drawings
// One animal, just as large as it comes out.
Image AnimalPicture(Species (*species)(), float zoom, const Pose& pose = {});
// A bubble of the given width with an animal in it.
Image RiddenBubble(int width, Species (*species)(), float zoom);
// The machine with the professor at `zoom`, on a picture that just holds it.
Image MachinePicture(float zoom);
// Cap of a key; its sign is a word or, with `turn`, an arrow.
void DrawKey(Canvas& canvas, float x, float y, float w, float h, const std::string& word);
void DrawArrowKey(Canvas& canvas, float x, float y, float size, float turn);
// A computer mouse seen from above, 52 x 74 about (x, y), its buttons in the two colours.
void DrawMouseDevice(Canvas& canvas, float x, float y, Colour left, Colour right);
