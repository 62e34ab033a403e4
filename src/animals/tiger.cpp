// Tiger: roars at a ball that is too small.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const BodyPoint s_body[] = {
	{ 13, 35 }, { 19, 41 }, { 28, 43 }, { 37, 43 }, { 45, 43 },
	{ 54, 41 }, { 60, 35 }, { 54, 29 }, { 45, 28 }, { 36, 28 },
	{ 28, 28 }, { 19, 29 },
};
// clang-format on

const SpeciesTable TIGER_TABLE = {"tiger", LION_ACTIONS, {}, s_body, {}, {}};

CTiger::CTiger(int centreX, int centreY, bool left)
{
	species       = SPECIES_TIGER;
	bodyRadius    = 38;
	weight        = 11;
	requiredStage = 15;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(TIGER_TABLE);
	PlaceAt(centreX, centreY, left);
}
