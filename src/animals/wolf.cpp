// Wolf: howls when the ball is too small.
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
	{ 8, 31 }, { 17, 33 }, { 26, 34 }, { 34, 34 }, { 43, 33 },
	{ 52, 31 }, { 58, 25 }, { 52, 19 }, { 43, 17 }, { 34, 16 },
	{ 26, 16 }, { 17, 17 }, { 8, 19 }, { 2, 25 },
};
// clang-format on

const SpeciesTable WOLF_TABLE = {"wolf", s_actions, {}, s_body, {}, {}};

CWolf::CWolf(int centreX, int centreY, bool left)
{
	species       = SPECIES_WOLF;
	bodyRadius    = 30;
	weight        = 7;
	requiredStage = 11;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(WOLF_TABLE);
	PlaceAt(centreX, centreY, left);
}
