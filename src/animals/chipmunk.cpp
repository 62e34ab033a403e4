// Chipmunk: runs in all directions, looks about, and squeaks when bumped.
#include "animals/chipmunk.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "field/ball.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

static const int DEAF_PICTURES = 12; // of being hit, before which it is not hit again

// clang-format off
static const PictureRow s_pictures[CChipmunk::PICTURES] = {
	// name        frames     ticks  loops
	{ "stand",     ".",           2, false }, // STANDING
	{ "bubblehit", "0-13",        2, false }, // BEING_HIT
	{ "look",      "0-2",         2, false }, // LOOKING
	{ "run",       "up0-7",       2, true  }, // RUNNING_UP
	{ "run",       "down0-7",     2, true  }, // RUNNING_DOWN
};

static const BodyPoint s_body[] = {
	{ 4, 14 }, { 9, 18 }, { 15, 18 }, { 21, 18 }, { 27, 14 },
	{ 21, 11 }, { 15, 10 }, { 9, 11 },
};
// clang-format on

const SpeciesTable CHIPMUNK_TABLE = {"chipmunk", {}, s_pictures, s_body, s_body, {}};

CChipmunk::CChipmunk(int centreX, int centreY, bool left)
{
	species       = SPECIES_CHIPMUNK;
	bodyRadius    = 17;
	weight        = 2;
	requiredStage = 5;
	speedX        = 2;
	speedY        = 1;

	squeak = OwnSound(new CSound("mouse_squeak.ogg"));
	LoadPictures(CHIPMUNK_TABLE, sprites);
	facingLeft = left;
	Enter(STAND, STANDING);
	PlaceAt(centreX, centreY, left);
}

void CChipmunk::Enter(State newState, Pictures pictures)
{
	state = newState;
	wait.Restart();
	StartSprite(sprites[pictures][facingLeft]);
}

void CChipmunk::Update()
{
	if (dead)
		return;
	PullTowardBall();
	switch (state) {
	case STAND:
		StandFrame();
		break;
	case BUMPED:
		if (currentSprite->IsAtLastFrameEnd())
			Enter(STAND, STANDING);
		break;
	case LOOK:
	case LOOK_BACK:
		LookFrame();
		break;
	case RUN:
		RunFrame();
		break;
	}
	Place();
}

void CChipmunk::StandFrame()
{
	if (!wait.Over(10, 60))
		return;
	if (Rand() % 4 == 3)
		Enter(LOOK, LOOKING);
	else
		StartRun();
}

void CChipmunk::LookFrame()
{
	if (state == LOOK && wait.Over(30, 90)) {
		state = LOOK_BACK;
		currentSprite->Backward();
	} else if (state == LOOK_BACK && currentSprite->Frame() == 0) {
		Enter(STAND, STANDING);
	}
}

// Without room it stays, and chooses again in the next frame.
void CChipmunk::StartRun()
{
	bool up   = Coin();
	bool left = Coin();
	if (!MayMoveTo(CentreX() + (left ? -speedX : speedX), CentreY() + (up ? -speedY : speedY),
	               false))
		return;
	facingUp   = up;
	facingLeft = left;
	Enter(RUN, up ? RUNNING_UP : RUNNING_DOWN);
}

void CChipmunk::RunFrame()
{
	bool done   = wait.Over(15, 60);
	float stepX = facingLeft ? -speedX : speedX;
	float stepY = facingUp ? -speedY : speedY;
	if (MayMoveTo(CentreX() + stepX, CentreY() + stepY, false)) {
		x += stepX;
		y += stepY;
	} else {
		done = true;
	}
	SyncBody();
	if (done)
		Enter(STAND, STANDING);
}

int CChipmunk::OnBump()
{
	if (state == BUMPED && currentSprite->Frame() < DEAF_PICTURES)
		return species;
	Enter(BUMPED, BEING_HIT);
	Place();
	squeak->Play();
	return species;
}

bool CChipmunk::OnBallHit()
{
	return g_ball && CaptureOrBump();
}
