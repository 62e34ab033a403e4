// The paddle: a wheeled machine that the professor drives along the bottom of the field.
#include "field/paddle.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/paddle_parts.h"
#include "field/sidebar.h"
#include "media/display.h"
#include "media/sprite.h"
#include "state/game_data.h"

#include <algorithm>

static const int START_MOUSE_X = -300; // off the field to the left
static const int BUMPER_DX     = -29;  // pixels from the anchor
static const int BUMPER_Y      = 505;
static const int REST_SHIFT    = 2;  // pixels between the body's middle and a resting ball
static const int SIGN_RISE     = 42; // pixels of the loaded sign above the body
static const int LOST_BALL_CUT = 45; // frames left of the lost-ball message after a launch
static const int BUMP_STEPS    = 7;

// The bumper's lift in pixels at each step of a bump; at 0 it rests.
static const int s_bumpLift[BUMP_STEPS + 1] = {0, 3, 4, 3, 0, -2, -1, 0};

CPaddle* g_paddle = nullptr;

CPaddle::CPaddle() : parts(new Parts())
{
	g_paddle      = this;
	shootable     = true;
	body          = parts->sprites[PART_BODY];
	ballOffset    = static_cast<float>(REST_SHIFT - body->Width() / 2);
	currentSprite = collisionSprite = body;
	BuildOutline();
	SetMouseX(START_MOUSE_X);
}

CPaddle::~CPaddle()
{
	RemoveOutline();
	delete parts;
	if (g_paddle == this)
		g_paddle = nullptr;
}

void CPaddle::Update()
{
	if (ShowsFastFlame() && g_levelGameData)
		g_levelGameData->NoteFastPaddle();
	UpdateFan();
	UpdateLaunchPrompt();
	AdvanceBump();
	UpdateDrive();
	UpdateProfessor();
	UpdateRay();
	UpdateStun();
	UpdateRayPrompt();
}

void CPaddle::SetMouseX(int mouseX)
{
	target = mouseX;
	if (IsStunned())
		return;
	float part = static_cast<float>(mouseX) / SCREEN_WIDTH;
	anchorX    = static_cast<int>(part * FIELD_WALL_RIGHT) - body->Width() / 2 + BODY_LEFT;
	x          = static_cast<float>(anchorX);
	y          = TOP;
	PlaceParts();
	HoldBall();
	MoveOutline();
}

void CPaddle::PlaceParts()
{
	for (int i = 0; i < PADDLE_PARTS; i++) {
		PaddlePlace place = PlaceOfPart(i);
		parts->sprites[i]->SetPos(anchorX + place.dx, place.y);
	}
	PlaceBumper();
	CSprite* sign = parts->sign;
	sign->SetPos(BodyCentre() - sign->Width() / 2, body->Y() - SIGN_RISE);
}

void CPaddle::PlaceBumper()
{
	for (CSprite* bumper : parts->bumpers)
		bumper->SetPos(anchorX + BUMPER_DX, BUMPER_Y + bumperLift);
}

// The walls push a held ball in; its offset stays, so it comes back with the paddle.
void CPaddle::HoldBall()
{
	if (!g_ball || !g_ball->IsHeld())
		return;
	float left = static_cast<float>(anchorX - BODY_LEFT);
	if (ballOffset == MEASURE_OFFSET)
		ballOffset = left - g_ball->x;
	g_ball->x    = left - ballOffset;
	float radius = g_ball->Radius();
	if (g_ball->x < radius)
		g_ball->x = radius;
	else if (g_ball->x + radius > FIELD_WALL_RIGHT)
		g_ball->x = FIELD_WALL_RIGHT - radius;
}

void CPaddle::ResetBall()
{
	ballOffset = static_cast<float>(REST_SHIFT - body->Width() / 2);
	grabGuard  = 1;
	if (!g_ball)
		return;
	g_ball->x = static_cast<float>(anchorX - BODY_LEFT) - ballOffset;
	g_ball->y = BALL_REST_Y;
	g_ball->ResetSpeed();
	g_ball->SetHeld(true);
}

// A sticky bumper grabs the ball where it touches; what it does after the launch is what this
// bounce gives it.
bool CPaddle::OnBallHit()
{
	if (!IsSticky()) {
		bumpStep   = 1;
		bumperLift = s_bumpLift[bumpStep];
	} else if (g_ball && grabGuard == 0) {
		g_ball->SetHeld(true);
		ballOffset = MEASURE_OFFSET;
		grabGuard  = 1;
	}
	return false;
}

void CPaddle::AdvanceBump()
{
	if (bumpStep > 0)
		bumpStep = bumpStep < BUMP_STEPS ? bumpStep + 1 : 0;
	bumperLift = s_bumpLift[bumpStep];
	PlaceBumper();
}

void CPaddle::UpdateLaunchPrompt()
{
	if (g_ball && !g_ball->IsHeld()) {
		parts->launchPrompt.Restart();
		g_play.readyTimer = std::min(g_play.readyTimer, LOST_BALL_CUT);
	} else if (ballOffset == MEASURE_OFFSET) {
		HoldBall();
	}
	parts->launchPrompt.Run();
}

void CPaddle::BecomeWide()
{
	ChangeShape(BECOME_WIDE);
}

void CPaddle::EndWide()
{
	ChangeShape(END_WIDE);
}

void CPaddle::BecomeFlat()
{
	ChangeShape(BECOME_FLAT);
}

void CPaddle::EndFlat()
{
	ChangeShape(END_FLAT);
}

void CPaddle::BecomeSticky()
{
	ChangeShape(BECOME_STICKY);
}

void CPaddle::EndSticky()
{
	ChangeShape(END_STICKY);
}
