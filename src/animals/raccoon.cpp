// Raccoon: roams below the trees that it climbs.
#include "animals/tree_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind              frames  weight role       then   options
	{ "stand",      ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK,     ".",        2, ROLE_NONE, "",    { .inTree = true } },
	{ "runup",      ACTION_WALK_BOTH, "0-11",     2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,      "0-4",      1, ROLE_NONE, "",    { .inTree = true } },
	{ "stunned",    ACTION_BUMP,      "0-6",      0, ROLE_BUMP, "" },
	{ "land:fall",  ACTION_LAND,      "2-6",      0, ROLE_NONE, "" },
	{ "fall",       ACTION_FALL,      "0-1",      0, ROLE_NONE, "land" },
	{ "climb",      ACTION_CLIMB,     "0-7",      0, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 6, 19 }, { 12, 23 }, { 20, 24 }, { 28, 23 }, { 35, 19 },
	{ 28, 15 }, { 20, 14 }, { 12, 15 },
};
// clang-format on

const SpeciesTable RACCOON_TABLE = {"raccoon", s_actions, {}, s_body, {}, {}};

CRaccoon::CRaccoon(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CRaccoon::CRaccoon(CTree* tree, bool left)
{
	Build();
	PlaceInCrown(tree, left);
}

void CRaccoon::Build()
{
	species       = SPECIES_RACCOON;
	bodyRadius    = 21;
	weight        = 5;
	requiredStage = 10;
	speedX        = 2;
	speedY        = 1;
	mayTurn       = true;

	crownOffsetLeft  = 3;
	crownOffsetRight = -3;
	crownDrop        = 13;
	thudFromEnd      = 4;

	BuildActions(RACCOON_TABLE);
}
