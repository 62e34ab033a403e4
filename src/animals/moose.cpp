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
	{ 22, 44 }, { 26, 52 }, { 35, 54 }, { 44, 55 }, { 53, 54 },
	{ 61, 52 }, { 65, 44 }, { 61, 36 }, { 53, 33 }, { 43, 33 },
	{ 35, 33 }, { 26, 36 },
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
