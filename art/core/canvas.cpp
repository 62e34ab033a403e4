// Masks, blurs and the lit relief of flat drawings.
#include "art/core/canvas.h"

static const Colour SHADOW_COLOUR = {.04f, .06f, .10f};

float Field::Clamped(int x, int y) const
{
	x = x < 0 ? 0 : x >= width ? width - 1 : x;
	y = y < 0 ? 0 : y >= height ? height - 1 : y;
	return data[(size_t)y * width + x];
}

// One box pass over a line of `count` values that lie `step` apart.
static void BoxLine(const float* from, float* to, int count, int step, int radius)
{
	double sum = 0;
	for (int i = 0; i <= radius && i < count; i++)
		sum += from[(size_t)i * step];
	for (int i = 0; i < count; i++) {
		to[(size_t)i * step] = (float)(sum / (2 * radius + 1));
		if (i + radius + 1 < count)
			sum += from[(size_t)(i + radius + 1) * step];
		if (i - radius >= 0)
			sum -= from[(size_t)(i - radius) * step];
	}
}

Field Blur(Field f, float sigma)
{
	int radius = (int)std::floor(sigma * .98f + .5f);
	if (radius < 1)
		return f;
	Field other(f.width, f.height);
	for (int pass = 0; pass < 3; pass++) {
		for (int y = 0; y < f.height; y++)
			BoxLine(&f.data[(size_t)y * f.width], &other.data[(size_t)y * f.width], f.width, 1,
			        radius);
		for (int x = 0; x < f.width; x++)
			BoxLine(&other.data[x], &f.data[x], f.height, f.width, radius);
	}
	return f;
}

Field Product(Field a, const Field& b)
{
	for (size_t i = 0; i < a.data.size(); i++)
		a.data[i] *= b.data[i];
	return a;
}

Field Inverse(Field f)
{
	for (float& v : f.data)
		v = 1 - v;
	return f;
}

Field AlphaOf(const Image& image)
{
	Field f(image.width, image.height);
	for (size_t i = 0; i < f.data.size(); i++)
		f.data[i] = image.data[i * 4 + 3];
	return f;
}

static float LargestAround(const Field& f, int x, int y, float radius)
{
	int reach   = (int)std::ceil(radius);
	float value = 0;
	for (int j = -reach; j <= reach; j++)
		for (int i = -reach; i <= reach; i++) {
			float cover = Clamp01(radius + .5f - std::hypot((float)i, (float)j));
			bool inside = x + i >= 0 && y + j >= 0 && x + i < f.width && y + j < f.height;
			if (cover > 0 && inside)
				value = std::max(value, f.At(x + i, y + j) * cover);
		}
	return value;
}

Field Dilated(const Field& f, float radius)
{
	Field out(f.width, f.height);
	for (int y = 0; y < f.height; y++)
		for (int x = 0; x < f.width; x++)
			out.At(x, y) = LargestAround(f, x, y, radius);
	return out;
}

Canvas::Canvas(int width, int height, int supersample)
    : width(width), height(height), supersample(supersample),
      pixels(width * supersample, height * supersample)
{
}

// Draws on an 8-bit surface of the canvas' samples and takes the coverage.
static Field Coverage(int width, int height, int supersample,
                      const std::function<void(cairo_t*)>& draw)
{
	Field mask(width * supersample, height * supersample);
	cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_A8, mask.width, mask.height);
	cairo_t* c               = cairo_create(surface);
	cairo_scale(c, supersample, supersample);
	cairo_set_line_join(c, CAIRO_LINE_JOIN_ROUND);
	cairo_set_line_cap(c, CAIRO_LINE_CAP_ROUND);
	draw(c);
	cairo_surface_flush(surface);
	const unsigned char* bytes = cairo_image_surface_get_data(surface);
	int stride                 = cairo_image_surface_get_stride(surface);
	for (int y = 0; y < mask.height; y++)
		for (int x = 0; x < mask.width; x++)
			mask.At(x, y) = bytes[(size_t)y * stride + x] / 255.f;
	cairo_destroy(c);
	cairo_surface_destroy(surface);
	return mask;
}

Field Canvas::Mask(const PathFn& path, float grow) const
{
	return Coverage(width, height, supersample, [&](cairo_t* c) {
		path(c);
		if (grow > 0) {
			cairo_set_line_width(c, grow * 2);
			cairo_stroke_preserve(c);
		}
		cairo_fill(c);
	});
}

Field Canvas::StrokeMask(const PathFn& path, float width) const
{
	return Coverage(this->width, height, supersample, [&](cairo_t* c) {
		cairo_set_line_width(c, width);
		path(c);
		cairo_stroke(c);
	});
}

void Canvas::Fill(const PathFn& path, Colour c, float alpha, float grow)
{
	FillMask(Mask(path, grow), c, alpha);
}

void Canvas::FillAt(const PathFn& path, const ColourAt& at, float alpha, float grow)
{
	PaintMask(Mask(path, grow), at, alpha);
}

void Canvas::Stroke(const PathFn& path, Colour c, float width, float alpha)
{
	FillMask(StrokeMask(path, width), c, alpha);
}

static void MixInto(float* q, Colour c, float a)
{
	q[0] += (c.x - q[0]) * a;
	q[1] += (c.y - q[1]) * a;
	q[2] += (c.z - q[2]) * a;
	q[3] += (1 - q[3]) * a;
}

