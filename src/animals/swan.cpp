// Swan: honks with its wings spread.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const BodyPoint s_body[] = {
	{ 8, 34 }, { 14, 39 }, { 22, 40 }, { 31, 39 }, { 36, 34 },
	{ 31, 28 }, { 22, 28 }, { 14, 28 },
};
// clang-format on

const SpeciesTable SWAN_TABLE = {"swan", GOOSE_ACTIONS, {}, s_body, {}, {}};

CSwan::CSwan(int centreX, int centreY, bool left)
{
	species       = SPECIES_SWAN;
	bodyRadius    = 20;
	weight        = 6;
	requiredStage = 10;
	speedX        = 1.5f;
	mayTurn       = true;

	LoadCall("goose_honk.ogg");
	BuildActions(SWAN_TABLE);
	PlaceAt(centreX, centreY, left);
}
