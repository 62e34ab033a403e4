// Tiger: roars at a ball that is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name              kind          frames  weight role       then options
	{ "stand",           ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink",      ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",            ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "roar",            ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "",
	  { .sounds = {"tiger_roar.ogg"}, .soundDelay = 3 } },
	{ "walk",            ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
	{ "lowerhead",       ACTION_EXTRA, "0-5",      1, ROLE_NONE, "",
	  { .hold = Between(60, 120), .exitFrames = EXIT_BACK } },
	{ "sniff:lowerhead", ACTION_EXTRA, "0-5",      1, ROLE_NONE, "",
	  { .hold = Between(20, 50), .exitFrames = EXIT_BACK } },
};

static const BodyPoint s_body[] = {
	{ 13, 35 }, { 19, 41 }, { 28, 43 }, { 37, 43 }, { 45, 43 },
	{ 54, 41 }, { 60, 35 }, { 54, 29 }, { 45, 28 }, { 36, 28 },
	{ 28, 28 }, { 19, 29 },
};
// clang-format on

const SpeciesTable TIGER_TABLE = {"tiger", s_actions, {}, s_body, {}, {}};

CTiger::CTiger(int centreX, int centreY, bool left)
{
	species       = SPECIES_TIGER;
	bodyRadius    = 38;
	weight        = 11;
	requiredStage = 15;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(TIGER_TABLE);
	PlaceAt(centreX, centreY, left);
}
