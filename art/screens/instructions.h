// The groups that the instructions page is drawn in.
#pragma once

#include "art/core/catalogue.h"

// A prize under a bunch of balloons.
Image FallingPrize();

void AddInstructionsPrizes(Catalogue& catalogue); // discs, names and what each prize does
void AddInstructionsNotes(Catalogue& catalogue);  // what happens on the field
