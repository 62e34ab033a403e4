// Bot: the one machine among the animals; trundles about and writes things down.
#include "animals/plain_species.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name          kind          frames  weight role       then options
	{ "stand",       ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "lookA",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "", { .sounds = {"bot_look.ogg"} } },
	{ "lookB",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "", { .sounds = {"bot_look.ogg"} } },
	{ "again:lookB", ACTION_LOOK,  "0-4",      1, ROLE_NONE, "", { .hold = Between(15, 40) } },
	{ "stunned",     ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "" },
	{ "trundle",     ACTION_WALK,  "0-7",      4, ROLE_NONE, "" },
	{ "write",       ACTION_EXTRA, "0-7",      2, ROLE_NONE, "", { .repeats = Between(2, 4) } },
};

static const BodyPoint s_body[] = {
	{ 2, 43 }, { 4, 52 }, { 12, 56 }, { 21, 57 }, { 29, 56 },
	{ 37, 51 }, { 39, 43 }, { 37, 35 }, { 29, 30 }, { 20, 29 },
	{ 12, 30 }, { 4, 35 },
};
// clang-format on

const SpeciesTable BOT_TABLE = {"bot", s_actions, {}, s_body, {}, {}};

CBot::CBot(int centreX, int centreY, bool left)
{
	species       = SPECIES_BOT;
	bodyRadius    = 22;
	weight        = 8;
	requiredStage = 11;
	speedX        = 2;
	mayTurn       = true;

	LoadCall("bot_hit.ogg");
	BuildActions(BOT_TABLE);
	PlaceAt(centreX, centreY, left);
}
