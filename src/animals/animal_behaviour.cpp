// The behaviour machine: plays an animal's actions frame by frame and picks the next.
#include "animals/animal.h"

#include "field/element_point.h"
#include "frame/random.h"
#include "media/sprite.h"
#include "sound/sound.h"

#include <algorithm>

static const float GRAVITY         = 0.5f; // pixels per frame per frame
static const float LET_GO_SPEED    = -4;   // a fall faster than this has left the crown
static const int FLUTTER_END_ODDS  = 10;   // one time in so many a flutter ends at a turn
static const int FLUTTER_STOP_ODDS = 6;    // the same when something is in the way

// What changes an animal's action from outside only assigns currentAction: the sprite on screen
// then does not belong, and the action starts here.
void CElementAnimal::AdvanceBehaviour()
{
	if (!currentAction) {
		FinishAction();
		return;
	}
	walkCounter--;
	if (!SpriteFits())
		EnterAction();
	if (RunPhase()) {
		FinishAction();
		return;
	}
	PlayActionSounds();
	WorkFrame();
}

bool CElementAnimal::SpriteFits() const
{
	const AnimalAction& a = *currentAction;
	CSprite* upper        = facingLeft ? a.spriteLeft : a.spriteRight;
	CSprite* lower        = facingLeft ? a.spriteDownLeft : a.spriteDownRight;
	switch (a.phase) {
	case PHASE_ENTRY:
		if (a.IsAirborne())
			return currentSprite == (facingUp ? upper : lower);
		return currentSprite == upper || (a.IsTwoWay() && currentSprite == lower);
	case PHASE_MIDDLE:
		return currentSprite == upper ||
		       currentSprite == (facingLeft ? a.middleLeft : a.middleRight);
	default:
		return currentSprite == (facingLeft ? a.exitLeft : a.exitRight);
	}
}

bool CElementAnimal::PhaseEnded(const FrameSpan& span) const
{
	return span.UntilPicturesEnd() ? currentSprite->IsAtLastFrameEnd() : walkCounter < 1;
}

bool CElementAnimal::RunPhase()
{
	AnimalAction& a = *currentAction;
	switch (a.phase) {
	case PHASE_ENTRY:
		if (!PhaseEnded(a.entry))
			return false;
		if (a.middle.UntilPicturesEnd())
			return ToExit();
		TakePhase(PHASE_MIDDLE, a.middleLeft, a.middleRight, a.middle);
		return false;
	case PHASE_MIDDLE:
		return walkCounter < 1 && ToExit();
	default:
		return PhaseEnded(a.exit);
	}
}

bool CElementAnimal::ToExit()
{
	AnimalAction& a = *currentAction;
	if (!a.exitLeft || !a.exitRight)
		return true;
	TakePhase(PHASE_EXIT, a.exitLeft, a.exitRight, a.exit);
	return false;
}

void CElementAnimal::TakePhase(int phase, CSprite* left, CSprite* right, const FrameSpan& span)
{
	currentAction->phase = phase;
	if (left && right)
		StartSprite(facingLeft ? left : right);
	walkCounter = span.Draw();
}

void CElementAnimal::PlayActionSounds()
{
	AnimalAction& a = *currentAction;
	if (a.sounds[0] && a.soundCountdown == 0 && animalSoundsOn) {
		int count = static_cast<int>(std::find(a.sounds, a.sounds + 4, nullptr) - a.sounds);
		a.sounds[count > 1 ? Rand() % count : 0]->Play();
	}
	if (a.soundCountdown >= 0)
		a.soundCountdown--;
	if (a.extraSound && a.extraSoundCountdown == 0 && animalSoundsOn)
		a.extraSound->Play();
	if (a.extraSoundCountdown >= 0)
		a.extraSoundCountdown--;
}

void CElementAnimal::WorkFrame()
{
	switch (currentAction->kind) {
	case ACTION_WALK:
		WalkFrame();
		break;
	case ACTION_WALK_BOTH:
		WalkBothFrame();
		break;
	case ACTION_FALL:
		FallFrame();
		break;
	case ACTION_CLIMB:
		ClimbFrame();
		break;
	case ACTION_LAY:
		LayFrame();
		break;
	case ACTION_FLIGHT:
		UpdateFlight();
		break;
	case ACTION_FLUTTER:
		FlutterFrame();
		break;
	default:
		break;
	}
}

void CElementAnimal::EndWalkSoon()
{
	currentAction->repeatsLeft = 0;
	walkCounter                = 0;
}

bool CElementAnimal::StepAllowed(bool left, bool up, float stepY) const
{
	return MayMoveTo(CentreX() + (left ? -speedX : speedX), CentreY() + (up ? -stepY : stepY),
	                 false);
}

void CElementAnimal::WalkFrame()
{
	if (currentAction->phase != PHASE_ENTRY)
		return;
	if (StepAllowed(facingLeft, false, 0))
		x += facingLeft ? -speedX : speedX;
	else
		EndWalkSoon();
	SyncBody();
}

void CElementAnimal::WalkBothFrame()
{
	if (currentAction->phase != PHASE_ENTRY)
		return;
	if (StepAllowed(facingLeft, facingUp, speedY)) {
		x += facingLeft ? -speedX : speedX;
		y += facingUp ? -speedY : speedY;
	} else {
		EndWalkSoon();
	}
	SyncBody();

	if (!followTarget || followTarget->dead || !currentSprite)
		return;
	bool left = false, up = false;
	TowardTarget(left, up);
	if (left != facingLeft || up != facingUp)
		currentAction->repeatsLeft = 0; // at its time a new walk starts toward the target
}

