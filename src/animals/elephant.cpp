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
	{ 2, 46 }, { 8, 52 }, { 17, 51 }, { 26, 56 }, { 36, 60 },
	{ 46, 60 }, { 56, 60 }, { 65, 59 }, { 74, 57 }, { 81, 51 },
	{ 84, 45 }, { 77, 41 }, { 68, 39 }, { 58, 38 }, { 47, 38 },
	{ 37, 38 }, { 27, 38 }, { 18, 39 }, { 9, 41 },
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
