// Pictures as floats with premultiplied alpha, and the operations on whole pictures.
#pragma once

#include "art/core/vec.h"

#include <cairo.h>
#include <string>
#include <vector>

struct Image {
	int width = 0, height = 0; // pixels
	std::vector<float> data;   // red, green, blue, alpha; premultiplied, 0..1

	Image() {}
	Image(int w, int h) : width(w), height(h), data((size_t)w * h * 4, 0.f) {}
	float* At(int x, int y) { return &data[((size_t)y * width + x) * 4]; }
	const float* At(int x, int y) const { return &data[((size_t)y * width + x) * 4]; }
	bool Holds(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
};

Image Filled(int w, int h, Colour c);
Image BoxDownsample(const Image& source, int factor);
// Unsharp mask over a 3x3 binomial blur: gives back the crispness that the box average takes.
Image Sharpened(const Image& source, float amount);
// The part of `source` from (left, top); what lies outside of it is empty.
Image Cropped(const Image& source, int left, int top, int w, int h);
// Whole-number magnification without smoothing, for looking at pictures.
Image Enlarged(const Image& source, int factor);
// Area average when smaller, nearest pixel when larger.
Image Resized(const Image& source, int w, int h);
// The whole picture at `opacity`, 0..1.
Image Faded(const Image& source, float opacity);

// Lays `source` over `target` with its upper left corner at (left, top); clipped.
void Compose(Image& target, const Image& source, int left, int top, float opacity = 1);
// The same with its centre at (x, y), rounded to whole pixels.
void ComposeCentred(Image& target, const Image& source, float x, float y, float opacity = 1);
// Mixes one pixel toward a colour by `alpha`; outside of the picture nothing happens.
void Blend(Image& target, int x, int y, Colour c, float alpha = 1);
// Adds light to one pixel, which stays within its alpha.
void AddLight(Image& target, int x, int y, Colour c, float amount);
// Mixes every pixel's colour toward `c` by `amount` and keeps its alpha.
void Tint(Image& target, Colour c, float amount);

// A rectangle of pixels, edges inclusive; empty until something is included.
struct Bounds {
	int left = 1 << 20, top = 1 << 20, right = -1, bottom = -1;
	bool Empty() const { return right < left; }
	int Width() const { return Empty() ? 0 : right - left + 1; }
	int Height() const { return Empty() ? 0 : bottom - top + 1; }
	void Include(const Bounds& o);
};
// The rectangle of all pixels whose alpha is at least `threshold`.
Bounds OpaqueBounds(const Image& image, float threshold = .5f);
// One rectangle for a sequence of pictures of one size, `margin` pixels wider all round.
Bounds CommonBounds(const std::vector<Image>& frames, int margin = 1, float threshold = .02f);
Image Cropped(const Image& source, const Bounds& b);

// The soft dark ellipse under feet, painted over what is there. Draw it before the figure. rx in
// pixels (ry is 0.26 of it); the shadow reaches 1.35 * rx.
void DrawFootShadow(Image& target, float cx, float cy, float rx, Colour colour,
                    float strength = .34f);
// Darkens an opaque ground under a figure: soft ellipse, colour of the ground kept.
void DrawContactShadow(Image& target, float cx, float cy, float rx, float ry,
                       float strength = .34f);
// A blurred shadow of the picture's own outline, laid beneath it. sigma, dx, dy in pixels.
Image WithDropShadow(const Image& source, float sigma, float dx, float dy, float alpha);

// The one place where colour values become bytes: 0..255, rounded half up.
inline uint32_t ToByte(float v)
{
	return (uint32_t)(Clamp01(v) * 255 + .5f);
}

// ARGB32 surface with a copy of the picture; the caller destroys it.
cairo_surface_t* ToCairo(const Image& image);
Image FromCairo(cairo_surface_t* surface);

// A cairo drawing over a picture: strokes and shapes go in pixel coordinates, then End() copies
// them back. Round caps and joins.
class CairoLayer
{
public:
	// Draws over `image` itself (factor 1) or over an empty layer `factor` times as large, which
	// End() averages down and composes over the picture.
	CairoLayer(Image& image, int factor = 1);
	~CairoLayer();
	void End();

	cairo_t* cairo; // owned
private:
	Image& target;
	cairo_surface_t* surface; // owned
	int factor;
};
