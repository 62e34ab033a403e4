// Computes the outline of an animal that the ball meets from its standing picture.
#pragma once

#include "animals/species.h"
#include "art/core/image.h"

#include <vector>

// A lens around the lower half of what is opaque: its lower edge lies on the feet, its upper edge
// at the middle of the body. Neighbours lie at most CElement::JOIN_DISTANCE apart. Empty for an
// empty picture.
std::vector<BodyPoint> FitBody(const Image& standing);
// The pixels from a point to the nearest opaque one of the picture.
float DistanceToFigure(const Image& picture, const BodyPoint& point);
