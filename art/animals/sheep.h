// The sheep.
#pragma once

#include "art/animals/figure.h"
#include "art/animals/quadruped.h"

Species Sheep();
