// The wall at the field's far edge and the rails at its near edge.
#pragma once

#include "art/core/catalogue.h"

// The walls of stone, sandstone and ice, each along two courses.
void AddBoundary(Catalogue& catalogue);
void AddRailroad(Catalogue& catalogue);
