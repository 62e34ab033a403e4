// Outlines and colour functions that flat drawings are put together from.
#pragma once

#include "art/core/lettering.h"
#include "art/core/vec.h"

#include <vector>

using ColourAt = std::function<Colour(float, float)>; // colour at a place, in pixels

// --- colours over a place
ColourAt Plain(Colour c);
ColourAt Downward(Colour top, Colour bottom, float y0, float y1);
ColourAt WoodGrain(Colour base, float along = .02f, float across = .35f);

// --- outlines
PathFn Disc(float x, float y, float r);
PathFn Oval(float x, float y, float rx, float ry, float turn = 0);
PathFn RoundRect(float x, float y, float w, float h, float r);
PathFn Star(float x, float y, float outer, float inner, int points = 5, float turn = -PI / 2);
// Shaft of the given thickness, head twice as wide, pointing along `turn`; centred at (x, y).
PathFn Arrow(float x, float y, float length, float thick, float turn);
struct At {
	float x, y;
};
PathFn Polygon(std::vector<At> points);
PathFn Line(std::vector<At> points); // open, for Stroke
PathFn Joined(std::vector<PathFn> parts);
// The outline turned by `angle` radians about (x, y), then scaled about it.
PathFn Turned(PathFn path, float x, float y, float angle, float scale = 1);
