// Bluebird: small, blue, and fond of fences.
#include "animals/bird_page.h"

#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	{ "perch", ACTION_IDLE, ".", 0, ROLE_NONE, "" },
	BirdLook("look", "0-3"),
	BirdLook("other:look", "4-5"),
	BirdBump("ruffle", "0-5"),
	BirdWalk("0-7 0-7", 1),
	BirdFlap("0-5", 1),
	BirdGlide("0*4 1 2*4 1"),
};

static const BodyPoint s_body[] = {
	{ 4, 17 }, { 7, 22 }, { 13, 23 }, { 19, 22 }, { 22, 17 },
	{ 19, 13 }, { 13, 12 }, { 7, 13 },
};
// clang-format on

const SpeciesTable BLUEBIRD_TABLE = {"bluebird", s_actions, {}, s_body, {}, {}};

const BirdPage BLUEBIRD_PAGE = {
    .species       = SPECIES_BLUEBIRD,
    .bodyRadius    = 12,
    .weight        = 3,
    .requiredStage = 6,
    .calls         = {"bluebird_chirp.ogg"},
    .onCrate       = {4, -1, -2},
    .onFence       = {4, -4, 5},
    .table         = &BLUEBIRD_TABLE,
};
