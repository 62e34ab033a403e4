// Bighorn: stands on its ground and shakes its horns.
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
	{ "shake",      ACTION_EXTRA, "0-7",      1, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 13, 34 }, { 16, 42 }, { 25, 45 }, { 34, 45 }, { 43, 44 },
	{ 49, 38 }, { 49, 29 }, { 42, 24 }, { 33, 22 }, { 24, 23 },
	{ 16, 26 },
};
// clang-format on

const SpeciesTable BIGHORN_TABLE = {"bighorn", s_actions, {}, s_body, {}, {}};

CBighorn::CBighorn(int centreX, int centreY, bool left)
{
	species       = SPECIES_BIGHORN;
	bodyRadius    = 26;
	weight        = 7;
	requiredStage = 11;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(BIGHORN_TABLE);
	PlaceAt(centreX, centreY, left);
}
