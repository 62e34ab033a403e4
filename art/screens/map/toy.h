// A small flat-drawn thing of the map: parts with an ink edge, laid over each other.
#pragma once

#include "art/core/canvas.h"

// Coordinates are those of the thing at full size; `scale` makes the whole picture smaller. The
// foot stands 3 px above the lower edge.
class Toy
{
public:
	Toy(int width, int height, float scale = 1);

	// A part with ink round it, lighter above than below.
	void Part(const PathFn& path, Colour c, float ink = 1);
	// The same with a colour of its own for each place.
	void Shaded(const PathFn& path, const ColourAt& at, Colour ink, float edge = 1);
	// Without ink.
	void Flat(const PathFn& path, Colour c, float alpha = 1);
	void Stroke(const PathFn& path, Colour c, float width, float alpha = 1);
	void Place(const Image& picture, float left, float top);
	Image Finish() const { return canvas.Finish(); }

private:
	PathFn Scaled(const PathFn& path) const;

	float scale;
	Canvas canvas;
};

// A closed outline through corners, given as x, y, x, y...
PathFn Corners(std::initializer_list<float> numbers);
