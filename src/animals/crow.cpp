// Crow: caws in two ways.
#include "animals/bird_page.h"

#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	{ "perch", ACTION_IDLE, ".", 0, ROLE_NONE, "" },
	BirdLook("look", "0-3"),
	BirdLook("other:look", "4-5"),
	BirdBump("ruffle", "0-5"),
	BirdWalk("0-7 0-7", 1),
	BirdFlap("0-5"),
	BirdGlide("0*4 1 2*4 1"),
};

static const BodyPoint s_body[] = {
	{ 11, 18 }, { 15, 22 }, { 20, 22 }, { 25, 21 }, { 29, 18 },
	{ 25, 15 }, { 20, 14 }, { 15, 15 },
};
// clang-format on

const SpeciesTable CROW_TABLE = {"crow", s_actions, {}, s_body, {}, {}};

const BirdPage CROW_PAGE = {
    .species       = SPECIES_CROW,
    .bodyRadius    = 12,
    .weight        = 3,
    .requiredStage = 6,
    .calls         = {"crow_caw.ogg", "crow_caw2.ogg"},
    .onCrate       = {6, -1, -2},
    .onFence       = {4, -2, 5},
    .table         = &CROW_TABLE,
};
