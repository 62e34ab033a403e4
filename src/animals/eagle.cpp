// Eagle: watches from its perch, and circles when it is disturbed.
#include "animals/eagle.h"

#include "animals/species_numbers.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

static const int BLINK_FRAMES = 2;

// clang-format off
static const PictureRow s_pictures[CEagle::PICTURES] = {
	// name         frames         ticks  loops
	{ "stand",      ".",               2, false }, // STANDING
	{ "standblink", ".",               2, false }, // BLINKING
	{ "look",       "0-4",             2, false }, // LOOKING
	{ "ruffle",     "0-5",             2, false }, // RUFFLING
	{ "stunned",    "0-6",             2, false }, // BEING_STUNNED
	{ "flapup",     "0-9",             2, true  }, // FLAPPING_UP
	{ "flapdown",   "0-9",             2, true  }, // FLAPPING_DOWN
	{ "glideup",    "0*4 1 2*4 1",     2, true  }, // GLIDING_UP
	{ "glidedown",  "0*4 1 2*4 1",     2, true  }, // GLIDING_DOWN
};

static const BodyPoint s_body[] = {
	{ 4, 25 }, { 7, 32 }, { 15, 34 }, { 24, 32 }, { 27, 25 },
	{ 24, 18 }, { 15, 16 }, { 7, 18 },
};
// clang-format on

const SpeciesTable EAGLE_TABLE = {"eagle", {}, s_pictures, s_body, {}, {}};

const BirdPage EAGLE_PAGE = {
    .species       = SPECIES_EAGLE,
    .bodyRadius    = 16,
    .weight        = 4,
    .requiredStage = 10,
    .calls         = {"eagle_screech.ogg"},
    .onCrate       = {4, -4, -2},
    .onFence       = {4, -4, 5},
    .table         = &EAGLE_TABLE,
};

CEagle::CEagle(int centreX, int centreY, bool left)
{
	Build(left);
	PlaceAt(centreX, centreY, left);
}

CEagle::CEagle(CCrate* crate, bool left)
{
	Build(left);
	PlaceOn(crate, left);
}

CEagle::CEagle(CFence* fence, bool left)
{
	Build(left);
	PlaceOn(fence, left);
}

void CEagle::Build(bool left)
{
	TakeBirdNumbers(EAGLE_PAGE);
	LoadCall(EAGLE_PAGE.calls[0]);
	LoadPictures(EAGLE_TABLE, sprites);
	facingLeft = left;
	Enter(STAND, STANDING);
}

void CEagle::Enter(int newState, Pictures pictures)
{
	state       = newState;
	lookingBack = false;
	wait.Restart();
	StartSprite(sprites[pictures][facingLeft]);
}

void CEagle::Update()
{
	if (dead)
		return;
	if (!perched)
		PullTowardBall();
	RebuildBody(false);
	UpdateFlight();
	if (IsAloft())
		AirFrame();
	else
		RestFrame();
	Place();
}

// The ball passes it in the air and on a perch.
void CEagle::RebuildBody(bool always)
{
	if (flying || perched || z != 0) {
		ClearBody();
		return;
	}
	if (!always && facingLeft == lastFacingLeft)
		return;
	lastFacingLeft = facingLeft;
	CElementAnimal::RebuildBody();
}

// The picture follows the state, which flight itself may turn, and the side.
void CEagle::AirFrame()
{
	if (wait.Over(60, 120)) {
		ChangeBeat();
		wait.Restart();
	}
	CSprite* sprite = sprites[FLAPPING_UP + state - FLAP_UP][facingLeft];
	if (currentSprite != sprite)
		StartSprite(sprite);
}

void CEagle::RestFrame()
{
	switch (state) {
	case STAND:
		StandFrame();
		break;
	case BLINK:
		if (wait.Over(BLINK_FRAMES, BLINK_FRAMES))
			Enter(STAND, STANDING);
		break;
	case LOOK:
		LookFrame();
		break;
	default: // ruffling and the fright last as long as their pictures
		if (currentSprite->IsAtLastFrameEnd())
			Enter(STAND, STANDING);
		break;
	}
}

void CEagle::StandFrame()
{
	// It has just come down, with the pictures of the air still up.
	if (currentSprite != sprites[STANDING][facingLeft])
		Enter(STAND, STANDING);
	if (!wait.Over(15, 120))
		return;
	switch (Rand() % 4) {
	case 0:
	case 1:
		Enter(BLINK, BLINKING);
		break;
	case 2:
		Enter(LOOK, LOOKING);
		break;
	default:
		Enter(RUFFLE, RUFFLING);
		break;
	}
}

void CEagle::LookFrame()
{
	if (lookingBack) {
		if (currentSprite->Frame() == 0)
			Enter(STAND, STANDING);
	} else if (currentSprite->IsAtLastFrameEnd() && wait.Over(15, 120)) {
		lookingBack = true;
		currentSprite->Backward();
	}
}

int CEagle::OnBump()
{
	if (state != STUNNED) {
		Enter(STUNNED, BEING_STUNNED);
		callSound->Play();
	}
	return species;
}

bool CEagle::OnBallHit()
{
	return CaptureOrBump();
}
