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
	{ 25, 47 }, { 28, 55 }, { 36, 58 }, { 45, 59 }, { 54, 58 },
	{ 62, 55 }, { 65, 47 }, { 62, 39 }, { 54, 36 }, { 44, 35 },
	{ 36, 36 }, { 28, 39 },
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
