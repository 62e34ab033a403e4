// The birds that sit on crates and fences, and the roadrunner, ready for drawing.
#pragma once

#include "art/animals/figure.h"

Species BlueBird();
Species Crow();
Species Pigeon();
Species Owl();
Species SnowyOwl();
Species Vulture();
Species Eagle();
Species Roadrunner();
