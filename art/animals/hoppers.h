// The hopping, climbing and scurrying small species, ready for drawing.
#pragma once

#include "art/animals/figure.h"
#include "art/animals/hopper.h"

Species Rabbit();
Species Hare();
Species Jackrabbit();
Species Kangaroo();
Species KangarooJoey();
Species Frog();
Species Squirrel();
Species Chipmunk();
Species Koala();

// Width: of the standing picture in pixels, outline included. `shape` is called for every picture.
Species HopperSpecies(const char* prefix, float width, Hopper (*shape)());

Poses Hop(Heading heading = Heading::Side); // 8 pictures, crouched at the first, landed at the last
