// Rhino: stands like a rock.
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
	{ "stunned",    ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
};

static const BodyPoint s_body[] = {
	{ 3, 26 }, { 10, 30 }, { 19, 31 }, { 29, 32 }, { 38, 32 },
	{ 47, 32 }, { 56, 31 }, { 65, 30 }, { 73, 25 }, { 65, 21 },
	{ 56, 20 }, { 47, 19 }, { 37, 19 }, { 28, 19 }, { 19, 20 },
	{ 10, 21 },
};
// clang-format on

const SpeciesTable RHINO_TABLE = {"rhino", s_actions, {}, s_body, {}, {}};

CRhino::CRhino(int centreX, int centreY, bool left)
{
	species       = SPECIES_RHINO;
	bodyRadius    = 38;
	weight        = 11;
	requiredStage = 18;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(RHINO_TABLE);
	PlaceAt(centreX, centreY, left);
}
