// Swan: honks with its wings spread.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name              kind           frames     weight role       then options
	{ "stand",           ACTION_IDLE,   ".",           0, ROLE_NONE, "" },
	{ "look",            ACTION_LOOK,   "0-4",         1, ROLE_NONE, "" },
	{ "glance:look",     ACTION_LOOK,   "0-2",         1, ROLE_NONE, "",
	  { .hold = Between(8, 30) } },
	{ "honkflap",        ACTION_BUMP,   "0-7",         0, ROLE_BUMP, "" },
	{ "walk",            ACTION_WALK,   "0-7",         3, ROLE_NONE, "" },
	{ "adjustwings",     ACTION_EXTRA,  "0-7",         2, ROLE_NONE, "" },
	{ "headbob",         ACTION_EXTRA2, "0-3 2-0",     1, ROLE_NONE, "" },
	{ "longbob:headbob", ACTION_EXTRA3, "0-3 2-0",     1, ROLE_NONE, "",
	  { .repeats = Between(2, 4) } },
};

static const BodyPoint s_body[] = {
	{ 8, 34 }, { 14, 39 }, { 22, 40 }, { 31, 39 }, { 36, 34 },
	{ 31, 28 }, { 22, 28 }, { 14, 28 },
};
// clang-format on

const SpeciesTable SWAN_TABLE = {"swan", s_actions, {}, s_body, {}, {}};

CSwan::CSwan(int centreX, int centreY, bool left)
{
	species       = SPECIES_SWAN;
	bodyRadius    = 20;
	weight        = 6;
	requiredStage = 10;
	speedX        = 1.5f;
	mayTurn       = true;

	LoadCall("goose_honk.ogg");
	BuildActions(SWAN_TABLE);
	PlaceAt(centreX, centreY, left);
}
