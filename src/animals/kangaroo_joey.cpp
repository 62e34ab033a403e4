// Kangaroo joey: hops away from its mother's pouch.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name      kind              frames  weight role       then options
	{ "stand",   ACTION_IDLE,      ".",        0, ROLE_NONE, "" },
	{ "look",    ACTION_LOOK,      "0-4",      1, ROLE_NONE, "" },
	{ "stunned", ACTION_BUMP,      "0-6",      0, ROLE_BUMP, "" },
	{ "hopup",   ACTION_WALK_BOTH, "0-7",      2, ROLE_NONE, "",
	  { .time = UNTIL_END, .repeats = Between(2, 5), .sounds = {"kangaroo_bounce.ogg"}, .soundDelay = 4 } },
};

static const BodyPoint s_body[] = {
	{ 5, 24 }, { 9, 29 }, { 16, 30 }, { 23, 29 }, { 28, 24 },
	{ 23, 20 }, { 16, 19 }, { 9, 20 },
};
// clang-format on

const SpeciesTable KANGAROO_JOEY_TABLE = {"kangajoey", s_actions, {}, s_body, {}, {}};

CKangarooJoey::CKangarooJoey(int centreX, int centreY, bool left)
{
	species       = SPECIES_KANGAROO_JOEY;
	bodyRadius    = 13;
	weight        = 3;
	requiredStage = 6;
	speedX        = 2;
	speedY        = 1;
	mayTurn       = true;

	BuildActions(KANGAROO_JOEY_TABLE);
	PlaceAt(centreX, centreY, left);
}
