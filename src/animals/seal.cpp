// Seal: drags itself along, barks and smiles.
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
	  { .sounds = {"seal_bark.ogg"}, .soundDelay = 2 } },
	{ "move",       ACTION_WALK,   "0-11",     2, ROLE_NONE, "" },
	{ "smile",      ACTION_EXTRA,  "0-3",      1, ROLE_NONE, "smileblink",
	  { .hold = Between(20, 60) } },
	{ "smileblink", ACTION_EXTRA,  ".",        0, ROLE_NONE, "",
	  { .time = Frames(4) } },
};

static const BodyPoint s_body[] = {
	{ 8, 20 }, { 16, 22 }, { 24, 22 }, { 32, 22 }, { 40, 20 },
	{ 46, 15 }, { 40, 10 }, { 32, 8 }, { 24, 8 }, { 16, 8 },
	{ 8, 10 }, { 2, 15 },
};
// clang-format on

const SpeciesTable SEAL_TABLE = {"seal", s_actions, {}, s_body, {}, {}};

CSeal::CSeal(int centreX, int centreY, bool left)
{
	species       = SPECIES_SEAL;
	bodyRadius    = 24;
	weight        = 6;
	requiredStage = 11;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(SEAL_TABLE);
	PlaceAt(centreX, centreY, left);
}
