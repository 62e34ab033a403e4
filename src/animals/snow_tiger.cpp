// Snow tiger: a tiger of the cold; never lowers its head.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "roar",       ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "",
	  { .sounds = {"tiger_roar.ogg"}, .soundDelay = 3 } },
	{ "walk",       ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 13, 35 }, { 19, 41 }, { 28, 43 }, { 37, 43 }, { 45, 43 },
	{ 54, 41 }, { 60, 35 }, { 54, 29 }, { 45, 28 }, { 36, 28 },
	{ 28, 28 }, { 19, 29 },
};
// clang-format on

const SpeciesTable SNOW_TIGER_TABLE = {"snowtiger", s_actions, {}, s_body, {}, {}};

CSnowTiger::CSnowTiger(int centreX, int centreY, bool left)
{
	species       = SPECIES_SNOW_TIGER;
	bodyRadius    = 38;
	weight        = 11;
	requiredStage = 15;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(SNOW_TIGER_TABLE);
	PlaceAt(centreX, centreY, left);
}
