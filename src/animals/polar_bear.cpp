// Polar bear: a bear of more weight.
#include "animals/bears.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const BodyPoint s_body[] = {
	{ 15, 29 }, { 21, 35 }, { 29, 37 }, { 38, 37 }, { 47, 37 },
	{ 56, 35 }, { 61, 29 }, { 55, 23 }, { 47, 22 }, { 37, 21 },
	{ 29, 22 }, { 20, 23 },
};
// clang-format on

const SpeciesTable POLAR_BEAR_TABLE = {"polarbear", BEAR_ACTIONS, {}, s_body, {}, {}};

CPolarBear::CPolarBear(int centreX, int centreY, bool left)
{
	species       = SPECIES_POLAR_BEAR;
	bodyRadius    = 31;
	weight        = 9;
	requiredStage = 16;
	speedX        = 1.75f;
	mayTurn       = true;

	BuildActions(POLAR_BEAR_TABLE);
	PlaceAt(centreX, centreY, left);
}
