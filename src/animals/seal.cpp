// Seal: drags itself along, barks and smiles.
#include "animals/plain_species.h"

#include "animals/flipper_actions.h"
#include "animals/species_numbers.h"

static constexpr std::array s_actions = FlipperActions("seal_bark.ogg");

// clang-format off
static const BodyPoint s_body[] = {
	{ 8, 22 }, { 15, 25 }, { 24, 26 }, { 33, 26 }, { 42, 25 },
	{ 42, 19 }, { 33, 18 }, { 24, 17 }, { 15, 18 },
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
