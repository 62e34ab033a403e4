// Pigeon: pecks and coos.
#include "animals/bird_page.h"

#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	{ "stand", ACTION_IDLE, ".", 0, ROLE_NONE, "" },
	BirdLook("look", "0-3"),
	BirdLook("other:look", "4-5"),
	BirdBump("ruffle", "0-5"),
	BirdWalk("0-7 0-7", 1),
	BirdFlap("0-7", 1),
	BirdGlide("0*4 1 2*4 1"),
	{ "lowerhead", ACTION_EXTRA, "0-2", 1, ROLE_NONE, "",
	  { .time = Between(8, 15), .hold = Between(30, 60), .exitFrames = EXIT_BACK, .once = true } },
};

static const BodyPoint s_body[] = {
	{ 3, 20 }, { 7, 25 }, { 14, 26 }, { 21, 25 }, { 25, 20 },
	{ 21, 15 }, { 13, 14 }, { 7, 15 },
};
// clang-format on

const SpeciesTable PIGEON_TABLE = {"pigeon", s_actions, {}, s_body, {}, {}};

const BirdPage PIGEON_PAGE = {
    .species       = SPECIES_PIGEON,
    .bodyRadius    = 12,
    .weight        = 3,
    .requiredStage = 6,
    .calls         = {"pigeon_coo.ogg"},
    .onCrate       = {4, -1, -3},
    .onFence       = {4, -1, 5},
    .table         = &PIGEON_TABLE,
};
