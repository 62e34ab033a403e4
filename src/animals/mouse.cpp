// Mouse: scurries in all directions and sniffs.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name      kind              frames  weight role       then options
	{ "stand",   ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "look",    ACTION_LOOK,      "0-4",      1, ROLE_NONE, "" },
	{ "stunned", ACTION_BUMP,      "0-6",      0, ROLE_BUMP, "" },
	{ "runup",   ACTION_WALK_BOTH, "0-7",      2, ROLE_NONE, "" },
	{ "sniff",   ACTION_EXTRA,     "0-5",      1, ROLE_NONE, "", { .repeats = Between(2, 4) } },
};

static const BodyPoint s_body[] = {
	{ 3, 13 }, { 7, 16 }, { 13, 16 }, { 19, 16 }, { 24, 13 },
	{ 19, 11 }, { 13, 11 }, { 7, 11 },
};
// clang-format on

const SpeciesTable MOUSE_TABLE = {"mouse", s_actions, {}, s_body, {}, {}};

CMouse::CMouse(int centreX, int centreY, bool left)
{
	species       = SPECIES_MOUSE;
	bodyRadius    = 12;
	weight        = 2;
	requiredStage = 4;
	speedX        = 2;
	speedY        = 1;
	mayTurn       = true;

	LoadCall("mouse_squeak.ogg");
	BuildActions(MOUSE_TABLE);
	PlaceAt(centreX, centreY, left);
}
