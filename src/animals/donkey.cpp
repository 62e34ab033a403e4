// Donkey: kicks out behind when the ball is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "kick",       ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "" },
	{ "walk",       ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 8, 35 }, { 17, 37 }, { 26, 38 }, { 35, 37 }, { 44, 35 },
	{ 50, 30 }, { 44, 25 }, { 35, 23 }, { 26, 22 }, { 17, 23 },
	{ 8, 25 }, { 2, 30 },
};
// clang-format on

const SpeciesTable DONKEY_TABLE = {"donkey", s_actions, {}, s_body, {}, {}};

CDonkey::CDonkey(int centreX, int centreY, bool left)
{
	species       = SPECIES_DONKEY;
	bodyRadius    = 26;
	weight        = 6;
	requiredStage = 11;
	speedX        = 1.75f;
	mayTurn       = true;

	LoadCall("donkey_bray.ogg");
	BuildActions(DONKEY_TABLE);
	PlaceAt(centreX, centreY, left);
}
