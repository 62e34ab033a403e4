// What goes with the saucer's hull: lamps, dome, rim, antenna, fire and smoke.
#pragma once

#include "art/core/catalogue.h"
#include "art/core/model.h"

constexpr int SAUCER_LAMPS = 18;
// Middle of a lamp on the saucer, numbered round the edge.
Vec3 LampAt(int lamp);

// The brass ring round the cockpit at a stage of damage, 0..5: its near or its far half.
void AddRimRing(Model& model, int stage, bool nearHalf);
// Sparks of a fresh blow, and the flames of its stage of damage.
void AddFlames(Image& hull, int stage, int frame);

// Lights, dome and shadow.
void AddSaucerParts(Catalogue& catalogue);
