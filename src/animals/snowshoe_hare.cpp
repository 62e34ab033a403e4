// Snowshoe hare: a rabbit in white.
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
	{ 5, 28 }, { 9, 33 }, { 17, 34 }, { 24, 33 }, { 29, 28 },
	{ 24, 23 }, { 16, 22 }, { 9, 23 },
};
// clang-format on

const SpeciesTable HARE_TABLE = {"hare", s_actions, {}, s_body, {}, {}};

CSnowshoeHare::CSnowshoeHare(int centreX, int centreY, bool left)
{
	species       = SPECIES_HARE;
	bodyRadius    = 15;
	weight        = 4;
	requiredStage = 7;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(HARE_TABLE);
	PlaceAt(centreX, centreY, left);
}
