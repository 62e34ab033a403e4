// Camel: falls over when bumped and takes its time to get up.
#include "animals/camel.h"

#include "animals/species.h"
#include "animals/species_numbers.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "standblink", ACTION_BLINK, ".",        2, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      1, ROLE_NONE, "" },
	{ "stunned",    ACTION_BUMP,  "0-6",      0, ROLE_BUMP, "",
	  { .sounds = {"camel_fall.ogg"}, .soundDelay = 6 } },
	{ "chewcud",    ACTION_EXTRA, "0-5",      1, ROLE_NONE, "", { .time = Between(60, 120) } },
	{ "lowerhead",  ACTION_EXTRA, "0-5",      1, ROLE_NONE, "",
	  { .hold = Between(60, 120), .exitFrames = EXIT_BACK } },
};

static const BodyPoint s_body[] = {
	{ 21, 38 }, { 24, 46 }, { 32, 49 }, { 41, 50 }, { 50, 49 },
	{ 58, 46 }, { 61, 38 }, { 58, 31 }, { 50, 28 }, { 41, 27 },
	{ 32, 28 }, { 24, 31 },
};
// clang-format on

const SpeciesTable CAMEL_TABLE = {"camel", s_actions, {}, s_body, {}, {}};

CCamel::CCamel(int centreX, int centreY, bool left)
{
	species       = SPECIES_CAMEL;
	bodyRadius    = 32;
	weight        = 9;
	requiredStage = 16;
	speedX        = 2;
	mayTurn       = true;

	LoadCall("camel_grunt.ogg");
	BuildActions(CAMEL_TABLE);
	PlaceAt(centreX, centreY, left);
}

bool CCamel::OnBallHit()
{
	if (currentAction == bumpAction && !CanCapture())
		return false;
	return TryCapture();
}
