// Rabbit: hops along, and away when bumped.
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
	{ 3, 24 }, { 8, 28 }, { 15, 29 }, { 22, 28 }, { 27, 24 },
	{ 22, 20 }, { 14, 19 }, { 7, 20 },
};
// clang-format on

const SpeciesTable RABBIT_TABLE = {"rabbit", s_actions, {}, s_body, {}, {}};

CRabbit::CRabbit(int centreX, int centreY, bool left)
{
	species       = SPECIES_RABBIT;
	bodyRadius    = 15;
	weight        = 4;
	requiredStage = 7;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(RABBIT_TABLE);
	PlaceAt(centreX, centreY, left);
}
