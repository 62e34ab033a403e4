// Hen, goose, swan, flamingo, penguin and ostrich, ready for drawing.
#pragma once

#include "art/animals/bird.h"
#include "art/animals/figure.h"

Species Chicken();
Species Goose();
Species Swan();
Species Flamingo();
Species Penguin();
Species Ostrich();
