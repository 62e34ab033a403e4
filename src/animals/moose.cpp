// Moose: lowers its head and grunts in one of two ways.
#include "animals/two_voiced.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "lowerhead",  ACTION_EXTRA, "0-5",      1, ROLE_NONE, "",
	  { .hold = Between(60, 120), .exitFrames = EXIT_BACK } },
	{ "hit",        ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
};

static const BodyPoint s_body[] = {
	{ 21, 43 }, { 25, 51 }, { 34, 53 }, { 43, 54 }, { 52, 53 },
	{ 60, 51 }, { 64, 43 }, { 60, 35 }, { 52, 32 }, { 42, 32 },
	{ 34, 32 }, { 25, 35 },
};
// clang-format on

const SpeciesTable MOOSE_TABLE = {"moose", s_actions, {}, s_body, {}, {}};

CMoose::CMoose(int centreX, int centreY, bool left)
{
	species       = SPECIES_MOOSE;
	bodyRadius    = 33;
	weight        = 8;
	requiredStage = 16;
	speedX        = 2;
	mayTurn       = true;

	LoadVoices("moose_grunt.ogg", "moose_grunt2.ogg");
	BuildActions(MOOSE_TABLE);
	PlaceAt(centreX, centreY, left);
}
