// Lizard: creeps in all directions.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name      kind              frames  weight role       then
	{ "stand",   ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "look",    ACTION_LOOK,      "0-4",      1, ROLE_NONE, "" },
	{ "stunned", ACTION_BUMP,      "0-6",      0, ROLE_BUMP, "" },
	{ "walkup",  ACTION_WALK_BOTH, "0-11",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 2, 15 }, { 10, 19 }, { 19, 20 }, { 28, 20 }, { 38, 18 },
	{ 37, 12 }, { 28, 11 }, { 19, 11 }, { 10, 11 },
};
// clang-format on

const SpeciesTable LIZARD_TABLE = {"lizard", s_actions, {}, s_body, {}, {}};

CLizard::CLizard(int centreX, int centreY, bool left)
{
	species       = SPECIES_LIZARD;
	bodyRadius    = 24;
	weight        = 6;
	requiredStage = 10;
	speedX        = 1.5f;
	speedY        = 0.75f;
	mayTurn       = true;

	BuildActions(LIZARD_TABLE);
	PlaceAt(centreX, centreY, left);
}
