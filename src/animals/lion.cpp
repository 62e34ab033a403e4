// Lion: roars at a ball that is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
const ActionRow LION_ACTIONS[7] = {
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
	{ 15, 45 }, { 20, 52 }, { 28, 54 }, { 38, 55 }, { 47, 55 },
	{ 56, 55 }, { 65, 53 }, { 73, 49 }, { 73, 40 }, { 65, 36 },
	{ 56, 34 }, { 46, 34 }, { 37, 34 }, { 28, 35 }, { 19, 38 },
};
// clang-format on

const SpeciesTable LION_TABLE = {"lion", LION_ACTIONS, {}, s_body, {}, {}};

CLion::CLion(int centreX, int centreY, bool left)
{
	species       = SPECIES_LION;
	bodyRadius    = 38;
	weight        = 11;
	requiredStage = 15;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(LION_TABLE);
	PlaceAt(centreX, centreY, left);
}
