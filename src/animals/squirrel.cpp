// Squirrel: runs below the trees that it climbs.
#include "animals/tree_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name        kind          frames  weight role       then   options
	{ "stand",     ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "look",      ACTION_LOOK,  "0-4",      1, ROLE_NONE, "",    { .inTree = true } },
	{ "run",       ACTION_WALK,  "0-7",      1, ROLE_NONE, "" },
	{ "bubblehit", ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "land:fall", ACTION_LAND,  "2-5",      0, ROLE_NONE, "" },
	{ "fall",      ACTION_FALL,  "0-1",      0, ROLE_NONE, "land" },
	{ "climbtree", ACTION_CLIMB, "0-7",      0, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 5, 17 }, { 9, 22 }, { 16, 23 }, { 23, 22 }, { 26, 17 },
	{ 22, 12 }, { 15, 11 }, { 9, 12 },
};
// clang-format on

const SpeciesTable SQUIRREL_TABLE = {"squirrel", s_actions, {}, s_body, {}, {}};

CSquirrel::CSquirrel(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CSquirrel::CSquirrel(CTree* tree, bool left)
{
	Build();
	PlaceInCrown(tree, left);
}

void CSquirrel::Build()
{
	species       = SPECIES_SQUIRREL;
	bodyRadius    = 11;
	weight        = 3;
	requiredStage = 6;
	speedX        = 2;
	mayTurn       = true;

	riseFromFrame = 4;
	toleranceX    = 10;
	toleranceY    = 15;

	LoadCall("mouse_squeak.ogg");
	BuildActions(SQUIRREL_TABLE);
}
