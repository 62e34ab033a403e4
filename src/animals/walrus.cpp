// Walrus: a seal of more weight, with tusks.
#include "animals/plain_species.h"

#include "animals/flipper_actions.h"
#include "animals/species_numbers.h"

static constexpr std::array s_actions = FlipperActions("walrus_grunt.ogg");

// clang-format off
static const BodyPoint s_body[] = {
	{ 5, 32 }, { 11, 38 }, { 20, 40 }, { 29, 40 }, { 38, 40 },
	{ 48, 39 }, { 56, 36 }, { 56, 27 }, { 47, 24 }, { 38, 23 },
	{ 29, 23 }, { 19, 24 }, { 10, 25 },
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
