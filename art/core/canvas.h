// Flat drawing with bevels: masks from outlines, blurred to a height field and lit.
#pragma once

#include "art/core/image.h"
#include "art/core/lettering.h"
#include "art/core/outlines.h"

#include <functional>
#include <string>
#include <vector>

// A mask or a height: one float for each sample.
struct Field {
	int width = 0, height = 0;
	std::vector<float> data;

	Field() {}
	Field(int w, int h, float value = 0) : width(w), height(h), data((size_t)w * h, value) {}
	float& At(int x, int y) { return data[(size_t)y * width + x]; }
	float At(int x, int y) const { return data[(size_t)y * width + x]; }
	float Clamped(int x, int y) const; // the nearest edge sample when outside
};

// Three box passes, close to a Gaussian of `sigma` samples; darkness comes in from outside.
Field Blur(Field f, float sigma);
Field Product(Field a, const Field& b);
Field Inverse(Field f);
Field AlphaOf(const Image& image);
// Largest value within `radius` samples: makes masks fatter.
Field Dilated(const Field& f, float radius);

// A picture painted layer by layer at `supersample` samples a pixel; all lengths in final pixels.
class Canvas
{
public:
	Canvas(int width, int height, int supersample = 4);

	// The outline as a mask, `grow` pixels fatter.
	Field Mask(const PathFn& path, float grow = 0) const;
	// A line of `width` along the path.
	Field StrokeMask(const PathFn& path, float width) const;

	void Fill(const PathFn& path, Colour c, float alpha = 1, float grow = 0);
	void FillAt(const PathFn& path, const ColourAt& at, float alpha = 1, float grow = 0);
	void Stroke(const PathFn& path, Colour c, float width, float alpha = 1);
	void FillMask(const Field& mask, Colour c, float alpha = 1, float dx = 0, float dy = 0);
	void PaintMask(const Field& mask, const ColourAt& at, float alpha = 1);

	// Bevelled face: `bevel` in pixels (2.6 buttons, 4 frames, 1.8 letters, 1.6 rivets).
	void Relief(const PathFn& path, const ColourAt& face, float bevel, float depth = 3,
	            float gloss = .35f);
	void ReliefMask(const Field& mask, const ColourAt& face, float bevel, float depth = 3,
	                float gloss = .35f);
	// Ink rim and bevelled face in one: how nearly every object of the interface starts.
	void Body(const PathFn& path, const ColourAt& face, Colour ink, float rim = 1.2f,
	          float bevel = 2.6f, float depth = 3, float gloss = .35f);
	void DropShadow(const PathFn& path, float sigma = 2.2f, float dx = 1, float dy = 3,
	                float alpha = .5f);
	// Darkness just inside an edge: makes a window or a sheet of paper lie below its frame.
	void InnerShadow(const PathFn& path, float sigma, Colour c, float alpha);
	// Light lobe that fades downward from y0 to y1, clipped to another shape.
	void Gloss(const PathFn& lobe, const PathFn& clip, float y0, float y1, float strength = .42f);
	// Lettering with an ink edge.
	void Caption(const std::string& text, float size, float x, float y, Colour face, Colour edge,
	             float edgeWidth = 1.4f, Align align = Align::Centre,
	             const char* font = DISPLAY_FACE);
	// Bare lettering.
	void Print(const std::string& text, float size, float x, float y, Colour c,
	           Align align = Align::Left, const char* font = DISPLAY_FACE);
	// Lays a finished picture (at 1x) over the canvas; it is not smoothed.
	void Place(const Image& picture, int left, int top, float opacity = 1);

	Image Finish() const;

	int width, height, supersample;
	Image pixels; // width * supersample by height * supersample
};
