// Coyote: howls when the ball is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "walk",       ACTION_WALK,  "0-11",     1, ROLE_NONE, "" },
	{ "howl",       ACTION_BUMP,  "0-8",      0, ROLE_BUMP, "",
	  { .sounds = {"wolf_howl.ogg"}, .soundDelay = 4 } },
};

static const BodyPoint s_body[] = {
	{ 16, 38 }, { 21, 44 }, { 31, 46 }, { 40, 46 }, { 49, 44 },
	{ 55, 38 }, { 49, 31 }, { 40, 30 }, { 30, 30 }, { 21, 31 },
};
// clang-format on

const SpeciesTable COYOTE_TABLE = {"coyote", s_actions, {}, s_body, {}, {}};

CCoyote::CCoyote(int centreX, int centreY, bool left)
{
	species       = SPECIES_COYOTE;
	bodyRadius    = 25;
	weight        = 6;
	requiredStage = 10;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(COYOTE_TABLE);
	PlaceAt(centreX, centreY, left);
}
