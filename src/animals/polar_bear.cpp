// Polar bear: a bear of more weight.
#include "animals/bears.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name            kind           frames                                        weight role       then      options
	{ "stand",         ACTION_IDLE,   ".",                                              0, ROLE_NONE, "" },
	{ "standblink",    ACTION_BLINK,  ".",                                              2, ROLE_NONE, "" },
	{ "look",          ACTION_LOOK,   "0-4",                                            1, ROLE_NONE, "" },
	{ "walk",          ACTION_WALK,   "0-13",                                           1, ROLE_NONE, "" },
	{ "sink:rearup",   ACTION_EXTRA3, "8-0",                                            0, ROLE_NONE, "" },
	{ "reared:rearup", ACTION_EXTRA2, "8*25 blink*2 8*4 blink*2 8*15 blink*2 8*15",     0, ROLE_NONE, "sink",
	  { .ticks = 1 } },
	{ "growl",         ACTION_EXTRA,  "0-7",                                            0, ROLE_NONE, "reared",
	  { .sounds = {"bear_roar.ogg"}, .soundDelay = 5 } },
	{ "rearup",        ACTION_BUMP,   "0-8",                                            0, ROLE_BUMP, "growl",
	  { .hold = Frames(3) } },
};

static const BodyPoint s_body[] = {
	{ 15, 29 }, { 21, 35 }, { 29, 37 }, { 38, 37 }, { 47, 37 },
	{ 56, 35 }, { 61, 29 }, { 55, 23 }, { 47, 22 }, { 37, 21 },
	{ 29, 22 }, { 20, 23 },
};
// clang-format on

const SpeciesTable POLAR_BEAR_TABLE = {"polarbear", s_actions, {}, s_body, {}, {}};

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
