// Elephant: the largest; stays where it is and flaps its ears.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "trumpet",    ACTION_BUMP,  "0-8",      0, ROLE_BUMP, "",
	  { .sounds = {"elephant_trumpet.ogg"}, .soundDelay = 4 } },
	{ "ears",       ACTION_EXTRA, "0-7",      1, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 8, 53 }, { 16, 56 }, { 25, 57 }, { 34, 58 }, { 44, 58 },
	{ 53, 57 }, { 61, 56 }, { 70, 53 }, { 76, 46 }, { 70, 40 },
	{ 62, 37 }, { 53, 36 }, { 44, 35 }, { 34, 35 }, { 25, 36 },
	{ 17, 37 }, { 8, 40 }, { 2, 46 },
};
// clang-format on

const SpeciesTable ELEPHANT_TABLE = {"elephant", s_actions, {}, s_body, {}, {}};

CElephant::CElephant(int centreX, int centreY, bool left)
{
	species       = SPECIES_ELEPHANT;
	bodyRadius    = 39;
	weight        = 12;
	requiredStage = 18;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(ELEPHANT_TABLE);
	PlaceAt(centreX, centreY, left);
}
