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
	{ 14, 34 }, { 20, 40 }, { 29, 41 }, { 38, 41 }, { 47, 40 },
	{ 55, 38 }, { 55, 30 }, { 47, 28 }, { 38, 27 }, { 29, 27 },
	{ 20, 29 },
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
