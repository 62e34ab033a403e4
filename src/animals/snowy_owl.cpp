// Snowy owl: an owl in white.
#include "animals/bird_page.h"

#include "animals/species_numbers.h"

// clang-format off
static const BodyPoint s_body[] = {
	{ 2, 20 }, { 5, 26 }, { 11, 27 }, { 17, 26 }, { 20, 20 },
	{ 17, 14 }, { 11, 13 }, { 5, 14 },
};
// clang-format on

const SpeciesTable SNOWY_OWL_TABLE = {"snowyowl", OWL_ACTIONS, {}, s_body, {}, {}};

const BirdPage SNOWY_OWL_PAGE = {
    .species       = SPECIES_SNOWY_OWL,
    .bodyRadius    = 12,
    .weight        = 3,
    .requiredStage = 6,
    .calls         = {"owl_hoot.ogg"},
    .onCrate       = {3, 0, -1},
    .onFence       = {3, -1, 6},
    .table         = &SNOWY_OWL_TABLE,
};
