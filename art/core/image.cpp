// Operations on whole pictures, and the way to and from cairo.
#include "art/core/image.h"

#include "art/core/canvas.h"

#include <cstring>

static const size_t PIXEL_BYTES = 4 * sizeof(float);

Image Filled(int w, int h, Colour c)
{
	Image out(w, h);
	for (int i = 0; i < w * h; i++) {
		float* p = &out.data[(size_t)i * 4];
		p[0]     = c.x;
		p[1]     = c.y;
		p[2]     = c.z;
		p[3]     = 1;
	}
	return out;
}

Image BoxDownsample(const Image& source, int factor)
{
	Image out(source.width / factor, source.height / factor);
	for (int y = 0; y < out.height; y++)
		for (int x = 0; x < out.width; x++) {
			float* q = out.At(x, y);
			for (int j = 0; j < factor; j++) {
				const float* p = source.At(x * factor, y * factor + j);
				for (int i = 0; i < factor * 4; i++)
					q[i & 3] += p[i];
			}
			for (int c = 0; c < 4; c++)
				q[c] /= factor * factor;
		}
	return out;
}

Image Sharpened(const Image& source, float amount)
{
	Image out = source;
	for (int y = 0; y < source.height; y++)
		for (int x = 0; x < source.width; x++) {
			const float* p = source.At(x, y);
			if (p[3] <= 0)
				continue;
			float sum[4] = {0, 0, 0, 0}, total = 0;
			for (int j = -1; j <= 1; j++)
				for (int i = -1; i <= 1; i++) {
					if (!source.Holds(x + i, y + j))
						continue;
					float weight = (i && j) ? 1 : (i || j) ? 2 : 4;
					total += weight;
					for (int c = 0; c < 4; c++)
						sum[c] += weight * source.At(x + i, y + j)[c];
				}
			float toSameAlpha = sum[3] > 0 ? p[3] / (sum[3] / total) : 1;
			float* q          = out.At(x, y);
			for (int c = 0; c < 3; c++) {
				float sharper = p[c] + amount * (p[c] - sum[c] / total * toSameAlpha);
				q[c]          = Clamp(sharper, 0, p[3]);
			}
		}
	return out;
}

Image Cropped(const Image& source, int left, int top, int w, int h)
{
	Image out(w, h);
	for (int y = 0; y < h; y++)
		for (int x = 0; x < w; x++)
			if (source.Holds(left + x, top + y))
				std::memcpy(out.At(x, y), source.At(left + x, top + y), PIXEL_BYTES);
	return out;
}

Image Cropped(const Image& source, const Bounds& b)
{
	return Cropped(source, b.left, b.top, b.Width(), b.Height());
}

Image Enlarged(const Image& source, int factor)
{
	Image out(source.width * factor, source.height * factor);
	for (int y = 0; y < out.height; y++)
		for (int x = 0; x < out.width; x++)
			std::memcpy(out.At(x, y), source.At(x / factor, y / factor), PIXEL_BYTES);
	return out;
}

Image Resized(const Image& source, int w, int h)
{
	Image out(w, h);
	float kx = source.width / (float)w, ky = source.height / (float)h;
	for (int y = 0; y < h; y++)
		for (int x = 0; x < w; x++) {
			float* q = out.At(x, y);
			int left = (int)(x * kx), top = (int)(y * ky);
			int right  = std::min(std::max((int)((x + 1) * kx), left + 1), source.width);
			int bottom = std::min(std::max((int)((y + 1) * ky), top + 1), source.height);
			for (int j = top; j < bottom; j++)
				for (int i = left; i < right; i++)
					for (int c = 0; c < 4; c++)
						q[c] += source.At(i, j)[c];
			for (int c = 0; c < 4; c++)
				q[c] /= std::max(1, (right - left) * (bottom - top));
		}
	return out;
}

Image Faded(const Image& source, float opacity)
{
	Image out = source;
	for (float& v : out.data)
		v *= opacity;
	return out;
}

void Compose(Image& target, const Image& source, int left, int top, float opacity)
{
	int x0 = std::max(0, -left), x1 = std::min(source.width, target.width - left);
	int y0 = std::max(0, -top), y1 = std::min(source.height, target.height - top);
	for (int y = y0; y < y1; y++)
		for (int x = x0; x < x1; x++) {
			const float* p = source.At(x, y);
			float* q       = target.At(left + x, top + y);
			float keep     = 1 - p[3] * opacity;
			for (int c = 0; c < 4; c++)
				q[c] = p[c] * opacity + q[c] * keep;
		}
}

void ComposeCentred(Image& target, const Image& source, float x, float y, float opacity)
{
	Compose(target, source, (int)std::lround(x - source.width * .5f),
	        (int)std::lround(y - source.height * .5f), opacity);
}

void Blend(Image& target, int x, int y, Colour c, float alpha)
{
	if (!target.Holds(x, y) || alpha <= 0)
		return;
	float* p = target.At(x, y);
	p[0]     = Mix(p[0], c.x, alpha);
	p[1]     = Mix(p[1], c.y, alpha);
	p[2]     = Mix(p[2], c.z, alpha);
	p[3]     = Mix(p[3], 1, alpha);
}

void AddLight(Image& target, int x, int y, Colour c, float amount)
{
	if (!target.Holds(x, y))
		return;
	float* p = target.At(x, y);
	p[0]     = std::min(p[3], p[0] + c.x * amount);
	p[1]     = std::min(p[3], p[1] + c.y * amount);
	p[2]     = std::min(p[3], p[2] + c.z * amount);
}

