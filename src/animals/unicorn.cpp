// Unicorn: grazes and whinnies where it stands.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name              kind          frames  weight role       then     options
	{ "stand",           ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink",      ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",            ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "raise:lowerhead", ACTION_GRAZE, "5-0",      0, ROLE_NONE, "" },
	{ "graze",           ACTION_GRAZE, "0-3",      0, ROLE_NONE, "raise",
	  { .time = Between(60, 120) } },
	{ "lower:lowerhead", ACTION_GRAZE, "0-5",      1, ROLE_NONE, "graze" },
	{ "whinny",          ACTION_EXTRA, "0-7",      1, ROLE_NONE, "" },
	{ "stunned",         ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
};

static const BodyPoint s_body[] = {
	{ 23, 45 }, { 27, 52 }, { 36, 55 }, { 44, 55 }, { 53, 55 },
	{ 62, 52 }, { 66, 45 }, { 61, 38 }, { 53, 36 }, { 44, 36 },
	{ 35, 36 }, { 27, 39 },
};
// clang-format on

const SpeciesTable UNICORN_TABLE = {"unicorn", s_actions, {}, s_body, {}, {}};

CUnicorn::CUnicorn(int centreX, int centreY, bool left)
{
	species       = SPECIES_UNICORN;
	bodyRadius    = 35;
	weight        = 8;
	requiredStage = 16;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(UNICORN_TABLE);
	PlaceAt(centreX, centreY, left);
}
