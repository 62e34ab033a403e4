// Hyena: laughs, mostly to itself.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "walk",       ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
	{ "laugh",      ACTION_EXTRA, "0-7",      1, ROLE_NONE, "",
	  { .repeats = Frames(2), .sounds = {"hyena_laugh.ogg"}, .soundDelay = 2 } },
	{ "lowerhead",  ACTION_EXTRA, "0-5",      1, ROLE_NONE, "",
	  { .hold = Between(60, 120), .exitFrames = EXIT_BACK } },
};

static const BodyPoint s_body[] = {
	{ 15, 35 }, { 19, 42 }, { 28, 44 }, { 37, 44 }, { 45, 42 },
	{ 49, 35 }, { 45, 27 }, { 36, 25 }, { 27, 25 }, { 19, 28 },
};
// clang-format on

const SpeciesTable HYENA_TABLE = {"hyena", s_actions, {}, s_body, {}, {}};

CHyena::CHyena(int centreX, int centreY, bool left)
{
	species       = SPECIES_HYENA;
	bodyRadius    = 22;
	weight        = 8;
	requiredStage = 11;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(HYENA_TABLE);
	PlaceAt(centreX, centreY, left);
}
