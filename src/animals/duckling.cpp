// Duckling: follows its duck.
#include "animals/duckling.h"

#include "animals/duck.h"
#include "animals/species.h"
#include "animals/species_numbers.h"
#include "media/sprite.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name      kind              frames  weight  role       then  options
	{ "stand",   ACTION_IDLE,      ".",         0, ROLE_NONE, "",   { .time = Between(0, 1) } },
	{ "quack",   ACTION_BUMP,      "0-7",       0, ROLE_BUMP, "" },
	{ "walkup",  ACTION_WALK_BOTH, "0-7",       1, ROLE_NONE, "",   { .time = Between(120, 240) } },
};

static const BodyPoint s_body[] = {
	{ 3, 14 }, { 6, 18 }, { 11, 18 }, { 15, 18 }, { 18, 14 },
	{ 15, 11 }, { 10, 11 }, { 6, 11 },
};
// clang-format on

const SpeciesTable DUCKLING_TABLE = {"duckling", s_actions, {}, s_body, {}, {}};

CDuckling::CDuckling(int centreX, int centreY, CDuck* duck)
{
	species       = SPECIES_DUCKLING;
	bodyRadius    = 10;
	weight        = 2;
	requiredStage = 3;
	speedX        = 1.5f;
	speedY        = 0.75f;
	mayTurn       = true;
	follower      = true;

	LoadCall("duckling_quack.ogg");
	BuildActions(DUCKLING_TABLE);
	PlaceAt(centreX, centreY, true);
	if (duck)
		Follow(duck);
}

void CDuckling::Follow(CDuck* duck)
{
	followTarget = duck;
	duck->AddDependant(this);
	const CSprite* there = duck->currentSprite;
	facingLeft = there->X() + there->Width() / 2 < currentSprite->X() + currentSprite->Width() / 2;
	lastFacingLeft = facingLeft;
	RebuildBody();
}
