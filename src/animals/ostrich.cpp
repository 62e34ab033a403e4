// Ostrich: runs far, and puts its head where it cannot see the ball.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames                                  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",                                        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",                                        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",                                      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-5 6*2 7*2 6*2 7*2 6*2 7*2 5*4 4-2",      0, ROLE_BUMP, "",
	  { .extraSound = "ostrich_head.ogg", .extraDelay = 12 } },
	{ "run",        ACTION_WALK,  "0-9",                                      2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 10, 38 }, { 14, 45 }, { 18, 52 }, { 25, 57 }, { 31, 52 },
	{ 36, 45 }, { 41, 38 }, { 36, 34 }, { 26, 32 }, { 16, 34 },
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
