// Snowy owl: an owl in white.
#include "animals/perching_birds.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name      kind           frames         weight role         then       options
	{ "perch",   ACTION_IDLE,   ".",               0, ROLE_NONE,   "" },
	{ "lookA",   ACTION_LOOK,   "0-4",             1, ROLE_NONE,   "",        { .perched = true } },
	{ "lookB",   ACTION_LOOK,   "0-4",             1, ROLE_NONE,   "",        { .perched = true } },
	{ "stunned", ACTION_BUMP,   "0-5",             1, ROLE_BUMP,   "",        { .perched = true } },
	{ "flapup",  ACTION_FLIGHT, "0-5",             0, ROLE_FLIGHT, "glideup",
	  { .time = Between(30, 120) } },
	{ "glideup", ACTION_FLIGHT, "0*4 1 2*4 1",     0, ROLE_NONE,   "flapup" },
};

static const BodyPoint s_body[] = {
	{ 6, 17 }, { 12, 18 }, { 18, 17 }, { 22, 14 }, { 18, 11 },
	{ 12, 10 }, { 6, 11 }, { 2, 14 },
};
// clang-format on

const SpeciesTable SNOWY_OWL_TABLE = {"snowyowl", s_actions, {}, s_body, {}, {}};

CSnowyOwl::CSnowyOwl(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CSnowyOwl::CSnowyOwl(CCrate* crate, bool left)
{
	Build();
	PlaceOn(crate, left);
}

void CSnowyOwl::Build()
{
	species       = SPECIES_SNOWY_OWL;
	bodyRadius    = 12;
	weight        = 3;
	requiredStage = 6;
	speedX        = 1.5f;
	mayTurn       = true;

	crateOffsetLeft  = 3;
	crateOffsetRight = 0;
	crateOffsetY     = -1;
	fenceOffsetLeft  = 3;
	fenceOffsetRight = -1;
	fenceOffsetY     = 6;
	FlyAsPerchingBird();

	LoadCall("owl_hoot.ogg");
	BuildActions(SNOWY_OWL_TABLE);
}
