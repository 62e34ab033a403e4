// Duck: leads her ducklings about.
#include "animals/duck.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "frame/random.h"
#include "sound/sound.h"
#include "state/game_data.h"

static const int FAMILY_TROPHY = 14;

// clang-format off
static const ActionRow s_actions[] = {
	// name               kind              frames  weight  role       then
	{ "stand",            ACTION_IDLE,      ".",         0, ROLE_NONE, "" },
	{ "look",             ACTION_LOOK,      "0-4",       1, ROLE_NONE, "" },
	{ "movehead",         ACTION_LOOK,      "0-3",       1, ROLE_NONE, "" },
	{ "quack",            ACTION_BUMP,      "0-7",       0, ROLE_BUMP, "" },
	{ "walkup",           ACTION_WALK_BOTH, "0-7",       5, ROLE_NONE, "" },
	{ "adjustwings",      ACTION_EXTRA,     "0-7",       1, ROLE_NONE, "" },
	{ "back:look",        ACTION_EXTRA2,    "4-0",       0, ROLE_NONE, "" },
	{ "settle:movehead",  ACTION_EXTRA2,    "0-3 2-0",   0, ROLE_NONE, "" },
	{ "again:movehead",   ACTION_EXTRA2,    "0-3 2-0",   0, ROLE_NONE, "settle/bob" },
	{ "bob:movehead",     ACTION_EXTRA2,    "0-3 2-0",   0, ROLE_NONE, "again/back" },
	{ "turn:look",        ACTION_EXTRA2,    "0-4",       1, ROLE_NONE, "bob/back" },
};

static const BodyPoint s_body[] = {
	{ 8, 20 }, { 13, 24 }, { 19, 24 }, { 25, 23 }, { 30, 20 },
	{ 25, 16 }, { 19, 15 }, { 13, 16 },
};
// clang-format on

const SpeciesTable DUCK_TABLE = {"duck", s_actions, {}, s_body, {}, {}};

CDuck::CDuck(int centreX, int centreY, bool left)
{
	species       = SPECIES_DUCK;
	bodyRadius    = 15;
	weight        = 4;
	requiredStage = 7;
	speedX        = 1.5f;
	speedY        = 0.75f;
	mayTurn       = true;
	leader        = true;
	familyChecked = g_levelGameData && g_levelGameData->HasTrophy(FAMILY_TROPHY);

	quacks[0] = OwnSound(new CSound("duck_quack.ogg"));
	quacks[1] = OwnSound(new CSound("duck_quack2.ogg"));
	BuildActions(DUCK_TABLE);
	bumpAction->soundDelay = 0;
	PlaceAt(centreX, centreY, left);
}

void CDuck::Update()
{
	CheckFamily();
	CElementAnimal::Update();
}

void CDuck::CheckFamily()
{
	if (familyChecked || !dead)
		return;
	size_t taken = 0;
	for (const CElement* duckling : dependants)
		taken += duckling->dead;
	if (taken == 0 && !dependants.empty())
		tookDuckFirst = true;
	if (tookDuckFirst && taken == dependants.size()) {
		familyChecked = true;
		if (g_levelGameData)
			g_levelGameData->AwardTrophy(FAMILY_TROPHY);
	}
}

bool CDuck::OnBallHit()
{
	bumpAction->sounds[0] = quacks[Coin()];
	return TryCapture();
}