void Canvas::FillMask(const Field& mask, Colour c, float alpha, float dx, float dy)
{
	int sx = (int)std::lround(dx * supersample), sy = (int)std::lround(dy * supersample);
	for (int y = std::max(0, sy); y < std::min(mask.height, mask.height + sy); y++)
		for (int x = std::max(0, sx); x < std::min(mask.width, mask.width + sx); x++) {
			float a = mask.At(x - sx, y - sy) * alpha;
			if (a > 0)
				MixInto(pixels.At(x, y), c, a);
		}
}

void Canvas::PaintMask(const Field& mask, const ColourAt& at, float alpha)
{
	for (int y = 0; y < mask.height; y++)
		for (int x = 0; x < mask.width; x++) {
			float a = mask.At(x, y) * alpha;
			if (a > 0)
				MixInto(pixels.At(x, y), at((x + .5f) / supersample, (y + .5f) / supersample), a);
		}
}

void Canvas::Relief(const PathFn& path, const ColourAt& face, float bevel, float depth, float gloss)
{
	ReliefMask(Mask(path), face, bevel, depth, gloss);
}

// The face colour under a normal: cool shade away from the light, warm toward it, a sharp spot.
static Colour LitFace(Colour c, Vec3 normal, float gloss)
{
	static const Vec3 LIGHT   = Normalize({-.52f, .70f, .60f});
	static const Vec3 HALFWAY = Normalize(LIGHT + Vec3{0, 0, 1});
	float relief              = Dot(normal, LIGHT) - LIGHT.z;
	Colour lit                = relief < 0 ? Mix(c, ShadowOf(c), Clamp01(-relief * 1.5f))
	                                       : Mix(c, HighlightOf(c), Clamp01(relief * 2.2f));
	if (relief > .02f) {
		float spot = std::pow(Clamp01(Dot(normal, HALFWAY)), 60.f) * gloss;
		lit        = lit + Colour{1, 1, 1} * (spot * Smoothstep(.02f, .2f, relief));
	}
	return ClampColour(lit);
}

void Canvas::ReliefMask(const Field& mask, const ColourAt& face, float bevel, float depth,
                        float gloss)
{
	Field height = Blur(mask, bevel * supersample * .6f);
	Field broad  = Blur(mask, bevel * supersample * 1.4f);
	for (size_t i = 0; i < height.data.size(); i++)
		height.data[i] = .5f * height.data[i] + .5f * broad.data[i];
	float slope = depth * bevel * supersample * .5f;
	for (int y = 0; y < mask.height; y++)
		for (int x = 0; x < mask.width; x++) {
			float a = mask.At(x, y);
			if (a <= 0)
				continue;
			float gx    = (height.Clamped(x + 1, y) - height.Clamped(x - 1, y)) * slope;
			float gy    = (height.Clamped(x, y + 1) - height.Clamped(x, y - 1)) * slope;
			Vec3 normal = Normalize({-gx, gy, 1});
			Colour c    = face((x + .5f) / supersample, (y + .5f) / supersample);
			MixInto(pixels.At(x, y), LitFace(c, normal, gloss), a);
		}
}

void Canvas::Body(const PathFn& path, const ColourAt& face, Colour ink, float rim, float bevel,
                  float depth, float gloss)
{
	Fill(path, ink, 1, rim);
	Relief(path, face, bevel, depth, gloss);
}

void Canvas::DropShadow(const PathFn& path, float sigma, float dx, float dy, float alpha)
{
	FillMask(Blur(Mask(path), sigma * supersample), SHADOW_COLOUR, alpha, dx, dy);
}

void Canvas::InnerShadow(const PathFn& path, float sigma, Colour c, float alpha)
{
	Field mask = Mask(path);
	FillMask(Product(Blur(Inverse(mask), sigma * supersample), mask), c, alpha);
}

void Canvas::Gloss(const PathFn& lobe, const PathFn& clip, float y0, float y1, float strength)
{
	Field light = Product(Mask(lobe), Mask(clip));
	for (int y = 0; y < light.height; y++) {
		float fade = 1 - .75f * Clamp01((y / (float)supersample - y0) / (y1 - y0));
		for (int x = 0; x < light.width; x++)
			light.At(x, y) *= strength * fade;
	}
	FillMask(light, {1, 1, 1});
}

void Canvas::Caption(const std::string& text, float size, float x, float y, Colour face,
                     Colour edge, float edgeWidth, Align align, const char* font)
{
	PathFn path = Lettering(text, size, x, y, align, font);
	Field rim   = Mask(path, edgeWidth);
	FillMask(rim, edge, .95f, 0, .5f);
	FillMask(rim, edge, .95f);
	FillMask(Mask(path, .12f), face);
}

void Canvas::Print(const std::string& text, float size, float x, float y, Colour c, Align align,
                   const char* font)
{
	Fill(Lettering(text, size, x, y, align, font), c, 1, .05f);
}

void Canvas::Place(const Image& picture, int left, int top, float opacity)
{
	if (supersample == 1)
		Compose(pixels, picture, left, top, opacity);
	else
		Compose(pixels, Enlarged(picture, supersample), left * supersample, top * supersample,
		        opacity);
}

Image Canvas::Finish() const
{
	return BoxDownsample(pixels, supersample);
}
