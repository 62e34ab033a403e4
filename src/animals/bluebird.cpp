// Bluebird: small, blue, and fond of fences.
#include "animals/perching_birds.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind           frames         weight role         then       options
	{ "perch",      ACTION_IDLE,   ".",               0, ROLE_NONE,   "" },
	{ "look",       ACTION_LOOK,   "0-3",             1, ROLE_NONE,   "",
	  { .perched = true } },
	{ "other:look", ACTION_LOOK,   "4-5",             1, ROLE_NONE,   "",
	  { .perched = true } },
	{ "ruffle",     ACTION_BUMP,   "0-5",             1, ROLE_BUMP,   "",
	  { .perched = true } },
	{ "walk",       ACTION_WALK,   "0-7",             2, ROLE_NONE,   "",
	  { .time = UNTIL_END, .repeats = Between(2, 6) } },
	{ "flapup",     ACTION_FLIGHT, "0-5",             0, ROLE_FLIGHT, "glideup",
	  { .time = Between(30, 120) } },
	{ "glideup",    ACTION_FLIGHT, "0*4 1 2*4 1",     0, ROLE_NONE,   "flapup" },
};

static const BodyPoint s_body[] = {
	{ 19, 10 }, { 10, 12 }, { 1, 10 }, { 10, 6 },
};

static const BodyPoint s_bodyRight[] = {
	{ 2, 10 }, { 11, 12 }, { 20, 10 }, { 11, 6 },
};
// clang-format on

const SpeciesTable BLUEBIRD_TABLE = {"bluebird", s_actions, {}, s_body, s_bodyRight, {}};

CBlueBird::CBlueBird(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CBlueBird::CBlueBird(CCrate* crate, bool left)
{
	Build();
	PlaceOn(crate, left);
}

CBlueBird::CBlueBird(CFence* fence, bool left)
{
	Build();
	PlaceOn(fence, left);
}

void CBlueBird::Build()
{
	species       = SPECIES_BLUEBIRD;
	bodyRadius    = 12;
	weight        = 3;
	requiredStage = 6;
	speedX        = 1.5f;
	mayTurn       = true;

	crateOffsetLeft  = 4;
	crateOffsetRight = -1;
	crateOffsetY     = -2;
	fenceOffsetLeft  = 4;
	fenceOffsetRight = -4;
	fenceOffsetY     = 5;
	FlyAsPerchingBird();

	LoadCall("bluebird_chirp.ogg");
	BuildActions(BLUEBIRD_TABLE);
}
