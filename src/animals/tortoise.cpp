// Tortoise: slow; draws itself in when the ball is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-8",      0, ROLE_BUMP, "",
	  { .hold = Between(45, 90), .exitFrames = "9-11" } },
	{ "walk",       ACTION_WALK,  "0-12",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 4, 24 }, { 10, 29 }, { 19, 31 }, { 28, 31 }, { 37, 31 },
	{ 46, 29 }, { 52, 24 }, { 46, 18 }, { 37, 17 }, { 27, 17 },
	{ 19, 17 }, { 10, 18 },
};
// clang-format on

const SpeciesTable TORTOISE_TABLE = {"tortoise", s_actions, {}, s_body, {}, {}};

CTortoise::CTortoise(int centreX, int centreY, bool left)
{
	species       = SPECIES_TORTOISE;
	bodyRadius    = 26;
	weight        = 9;
	requiredStage = 15;
	speedX        = 0.5f;
	mayTurn       = true;

	BuildActions(TORTOISE_TABLE);
	PlaceAt(centreX, centreY, left);
}
