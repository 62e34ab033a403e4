// Soft, swaying snow.
#include "field/snow.h"

#include "frame/random.h"
#include "media/sprite.h"

#include <algorithm>
#include <cmath>

static const int SNOW_DEPTH    = 9500;
static const float HALF_TURN   = 3.14159f; // radians
static const float MOST_SWAY   = 0.2f;     // radians a frame
static const float SWAY_PULL   = 0.015f;
static const float CURVE       = 20; // pixels to each side
static const float FAN_FORCE   = 1600000;
static const float FAN_CLOSE   = 25; // pixels: nearer the push does not grow
static const float FAN_FALLOFF = 2.5f;

CSnow::~CSnow()
{
	for (Flake& flake : flakes)
		delete flake.sprite;
}

void CSnow::Make()
{
	made  = true;
	drift = RandomRange(-0.2f, 0.2f);
	for (Flake& flake : flakes) {
		flake.sprite = new CSprite(SNOW_DEPTH);
		flake.sprite->AddFile("background_snow.png");
		flake.x        = RandomRange(-20, 700);
		bool right     = Coin();
		flake.sway     = right ? RandomRange(0.05f, MOST_SWAY) : RandomRange(-MOST_SWAY, -0.05f);
		flake.swayPull = 0;
		flake.phase    = HALF_TURN;
		flake.y        = RandomRange(150, 600);
		flake.height   = RandomRange(0, 600);
		flake.fall     = RandomRange(3, 4);
	}
}

static void Restart(CSnow::Flake& flake)
{
	flake.x      = RandomRange(-20, 680);
	flake.y      = RandomRange(150, 680);
	flake.height = RandomRange(680, 780);
	flake.fall   = RandomRange(3, 4.5f);
}

static void StepFlake(CSnow::Flake& flake, float drift)
{
	float sway = flake.sway + flake.swayPull;
	flake.x += drift;
	flake.phase += flake.sway;
	flake.sway = std::clamp(sway, -MOST_SWAY, MOST_SWAY);
	if (flake.phase > HALF_TURN)
		flake.swayPull = -SWAY_PULL;
	else if (flake.phase < HALF_TURN)
		flake.swayPull = SWAY_PULL;
	flake.y += flake.dy;
	flake.height -= flake.fall;

	float x = flake.x + std::sin(flake.phase) * CURVE;
	float y = flake.y - (flake.height + std::cos(flake.phase) * CURVE);
	flake.sprite->SetPos(static_cast<int>(x), static_cast<int>(y), static_cast<int>(flake.y));
	if (flake.height <= 0)
		Restart(flake);
}

void CSnow::Step()
{
	if (!made)
		return;
	for (Flake& flake : flakes)
		StepFlake(flake, drift);
}

void CSnow::Hide()
{
	if (!made)
		return;
	for (Flake& flake : flakes)
		flake.sprite->Hide();
}

// A flake right on the fan has no direction to be pushed in: it goes straight up.
void CSnow::BlowFrom(float fromX, float fromY)
{
	if (!made)
		return;
	for (Flake& flake : flakes) {
		float dx       = flake.sprite->X() - fromX;
		float dy       = flake.sprite->Y() - fromY;
		float distance = std::sqrt(dx * dx + dy * dy);
		float force    = FAN_FORCE / std::pow(std::max(distance, FAN_CLOSE), FAN_FALLOFF);
		if (distance == 0) {
			flake.height += force;
			continue;
		}
		flake.x += dx / distance * force;
		flake.height -= dy / distance * force;
	}
}
