// Snake: flicks its tongue; rattles when the ball is too small.
#include "animals/snake.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "sound/sound.h"

// clang-format off
static const ActionRow s_actions[] = {
	// name         kind          frames  weight role       then options
	{ "stand",      ACTION_IDLE,  ".",        0, ROLE_NONE, "" },
	{ "rattle",     ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "", { .repeats = Frames(3) } },
	{ "tongue",     ACTION_EXTRA, "0-5",      6, ROLE_NONE, "" },
	{ "look",       ACTION_LOOK,  "0-4",      2, ROLE_NONE, "" },
	{ "lookrattle", ACTION_BUMP,  "0-7",      0, ROLE_BUMP, "", { .repeats = Frames(3) } },
};

static const BodyPoint s_body[] = {
	{ 2, 23 }, { 7, 29 }, { 16, 30 }, { 25, 30 }, { 33, 27 },
	{ 33, 18 }, { 25, 15 }, { 16, 15 }, { 7, 16 },
};
// clang-format on

const SpeciesTable SNAKE_TABLE = {"snake", s_actions, {}, s_body, {}, {}};

static const int RATTLE_FADE = 15; // frames

CSnake::CSnake(int centreX, int centreY, bool left)
{
	species       = SPECIES_SNAKE;
	bodyRadius    = 17;
	weight        = 4;
	requiredStage = 7;
	speedX        = 2;
	mayTurn       = true;

	rattle = OwnSound(new CSound("snake_rattle.ogg"));
	BuildActions(SNAKE_TABLE);
	fromLook   = bumpAction; // the later of the two reactions
	fromRest   = ActionOfKind(ACTION_BUMP);
	bumpAction = fromRest;
	PlaceAt(centreX, centreY, left);
}

void CSnake::Update()
{
	CElementAnimal::Update();
	if (dead)
		return;
	if (Rattling()) {
		if (!rattle->IsPlaying()) {
			rattle->Play(true);
			rattle->FadeIn(RATTLE_FADE);
		}
	} else if (rattle->IsPlaying() && !rattle->IsFadingOut()) {
		rattle->FadeOut(RATTLE_FADE);
	}
}

bool CSnake::OnBallHit()
{
	if (Rattling())
		bumpAction = currentAction;
	else
		bumpAction = currentAction->kind == ACTION_LOOK ? fromLook : fromRest;
	if (!TryCapture())
		return false;
	rattle->Stop();
	return true;
}
