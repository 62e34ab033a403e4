// The parts of the side panel that have a file of their own, and what they share.
#pragma once

#include "art/core/catalogue.h"

void AddPanelDoors(Catalogue& catalogue);  // sliding doors, swirls and the base of the names
void AddPanelWords(Catalogue& catalogue);  // first names and the little words under portraits
void AddPanelPrizes(Catalogue& catalogue); // discs of the power-ups and their names
