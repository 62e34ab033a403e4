// A player: keeps the paddle under the ball, aims at what is left, lets the ball go.
#include "drive/bot.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/breakable.h"
#include "field/crate.h"
#include "field/element_point.h"
#include "field/paddle.h"
#include "field/powerup.h"
#include "field/tree.h"
#include "media/sprite.h"
#include "screens/game.h"

#include <algorithm>
#include <cmath>

static const float BUMPER_MIDDLE   = 36;  // from the paddle's x, pixels
static const float BUMPER_TOP      = 520; // y where the ball meets the bumper
static const float WINDOW_TO_FIELD = 693.0f / 800.0f;
static const float BODY_SHIFT      = 38;    // the mouse stands this far right of the paddle's x
static const float STEEPEST_OFFSET = 26;    // the bumper's outer parts throw the ball too flat
static const float OFFSET_PER_TURN = 5;     // pixels that the aim wanders
static const float FLATTER_BY      = 0.08f; // of the offset, each turn of five
static const int LAUNCH_WAIT       = 12;    // frames the ball is held before a launch
static const int PRESS_FRAMES      = 2;
static const int PRIZE_ROOM        = 25; // frames that a detour to a prize needs

void CBot::Reset()
{
	frames = heldFrames = turn = 0;
	buttonDown = wasFalling = false;
}

bool CBot::Think()
{
	if (!g_game || !g_ball || !g_paddle || !g_game->active || g_game->levelOver ||
	    g_game->paddleEntering)
		return false;
	frames++;
	buttonDown = false;
	if (g_ball->IsHeld())
		ThinkHeld();
	else
		ThinkFlight();
	return true;
}

void CBot::ThinkHeld()
{
	heldFrames++;
	if (const CElement* target = ChooseTarget())
		DrivePaddleTo(target->x - BUMPER_MIDDLE);
	if (g_game->playOpen && heldFrames > LAUNCH_WAIT) {
		buttonDown = heldFrames < LAUNCH_WAIT + PRESS_FRAMES + 1;
		if (!buttonDown)
			heldFrames = 0;
	}
}

void CBot::ThinkFlight()
{
	heldFrames   = 0;
	bool falling = g_ball->vy > 0;
	if (wasFalling && !falling)
		turn++;
	wasFalling = falling;

	bool prizeFound  = false;
	float prizeX     = AnchorForPrize(prizeFound);
	float framesDown = falling ? (BUMPER_TOP - g_ball->y) / std::max(g_ball->vy, 0.1f) : 1000;
	if (prizeFound && framesDown > PRIZE_ROOM) {
		DrivePaddleTo(prizeX);
		return;
	}
	float landing = LandingX();
	DrivePaddleTo(landing - BUMPER_MIDDLE - BumperOffsetFor(landing, ChooseTarget()));

	// A loaded ray is fired when something stands right above the paddle.
	if (g_paddle->destructoLoaded && frames % 60 < PRESS_FRAMES)
		buttonDown = true;
}

static float DistanceFromBall(const CElement* element)
{
	return std::hypot(element->x - g_ball->x, element->y - g_ball->y);
}

static bool Nearer(const CElement* element, const CElement* than)
{
	return !than || DistanceFromBall(element) < DistanceFromBall(than);
}

static bool InField(const CElement* element)
{
	return element->x > 0 && element->x < 680 && element->y > 100 && element->y < 500;
}

// First what can be taken now, then fruit to grow on, then what hides fruit, prizes and animals.
CElement* CBot::ChooseTarget() const
{
	CElement* best = nullptr;
	for (CElementAnimal* animal : CElementAnimal::AnimalList)
		if (!animal->dead && !animal->inTree && InField(animal) && animal->CanCapture() &&
		    Nearer(animal, best))
			best = animal;
	if (best && turn % 3 != 2)
		return best;
	for (CElementPoint* point : CElementPoint::PointList)
		if (!point->dead && !point->bouncing && InField(point) && Nearer(point, best))
			best = point;
	if (best && turn % 3 != 1)
		return best;
	for (CCrate* crate : CCrate::CrateList)
		if (!crate->broken && crate->layer == 0 && InField(crate) && Nearer(crate, best))
			best = crate;
	for (CTree* tree : CTree::TreeList)
		if ((tree->climber || turn % 4 == 3) && InField(tree) && Nearer(tree, best))
			best = tree;
	if (best)
		return best;
	for (CElementBreakable* breakable : CElementBreakable::BreakableList)
		if (!breakable->dead && InField(breakable) && Nearer(breakable, best))
			best = breakable;
	return best;
}

// Where the ball comes down if it meets nothing but the walls.
float CBot::LandingX() const
{
	if (g_ball->vy <= 0.1f)
		return g_ball->x;
	float r     = g_ball->Radius();
	float width = 693 - 2 * r;
	float x     = g_ball->x - r + g_ball->vx * (BUMPER_TOP - r - g_ball->y) / g_ball->vy;
	x           = std::fmod(std::fabs(x), 2 * width);
	return r + (x > width ? 2 * width - x : x);
}

// The bumper throws the ball along its normal: the farther out it lands, the flatter it leaves.
float CBot::BumperOffsetFor(float fromX, const CElement* target) const
{
	float wander = (turn % 5 - 2) * OFFSET_PER_TURN;
	if (!target)
		return wander;
	float slope  = (target->x + 12 - fromX) / std::max(BUMPER_TOP - target->y, 40.0f);
	float offset = std::clamp(slope * 30, -STEEPEST_OFFSET, STEEPEST_OFFSET);
	// Also at its steepest the aim must not come out the same each time, or the ball goes back and
	// forth on one line for good.
	return offset * (1 - FLATTER_BY * static_cast<float>(turn % 5)) + wander * 0.4f;
}

float CBot::AnchorForPrize(bool& found) const
{
	for (const CPowerup* prize : CPowerup::PowerupList) {
		bool unwanted = prize->kind == POWERUP_SHRINK || prize->kind == POWERUP_FAST;
		if (prize->gone || prize->caught || unwanted || prize->y < 330)
			continue;
		found = true;
		return prize->x + prize->balloons->Width() / 2 - BUMPER_MIDDLE;
	}
	found = false;
	return 0;
}

void CBot::DrivePaddleTo(float anchor)
{
	mouseX = std::clamp(static_cast<int>((anchor + BODY_SHIFT) / WINDOW_TO_FIELD), 0, 799);
}
