// The monkey.
#pragma once

#include "art/animals/biped.h"
#include "art/animals/figure.h"

Species Monkey();
