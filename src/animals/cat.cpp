// Cat: runs in short dashes and purrs.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "pawair",     ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "run",        ACTION_WALK,  "0-5",      2, ROLE_NONE, "" },
	{ "purr",       ACTION_EXTRA, "0-5",      1, ROLE_NONE, "", { .time = Between(60, 120) } },
};

static const BodyPoint s_body[] = {
	{ 4, 18 }, { 9, 22 }, { 17, 22 }, { 24, 22 }, { 30, 18 },
	{ 24, 15 }, { 16, 14 }, { 9, 15 },
};
// clang-format on

const SpeciesTable CAT_TABLE = {"cat", s_actions, {}, s_body, {}, {}};

CCat::CCat(int centreX, int centreY, bool left)
{
	species       = SPECIES_CAT;
	bodyRadius    = 15;
	weight        = 4;
	requiredStage = 7;
	speedX        = 2.5f;
	mayTurn       = true;

	LoadCall("cat_meow.ogg");
	BuildActions(CAT_TABLE);
	PlaceAt(centreX, centreY, left);
}
