// Deer: shy, and quick on its feet.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "walk",       ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 15, 45 }, { 19, 52 }, { 28, 54 }, { 36, 54 }, { 45, 52 },
	{ 49, 45 }, { 45, 39 }, { 36, 37 }, { 28, 37 }, { 19, 39 },
};
// clang-format on

const SpeciesTable DEER_TABLE = {"deer", s_actions, {}, s_body, {}, {}};

CDeer::CDeer(int centreX, int centreY, bool left)
{
	species       = SPECIES_DEER;
	bodyRadius    = 25;
	weight        = 5;
	requiredStage = 10;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(DEER_TABLE);
	PlaceAt(centreX, centreY, left);
}
