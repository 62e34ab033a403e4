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
	{ 8, 28 }, { 15, 33 }, { 24, 35 }, { 33, 35 }, { 43, 35 },
	{ 53, 35 }, { 62, 33 }, { 69, 28 }, { 62, 23 }, { 52, 21 },
	{ 43, 21 }, { 33, 21 }, { 24, 21 }, { 14, 23 },
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
