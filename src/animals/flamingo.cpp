// Flamingo: stands on one leg, and changes it now and then.
#include "animals/flamingo.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "media/sprite.h"

#include <utility>

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "changefoot", ACTION_EXTRA, "0-7",      1, ROLE_NONE, "" },
};

static const PictureRow s_pictures[CFlamingo::PICTURES] = {
	// name        frames
	{ "standtwo",   "." },
	{ "looktwo",    "0-4" },
	{ "looktwo",    "4-0" },
	{ "stunnedtwo", "0-6" },
	{ "changefoot", "7-0" },
};

static const BodyPoint s_body[] = {
	{ 9, 29 }, { 12, 37 }, { 15, 44 }, { 20, 45 }, { 24, 38 },
	{ 29, 31 }, { 28, 26 }, { 20, 24 }, { 12, 25 },
};
// clang-format on

const SpeciesTable FLAMINGO_TABLE = {"flamingo", s_actions, s_pictures, s_body, {}, {}};

CFlamingo::CFlamingo(int centreX, int centreY, bool left)
{
	species       = SPECIES_FLAMINGO;
	bodyRadius    = 21;
	weight        = 4;
	requiredStage = 8;
	speedX        = 2;
	mayTurn       = true;

	BuildActions(FLAMINGO_TABLE);
	change = ActionOfKind(ACTION_EXTRA);
	for (int i = 0; i < PICTURES; i++) {
		for (bool side : {true, false})
			spares[i][side] = LoadPicture(s_pictures[i], side);
	}
	PlaceAt(centreX, centreY, left);
}

void CFlamingo::Swap(CSprite*& left, CSprite*& right, Spare spare)
{
	std::swap(left, spares[spare][true]);
	std::swap(right, spares[spare][false]);
}

void CFlamingo::ChangeStance()
{
	AnimalAction* look = ActionOfKind(ACTION_LOOK);
	onTwoLegs          = !onTwoLegs;
	Swap(idleAction->spriteLeft, idleAction->spriteRight, STAND);
	Swap(look->spriteLeft, look->spriteRight, LOOK);
	Swap(look->exitLeft, look->exitRight, LOOK_BACK);
	Swap(bumpAction->spriteLeft, bumpAction->spriteRight, BUMP);
}

void CFlamingo::Update()
{
	CElementAnimal::Update();
	if (dead || currentAction == lastAction)
		return;
	if (currentAction == change)
		ChangeStance();
	else if (lastAction == change)
		Swap(change->spriteLeft, change->spriteRight, CHANGE);
	lastAction = currentAction;
}
