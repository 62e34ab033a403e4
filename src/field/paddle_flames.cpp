// The paddle's drive: the exhaust flames at both sides, wheels, fan blades and lights.
#include "field/paddle_parts.h"

#include "media/sprite.h"

#include <cstdlib>

static const int FAST_MOVE  = 40; // pixels in one frame; above it the flames are the fast ones
static const int FLAME_HOLD = 2;  // frames that a flame burns on without a push
static const int WHEEL_HOLD = 2;  // frames that the wheels turn on

FlameState& CPaddle::StateOf(int side)
{
	return side == FLAME_LEFT ? leftFlame : rightFlame;
}

// Of the set that is in use.
CSprite* CPaddle::ShownFlame(int side, int phase) const
{
	return parts->sprites[FlamePart(side, slowFlames ? FLAMES_SLOW : FLAMES_FAST, phase)];
}

void CPaddle::ClearSlowFlames()
{
	slowFlames = false;
}

bool CPaddle::ShowsFastFlame() const
{
	for (int side = 0; side < FLAME_SIDES; side++) {
		for (int phase = 0; phase < FLAME_PHASES; phase++) {
			if (!parts->sprites[FlamePart(side, FLAMES_FAST, phase)]->IsHidden())
				return true;
		}
	}
	return false;
}

static void SetTurning(CSprite* left, CSprite* right, int direction)
{
	left->SetDirection(direction);
	right->SetDirection(direction);
}

// The flames push: moving right burns the left one, moving left the right one.
void CPaddle::UpdateDrive()
{
	CSprite** sprites = parts->sprites;
	ChooseFlames();
	SetTurning(sprites[PART_LEFT_FAN], sprites[PART_RIGHT_FAN], fanOn ? 1 : 0);
	SetTurning(sprites[PART_LEFT_LIGHT], sprites[PART_RIGHT_LIGHT], fanOn ? 1 : -1);

	if (anchorX == previousX) {
		if (++stillFrames > WHEEL_HOLD)
			SetTurning(sprites[PART_LEFT_WHEEL], sprites[PART_RIGHT_WHEEL], 0);
	} else {
		bool goesLeft = anchorX < previousX;
		SetTurning(sprites[PART_LEFT_WHEEL], sprites[PART_RIGHT_WHEEL], goesLeft ? -1 : 1);
		stillFrames                               = 0;
		int side                                  = goesLeft ? FLAME_RIGHT : FLAME_LEFT;
		parts->flameTimer[FLAME_SIDES - 1 - side] = FLAME_HOLD;
		parts->flameTimer[side]                   = 0;
		PushFlame(side);
	}
	previousX = anchorX;
	BurnFlame(FLAME_LEFT);
	BurnFlame(FLAME_RIGHT);
	MatchFlames();
}

void CPaddle::ChooseFlames()
{
	if (previousX == -1)
		previousX = anchorX;
	if (slowFlames && std::abs(previousX - anchorX) > FAST_MOVE)
		slowFlames = false;
	else if (!slowFlames && leftFlame == FLAME_OFF && rightFlame == FLAME_OFF)
		slowFlames = true;
}

void CPaddle::HideFlame(int side)
{
	for (int i = FlamePart(side, 0, 0); i < FlamePart(side + 1, 0, 0); i++)
		parts->sprites[i]->Hide();
}

void CPaddle::PushFlame(int side)
{
	FlameState& state = StateOf(side);
	CSprite* start    = ShownFlame(side, PHASE_START);
	if (state == FLAME_OFF || state == FLAME_GOING_OUT) {
		HideFlame(side);
		start->Show();
		if (state == FLAME_OFF)
			start->Rewind();
		start->Forward();
		state = FLAME_STARTING;
	} else if (state == FLAME_STARTING && start->IsAtLastFrameEnd()) {
		HideFlame(side);
		CSprite* loop = ShownFlame(side, PHASE_LOOP);
		loop->Show();
		loop->Rewind();
		loop->Forward();
		state = FLAME_LOOPING;
	}
}

// Without a push the flame goes back the way it came.
void CPaddle::BurnFlame(int side)
{
	FlameState& state = StateOf(side);
	if (state == FLAME_OFF || ++parts->flameTimer[side] <= FLAME_HOLD)
		return;
	CSprite* start = ShownFlame(side, PHASE_START);
	if (state == FLAME_GOING_OUT) {
		if (start->IsAtFirstFrameEnd() || start->IsHidden()) {
			HideFlame(side);
			state = FLAME_OFF;
		}
		return;
	}
	HideFlame(side);
	start->Show();
	if (state != FLAME_STARTING)
		start->GoToLast();
	start->Backward();
	state = FLAME_GOING_OUT;
}

// Fast and slow flames burn in step, so that one can take over from the other at any moment.
void CPaddle::MatchFlames()
{
	for (int side = 0; side < FLAME_SIDES; side++) {
		for (int phase = 0; phase < FLAME_PHASES; phase++) {
			CSprite* wanted = ShownFlame(side, phase);
			CSprite* twin =
			    parts->sprites[FlamePart(side, slowFlames ? FLAMES_FAST : FLAMES_SLOW, phase)];
			CSprite* shown   = twin->IsHidden() ? wanted : twin;
			CSprite* other   = twin->IsHidden() ? twin : wanted;
			other->frame     = shown->frame;
			other->tick      = shown->tick;
			other->direction = shown->direction;
			if (!twin->IsHidden()) {
				twin->Hide();
				wanted->Show();
			}
		}
	}
}
