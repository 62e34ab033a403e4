// The duck in a drake's colours, and the duckling.
#pragma once

#include "art/animals/bird.h"
#include "art/animals/figure.h"

Species Duck();
Species Duckling();
