// The flying saucer in its parts, which the game lays over one another.
#pragma once

#include "art/core/catalogue.h"
#include "art/core/outlines.h"
#include "art/core/renderer.h"

constexpr int SAUCER_STAGES = 6, SAUCER_BLOW_FRAMES = 4; // pictures of a blow, the last one stays

// Places of the parts in pixels from the upper left of the hull; y downward.
struct PartPlace {
	int left, top, width, height;
};
// clang-format off
constexpr PartPlace SAUCER_HULL    = {  0,   0, 104, 49 };
constexpr PartPlace SAUCER_PILOT   = { 26, -18,  52, 39 };
constexpr PartPlace SAUCER_DOME    = { 29, -25,  46, 48 };
constexpr PartPlace SAUCER_RIM     = {  0, -36, 104, 64 }; // with cracks in the dome and smoke
constexpr PartPlace SAUCER_LIGHTS  = {  0,   8, 104, 41 };
constexpr PartPlace SAUCER_ANTENNA = { 28,  36,  48, 44 };
// clang-format on

// A camera on the whole saucer that shows one part of it. jolt: 0..1, thrown aside by a blow.
Camera SaucerCamera(const PartPlace& place, float jolt = 0);
// Where a place of the saucer lies in the picture of a part.
At SeenAt(Vec3 p, const PartPlace& place);
// How far a picture of a blow is thrown: signed, 0 in the last.
float JoltOf(int frame);

// A stage of damage, 0..5, at a picture of its blow. The hull has the far half of the ring round
// the cockpit, behind the pilot, the rim the near half.
Image SaucerHull(int stage, int frame);
Image SaucerRim(int stage, int frame);
