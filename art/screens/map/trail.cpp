// Smooth lines through the dots: a dark bed, then the light earth; side ways narrow and faint.
#include "art/screens/map/trail.h"

namespace
{
struct Leg {
	At before, from, to, after; // pixels of the picture
	bool side;
};
} // namespace

static float Distance(At a, At b)
{
	return std::hypot(a.x - b.x, a.y - b.y);
}

static std::vector<Leg> LegsOf(const Way& way, const MapView& view)
{
	std::vector<Leg> legs;
	std::vector<At> places;
	for (int level : way.levels)
		places.push_back(view.ToPicture(DotMiddle(level)));
	for (size_t i = 0; i + 1 < places.size(); i++)
		legs.push_back({places[i ? i - 1 : 0], places[i], places[i + 1],
		                places[std::min(i + 2, places.size() - 1)], way.side});
	return legs;
}

static std::vector<Leg> LegsOf(const Placed& placed)
{
	std::vector<Leg> legs;
	for (const Isle& isle : placed.group->isles)
		for (const Way& way : WaysOn(isle))
			for (const Leg& leg : LegsOf(way, placed.view))
				legs.push_back(leg);
	return legs;
}

static void TraceLeg(cairo_t* c, const Leg& leg)
{
	const float SOFT = 1 / 6.f; // of a Catmull-Rom spline
	cairo_move_to(c, leg.from.x, leg.from.y);
	cairo_curve_to(c, leg.from.x + (leg.to.x - leg.before.x) * SOFT,
	               leg.from.y + (leg.to.y - leg.before.y) * SOFT,
	               leg.to.x - (leg.after.x - leg.from.x) * SOFT,
	               leg.to.y - (leg.after.y - leg.from.y) * SOFT, leg.to.x, leg.to.y);
}

static void StrokeLegs(cairo_t* c, const std::vector<Leg>& legs, bool side, float width,
                       Colour colour, float alpha)
{
	cairo_push_group(c);
	cairo_set_source_rgb(c, colour.x, colour.y, colour.z);
	cairo_set_line_width(c, width);
	for (const Leg& leg : legs)
		if (leg.side == side)
			TraceLeg(c, leg);
	cairo_stroke(c);
	cairo_pop_group_to_source(c);
	cairo_paint_with_alpha(c, alpha);
}

// The arc from isle to isle, a place every few pixels.
static std::vector<At> Crossing(At from, At to, float width)
{
	float gap = Distance(from, to);
	int count = (int)(gap / (width * 1.15f));
	std::vector<At> places;
	for (int i = 0; i <= count; i++) {
		float t    = i / (float)count;
		float lift = -2 * width * std::sin(t * PI) * std::min(1.f, gap / (15 * width));
		places.push_back({Mix(from.x, to.x, t), Mix(from.y, to.y, t) + lift});
	}
	return places;
}

static std::vector<std::vector<At>> CrossingsOf(const Placed& placed, float width)
{
	std::vector<std::vector<At>> crossings;
	const std::vector<Isle>& isles = placed.group->isles;
	for (size_t i = 0; i + 1 < isles.size(); i++)
		crossings.push_back(Crossing(placed.view.ToPicture(DotMiddle(isles[i].last)),
		                             placed.view.ToPicture(DotMiddle(isles[i + 1].first)), width));
	return crossings;
}

// Where both ends of a step lie on land, the arc is a way like the others.
static void AddTrodden(std::vector<Leg>& legs, const std::vector<At>& arc, const Terrain& terrain)
{
	for (size_t i = 0; i + 1 < arc.size(); i++)
		if (terrain.IsLand(arc[i].x, arc[i].y) && terrain.IsLand(arc[i + 1].x, arc[i + 1].y))
			legs.push_back({arc[i], arc[i], arc[i + 1], arc[i + 1], false});
}

static void DrawDots(cairo_t* c, const std::vector<At>& arc, const Terrain& terrain, float width)
{
	for (int pass = 0; pass < 2; pass++)
		for (At at : arc) {
			if (terrain.IsLand(at.x, at.y))
				continue;
			if (pass == 0)
				cairo_set_source_rgba(c, .11, .235, .36, .45);
			else
				cairo_set_source_rgb(c, 1, .985, .91);
			cairo_arc(c, at.x, at.y, width * .24f + (pass == 0), 0, 2 * PI);
			cairo_fill(c);
		}
}

void PaintTrails(Image& image, const Terrain& terrain, const std::vector<Placed>& groups,
                 float width)
{
	const Colour BED = HexColour(0x5a4020), EARTH = HexColour(0xf4e4ae);
	CairoLayer layer(image, 2);
	for (const Placed& placed : groups) {
		std::vector<Leg> legs                  = LegsOf(placed);
		std::vector<std::vector<At>> crossings = CrossingsOf(placed, width);
		for (const std::vector<At>& arc : crossings)
			AddTrodden(legs, arc, terrain);
		StrokeLegs(layer.cairo, legs, true, width * .95f, BED, .30f);
		StrokeLegs(layer.cairo, legs, true, width * .55f, EARTH, .62f);
		StrokeLegs(layer.cairo, legs, false, width + 3, BED, .60f);
		StrokeLegs(layer.cairo, legs, false, width, EARTH, 1);
		for (const std::vector<At>& arc : crossings)
			DrawDots(layer.cairo, arc, terrain, width);
	}
	layer.End();
}

static float DistanceToSegment(At p, At a, At b)
{
	float dx = b.x - a.x, dy = b.y - a.y, length2 = dx * dx + dy * dy;
	float t = length2 > 0 ? Clamp01(((p.x - a.x) * dx + (p.y - a.y) * dy) / length2) : 0;
	return Distance(p, {a.x + dx * t, a.y + dy * t});
}

std::vector<Segment> TrailSegments(const std::vector<Placed>& groups)
{
	std::vector<Segment> segments;
	for (const Placed& placed : groups)
		for (const Leg& leg : LegsOf(placed))
			segments.push_back({leg.from, leg.to});
	for (const Placed& placed : groups)
		for (const std::vector<At>& arc : CrossingsOf(placed, 8 * placed.view.scale))
			for (size_t i = 0; i + 1 < arc.size(); i++)
				segments.push_back({arc[i], arc[i + 1]});
	return segments;
}

float DistanceTo(const std::vector<Segment>& segments, float x, float y)
{
	float best = 1e9f;
	for (const Segment& segment : segments)
		best = std::min(best, DistanceToSegment({x, y}, segment.from, segment.to));
	return best;
}
