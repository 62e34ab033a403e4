// The trodden way through the dots of the map.
#pragma once

#include "art/core/image.h"
#include "art/screens/map/terrain.h"

// `width` of the light part of the main way, in pixels of the picture. From isle to isle goes a
// dotted arc, which is trodden where it lies on land.
void PaintTrails(Image& image, const Terrain& terrain, const std::vector<Placed>& groups,
                 float width);
// The straight pieces of all ways, in pixels of the picture.
struct Segment {
	At from, to;
};
std::vector<Segment> TrailSegments(const std::vector<Placed>& groups);
float DistanceTo(const std::vector<Segment>& segments, float x, float y);
