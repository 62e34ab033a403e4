// Owl: sits, and turns its head both ways.
#include "animals/bird_page.h"

#include "animals/species_numbers.h"

// clang-format off
const ActionRow OWL_ACTIONS[6] = {
	{ "perch", ACTION_IDLE, ".", 0, ROLE_NONE, "" },
	BirdLook("lookA", "0-4"),
	BirdLook("lookB", "0-4"),
	BirdBump("stunned", "0-5"),
	BirdFlap("0-7"),
	BirdGlide("0*4 1 2*4 1"),
};

static const BodyPoint s_body[] = {
	{ 2, 20 }, { 4, 25 }, { 10, 26 }, { 15, 25 }, { 17, 19 },
	{ 15, 14 }, { 9, 13 }, { 4, 14 },
};
// clang-format on

const SpeciesTable OWL_TABLE = {"owl", OWL_ACTIONS, {}, s_body, {}, {}};

const BirdPage OWL_PAGE = {
    .species       = SPECIES_OWL,
    .bodyRadius    = 12,
    .weight        = 3,
    .requiredStage = 6,
    .calls         = {"owl_hoot.ogg"},
    .onCrate       = {3, 0, -1},
    .onFence       = {3, -1, 6},
    .table         = &OWL_TABLE,
};
