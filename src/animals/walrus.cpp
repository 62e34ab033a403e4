// Walrus: a seal of more weight, with tusks.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind           frames  weight role       then              options
	{ "stand",      ACTION_IDLE,   ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK,  ".",        2, ROLE_NONE, "" },
	{ "back:look",  ACTION_LOOK,   "4-0",      0, ROLE_NONE, "",
	  { .hold = NO_HOLD, .exitFrames = NO_EXIT } },
	{ "lookblink",  ACTION_EXTRA2, ".",        0, ROLE_NONE, "back/looksmile",
	  { .time = Frames(4) } },
	{ "looksmile",  ACTION_EXTRA3, ".",        0, ROLE_NONE, "back/lookblink",
	  { .time = Between(15, 60) } },
	{ "look",       ACTION_LOOK,   "0-4",      1, ROLE_NONE, "looksmile",
	  { .hold = Between(15, 60), .exitFrames = NO_EXIT } },
	{ "bark",       ACTION_BUMP,   "0-5",      0, ROLE_BUMP, "",
	  { .sounds = {"walrus_grunt.ogg"}, .soundDelay = 2 } },
	{ "move",       ACTION_WALK,   "0-11",     2, ROLE_NONE, "" },
	{ "smile",      ACTION_EXTRA,  "0-3",      1, ROLE_NONE, "smileblink",
	  { .hold = Between(20, 60) } },
	{ "smileblink", ACTION_EXTRA,  ".",        0, ROLE_NONE, "",
	  { .time = Frames(4) } },
};

static const BodyPoint s_body[] = {
	{ 8, 30 }, { 16, 32 }, { 24, 34 }, { 33, 34 }, { 42, 34 },
	{ 50, 32 }, { 58, 30 }, { 64, 24 }, { 58, 18 }, { 50, 16 },
	{ 42, 14 }, { 33, 14 }, { 24, 14 }, { 16, 16 }, { 8, 18 },
	{ 2, 24 },
};
// clang-format on

const SpeciesTable WALRUS_TABLE = {"walrus", s_actions, {}, s_body, {}, {}};

CWalrus::CWalrus(int centreX, int centreY, bool left)
{
	species       = SPECIES_WALRUS;
	bodyRadius    = 33;
	weight        = 8;
	requiredStage = 15;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(WALRUS_TABLE);
	PlaceAt(centreX, centreY, left);
}
