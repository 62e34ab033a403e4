// The outlines and colour functions that drawings are put together from.
#include "art/core/outlines.h"

ColourAt Plain(Colour c)
{
	return [=](float, float) { return c; };
}

ColourAt Downward(Colour top, Colour bottom, float y0, float y1)
{
	return [=](float, float y) { return Mix(top, bottom, Smoothstep(y0, y1, y)); };
}

ColourAt WoodGrain(Colour base, float along, float across)
{
	return [=](float x, float y) {
		float broad = LayeredNoise(x * along, y * across, 3);
		float fine  = LayeredNoise(x * along * 4, y * across * 3, 2, 5);
		return base * (.82f + .28f * broad + .10f * fine);
	};
}

PathFn Disc(float x, float y, float r)
{
	return [=](cairo_t* c) {
		cairo_new_sub_path(c);
		cairo_arc(c, x, y, r, 0, 2 * PI);
		cairo_close_path(c);
	};
}

PathFn Oval(float x, float y, float rx, float ry, float turn)
{
	return [=](cairo_t* c) {
		cairo_save(c);
		cairo_translate(c, x, y);
		cairo_rotate(c, turn);
		cairo_scale(c, rx, ry);
		cairo_new_sub_path(c);
		cairo_arc(c, 0, 0, 1, 0, 2 * PI);
		cairo_close_path(c);
		cairo_restore(c);
	};
}

PathFn RoundRect(float x, float y, float w, float h, float r)
{
	r = std::min(r, std::min(w, h) * .5f);
	return [=](cairo_t* c) {
		cairo_new_sub_path(c);
		cairo_arc(c, x + w - r, y + r, r, -PI / 2, 0);
		cairo_arc(c, x + w - r, y + h - r, r, 0, PI / 2);
		cairo_arc(c, x + r, y + h - r, r, PI / 2, PI);
		cairo_arc(c, x + r, y + r, r, PI, PI * 1.5f);
		cairo_close_path(c);
	};
}

PathFn Line(std::vector<At> points)
{
	return [=](cairo_t* c) {
		for (size_t i = 0; i < points.size(); i++)
			if (i)
				cairo_line_to(c, points[i].x, points[i].y);
			else
				cairo_move_to(c, points[i].x, points[i].y);
	};
}

PathFn Polygon(std::vector<At> points)
{
	PathFn open = Line(std::move(points));
	return [=](cairo_t* c) {
		open(c);
		cairo_close_path(c);
	};
}

PathFn Star(float x, float y, float outer, float inner, int points, float turn)
{
	std::vector<At> p;
	for (int i = 0; i < points * 2; i++) {
		float angle = turn + i * PI / points, r = i & 1 ? inner : outer;
		p.push_back({x + std::cos(angle) * r, y + std::sin(angle) * r});
	}
	return Polygon(p);
}

PathFn Arrow(float x, float y, float length, float thick, float turn)
{
	float half = length * .5f, neck = half - thick * 1.25f, shaft = thick * .5f,
	      barb  = thick * 1.15f;
	PathFn flat = Polygon({{-half, -shaft},
	                       {neck, -shaft},
	                       {neck, -barb},
	                       {half, 0},
	                       {neck, barb},
	                       {neck, shaft},
	                       {-half, shaft}});
	return [=](cairo_t* c) {
		cairo_save(c);
		cairo_translate(c, x, y);
		cairo_rotate(c, turn);
		flat(c);
		cairo_restore(c);
	};
}

PathFn Joined(std::vector<PathFn> parts)
{
	return [=](cairo_t* c) {
		for (const PathFn& part : parts)
			part(c);
	};
}

PathFn Turned(PathFn path, float x, float y, float angle, float scale)
{
	return [=](cairo_t* c) {
		cairo_save(c);
		cairo_translate(c, x, y);
		cairo_rotate(c, angle);
		cairo_scale(c, scale, scale);
		cairo_translate(c, -x, -y);
		path(c);
		cairo_restore(c);
	};
}
