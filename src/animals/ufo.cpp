// Flying saucer: drifts over the field and fires at the paddle until the ball has worn it down.
#include "animals/ufo.h"

#include "animals/alien.h"
#include "animals/alien_shot.h"
#include "field/ball.h"
#include "field/bobber.h"
#include "field/breakable.h"
#include "field/paddle.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

static const float TOP_SPEED     = 3;    // pixels per frame, each way
static const float STEERING      = 0.2f; // pixels per frame per frame, at most
static const float REBOUND       = -5;   // the speed is divided by it
static const int STEER_FRAMES    = 30;   // at least, and fewer than twice as many
static const int CHARGE_FRAMES   = 90;   // from the first hum of the antenna to the shot
static const int CHARGE_BOSS     = 30;
static const int REST_FRAMES     = 30; // at least, between shots
static const int REST_LONGEST    = 60;
static const int REST_BOSS       = 90;
static const int LONG_STUN       = 60; // frames, of a boss's shot
static const float MUZZLE_ASIDE  = 2;  // pixels right of the middle, where shot and pilot come out
static const int PILOT_LIFT      = 5;  // pixels above the hull's edge, where the pilot comes out
static const int HARMLESS_STAGE  = 9;  // a ball up to this size leaves no dent
static const int BLAST_STAGES    = 3;
static const float LEANING_SPEED = 2; // pixels per frame

std::vector<CUFO*> CUFO::UfoList;

CUFO::CUFO(int centreX, int centreY, bool newBoss) : boss(newBoss)
{
	bodyRadius    = 38;
	weight        = 40;
	requiredStage = 20; // no ball grows so far
	vx            = 2;
	vy            = 1;
	UfoList.push_back(this);

	chargeSound  = OwnSound(new CSound("ufo_antenna_charge.ogg"));
	explodeSound = OwnSound(new CSound("ufo_explode.ogg"));
	laughSound   = OwnSound(new CSound("alien_laugh.ogg"));
	crumpleSound = OwnSound(new CSound("ufo_metal_crumpling.ogg"));
	bob          = new CBobber(0, 7, 1.25f, 2.5f, 0);
	LoadParts();
	x         = static_cast<float>(centreX - collisionSprite->Width() / 2);
	y         = static_cast<float>(centreY - collisionSprite->Height() / 2);
	fireTimer = RandomWhole(REST_FRAMES, boss ? REST_BOSS : REST_LONGEST);
	RebuildBody();
	LayOut();
}

CUFO::~CUFO()
{
	UfoList.erase(std::find(UfoList.begin(), UfoList.end(), this));
	delete bob;
}

void CUFO::Update()
{
	if (!explosionSprite->IsHidden() && explosionSprite->IsAtLastFrameEnd())
		explosionSprite->Hide();
	if (dead)
		return;
	Steer();
	Drift();
	Place();
}

// It makes for the paddle, more or less.
void CUFO::Steer()
{
	if (--steerTimer >= 1)
		return;
	steerTimer  = Rand() % STEER_FRAMES + STEER_FRAMES;
	float least = -STEERING, most = STEERING;
	if (g_paddle) {
		bool paddleIsLeft             = static_cast<float>(g_paddle->GetX()) <= x;
		(paddleIsLeft ? most : least) = 0;
	}
	accelX = RandomRange(least, most);
	accelY = RandomRange(-STEERING, STEERING);
}

void CUFO::Drift()
{
	vx = std::clamp(vx + accelX, -TOP_SPEED, TOP_SPEED);
	vy = std::clamp(vy + accelY, -TOP_SPEED, TOP_SPEED);
	if (MayMoveTo(CentreX() + vx, CentreY() + vy, false)) {
		x += vx;
		y += vy;
		SyncBody();
		return;
	}
	steerTimer = 0;
	vx /= REBOUND;
	vy /= REBOUND;
}

void CUFO::Place()
{
	if (dead)
		return;
	StepGun();
	StepPilot();
	bob->Step();
	LayOut();
}

