// What walking birds have in common: the standing picture and the two views in the bubble.
#pragma once

#include "art/animals/figure.h"

// One group for each of `sequences`, one for the standing picture and one for the views in the
// bubble. Pass __FILE__ as source.
void AddBirdPictures(Catalogue& catalogue, const char* source, Species (*species)(),
                     const std::vector<Sequence>& sequences);
