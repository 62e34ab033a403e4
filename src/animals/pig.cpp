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
	{ "walk",       ACTION_WALK,  "0-7",      1, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 5, 25 }, { 11, 31 }, { 19, 32 }, { 28, 32 }, { 37, 31 },
	{ 43, 25 }, { 37, 20 }, { 28, 19 }, { 19, 19 }, { 10, 20 },
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
