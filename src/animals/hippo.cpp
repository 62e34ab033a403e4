// Hippo: opens its mouth wide at a ball that is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "lowerhead",  ACTION_EXTRA, "0-5",      1, ROLE_NONE, "",
	  { .hold = Between(60, 120), .exitFrames = EXIT_BACK } },
	{ "openmouth",  ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "",
	  { .sounds = {"hippo_snort.ogg"}, .soundDelay = 3 } },
};

static const BodyPoint s_body[] = {
	{ 8, 38 }, { 17, 40 }, { 26, 42 }, { 35, 42 }, { 44, 42 },
	{ 53, 40 }, { 62, 38 }, { 68, 32 }, { 62, 25 }, { 53, 23 },
	{ 44, 21 }, { 35, 21 }, { 26, 21 }, { 17, 23 }, { 8, 25 },
	{ 2, 32 },
};
// clang-format on

const SpeciesTable HIPPO_TABLE = {"hippo", s_actions, {}, s_body, {}, {}};

CHippo::CHippo(int centreX, int centreY, bool left)
{
	species       = SPECIES_HIPPO;
	bodyRadius    = 35;
	weight        = 11;
	requiredStage = 18;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(HIPPO_TABLE);
	PlaceAt(centreX, centreY, left);
}
