// Frog: breathes, croaks, and hops along.
#include "animals/frog.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "sound/sound.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name       kind            frames  weight role       then    options
	{ "stand",    ACTION_IDLE,    ".",        0, ROLE_NONE, "" },
	{ "look",     ACTION_LOOK,    "0-4",      1, ROLE_NONE, "" },
	{ "breathe",  ACTION_BUMP,    "0-3",      3, ROLE_NONE, "",     { .repeats = Between(2, 5) } },
	{ "land:hop", ACTION_HOP_END, "7",        0, ROLE_NONE, "",     { .time = Frames(4) } },
	{ "hop",      ACTION_WALK,    "0-7",      2, ROLE_BUMP, "land",
	  { .time = UNTIL_END, .repeats = Between(2, 5) } },
};

static const BodyPoint s_body[] = {
	{ 2, 17 }, { 7, 21 }, { 14, 22 }, { 21, 21 }, { 26, 17 },
	{ 21, 13 }, { 14, 12 }, { 7, 13 },
};
// clang-format on

const SpeciesTable FROG_TABLE = {"frog", s_actions, {}, s_body, {}, {}};

CFrog::CFrog(int centreX, int centreY, bool left)
{
	species       = SPECIES_FROG;
	bodyRadius    = 19;
	weight        = 2;
	requiredStage = 4;
	speedX        = 2;
	mayTurn       = true;

	jumpPicture    = 0;
	landingPicture = 7;
	ribbit         = OwnSound(new CSound("frog_ribbit.ogg"));
	BuildActions(FROG_TABLE);
	PlaceAt(centreX, centreY, left);
}

void CFrog::Croak()
{
	if (!ribbit->IsPlaying())
		ribbit->Play();
}

bool CFrog::OnBallHit()
{
	if (TryCapture())
		return true;
	Croak();
	return false;
}

int CFrog::OnBump()
{
	if (currentAction != bumpAction) {
		currentAction = bumpAction;
		Croak();
	}
	return species;
}
