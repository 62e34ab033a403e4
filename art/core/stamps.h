// Small hand-drawn parts that several families share: leaves, grass, flowers, planks, clouds.
#pragma once

#include "art/core/canvas.h"

// One leaf: centred at (x, y), pointing along `angle`, `width` is its half width at the middle.
void LeafPath(cairo_t* c, float x, float y, float angle, float length, float width);

// Crown of leaves filling w x h: ink leaves first, dark core, leaves from dark to light.
Image LeafCluster(int w, int h, int seed, Colour base, float leaf = 7);

// Tuft of long blades standing on the lower edge.
Image GrassTuft(int seed, int w = 22, int h = 15);
// Flower with stem and leaf; the colours repeat from kind 4 on.
Image Flower(int kind);
// Strokes one blade rooted at (x, y): `tall` and `lean` in pixels.
void BladeStroke(cairo_t* c, float x, float y, float tall, float lean, float thick, Colour colour,
                 float alpha);
// White puffy cloud filling w x h, shaded blue below.
Image Cloud(int w, int h, int seed);

// The colour of sawn wood at a model point: grain along the planks, dark gaps between them. `axis`
// is the direction that planks are counted along (0 x, 1 y), `plank` their width.
Colour WoodColour(Vec3 p, Colour base, int axis, float plank);
// Turf colour at a place of the field, in pixels.
Colour GrassColour(float x, float y);
