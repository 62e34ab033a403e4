// Cow: chews, grazes, and moos in one of two ways.
#include "animals/two_voiced.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name              kind          frames  weight role       then            options
	{ "stand",           ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink",      ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "chewcud",         ACTION_CHEW,  "0-5",      1, ROLE_NONE, "" },
	{ "standeyeswide",   ACTION_STARE, ".",        0, ROLE_NONE, "",
	  { .time = Between(20, 45) } },
	{ "moo",             ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "standeyeswide" },
	{ "look",            ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "raise:lowerhead", ACTION_GRAZE, "5-0",      0, ROLE_NONE, "" },
	{ "graze",           ACTION_GRAZE, "0-3",      0, ROLE_NONE, "raise",
	  { .time = Between(60, 120) } },
	{ "lower:lowerhead", ACTION_GRAZE, "0-5",      1, ROLE_NONE, "graze" },
};

static const BodyPoint s_body[] = {
	{ 22, 39 }, { 27, 46 }, { 36, 49 }, { 46, 49 }, { 55, 49 },
	{ 64, 46 }, { 69, 39 }, { 64, 32 }, { 55, 29 }, { 45, 29 },
	{ 36, 29 }, { 27, 32 },
};
// clang-format on

const SpeciesTable COW_TABLE = {"cow", s_actions, {}, s_body, {}, {}};

CCow::CCow(int centreX, int centreY, bool left)
{
	species       = SPECIES_COW;
	bodyRadius    = 35;
	weight        = 8;
	requiredStage = 15;
	speedX        = 2;
	mayTurn       = true;

	LoadVoices("cow_moo.ogg", "cow_moo2.ogg");
	BuildActions(COW_TABLE);
	PlaceAt(centreX, centreY, left);
}
