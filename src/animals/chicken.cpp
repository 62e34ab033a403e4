// Chicken: pecks, and lays an egg when the ball is too small.
#include "animals/chicken.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "state/game_data.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name              kind          frames     weight role       then    options
	{ "stand",           ACTION_IDLE,  ".",           0, ROLE_NONE, "" },
	{ "look",            ACTION_LOOK,  "0-4",         1, ROLE_NONE, "",
	  { .sounds = {"chicken_cluck1.ogg", "chicken_cluck2.ogg"} } },
	{ "walk",            ACTION_WALK,  "0-7",         1, ROLE_NONE, "",
	  { .sounds = {"chicken_cluck3.ogg", "chicken_cluck4.ogg"} } },
	{ "stroll:walk",     ACTION_WALK,  "0-7",         3, ROLE_NONE, "" },
	{ "raise:lowerhead", ACTION_GRAZE, "5-0",         0, ROLE_NONE, "" },
	{ "last:peck",       ACTION_GRAZE, "0-2 1-0",     0, ROLE_NONE, "raise" },
	{ "peck",            ACTION_GRAZE, "0-2 1-0",     0, ROLE_NONE, "last" },
	{ "lower:lowerhead", ACTION_GRAZE, "0-5",         3, ROLE_NONE, "peck" },
	{ "squawk",          ACTION_LAY,   "0-7",         0, ROLE_BUMP, "",
	  { .sounds = {"chicken_squawk.ogg"} } },
};

static const BodyPoint s_body[] = {
	{ 4, 20 }, { 7, 24 }, { 13, 25 }, { 19, 24 }, { 23, 20 },
	{ 19, 16 }, { 13, 16 }, { 7, 16 },
};
// clang-format on

const SpeciesTable CHICKEN_TABLE = {"chicken", s_actions, {}, s_body, {}, {}};

static const int EGG_TROPHY = 16;

CChicken::CChicken(int centreX, int centreY, bool left)
{
	species       = SPECIES_CHICKEN;
	bodyRadius    = 12;
	weight        = 4;
	requiredStage = 8;
	speedX        = 1.5f;
	mayTurn       = true;

	familyChecked = g_levelGameData && g_levelGameData->HasTrophy(EGG_TROPHY);
	BuildActions(CHICKEN_TABLE);
	PlaceAt(centreX, centreY, left);
}

void CChicken::CheckFamily()
{
	if (familyChecked || !dead)
		return;
	familyChecked = true;
	bool allWhole = !dependants.empty();
	for (const CElement* egg : dependants)
		allWhole = allWhole && !egg->dead;
	if (allWhole && g_levelGameData)
		g_levelGameData->AwardTrophy(EGG_TROPHY);
}

void CChicken::Update()
{
	CheckFamily();
	CElementAnimal::Update();
}
