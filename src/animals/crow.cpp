// Crow: caws in two ways.
#include "animals/perching_birds.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "frame/random.h"
#include "sound/sound.h"

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
	{ 6, 13 }, { 12, 14 }, { 18, 13 }, { 22, 10 }, { 18, 7 },
	{ 12, 6 }, { 6, 7 }, { 2, 10 },
};
// clang-format on

const SpeciesTable CROW_TABLE = {"crow", s_actions, {}, s_body, {}, {}};

CCrow::CCrow(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CCrow::CCrow(CCrate* crate, bool left)
{
	Build();
	PlaceOn(crate, left);
}

CCrow::CCrow(CFence* fence, bool left)
{
	Build();
	PlaceOn(fence, left);
}

void CCrow::Build()
{
	species       = SPECIES_CROW;
	bodyRadius    = 12;
	weight        = 3;
	requiredStage = 6;
	speedX        = 1.5f;
	mayTurn       = true;

	crateOffsetLeft  = 6;
	crateOffsetRight = -1;
	crateOffsetY     = -2;
	fenceOffsetLeft  = 4;
	fenceOffsetRight = -2;
	fenceOffsetY     = 5;
	FlyAsPerchingBird();

	caws[0] = OwnSound(new CSound("crow_caw.ogg"));
	caws[1] = OwnSound(new CSound("crow_caw2.ogg"));
	BuildActions(CROW_TABLE);
}

void CCrow::Update()
{
	if (!dead)
		callSound = caws[Coin()];
	CElementAnimal::Update();
}
