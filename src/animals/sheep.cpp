// Sheep: stands, grazes, looks back, and takes fright when the bubble is too small for it.
#include "animals/sheep.h"

#include "animals/species.h"
#include "animals/species_numbers.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

// clang-format off
static const PictureRow s_pictures[CSheep::PICTURES] = {
	// name            frames   ticks  loops
	{ "stand",         ".",         2, false }, // STANDING
	{ "walk",          "0-7",       2, true  }, // WALKING
	{ "graze",         "0-5",       2, false }, // LOWERING
	{ "graze",         "6-9",       3, true  }, // CHEWING
	{ "graze",         "5-0",       2, false }, // RAISING
	{ "lookback",      "0-4",       2, false }, // TURNING_HEAD
	{ "lookback",      "4-0",       2, false }, // TURNING_BACK
	{ "stunned",       "0-6",       2, false }, // BEING_STUNNED
	{ "standeyeswide", ".*40",      1, false }, // STARING
};

static const BodyPoint s_body[] = {
	{ 4, 22 }, { 9, 29 }, { 18, 30 }, { 27, 30 }, { 34, 26 },
	{ 34, 18 }, { 26, 15 }, { 18, 15 }, { 9, 16 },
};
// clang-format on

const SpeciesTable SHEEP_TABLE = {"sheep", {}, s_pictures, s_body, {}, {}};

CSheep::CSheep(int centreX, int centreY, bool left)
{
	species       = SPECIES_SHEEP;
	bodyRadius    = 20;
	weight        = 5;
	requiredStage = 11;
	speedX        = 1.5f;

	baas[0] = OwnSound(new CSound("sheep_baa.ogg"));
	baas[1] = OwnSound(new CSound("sheep_baa2.ogg"));
	baas[2] = OwnSound(new CSound("sheep_baa3.ogg"));

	LoadPictures(SHEEP_TABLE, sprites);
	facingLeft = left;
	Enter(STAND, STANDING);
	PlaceAt(centreX, centreY, left);
}

void CSheep::Enter(State newState, Pictures pictures)
{
	state = newState;
	wait.Restart();
	Show(pictures);
}

void CSheep::Show(Pictures pictures)
{
	StartSprite(sprites[pictures][facingLeft]);
}

bool CSheep::Showing(Pictures pictures) const
{
	return currentSprite == sprites[pictures][facingLeft];
}

void CSheep::Update()
{
	if (dead)
		return;
	PullTowardBall();
	if (facingLeft != lastFacingLeft) {
		lastFacingLeft = facingLeft;
		RebuildBody();
	}
	switch (state) {
	case STAND:
		StandFrame();
		break;
	case WALK:
		WalkFrame();
		break;
	case GRAZE:
		GrazeFrame();
		break;
	case LOOK_BACK:
		LookBackFrame();
		break;
	case STUNNED:
		StunnedFrame();
		break;
	case EYES_WIDE:
		if (currentSprite->IsAtLastFrameEnd())
			Enter(STAND, STANDING);
		break;
	}
	Place();
}

void CSheep::StandFrame()
{
	if (!wait.Over(10, 60))
		return;
	switch (Rand() % 6) {
	case 0:
	case 4:
		TryToWalk();
		break;
	case 5:
		Enter(LOOK_BACK, TURNING_HEAD);
		break;
	default:
		Enter(GRAZE, LOWERING);
		break;
	}
}

// Without room it stays, and chooses again in the next frame.
void CSheep::TryToWalk()
{
	bool left = Coin();
	if (!MayMoveTo(CentreX() + (left ? -speedX : speedX), CentreY(), false))
		return;
	facingLeft = left;
	Enter(WALK, WALKING);
}

void CSheep::WalkFrame()
{
	bool done  = wait.Over(30, 120);
	float step = facingLeft ? -speedX : speedX;
	if (MayMoveTo(CentreX() + step, CentreY(), false)) {
		x += step;
		SyncBody();
	} else {
		done = true;
	}
	if (done)
		Enter(STAND, STANDING);
}

void CSheep::GrazeFrame()
{
	if (Showing(LOWERING)) {
		if (currentSprite->IsAtLastFrameEnd())
			Show(CHEWING);
	} else if (Showing(CHEWING)) {
		if (wait.Over(60, 360))
			Show(RAISING);
	} else if (currentSprite->IsAtLastFrameEnd()) {
		Enter(STAND, STANDING);
	}
}

void CSheep::LookBackFrame()
{
	if (!currentSprite->IsAtLastFrameEnd())
		return;
	if (Showing(TURNING_BACK))
		Enter(STAND, STANDING);
	else if (wait.Over(45, 120))
		Show(TURNING_BACK);
}

void CSheep::StunnedFrame()
{
	if (baaDue) {
		baaDue      = false;
		CSound* baa = baas[Rand() % 3];
		if (!baas[0]->IsPlaying() && !baas[1]->IsPlaying() && !baas[2]->IsPlaying())
			baa->Play();
	}
	if (currentSprite->IsAtLastFrameEnd())
		Enter(EYES_WIDE, STARING);
}

int CSheep::OnBump()
{
	if (state != STUNNED) {
		Enter(STUNNED, BEING_STUNNED);
		baaDue = true;
	}
	return species;
}

bool CSheep::OnBallHit()
{
	return CaptureOrBump();
}
