// Panda: rolls over on its back when touched, and stays there a while.
#include "animals/panda.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "media/sprite.h"

#include <cstring>

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then                       options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "rolllook",   ACTION_LOOK,  "0-4",      0, ROLE_NONE, "lie" },
	{ "rollpedal",  ACTION_EXTRA, "0-7",      0, ROLE_NONE, "lie",
	  { .repeats = Between(2, 4) } },
	{ "rise:roll",  ACTION_BUMP,  "11-0",     0, ROLE_NONE, "" },
	{ "lie:roll",   ACTION_BLINK, "11",       0, ROLE_NONE, "rise/rolllook/rollpedal",
	  { .time = Between(10, 40) } },
	{ "roll",       ACTION_BUMP,  "0-11",     0, ROLE_BUMP, "lie",
	  { .sounds = {"camel_fall.ogg"}, .soundDelay = 10 } },
	{ "walk",       ACTION_WALK,  "0-11",     2, ROLE_NONE, "" },
};

static const BodyPoint s_body[] = {
	{ 12, 31 }, { 17, 38 }, { 27, 39 }, { 36, 39 }, { 44, 35 },
	{ 44, 27 }, { 36, 24 }, { 26, 23 }, { 17, 25 },
};
// clang-format on

const SpeciesTable PANDA_TABLE = {"panda", s_actions, {}, s_body, {}, {}};

// clang-format off
static const BodyPoint s_lying[] = {
	{ 13, 28 }, { 17, 36 }, { 25, 40 }, { 34, 40 }, { 43, 39 },
	{ 52, 38 }, { 60, 33 }, { 62, 26 }, { 53, 22 }, { 43, 21 },
	{ 34, 21 }, { 25, 21 }, { 17, 22 },
};
// clang-format on

CPanda::CPanda(int centreX, int centreY, bool left)
{
	species       = SPECIES_PANDA;
	bodyRadius    = 23;
	weight        = 10;
	requiredStage = 12;
	speedX        = 1.5f;
	mayTurn       = true;

	BuildActions(PANDA_TABLE);
	PlaceAt(centreX, centreY, left);
}

bool CPanda::Rolling() const
{
	for (const char* part : {"roll", "lie:roll", "rise:roll", "rolllook", "rollpedal"}) {
		if (strcmp(currentAction->name, part) == 0)
			return true;
	}
	return false;
}

void CPanda::RebuildBody()
{
	CElementAnimal::RebuildBody();
	if (!startled)
		return;
	ClearBody();
	float width = static_cast<float>(collisionSprite->Width());
	for (const BodyPoint& corner : s_lying)
		AddBodyPoint(facingLeft ? corner.x : width - corner.x, corner.y);
	bodyPlaced = true;
}

void CPanda::Update()
{
	CElementAnimal::Update();
	if (!dead && startled && currentAction == idleAction) {
		startled = false;
		RebuildBody();
	}
}

bool CPanda::OnBallHit()
{
	if (!startled) {
		startled = true;
		RebuildBody();
		return TryCapture();
	}
	if (CanCapture())
		return TryCapture();
	if (!Rolling())
		currentAction = bumpAction;
	return false;
}
