// Pig: walks a little and squeals in one of two ways.
#include "animals/two_voiced.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "squeal",     ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "walk",       ACTION_WALK,  "0-11",     1, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 8, 24 }, { 15, 25 }, { 23, 26 }, { 31, 26 }, { 38, 24 },
	{ 44, 19 }, { 38, 14 }, { 31, 13 }, { 23, 12 }, { 15, 12 },
	{ 8, 14 }, { 2, 19 },
};
// clang-format on

const SpeciesTable PIG_TABLE = {"pig", s_actions, {}, s_body, {}, {}};

CPig::CPig(int centreX, int centreY, bool left)
{
	species       = SPECIES_PIG;
	bodyRadius    = 23;
	weight        = 6;
	requiredStage = 12;
	speedX        = 1;
	mayTurn       = true;

	LoadVoices("pig_squeal.ogg", "pig_squeal2.ogg");
	BuildActions(PIG_TABLE);
	PlaceAt(centreX, centreY, left);
}
