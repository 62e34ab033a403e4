// Goat: bleats and walks on.
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
	{ 7, 37 }, { 13, 43 }, { 22, 44 }, { 31, 44 }, { 40, 41 },
	{ 40, 34 }, { 31, 31 }, { 22, 31 }, { 13, 32 },
};
// clang-format on

const SpeciesTable GOAT_TABLE = {"goat", s_actions, {}, s_body, {}, {}};

CGoat::CGoat(int centreX, int centreY, bool left)
{
	species       = SPECIES_GOAT;
	bodyRadius    = 24;
	weight        = 5;
	requiredStage = 9;
	speedX        = 2;
	mayTurn       = true;

	LoadCall("goat_bleat.ogg");
	BuildActions(GOAT_TABLE);
	PlaceAt(centreX, centreY, left);
}
