// Butterfly: catchable decoration in three colours; nothing waits for it.
#include "animals/butterfly.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "frame/random.h"

static const char* const WING_BEAT = "0-2 1-0 3-5 4-3";

// clang-format off
static const ActionRow s_actions[] = {
	// name     kind            frames    weight  role       then  options
	{ "sit:up", ACTION_IDLE,    "0",           0, ROLE_NONE, "",   { .time = Between(45, 120) } },
	{ "beat:up", ACTION_EXTRA,  WING_BEAT,     3, ROLE_NONE, "",   { .repeats = Between(1, 4) } },
	{ "up",     ACTION_FLUTTER, WING_BEAT,     1, ROLE_NONE, "",   { .time = Between(150, 200) } },
};

static const BodyPoint s_body[] = {
	{ 4, 15 }, { 7, 20 }, { 14, 22 }, { 22, 20 },
	{ 24, 15 }, { 22, 10 }, { 15, 8 }, { 7, 10 },
};

const SpeciesTable BUTTERFLY_TABLES[3] = {
	{ "butterflyA", s_actions, {}, s_body, {}, {} },
	{ "butterflyB", s_actions, {}, s_body, {}, {} },
	{ "butterflyC", s_actions, {}, s_body, {}, {} },
};
// clang-format on

CButterfly::CButterfly(int centreX, int centreY, bool left)
{
	colour        = Rand() % 3;
	bodyRadius    = 13;
	weight        = 1;
	requiredStage = 0;
	speedX        = 2;
	speedY        = 1;
	optional      = true;

	BuildActions(BUTTERFLY_TABLES[colour]);
	PlaceAt(centreX, centreY, left);
}

void CButterfly::Place()
{
	if (dead)
		return;
	bool aloft = currentAction && currentAction->kind == ACTION_FLUTTER;
	PutSprite(aloft ? FLIGHT_DEPTH : GroundDepth());
}

bool CButterfly::OnBallHit()
{
	species = SPECIES_BUTTERFLY_A + colour;
	return TryCapture();
}
