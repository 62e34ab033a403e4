// Pigeon: pecks and coos.
#include "animals/perching_birds.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind           frames         weight role         then       options
	{ "stand",      ACTION_IDLE,   ".",               0, ROLE_NONE,   "" },
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
	{ "lowerhead",  ACTION_EXTRA,  "0-2",             1, ROLE_NONE,   "",
	  { .time = Between(8, 15), .hold = Between(30, 60), .exitFrames = EXIT_BACK, .once = true } },
};

static const BodyPoint s_body[] = {
	{ 6, 13 }, { 12, 14 }, { 18, 13 }, { 22, 10 }, { 18, 7 },
	{ 12, 6 }, { 6, 7 }, { 2, 10 },
};
// clang-format on

const SpeciesTable PIGEON_TABLE = {"pigeon", s_actions, {}, s_body, {}, {}};

CPigeon::CPigeon(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CPigeon::CPigeon(CCrate* crate, bool left)
{
	Build();
	PlaceOn(crate, left);
}

CPigeon::CPigeon(CFence* fence, bool left)
{
	Build();
	PlaceOn(fence, left);
}

void CPigeon::Build()
{
	species       = SPECIES_PIGEON;
	bodyRadius    = 12;
	weight        = 3;
	requiredStage = 6;
	speedX        = 1.5f;
	mayTurn       = true;

	crateOffsetLeft  = 4;
	crateOffsetRight = -1;
	crateOffsetY     = -3;
	fenceOffsetLeft  = 4;
	fenceOffsetRight = -1;
	fenceOffsetY     = 5;
	FlyAsPerchingBird();

	LoadCall("pigeon_coo.ogg");
	BuildActions(PIGEON_TABLE);
}
