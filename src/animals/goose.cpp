// Goose: honks with its wings spread.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
const ActionRow GOOSE_ACTIONS[8] = {
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
	{ 9, 27 }, { 14, 32 }, { 22, 33 }, { 30, 32 }, { 35, 27 },
	{ 30, 23 }, { 22, 22 }, { 14, 23 },
};
// clang-format on

const SpeciesTable GOOSE_TABLE = {"goose", GOOSE_ACTIONS, {}, s_body, {}, {}};

CGoose::CGoose(int centreX, int centreY, bool left)
{
	species       = SPECIES_GOOSE;
	bodyRadius    = 19;
	weight        = 5;
	requiredStage = 9;
	speedX        = 1.5f;
	mayTurn       = true;

	LoadCall("goose_honk.ogg");
	BuildActions(GOOSE_TABLE);
	PlaceAt(centreX, centreY, left);
}
