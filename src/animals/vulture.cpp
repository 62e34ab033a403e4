// Vulture: hunches on its perch and never walks.
#include "animals/bird_page.h"

#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	{ "perch", ACTION_IDLE, ".", 0, ROLE_NONE, "" },
	BirdLook("look", "0-3"),
	BirdLook("other:look", "4-5"),
	BirdBump("ruffle", "0-5"),
	BirdFlap("0-9"),
	BirdGlide("0*4 1 2*4 1"),
	{ "lowerhead", ACTION_EXTRA, "0-2", 1, ROLE_NONE, "",
	  { .hold = Between(30, 60), .exitFrames = EXIT_BACK } },
};

static const BodyPoint s_body[] = {
	{ 13, 23 }, { 18, 30 }, { 27, 31 }, { 36, 30 }, { 41, 23 },
	{ 36, 16 }, { 27, 15 }, { 18, 16 },
};
// clang-format on

const SpeciesTable VULTURE_TABLE = {"vulture", s_actions, {}, s_body, {}, {}};

const BirdPage VULTURE_PAGE = {
    .species       = SPECIES_VULTURE,
    .bodyRadius    = 18,
    .weight        = 4,
    .requiredStage = 8,
    .calls         = {"vulture_screech.ogg"},
    .onCrate       = {-1, 4, -2},
    .onFence       = {0, 2, 5},
    .table         = &VULTURE_TABLE,
};
