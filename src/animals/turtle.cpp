// Turtle: walks slowly, and draws itself in when the ball is too small.
#include "animals/turtle.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "field/ball.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

// clang-format off
static const PictureRow s_pictures[CTurtle::PICTURES] = {
	// name      frames  ticks  loops
	{ "stand",   ".",        2, false }, // STANDING
	{ "stunned", "0-8",      2, false }, // HIDING
	{ "stunned", "9-11",     2, false }, // EMERGING
	{ "walk",    "0-12",     2, true  }, // WALKING
};

static const BodyPoint s_body[] = {
	{ 4, 9 }, { 9, 11 }, { 14, 11 }, { 20, 11 }, { 25, 9 },
	{ 20, 6 }, { 14, 6 }, { 9, 6 },
};
// clang-format on

const SpeciesTable TURTLE_TABLE = {"turtle", {}, s_pictures, s_body, s_body, {}};

CTurtle::CTurtle(int centreX, int centreY, bool left)
{
	species       = SPECIES_TURTLE;
	bodyRadius    = 10;
	weight        = 2;
	requiredStage = 5;
	speedX        = 0.4f;

	appear = OwnSound(new CSound("turtle_appear.ogg"));
	LoadPictures(TURTLE_TABLE, sprites);
	facingLeft = left;
	Enter(STAND, STANDING);
	PlaceAt(centreX, centreY, left);
}

void CTurtle::Enter(State newState, Pictures pictures)
{
	state = newState;
	wait.Restart();
	StartSprite(sprites[pictures][facingLeft]);
}

void CTurtle::Update()
{
	if (dead)
		return;
	PullTowardBall();
	switch (state) {
	case STAND:
		StandFrame();
		break;
	case SHELL:
		if (currentSprite->IsAtLastFrameEnd() && wait.Over(60, 360)) {
			Enter(EMERGE, EMERGING);
			appear->Play();
		}
		break;
	case EMERGE:
		if (currentSprite->IsAtLastFrameEnd())
			Enter(STAND, STANDING);
		break;
	case WALK:
		WalkFrame();
		break;
	}
	Place();
}

// Without room it stays, and chooses again in the next frame.
void CTurtle::StandFrame()
{
	if (!wait.Over(60, 240))
		return;
	bool left = Coin();
	if (!MayMoveTo(CentreX() + (left ? -speedX : speedX), CentreY(), false))
		return;
	facingLeft = left;
	Enter(WALK, WALKING);
}

void CTurtle::WalkFrame()
{
	bool done  = wait.Over(30, 120);
	float step = facingLeft ? -speedX : speedX;
	if (MayMoveTo(CentreX() + step, CentreY(), false))
		x += step;
	else
		done = true;
	SyncBody();
	if (done)
		Enter(STAND, STANDING);
}

int CTurtle::OnBump()
{
	if (state != SHELL) {
		Enter(SHELL, HIDING);
		Place();
	}
	return species;
}

bool CTurtle::OnBallHit()
{
	return g_ball && CaptureOrBump();
}
