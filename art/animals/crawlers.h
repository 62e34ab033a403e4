// Species that creep, slide and roll, ready for drawing.
#pragma once

#include "art/animals/figure.h"

Species Turtle();
Species Tortoise();
Species Snake();
Species Lizard();
Species Seal();
Species Walrus();
Species Bot();
Species Alien();

// The two views in the bubble, by the common names.
void AddBubbleViews(Catalogue& catalogue, const char* source, Species (*species)(),
                    const Pose& pose);