void CElementAnimal::TowardTarget(bool& left, bool& up) const
{
	const CSprite* there = followTarget->currentSprite;
	left = there->X() + there->Width() / 2 < currentSprite->X() + currentSprite->Width() / 2;
	up   = there->Y() + there->Height() / 2 < currentSprite->Y() + currentSprite->Height() / 2;
}

// One frame long, and held up until the ground is reached.
void CElementAnimal::FallFrame()
{
	walkCounter++;
	moving = true;
	if (z > 0) {
		z += vz;
		vz -= GRAVITY;
		z = std::max(z, 0.0f);
		if (vz < LET_GO_SPEED) {
			currentSprite->behindFoliage = true;
			OnLanded();
		}
		return;
	}
	OnLanded();
	z = vz      = 0;
	walkCounter = 0;
}

void CElementAnimal::ClimbFrame()
{
	walkCounter++;
	if (currentSprite->Frame() >= riseFromFrame)
		z += speedX;
	if (y - z + static_cast<float>(currentSprite->Height() / 2) >= static_cast<float>(climbTopY))
		return;
	currentSprite->Hide();
	walkCounter = 0;
	climbDepth  = nextTree;
	x           = static_cast<float>(climbReturnX);
	y           = static_cast<float>(climbReturnY);
	z           = static_cast<float>(climbReturnZ);
	ClearBody();
	inTree = true;
}

void CElementAnimal::LayFrame()
{
	if (!active || !currentSprite->IsAtFirstFrameEnd())
		return;
	CElementPoint* egg = facingLeft
	                         ? new CElementPoint(x + 18, y + 13, 0, POINT_EGG_LEFT, 0, 0, 0)
	                         : new CElementPoint(x - 30, y + 13, 0, POINT_EGG_RIGHT, 0, 0, 0);
	AddDependant(egg);
}

void CElementAnimal::FlutterFrame()
{
	flightCounter--;
	if (flightCounter < 1) {
		if (Rand() % FLUTTER_END_ODDS == 0) {
			EndWalkSoon();
		} else {
			facingUp      = Coin();
			facingLeft    = Coin();
			speedX        = RandomRange(0.5f, 1.5f);
			speedY        = RandomRange(0.2f, 0.75f);
			flightCounter = RandomWhole(15, 75);
			StartSprite(EntrySprite());
		}
	}
	if (StepAllowed(facingLeft, facingUp, speedY)) {
		x += facingLeft ? -speedX : speedX;
		y += facingUp ? -speedY : speedY;
	} else if (Rand() % FLUTTER_STOP_ODDS == 0) {
		EndWalkSoon();
	} else {
		flightCounter = 0;
	}
	SyncBody();
}

void CElementAnimal::FinishAction()
{
	if (currentAction) {
		AnimalAction& a = *currentAction;
		if (a.repeatsLeft == -1)
			a.repeatsLeft = a.repeats.Draw();
		if (--a.repeatsLeft > 0) {
			EnterAction();
			return;
		}
		a.repeatsLeft = -1;
		if (a.kind == ACTION_WALK || a.kind == ACTION_WALK_BOTH)
			moving = false;
	}
	currentAction = currentAction ? ChooseNext() : ChooseByWeight();
	if (currentAction->kind == ACTION_WALK)
		DecideDirection();
	else if (currentAction->kind == ACTION_WALK_BOTH)
		DecideBothDirections();
	EnterAction();
}

AnimalAction* CElementAnimal::ChooseNext()
{
	AnimalAction& a = *currentAction;
	if (!a.next1)
		return ChooseByWeight();
	AnimalAction* choices[3] = {a.next1, nullptr, nullptr};
	int count                = 1;
	if (a.next2)
		choices[count++] = a.next2;
	if (a.next3)
		choices[count++] = a.next3;
	return choices[count > 1 ? Rand() % count : 0];
}

AnimalAction* CElementAnimal::ChooseByWeight()
{
	int sum = 0;
	for (const AnimalAction* action : actions)
		sum += action->weight;
	if (sum < 1)
		return actions[0];
	int r = Rand() % sum;
	for (AnimalAction* action : actions) {
		bool skipped = (action->notInTree && inTree) || (action->notPerched && perched);
		if (!skipped && action->weight > r)
			return action;
		r -= action->weight;
	}
	return actions[0]; // what was skipped had used up the draw
}

void CElementAnimal::DecideDirection()
{
	bool left = mayTurn && Coin();
	if (forcedDirection != 0) {
		left            = forcedDirection == 1;
		forcedDirection = 0;
	}
	if (StepAllowed(left, false, 0))
		facingLeft = left;
	else
		currentAction = idleAction;
}

void CElementAnimal::DecideBothDirections()
{
	bool left = false, up = false;
	if (followTarget && currentSprite) {
		TowardTarget(left, up);
	} else if (mayTurn) {
		left = Coin();
		up   = Coin();
	}
	if (forcedDirection != 0) {
		left            = forcedDirection == 1;
		forcedDirection = 0;
	}
	if (StepAllowed(left, up, speedY)) {
		facingLeft = left;
		facingUp   = up;
	} else {
		currentAction = idleAction;
	}
}

CSprite* CElementAnimal::EntrySprite() const
{
	const AnimalAction& a = *currentAction;
	if (a.IsTwoWay() && !facingUp)
		return facingLeft ? a.spriteDownLeft : a.spriteDownRight;
	return facingLeft ? a.spriteLeft : a.spriteRight;
}

void CElementAnimal::EnterAction()
{
	AnimalAction& a = *currentAction;
	a.phase         = PHASE_ENTRY;
	StartSprite(EntrySprite());
	walkCounter           = a.entry.Draw();
	a.soundCountdown      = a.soundDelay;
	a.extraSoundCountdown = a.extraSoundDelay;
}
