// The energy shield across the bottom of the field.
#include "field/barrier.h"

#include "field/ball.h"
#include "field/ball_physics.h"
#include "field/sidebar.h"
#include "frame/random.h"
#include "media/display.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <cmath>
#include <string>

static const int DEPTH              = 617;
static const int MAIN_LOOP_START    = 15; // picture
static const int RISE_FRAMES        = 7;
static const float PULSE_SPEED      = 7;  // pixels per frame
static const float PULSE_TURN_LEFT  = 40; // pixels; beyond these the pulse is slowed and turned
static const float PULSE_TURN_RIGHT = 653;
static const float PULSE_TURN       = 0.55f; // pixels per frame, each frame
static const int BUMP_STEPS         = 7;
static const int AT_REST            = -1; // bump step

// The shift in pixels at each step of a bump, from step 1.
static const int s_bumpOffset[BUMP_STEPS + 1] = {0, 3, 4, 3, 0, -2, -1, 0};

CBarrier* g_barrier = nullptr;

// However many pictures there are from 0 on.
static CSprite* MakeRun(const char* stem)
{
	CSprite* sprite = new CSprite(DEPTH, 1);
	for (int i = 0;; i++) {
		std::string name = stem + std::to_string(i) + ".png";
		if (i > 0 && !g_display->HasImage(name))
			break;
		sprite->AddFile(name);
	}
	sprite->Stop();
	sprite->Hide();
	return sprite;
}

CBarrier::CBarrier(CBall* newBall) : ball(newBall)
{
	g_barrier  = this;
	mainSprite = new CSprite(DEPTH, 1);
	mainSprite->AddSequence("barriermain", 0, 17, ".png");
	mainSprite->AddSequence("barriermain", 16, 15, ".png");
	mainSprite->SetLoopStart(MAIN_LOOP_START);
	mainSprite->Stop();
	mainSprite->Hide();
	topSprite = MakeRun("barriertop");
	topSprite->SetStopAtEnd();
	pulseLeft      = MakeRun("barrierpulseleft");
	pulseRight     = MakeRun("barrierpulseright");
	appearSound    = new CSound("energy_shield_appear.ogg");
	disappearSound = new CSound("energy_shield_disappear.ogg");
	PlaceSprites();
}

CBarrier::~CBarrier()
{
	for (CSprite* sprite : {mainSprite, topSprite, pulseLeft, pulseRight})
		delete sprite;
	delete appearSound;
	delete disappearSound;
	if (g_barrier == this)
		g_barrier = nullptr;
}

int CBarrier::FloorLine() const
{
	return SCREEN_HEIGHT - mainSprite->Height();
}

void CBarrier::Raise(int atX)
{
	if ((up || rising) && !lowering)
		return;
	up = lowering = false;
	rising        = true;
	risingFrames  = 0;
	topSprite->Rewind();
	topSprite->Forward();
	topSprite->Show();
	pulseX     = static_cast<float>(atX);
	pulseSpeed = Coin() ? PULSE_SPEED : -PULSE_SPEED;
	for (CSprite* pulse : {pulseLeft, pulseRight}) {
		pulse->Hide();
		pulse->stopAtEnd = false;
	}
	pulseRight->Rewind();
	pulseRight->Forward();
	pulseLeft->GoToLast();
	pulseLeft->Forward();
	float floor = static_cast<float>(FloorLine());
	AddObstacleLine(this, FIELD_WALL_LEFT, floor, FIELD_WALL_RIGHT, floor);
}

void CBarrier::Update()
{
	if (rising && ++risingFrames > RISE_FRAMES) {
		mainSprite->stopAtEnd = false;
		mainSprite->Rewind();
		mainSprite->Forward();
		mainSprite->Show();
		up     = true;
		rising = false;
		appearSound->Play();
	}
	if (up && !lowering)
		RunPulse();
	AdvanceBump();
	PlaceSprites();
	if (lowering && topSprite->IsStopped() && mainSprite->IsStopped())
		GoneDown();
}

void CBarrier::RunPulse()
{
	pulseX += pulseSpeed;
	if (pulseX < PULSE_TURN_LEFT)
		pulseSpeed += PULSE_TURN;
	else if (pulseX > PULSE_TURN_RIGHT)
		pulseSpeed -= PULSE_TURN;
	else
		pulseSpeed = pulseSpeed > 0 ? PULSE_SPEED : -PULSE_SPEED;

	if (pulseX < FIELD_WALL_LEFT) {
		pulseX     = FIELD_WALL_LEFT;
		pulseSpeed = std::fabs(pulseSpeed);
	} else if (pulseX > FIELD_WALL_RIGHT) {
		pulseX     = FIELD_WALL_RIGHT;
		pulseSpeed = -std::fabs(pulseSpeed);
	}
	bool right = pulseSpeed > 0;
	(right ? pulseRight : pulseLeft)->Show();
	(right ? pulseLeft : pulseRight)->Hide();
}

void CBarrier::AdvanceBump()
{
	if (bumpStep == AT_REST)
		return;
	bumpStep   = bumpStep < BUMP_STEPS ? bumpStep + 1 : AT_REST;
	bumpOffset = bumpStep == AT_REST ? 0 : s_bumpOffset[bumpStep];
}

void CBarrier::PlaceSprites()
{
	int floor = FloorLine();
	mainSprite->SetPos(0, floor + bumpOffset);
	topSprite->SetPos(0, floor + bumpOffset);
	int middle = floor + mainSprite->Height() / 2 + bumpOffset;
	for (CSprite* pulse : {pulseLeft, pulseRight}) {
		pulse->SetPos(static_cast<int>(pulseX) - pulse->Width() / 2, middle - pulse->Height() / 2);
	}
}

bool CBarrier::OnBallHit()
{
	bool kids = LevelGameData()->IsKidsMode();
	if (!kids && !disappearSound->IsPlaying())
		disappearSound->Play();
	bumpStep   = 1;
	bumpOffset = s_bumpOffset[bumpStep];
	if (!kids || !LevelGameData()->KidsBarrierOn())
		Lower();
	if (g_sidebar)
		g_sidebar->ClearCombo();
	return false;
}

// The shield is open to the ball at once; the pictures run back and hide.
void CBarrier::Lower()
{
	if (!up || lowering)
		return;
	lowering = true;
	RemoveObstaclePoints(this);
	pulseX = ball->x;
	pulseLeft->Show();
	pulseRight->Show();
	for (CSprite* sprite : {mainSprite, topSprite, pulseLeft, pulseRight}) {
		sprite->SetStopAtEnd();
		sprite->Backward();
	}
}

void CBarrier::GoneDown()
{
	up = lowering = false;
	for (CSprite* sprite : {mainSprite, topSprite, pulseLeft, pulseRight})
		sprite->Hide();
	if (g_sidebar)
		g_sidebar->ClearBarrierTimer();
}
