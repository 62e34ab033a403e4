// Warthog: squeals and trots on.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "squeal",     ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "walk",       ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 9, 23 }, { 16, 27 }, { 25, 28 }, { 33, 28 }, { 42, 28 },
	{ 51, 27 }, { 58, 23 }, { 51, 19 }, { 42, 19 }, { 33, 18 },
	{ 25, 19 }, { 16, 19 },
};
// clang-format on

const SpeciesTable WARTHOG_TABLE = {"warthog", s_actions, {}, s_body, {}, {}};

CWarthog::CWarthog(int centreX, int centreY, bool left)
{
	species       = SPECIES_WARTHOG;
	bodyRadius    = 29;
	weight        = 6;
	requiredStage = 12;
	speedX        = 2;
	mayTurn       = true;

	LoadCall("pig_squeal.ogg");
	BuildActions(WARTHOG_TABLE);
	PlaceAt(centreX, centreY, left);
}