void CUFO::StepGun()
{
	fireTimer--;
	if (fireTimer == 0) {
		ShowInstead(antennaSprite, antennaCharge);
		chargeSound->Play();
	} else if (fireTimer < -(boss ? CHARGE_BOSS : CHARGE_FRAMES)) {
		Fire();
	} else if (antennaSprite == antennaCharge && antennaSprite->IsAtLastFrameEnd()) {
		ShowInstead(antennaSprite, antennaVibrate);
		ShowInstead(pilotSprite, pilotFire);
	} else if (antennaSprite == antennaFire && antennaSprite->IsAtLastFrameEnd()) {
		ShowInstead(antennaSprite, antennaIdle);
	}
}

void CUFO::Fire()
{
	ShowInstead(antennaSprite, antennaFire);
	new CAlienShot(CentreX() + MUZZLE_ASIDE, y, boss ? LONG_STUN : CPaddle::SHORT_STUN, nullptr,
	               this);
	ShowInstead(pilotSprite, pilotFireBack);
	fireTimer = RandomWhole(REST_FRAMES, boss ? REST_BOSS : REST_LONGEST);
}

bool CUFO::PilotIsBusy() const
{
	return pilotSprite == pilotStunned || pilotSprite == pilotFireBack || pilotSprite == pilotLaugh;
}

void CUFO::StepPilot()
{
	if (pilotSprite == pilotFire)
		return; // the gun stays up until the shot
	if (!PilotIsBusy())
		LeanPilot();
	else if (pilotSprite->IsAtLastFrameEnd())
		ShowInstead(pilotSprite, pilotSit);
}

// Over to the side of a fast flight, and back when it slows down.
void CUFO::LeanPilot()
{
	CSprite* const* lean = nullptr;
	if (std::fabs(vx) > LEANING_SPEED)
		lean = vx < 0 ? pilotMoveLeft : pilotMoveRight;
	if (lean) {
		if (pilotSprite != lean[0])
			ShowInstead(pilotSprite, lean[0]);
	} else if (pilotSprite == pilotMoveLeft[0]) {
		ShowInstead(pilotSprite, pilotMoveLeft[1]);
	} else if (pilotSprite == pilotMoveRight[0]) {
		ShowInstead(pilotSprite, pilotMoveRight[1]);
	} else if (pilotSprite != pilotSit && pilotSprite->IsAtLastFrameEnd()) {
		ShowInstead(pilotSprite, pilotSit);
	}
}

bool CUFO::OnBallHit()
{
	if (dead || !g_ball)
		return false;
	if (pilotSprite != pilotStunned)
		ShowInstead(pilotSprite, pilotStunned);
	Damage();
	return false;
}

void CUFO::Damage()
{
	bool stillBuckling = !currentSprite->IsAtLastFrameEnd();
	if (dead || stillBuckling || !g_ball || g_ball->GetStage() <= HARMLESS_STAGE)
		return;
	TakeDamage(1);
}

void CUFO::OnBlast(int atX, int radius)
{
	int middle = static_cast<int>(CentreX());
	if (!dead && std::abs(middle - atX) <= collisionSprite->Width() / 2 + radius)
		TakeDamage(BLAST_STAGES);
}

void CUFO::BlastAll(int atX, int radius)
{
	for (CUFO* saucer : UfoList)
		saucer->OnBlast(atX, radius);
}

void CUFO::TakeDamage(int stages)
{
	damage = std::min(damage + stages, STAGES);
	crumpleSound->Play();
	if (damage < STAGES)
		ShowStage();
	else
		Explode();
}

void CUFO::Explode()
{
	HideParts();
	int middle = static_cast<int>(CentreX()), top = static_cast<int>(y);
	new CAlien(middle + static_cast<int>(MUZZLE_ASIDE), top - PILOT_LIFT, boss);
	ClearBody();
	dead = true;
	explodeSound->Play();
	if (g_sidebar)
		g_sidebar->OnSaucerDown(middle, top);
}

void CUFO::Laugh()
{
	if (dead)
		return;
	ShowInstead(pilotSprite, pilotLaugh);
	laughSound->Play();
}

void CUFO::UpdateRescueHint()
{
	hintArrow->Hide();
	hintText->Hide();
}
