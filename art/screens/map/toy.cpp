// Parts of the map's small things.
#include "art/screens/map/toy.h"

Toy::Toy(int width, int height, float scale)
    : scale(scale), canvas((int)std::ceil(width * scale), (int)std::ceil(height * scale))
{
}

PathFn Toy::Scaled(const PathFn& path) const
{
	float by = scale;
	return [path, by](cairo_t* c) {
		cairo_save(c);
		cairo_scale(c, by, by);
		path(c);
		cairo_restore(c);
	};
}

void Toy::Part(const PathFn& path, Colour c, float ink)
{
	Shaded(path, Plain(c), InkOf(c), ink);
}

void Toy::Shaded(const PathFn& path, const ColourAt& at, Colour ink, float edge)
{
	PathFn scaled = Scaled(path);
	float by      = scale;
	canvas.Fill(scaled, ink, 1, edge * std::sqrt(scale));
	canvas.Relief(
	    scaled, [at, by](float x, float y) { return at(x / by, y / by); }, 1.5f * scale, 2.2f, 0);
}

void Toy::Flat(const PathFn& path, Colour c, float alpha)
{
	canvas.Fill(Scaled(path), c, alpha);
}

void Toy::Stroke(const PathFn& path, Colour c, float width, float alpha)
{
	canvas.Stroke(Scaled(path), c, width * scale, alpha);
}

void Toy::Place(const Image& picture, float left, float top)
{
	int w = (int)(picture.width * scale), h = (int)(picture.height * scale);
	canvas.Place(scale == 1 ? picture : Resized(picture, w, h), (int)(left * scale),
	             (int)(top * scale));
}

PathFn Corners(std::initializer_list<float> numbers)
{
	std::vector<At> points;
	for (const float* n = numbers.begin(); n + 1 < numbers.end(); n += 2)
		points.push_back({n[0], n[1]});
	return Polygon(points);
}
