// Roadrunner: the fastest on foot; runs in all directions and pecks.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name                kind              frames     weight role       then
	{ "runnerstand",       ACTION_IDLE,      ".",           0, ROLE_NONE, "" },
	{ "runnerlook",        ACTION_LOOK,      "0-4",         1, ROLE_NONE, "" },
	{ "runnermovehead",    ACTION_LOOK,      "0-3",         1, ROLE_NONE, "" },
	{ "runnerstunned",     ACTION_BUMP,      "0-6",         0, ROLE_BUMP, "" },
	{ "runnerrunup",       ACTION_WALK_BOTH, "0-7",         3, ROLE_NONE, "", { .ticks = 1 } },
	{ "last:runnerpeck",   ACTION_GRAZE,     "0-2 1-0",     0, ROLE_NONE, "" },
	{ "third:runnerpeck",  ACTION_GRAZE,     "0-2 1-0",     0, ROLE_NONE, "last" },
	{ "second:runnerpeck", ACTION_GRAZE,     "0-2 1-0",     0, ROLE_NONE, "third" },
	{ "first:runnerpeck",  ACTION_GRAZE,     "0-2 1-0",     2, ROLE_NONE, "second" },
};

static const BodyPoint s_body[] = {
	{ 10, 27 }, { 13, 32 }, { 18, 33 }, { 24, 32 }, { 27, 27 },
	{ 24, 22 }, { 18, 21 }, { 13, 22 },
};
// clang-format on

const SpeciesTable ROADRUNNER_TABLE = {"road", s_actions, {}, s_body, {}, {}};

CRoadrunner::CRoadrunner(int centreX, int centreY, bool left)
{
	species       = SPECIES_ROADRUNNER;
	bodyRadius    = 14;
	weight        = 3;
	requiredStage = 5;
	speedX        = 3;
	speedY        = 1.5f;
	mayTurn       = true;

	BuildActions(ROADRUNNER_TABLE);
	PlaceAt(centreX, centreY, left);
}
