// Horse: grazes, whinnies, and rears when the ball is too small.
#include "animals/horse.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "media/sprite.h"
#include "sound/sound.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name              kind           frames  weight role       then           options
	{ "stand",           ACTION_IDLE,   ".",        0, ROLE_NONE, "" },
	{ "standblink",      ACTION_BLINK,  ".",        2, ROLE_NONE, "" },
	{ "looksouth",       ACTION_LOOK,   "0-4",      1, ROLE_NONE, "" },
	{ "raise:lowerhead", ACTION_GRAZE,  "5-0",      0, ROLE_NONE, "" },
	{ "chewgrass",       ACTION_GRAZE,  "0-3",      0, ROLE_NONE, "raise",
	  { .time = Between(60, 120) } },
	{ "lower:lowerhead", ACTION_GRAZE,  "0-5",      1, ROLE_NONE, "chewgrass" },
	{ "whinny",          ACTION_EXTRA,  "0-7",      1, ROLE_NONE, "",
	  { .sounds = {"horse_whinny.ogg"} } },
	{ "smilereturns",    ACTION_EXTRA2, "0-3",      0, ROLE_NONE, "" },
	{ "rearup",          ACTION_BUMP,   "0-8",      0, ROLE_BUMP, "smilereturns" },
};

static const BodyPoint s_body[] = {
	{ 19, 41 }, { 23, 49 }, { 31, 52 }, { 40, 52 }, { 49, 51 },
	{ 56, 46 }, { 56, 37 }, { 49, 32 }, { 40, 31 }, { 31, 31 },
	{ 23, 34 },
};
// clang-format on

const SpeciesTable HORSE_TABLE = {"horse", s_actions, {}, s_body, {}, {}};

static const int HOOVES_PICTURE = 3; // of the rearing

CHorse::CHorse(int centreX, int centreY, bool left)
{
	species       = SPECIES_HORSE;
	bodyRadius    = 30;
	weight        = 7;
	requiredStage = 14;
	speedX        = 2;
	mayTurn       = true;

	hooves = OwnSound(new CSound("horse_feet.ogg"));
	LoadCall("horse_whinny.ogg");
	BuildActions(HORSE_TABLE);
	PlaceAt(centreX, centreY, left);
}

void CHorse::Update()
{
	CElementAnimal::Update();
	if (!dead && currentAction == bumpAction && currentSprite->Frame() == HOOVES_PICTURE &&
	    !hooves->IsPlaying())
		hooves->Play();
}
