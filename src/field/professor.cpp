// The professor at the wheel: his pose follows the flames.
#include "field/paddle_parts.h"

#include "media/sprite.h"

static bool IsPlaying(const CSprite* sprite)
{
	return !sprite->IsHidden() && !sprite->IsStopped();
}

void CPaddle::ShowMove(int move, int frame)
{
	CSprite* sprite = parts->sprites[move];
	sprite->SetFrame(frame);
	sprite->Stop();
	sprite->Show();
}

void CPaddle::UpdateProfessor()
{
	for (int i = PART_PROFESSOR; i <= MOVE_RIGHT_LEFT_FAST; i++)
		parts->sprites[i]->Hide();
	if (!ShowTurn(FLAMES_FAST) && !ShowTurn(FLAMES_SLOW)) {
		ShowDrive(FLAME_LEFT);
		ShowDrive(FLAME_RIGHT);
	}
	for (int i = MOVE_LEFT_SLOW; i <= MOVE_RIGHT_LEFT_FAST; i++) {
		if (!parts->sprites[i]->IsHidden())
			return;
	}
	parts->sprites[PART_PROFESSOR]->Show();
}

// One flame starts while the other goes out: he changes direction.
bool CPaddle::ShowTurn(int flameSet)
{
	const CSprite* left  = parts->sprites[FlamePart(FLAME_LEFT, flameSet, PHASE_START)];
	const CSprite* right = parts->sprites[FlamePart(FLAME_RIGHT, flameSet, PHASE_START)];
	if (!IsPlaying(left) || !IsPlaying(right))
		return false;
	bool toLeft = right->direction > 0;
	int frame   = toLeft ? left->Frame() : right->Frame();
	if (flameSet == FLAMES_SLOW)
		ShowMove(MOVE_LEFT_RIGHT_SLOW, frame);
	else
		ShowMove(toLeft ? MOVE_LEFT_RIGHT_FAST : MOVE_RIGHT_LEFT_FAST, frame);
	return true;
}

void CPaddle::ShowDrive(int side)
{
	bool right = side == FLAME_LEFT; // the left flame pushes to the right
	int fast   = right ? MOVE_RIGHT_FAST : MOVE_LEFT_FAST;
	int slow   = right ? MOVE_RIGHT_SLOW : MOVE_LEFT_SLOW;
	int last   = parts->sprites[fast]->FrameCount() - 1;

	const CSprite* fastStart = parts->sprites[FlamePart(side, FLAMES_FAST, PHASE_START)];
	const CSprite* slowStart = parts->sprites[FlamePart(side, FLAMES_SLOW, PHASE_START)];
	if (IsPlaying(parts->sprites[FlamePart(side, FLAMES_FAST, PHASE_LOOP)]))
		ShowMove(fast, last);
	if (IsPlaying(parts->sprites[FlamePart(side, FLAMES_SLOW, PHASE_LOOP)]))
		ShowMove(slow, last);
	if (IsPlaying(fastStart) && fastStart->direction > 0)
		ShowMove(fast, fastStart->Frame());
	else if (IsPlaying(fastStart))
		ShowMove(right ? MOVE_RIGHT_RECOIL : MOVE_LEFT_RECOIL, fastStart->FramesFromEnd());
	if (IsPlaying(slowStart))
		ShowMove(slow, slowStart->Frame());
}
