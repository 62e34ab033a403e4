// Ostrich: runs far, and puts its head where it cannot see the ball.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "",
	  { .extraSound = "ostrich_head.ogg", .extraDelay = 12 } },
	{ "run",        ACTION_WALK,  "0-9",      2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 8, 53 }, { 17, 55 }, { 26, 56 }, { 35, 55 }, { 44, 53 },
	{ 50, 48 }, { 44, 43 }, { 35, 41 }, { 26, 40 }, { 17, 41 },
	{ 8, 43 }, { 2, 48 },
};
// clang-format on

const SpeciesTable OSTRICH_TABLE = {"ostrich", s_actions, {}, s_body, {}, {}};

COstrich::COstrich(int centreX, int centreY, bool left)
{
	species       = SPECIES_OSTRICH;
	bodyRadius    = 32;
	weight        = 7;
	requiredStage = 12;
	speedX        = 2;
	mayTurn       = true;

	LoadCall("ostrich_squawk.ogg");
	BuildActions(OSTRICH_TABLE);
	PlaceAt(centreX, centreY, left);
}
