// Jackrabbit: a rabbit with long ears.
#include "animals/hoppers.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name       kind            frames  weight role       then    options
	{ "stand",    ACTION_IDLE,    ".",        0, ROLE_NONE, "" },
	{ "look",     ACTION_LOOK,    "0-4",      1, ROLE_NONE, "" },
	{ "land:hop", ACTION_HOP_END, "7",        0, ROLE_NONE, "",     { .time = Frames(4) } },
	{ "hop",      ACTION_WALK,    "0-7",      2, ROLE_BUMP, "land",
	  { .time = UNTIL_END, .repeats = Between(2, 5) } },
};

static const BodyPoint s_body[] = {
	{ 5, 31 }, { 9, 36 }, { 16, 37 }, { 24, 36 }, { 28, 31 },
	{ 23, 26 }, { 16, 25 }, { 9, 26 },
};
// clang-format on

const SpeciesTable JACKRABBIT_TABLE = {"jackrabbit", s_actions, {}, s_body, {}, {}};

CJackrabbit::CJackrabbit(int centreX, int centreY, bool left)
{
	species       = SPECIES_JACKRABBIT;
	bodyRadius    = 15;
	weight        = 5;
	requiredStage = 8;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(JACKRABBIT_TABLE);
	PlaceAt(centreX, centreY, left);
}