void Tint(Image& target, Colour c, float amount)
{
	for (size_t i = 0; i < target.data.size(); i += 4) {
		float* p = &target.data[i];
		p[0]     = Mix(p[0], c.x * p[3], amount);
		p[1]     = Mix(p[1], c.y * p[3], amount);
		p[2]     = Mix(p[2], c.z * p[3], amount);
	}
}

void Bounds::Include(const Bounds& o)
{
	left   = std::min(left, o.left);
	top    = std::min(top, o.top);
	right  = std::max(right, o.right);
	bottom = std::max(bottom, o.bottom);
}

Bounds OpaqueBounds(const Image& image, float threshold)
{
	Bounds b;
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++)
			if (image.At(x, y)[3] >= threshold)
				b.Include({x, y, x, y});
	return b;
}

Bounds CommonBounds(const std::vector<Image>& frames, int margin, float threshold)
{
	Bounds all;
	for (const Image& frame : frames)
		all.Include(OpaqueBounds(frame, threshold));
	all.left -= margin;
	all.top -= margin;
	all.right += margin;
	all.bottom += margin;
	return all;
}

void DrawFootShadow(Image& target, float cx, float cy, float rx, Colour colour, float strength)
{
	const float FLATNESS = .26f, REACH = 1.35f;
	float ry = rx * FLATNESS;
	int top = (int)std::floor(cy - ry * REACH), bottom = (int)std::ceil(cy + ry * REACH);
	int left = (int)std::floor(cx - rx * REACH), right = (int)std::ceil(cx + rx * REACH);
	for (int y = top; y <= bottom; y++)
		for (int x = left; x <= right; x++) {
			float u = (x + .5f - cx) / rx, v = (y + .5f - cy) / ry;
			float a = strength * (1 - Smoothstep(.45f, REACH, std::sqrt(u * u + v * v)));
			Blend(target, x, y, colour, a);
		}
}

void DrawContactShadow(Image& target, float cx, float cy, float rx, float ry, float strength)
{
	for (int y = (int)(cy - ry * 1.6f); y <= cy + ry * 1.6f; y++)
		for (int x = (int)(cx - rx * 1.6f); x <= cx + rx * 1.6f; x++) {
			if (!target.Holds(x, y))
				continue;
			float u = (x - cx) / rx, v = (y - cy) / ry;
			float a  = strength * Smoothstep(1.35f, .45f, std::sqrt(u * u + v * v));
			float* p = target.At(x, y);
			p[0] *= 1 - a * .92f;
			p[1] *= 1 - a * .86f;
			p[2] *= 1 - a * .75f;
		}
}

Image WithDropShadow(const Image& source, float sigma, float dx, float dy, float alpha)
{
	Canvas canvas(source.width, source.height, 1);
	canvas.FillMask(Blur(AlphaOf(source), sigma), {.04f, .06f, .10f}, alpha, dx, dy);
	canvas.Place(source, 0, 0);
	return canvas.pixels;
}

cairo_surface_t* ToCairo(const Image& image)
{
	cairo_surface_t* surface =
	    cairo_image_surface_create(CAIRO_FORMAT_ARGB32, image.width, image.height);
	unsigned char* bytes = cairo_image_surface_get_data(surface);
	int stride           = cairo_image_surface_get_stride(surface);
	for (int y = 0; y < image.height; y++)
		for (int x = 0; x < image.width; x++) {
			const float* p = image.At(x, y);
			uint32_t a     = ToByte(p[3]);
			uint32_t r = std::min(ToByte(p[0]), a), g = std::min(ToByte(p[1]), a),
			         b     = std::min(ToByte(p[2]), a);
			uint32_t pixel = a << 24 | r << 16 | g << 8 | b;
			std::memcpy(bytes + (size_t)y * stride + (size_t)x * 4, &pixel, 4);
		}
	cairo_surface_mark_dirty(surface);
	return surface;
}

Image FromCairo(cairo_surface_t* surface)
{
	cairo_surface_flush(surface);
	Image out(cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface));
	const unsigned char* bytes = cairo_image_surface_get_data(surface);
	int stride                 = cairo_image_surface_get_stride(surface);
	for (int y = 0; y < out.height; y++)
		for (int x = 0; x < out.width; x++) {
			uint32_t pixel;
			std::memcpy(&pixel, bytes + (size_t)y * stride + (size_t)x * 4, 4);
			float* p = out.At(x, y);
			p[0]     = ((pixel >> 16) & 255) / 255.f;
			p[1]     = ((pixel >> 8) & 255) / 255.f;
			p[2]     = (pixel & 255) / 255.f;
			p[3]     = (pixel >> 24) / 255.f;
		}
	return out;
}

CairoLayer::CairoLayer(Image& image, int factor) : target(image), factor(factor)
{
	if (factor == 1)
		surface = ToCairo(image);
	else
		surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, image.width * factor,
		                                     image.height * factor);
	cairo = cairo_create(surface);
	cairo_scale(cairo, factor, factor);
	cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
	cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
}

CairoLayer::~CairoLayer()
{
	cairo_destroy(cairo);
	cairo_surface_destroy(surface);
}

void CairoLayer::End()
{
	if (factor == 1)
		target = FromCairo(surface);
	else
		Compose(target, BoxDownsample(FromCairo(surface), factor), 0, 0);
}
