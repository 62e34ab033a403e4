// Fox: trots in all directions.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind              frames  weight role       then
	{ "stand",      ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK,     ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,      "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,      "0-6",      0, ROLE_BUMP, "" },
	{ "walkup",     ACTION_WALK_BOTH, "0-7",      2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 6, 22 }, { 12, 27 }, { 20, 27 }, { 28, 27 }, { 33, 22 },
	{ 28, 18 }, { 19, 18 }, { 12, 18 },
};
// clang-format on

const SpeciesTable FOX_TABLE = {"fox", s_actions, {}, s_body, {}, {}};

CFox::CFox(int centreX, int centreY, bool left)
{
	species       = SPECIES_FOX;
	bodyRadius    = 19;
	weight        = 5;
	requiredStage = 10;
	speedX        = 2;
	speedY        = 1;
	mayTurn       = true;

	BuildActions(FOX_TABLE);
	PlaceAt(centreX, centreY, left);
}
