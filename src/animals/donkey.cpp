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
	{ 14, 39 }, { 19, 45 }, { 27, 47 }, { 36, 47 }, { 44, 45 },
	{ 49, 39 }, { 44, 33 }, { 36, 32 }, { 27, 32 }, { 19, 33 },
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
