// The sunny shore and the sheep that the opening pictures are made of.
#pragma once

#include "art/core/image.h"

// A whole screen: sky with sun and clouds, far sea, three meadows down to a beach at `shore`, open
// water below it. Rows from `meadowTop` are land.
Image SunnyShore(int meadowTop, int shore);
// Its far sea and meadows alone, over what is there.
void DrawShoreLand(Image& image, int meadowTop, int shore);
// Row in which its grass gives way to sand.
float ShoreLine(int shore, float x);
// Three bands of sea with white crests, over everything from row `top` down.
void DrawSeaBands(Image& image, int top);
// A tree whose foot stands at (x, y): 0 broadleaf, 1 pine.
void DrawShoreTree(Image& image, int kind, float x, float y, float size, Colour leaves, int seed);
// Clear bubbles of the given diameters, scattered by a seed within a rectangle.
void DrawBubbles(Image& image, int count, int seed, int left, int top, int right, int bottom);

// A sheep's head from the front, about 2.4 * 15 * zoom pixels wide, centred on the picture. `lid` 0
// eyes open, 1 shut.
Image SheepHead(int width, int height, float zoom, float lid);
