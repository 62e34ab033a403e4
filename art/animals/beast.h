// What all four-footed species have in common: how they are measured, and the pictures of each.
#pragma once

#include "art/animals/figure.h"
#include "art/animals/quadruped.h"

// Width: of the standing picture in pixels, outline included. `shape` is called for every picture.
Species BeastSpecies(const char* prefix, float width, Quadruped (*shape)());

// One group for each of `sequences`, for the standing, blinking and looking pictures, and one for
// the two views in the bubble. Pass __FILE__ as source.
void AddBeast(Catalogue& catalogue, const char* source, Species (*species)(),
              const std::vector<Sequence>& sequences, bool blinks = true,
              const char* lookWord = "look");
// The two views in the bubble alone.
void AddInBubble(Catalogue& catalogue, const char* source, Species (*species)());
