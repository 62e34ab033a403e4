// Koala: sits in trees, and climbs back.
#include "animals/tree_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then   options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "",    { .inTree = true } },
	{ "stunned",    ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "land:fall",  ACTION_LAND,  "2-5",      0, ROLE_NONE, "" },
	{ "fall",       ACTION_FALL,  "0-1",      0, ROLE_NONE, "land" },
	{ "climb",      ACTION_CLIMB, "0-7",      0, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "",    { .inTree = true } },
	{ "walk",       ACTION_WALK,  "0-7",      2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 2, 23 }, { 5, 29 }, { 13, 30 }, { 20, 29 }, { 23, 22 },
	{ 20, 16 }, { 12, 15 }, { 5, 16 },
};
// clang-format on

const SpeciesTable KOALA_TABLE = {"koala", s_actions, {}, s_body, {}, {}};

CKoala::CKoala(int centreX, int centreY, bool left)
{
	Build();
	PlaceAt(centreX, centreY, left);
}

CKoala::CKoala(CTree* tree, bool left)
{
	Build();
	PlaceInCrown(tree, left);
}

void CKoala::Build()
{
	species       = SPECIES_KOALA;
	bodyRadius    = 15;
	weight        = 4;
	requiredStage = 8;
	speedX        = 1.5f;
	mayTurn       = true;

	crownOffsetLeft  = -3;
	crownOffsetRight = 3;

	BuildActions(KOALA_TABLE);
}
