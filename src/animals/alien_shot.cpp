// A shot of the saucer or the alien: falls until it meets something or has left the screen.
#include "animals/alien_shot.h"

#include "animals/alien.h"
#include "animals/ufo.h"
#include "field/obstacle_grid.h"
#include "field/paddle.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <cmath>

static const int PICTURE_TOP  = 27;   // pixels above y
static const int TIP_ASIDE    = 8;    // pixels that the tip lies left of the middle
static const int TIP_LIFT     = 6;    // pixels that the tip lies above the lower edge
static const float TIP_REACH  = 5;    // pixels
static const int SLOWEST      = 5;    // pixels per frame
static const int SPEEDS       = 3;    // that many, one pixel apart
static const int SPENT_Y      = 1000; // far below the screen
static const int FLYING_FADE  = 30;   // frames
static const int SPLASH_LEFT  = 40;   // pixels from x
static const int SPLASH_TOP   = 22;   // pixels above the shot's picture
static const int BEHIND_HULL  = 10;   // of the saucer's drawing depths
static const int SHOT_DEPTH   = CElementAnimal::FLIGHT_DEPTH + 50;
static const int SPLASH_DEPTH = SHOT_DEPTH + 1;

// Where a shot counts as meeting the paddle, in pixels.
static const int PADDLE_MIDDLE = 35, PADDLE_REACH = 45, PADDLE_TOP = 514, PADDLE_BOTTOM = 574;

CAlienShot::CAlienShot(float startX, float startY, int newStunFrames, CAlien* alien, CUFO* saucer)
    : stunFrames(newStunFrames), delayLayers(saucer ? SAUCER_LAYERS : 0), firedBy(alien),
      firedByUfo(saucer)
{
	x         = startX;
	y         = startY;
	fallSpeed = static_cast<float>(Rand() % SPEEDS + SLOWEST);

	shotSprite = new CSprite(SHOT_DEPTH, 2);
	shotSprite->AddSequence("ufoshot", 0, 3, ".png");
	splashSprite = new CSprite(SPLASH_DEPTH, 2);
	splashSprite->AddSequence("ufoshotsplash", 0, 5, ".png");
	splashSprite->SetStopAtEnd();
	splashSprite->Hide();
	currentSprite = collisionSprite = shotSprite;

	fireSound      = new CSound("ufo_laser.ogg");
	dissipateSound = new CSound("ufo_laser_dissipate.ogg");
	stunSound      = new CSound("ufo_laser_stun.ogg");
	flyingSound    = new CSound("ufo_laser_flying.ogg");
	fireSound->Play();
	flyingSound->Play(true);
	Place();
}

CAlienShot::~CAlienShot()
{
	delete shotSprite;
	delete splashSprite;
	for (CSound* sound : {fireSound, dissipateSound, stunSound, flyingSound})
		delete sound;
}

float CAlienShot::TipX() const
{
	return static_cast<float>(shotSprite->X() + shotSprite->Width() / 2 - TIP_ASIDE);
}

float CAlienShot::TipY() const
{
	return y - PICTURE_TOP + static_cast<float>(shotSprite->Height() - TIP_LIFT);
}

void CAlienShot::Place()
{
	int depth = delayLayers > 0 ? CUFO::DEPTH + BEHIND_HULL : SHOT_DEPTH;
	shotSprite->SetPos(static_cast<int>(x) - shotSprite->Width() / 2,
	                   static_cast<int>(y) - PICTURE_TOP, depth);
}

void CAlienShot::Update()
{
	if (!splashSprite->IsHidden() && splashSprite->IsAtLastFrameEnd())
		splashSprite->Hide();
	if (shotSprite->IsHidden())
		return;
	if (y - PICTURE_TOP >= SCREEN_HEIGHT) {
		flyingSound->FadeOut(FLYING_FADE);
		shotSprite->Hide();
		return;
	}
	Fall();
	CElement* target = WhatItMeets();
	if (target)
		Hit(target);
	else if (MeetsPaddle())
		Hit(g_paddle);
}

void CAlienShot::Fall()
{
	if (delayLayers > 0)
		delayLayers--;
	y += fallSpeed;
	Place();
}

CElement* CAlienShot::WhatItMeets() const
{
	static std::vector<ObstaclePoint*> s_near;
	g_obstacleGrid.Near(TipX(), TipY(), TIP_REACH, s_near);
	for (const ObstaclePoint* point : s_near) {
		if (!point->owner->shotProof)
			return point->owner;
	}
	return nullptr;
}

// Wider than the bumper's outline: the machine below it counts too.
bool CAlienShot::MeetsPaddle() const
{
	if (!g_paddle)
		return false;
	float aside = std::fabs(TipX() - static_cast<float>(g_paddle->GetX() + PADDLE_MIDDLE));
	return aside <= PADDLE_REACH && TipY() > PADDLE_TOP && TipY() < PADDLE_BOTTOM;
}

void CAlienShot::Hit(CElement* target)
{
	y = SPENT_Y;
	shotSprite->Hide();
	if (target->shootable) {
		target->OnStun(stunFrames);
		if (firedBy)
			firedBy->Laugh();
		if (firedByUfo)
			firedByUfo->Laugh();
		stunSound->Play();
	} else {
		dissipateSound->Play();
	}
	target->Break(true, 0, 0);
	flyingSound->Stop();

	splashSprite->SetPos(static_cast<int>(x) - SPLASH_LEFT, shotSprite->Y() - SPLASH_TOP);
	splashSprite->Rewind();
	splashSprite->Forward();
	splashSprite->Show();
}
