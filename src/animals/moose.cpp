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
	{ 8, 50 }, { 16, 52 }, { 24, 54 }, { 33, 54 }, { 42, 54 },
	{ 50, 52 }, { 58, 50 }, { 64, 44 }, { 58, 38 }, { 50, 36 },
	{ 42, 34 }, { 33, 34 }, { 24, 34 }, { 16, 36 }, { 8, 38 },
	{ 2, 44 },
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
