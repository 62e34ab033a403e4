// Vulture: hunches on its perch and never walks.
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
	{ "flapup",     ACTION_FLIGHT, "0-5",             0, ROLE_FLIGHT, "glideup",
	  { .time = Between(30, 120) } },
	{ "glideup",    ACTION_FLIGHT, "0*4 1 2*4 1",     0, ROLE_NONE,   "flapup" },
	{ "lowerhead",  ACTION_EXTRA,  "0-2",             1, ROLE_NONE,   "",
	  { .hold = Between(30, 60), .exitFrames = EXIT_BACK } },
};

static const BodyPoint s_body[] = {
	{ 8, 27 }, { 15, 28 }, { 22, 27 }, { 28, 24 }, { 22, 20 },
	{ 15, 19 }, { 8, 20 }, { 2, 24 },
};
// clang-format on

const SpeciesTable VULTURE_TABLE = {"vulture", s_actions, {}, s_body, {}, {}};

CVulture::CVulture(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CVulture::CVulture(CCrate* crate, bool left)
{
	Build();
	PlaceOn(crate, left);
}

CVulture::CVulture(CFence* fence, bool left)
{
	Build();
	PlaceOn(fence, left);
}

void CVulture::Build()
{
	species       = SPECIES_VULTURE;
	bodyRadius    = 18;
	weight        = 4;
	requiredStage = 8;
	speedX        = 1.5f;
	mayTurn       = true;

	crateOffsetLeft  = -1;
	crateOffsetRight = 4;
	crateOffsetY     = -2;
	fenceOffsetLeft  = 0;
	fenceOffsetRight = 2;
	fenceOffsetY     = 5;
	FlyAsPerchingBird();

	LoadCall("vulture_screech.ogg");
	BuildActions(VULTURE_TABLE);
}
