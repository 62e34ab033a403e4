// Bear: rears up and growls when the ball is too small.
#include "animals/bears.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
const ActionRow BEAR_ACTIONS[8] = {
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
	{ 11, 23 }, { 17, 29 }, { 24, 32 }, { 31, 30 }, { 40, 29 },
	{ 48, 24 }, { 43, 18 }, { 35, 17 }, { 27, 19 }, { 19, 21 },
};
// clang-format on

const SpeciesTable BEAR_TABLE = {"bear", BEAR_ACTIONS, {}, s_body, {}, {}};

CBear::CBear(int centreX, int centreY, bool left)
{
	species       = SPECIES_BEAR;
	bodyRadius    = 25;
	weight        = 8;
	requiredStage = 15;
	speedX        = 1.75f;
	mayTurn       = true;

	BuildActions(BEAR_TABLE);
	PlaceAt(centreX, centreY, left);
}
