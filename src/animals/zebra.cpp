// Zebra: grazes and whinnies where it stands.
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
	{ 20, 40 }, { 24, 48 }, { 32, 51 }, { 41, 51 }, { 49, 50 },
	{ 56, 45 }, { 56, 36 }, { 49, 31 }, { 40, 30 }, { 32, 30 },
	{ 23, 33 },
};
// clang-format on

const SpeciesTable ZEBRA_TABLE = {"zebra", s_actions, {}, s_body, {}, {}};

CZebra::CZebra(int centreX, int centreY, bool left)
{
	species       = SPECIES_ZEBRA;
	bodyRadius    = 30;
	weight        = 7;
	requiredStage = 14;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(ZEBRA_TABLE);
	PlaceAt(centreX, centreY, left);
}
