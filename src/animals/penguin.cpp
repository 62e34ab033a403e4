// Penguin: waddles in all directions and shakes the water off.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind              frames  weight role       then options
	{ "stand",      ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK,     ".",        5, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,      "0-4",      3, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,      "0-5",      0, ROLE_BUMP, "" },
	{ "shake",      ACTION_EXTRA,     "0-7",      1, ROLE_NONE, "",
	  { .sounds = {"penguin_shake.ogg"} } },
	{ "walkup",     ACTION_WALK_BOTH, "0-7",      4, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 3, 23 }, { 6, 29 }, { 13, 31 }, { 19, 29 }, { 22, 23 },
	{ 19, 16 }, { 12, 14 }, { 6, 16 },
};
// clang-format on

const SpeciesTable PENGUIN_TABLE = {"penguin", s_actions, {}, s_body, {}, {}};

CPenguin::CPenguin(int centreX, int centreY, bool left)
{
	species       = SPECIES_PENGUIN;
	bodyRadius    = 15;
	weight        = 7;
	requiredStage = 10;
	speedX        = 0.75f;
	speedY        = 0.5f;
	mayTurn       = true;

	LoadCall("penguin_squawk.ogg");
	BuildActions(PENGUIN_TABLE);
	PlaceAt(centreX, centreY, left);
}
