// Flight: taking off from a perch, flying about, and coming down.
#include "animals/bird_page.h"

#include "field/ball_physics.h"
#include "field/crate.h"
#include "field/fence.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cmath>

static const int FLIGHT_LOWEST  = 500; // what flies turns here
static const float LANDING_ROOM = 40;  // pixels that open ground needs around the spot
static const int LANDING_TRIES  = 50;
static const int GROUND_LEFT = 40, GROUND_RIGHT = 653; // where open ground is looked for
static const int GROUND_TOP = 325, GROUND_BOTTOM = 450;
static const int SHORTEST_FLIGHT = 30, LONGEST_FLIGHT = 90; // frames

void CElementAnimal::FlyAsPerchingBird()
{
	flightSpeedX  = 3;
	flightSpeedY  = 1;
	flightSpeedZ  = 0.5f;
	flightCeiling = 100;
	flightMargin  = 5;
}

void CElementAnimal::TakeBirdNumbers(const BirdPage& page)
{
	species          = page.species;
	bodyRadius       = page.bodyRadius;
	weight           = page.weight;
	requiredStage    = page.requiredStage;
	crateOffsetLeft  = page.onCrate.left;
	crateOffsetRight = page.onCrate.right;
	crateOffsetY     = page.onCrate.y;
	fenceOffsetLeft  = page.onFence.left;
	fenceOffsetRight = page.onFence.right;
	fenceOffsetY     = page.onFence.y;
	FlyAsPerchingBird();
}

bool CElementAnimal::HeadsUp() const
{
	return facingUp;
}

void CElementAnimal::HeadUp(bool up)
{
	facingUp = up;
}

void CElementAnimal::BeginFlight()
{
	if (!flightAction)
		return;
	TakeOff();
	currentAction = flightAction;
	facingUp      = true;
}

void CElementAnimal::TakeOff()
{
	if (callSound && !flying && (Rand() & 3) == 0)
		callSound->Play();
	flying = rising = true;
	descending      = false;
	flightCounter   = RandomWhole(SHORTEST_FLIGHT, LONGEST_FLIGHT);
}

void CElementAnimal::UpdateFlight()
{
	if (!flying)
		return;
	flightCounter--;
	if (flightCounter < 1 && !descending) {
		descending = true;
		rising     = false;
		ChooseLandingSpot();
		FaceLandingSpot();
	}
	x += facingLeft ? -flightSpeedX : flightSpeedX;
	y += HeadsUp() ? -flightSpeedY : flightSpeedY;
	if (rising && z < flightCeiling)
		z += flightSpeedZ;
	else
		rising = false;
	if (descending && Descend())
		return;
	KeepInFlightMargin();
}

bool CElementAnimal::Descend()
{
	if (z != landZ) {
		z = z < landZ ? std::min(z + flightSpeedZ, landZ) : std::max(z - flightSpeedZ, landZ);
		if (z == landZ)
			FaceLandingSpot();
	}
	if (z != landZ)
		return false;
	float framesX = std::fabs(landX - x) / flightSpeedX;
	float framesY = std::fabs(landY - y) / flightSpeedY;
	if (framesX <= 1 && framesY <= 1) {
		Arrive();
		return true;
	}
	if (std::fabs(framesX - framesY) <= 1)
		FaceLandingSpot();
	return false;
}

void CElementAnimal::Arrive()
{
	// Something may have come to stand there since the spot was chosen.
	if (landsOnGround &&
	    AnyObstacleNear(static_cast<int>(landX), static_cast<int>(landY), LANDING_ROOM)) {
		BeginFlight();
		return;
	}
	x      = landX + static_cast<float>(facingLeft ? landOffsetLeft : landOffsetRight);
	y      = landY;
	z      = landZ;
	flying = rising = descending = false;
	if (landsOnGround)
		perched = false;
	EndFlight();
}

void CElementAnimal::EndFlight()
{
	currentAction = idleAction;
}

void CElementAnimal::KeepInFlightMargin()
{
	float margin = static_cast<float>(flightMargin);
	float right  = x + static_cast<float>(collisionSprite->Width());
	float top    = y - z;
	float bottom = top + static_cast<float>(collisionSprite->Height());
	if (!facingLeft && right + margin > FIELD_WALL_RIGHT)
		facingLeft = true;
	else if (facingLeft && x < margin)
		facingLeft = false;
	if (!HeadsUp() && bottom + margin > FLIGHT_LOWEST)
		HeadUp(true);
	else if (HeadsUp() && top < margin)
		HeadUp(false);
}

void CElementAnimal::FaceLandingSpot()
{
	facingLeft = landX < x;
	HeadUp(landY < y);
}

void CElementAnimal::ChooseLandingSpot()
{
	int margin  = collisionSprite->Width() / 2 + flightMargin;
	int fences  = CFence::CountStanding(margin, true);
	int crates  = CCrate::CountStanding(margin, true);
	bool ground = fences + crates == 0 || !g_levelGameData ||
	              g_levelGameData->ChanceByRating(fences + crates);
	if (ground)
		ChooseGroundSpot();
	else
		ChoosePerch(fences, crates, margin);
}

void CElementAnimal::ChooseGroundSpot()
{
	landsOnGround  = true;
	landOffsetLeft = landOffsetRight = 0;
	for (int i = 0; i < LANDING_TRIES; i++) {
		int spotX = RandomWhole(GROUND_LEFT, GROUND_RIGHT) - collisionSprite->Width() / 2;
		int spotY = RandomWhole(GROUND_TOP, GROUND_BOTTOM) - collisionSprite->Height();
		landX     = static_cast<float>(spotX);
		landY     = static_cast<float>(spotY);
		landZ     = 0;
		if (!AnyObstacleNear(spotX, spotY, LANDING_ROOM))
			return;
	}
	BeginFlight(); // no room: once more around
}

void CElementAnimal::ChoosePerch(int fences, int crates, int margin)
{
	landsOnGround  = false;
	bool takeFence = fences > 0 && (crates == 0 || Coin());
	if (takeFence) {
		CFence* fence   = CFence::NthFree(Rand() % fences, margin);
		landOffsetLeft  = fenceOffsetLeft;
		landOffsetRight = fenceOffsetRight;
		AimAtPerch(fence->PerchPlace(), fenceOffsetY);
		fence->occupant = this;
	} else {
		CCrate* crate   = CCrate::NthFree(Rand() % crates, margin);
		landOffsetLeft  = crateOffsetLeft;
		landOffsetRight = crateOffsetRight;
		AimAtPerch(crate->PerchPlace(), crateOffsetY);
		crate->occupant = this;
	}
}

void CElementAnimal::AimAtPerch(const Perch& perch, int offsetY)
{
	landX = static_cast<float>(perch.x - collisionSprite->Width() / 2);
	landY = static_cast<float>(perch.y + offsetY - collisionSprite->Height());
	landZ = static_cast<float>(perch.z);
}
