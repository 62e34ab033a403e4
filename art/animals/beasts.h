// The four-footed species, ready for drawing.
#pragma once

#include "art/animals/figure.h"

Species Cow();
Species Pig();
Species Warthog();
Species Bear();
Species PolarBear();
Species Panda();
Species Horse();
Species Zebra();
Species Unicorn();
Species Donkey();
Species Goat();
Species Bighorn();
Species Dog();
Species Fox();
Species Wolf();
Species Coyote();
Species Hyena();
Species Cat();
Species Tiger();
Species SnowTiger();
Species Lion();
Species Elephant();
Species Hippo();
Species Rhino();
Species Deer();
Species Moose();
Species Camel();
Species Mouse();
Species Raccoon();
Species Skunk();
