// The panel's rules: power-up clocks, lost and stuck balls, the fan, the queues at its doors.
#include "field/sidebar.h"

#include "animals/animal.h"
#include "field/ball.h"
#include "field/paddle.h"
#include "field/sidebar_panel.h"
#include "media/sprite.h"
#include "sound/sound.h"
#include "state/game_data.h"

#include <algorithm>
#include <cmath>

static const int HOLD_FRAMES      = 30;
static const int FIELD_BOTTOM     = 600; // pixels
static const int FAN_FULL         = 1000;
static const int FAN_REFILL       = 2;      // charge per frame
static const int FAN_COST         = 17;     // charge per frame
static const int UNLIMITED_FANS   = 999999; // frames
static const int STUCK_FRAMES     = 30;     // from sample to sample
static const float STUCK_DISTANCE = 60;     // pixels
static const int STUCK_STRIKES    = 15;

PlayCounters g_play;
CSidebar* g_sidebar = nullptr;

CSidebar::CSidebar() : panel(new Panel()) {}

CSidebar::~CSidebar()
{
	delete panel;
}

void CSidebar::Update()
{
	for (int& timer : timers)
		timer = std::max(timer - 1, 0);
	g_play.animalsToRescue = CElementAnimal::CountToRescue();
	if (firstFrame)
		panel->animalsToRescue.SetShown(g_play.animalsToRescue * CScoreDrum::TWENTIETHS - 1);
	firstFrame = false;

	StepPortraits();
	StepDiscs();
	panel->portraitDoor.Step();
	panel->discDoor.Step();
	StepFan();
	CheckBallLost();
	CheckBallAbove();
	CheckBallStuck();
	RunDrums();
	panel->extraLifeSign.Step();
	panel->lostBallSign.Step();
	Place();
}

// True when the next of a queue is due behind the door; asks the door to close when it must.
static bool NextIsDue(CPanelDoor& door, bool waiting, int& hold)
{
	if (hold > 0 || !waiting) {
		hold = std::max(hold - 1, 0);
		return false;
	}
	if (door.IsFullyOpen())
		door.AskToClose(true);
	return door.MayChange();
}

void CSidebar::StepPortraits()
{
	if (!NextIsDue(panel->portraitDoor, !portraitQueue.empty(), portraitHold))
		return;
	panel->portraits.ShowPortrait(portraitQueue.front());
	portraitQueue.pop_front();
	portraitHold = HOLD_FRAMES;
	panel->portraitDoor.AskToOpen();
}

void CSidebar::StepDiscs()
{
	if (!NextIsDue(panel->discDoor, !powerupQueue.empty(), powerupHold))
		return;
	panel->discs.ShowDisc(powerupQueue.front());
	powerupQueue.pop_front();
	powerupHold = HOLD_FRAMES;
	panel->discDoor.AskToOpen();
}

void CSidebar::StepFan()
{
	if (!fanHeld) {
		if (fanRunning)
			StopFan();
		fanCharge = std::min(fanCharge + FAN_REFILL, FAN_FULL);
	} else {
		if (!fanRunning)
			StartFan();
		if (timers[TIMER_FANS] == 0)
			fanCharge -= FAN_COST;
		if (fanCharge < 0) {
			StopFan();
			fanCharge = 0;
		}
	}
	if (timers[TIMER_FANS] > 0)
		fanCharge = FAN_FULL;
}

void CSidebar::StartFan()
{
	if (g_paddle)
		g_paddle->FanOn();
	fanRunning = true;
	panel->fan.ShowGlow(true);
}

void CSidebar::StopFan()
{
	if (g_paddle)
		g_paddle->FanOff();
	fanRunning = false;
	panel->fan.ShowGlow(false);
}

void CSidebar::CheckBallLost()
{
	if (!g_ball || !g_paddle || bonusLevel || g_play.gameOver)
		return;
	if (g_ball->y > FIELD_BOTTOM + 2 * g_ball->Radius())
		LoseBall();
}

// The launch preparation gives the base speed, so fast and slow must not be undone once more; all
// other effects end through their timers.
void CSidebar::LoseBall()
{
	if (g_levelGameData) {
		g_levelGameData->FoldSkill();
		g_levelGameData->NotePaddleTouch();
	}
	g_play.lives--;
	if (g_play.lives < 0) {
		g_play.gameOver = true;
		g_play.lives    = 0;
	} else {
		g_play.readyTimer = CLostBallSign::FRAMES;
		panel->ballLost->Play();
		g_paddle->ResetBall();
	}

	for (int timer = 0; timer < POWERUP_TIMERS; timer++) {
		if (timer == TIMER_FAST || timer == TIMER_SLOW)
			timers[timer] = 0;
		else if (timers[timer] > 0)
			timers[timer] = 1;
	}
	powerupQueue.clear();
	g_paddle->UnloadDestructo();
	g_ball->SetSkinNormal();
}

void CSidebar::CheckBallAbove()
{
	if (g_ball && g_paddle && g_ball->y < -2 * g_ball->Radius())
		g_paddle->ResetBall();
}

void CSidebar::CheckBallStuck()
{
	if (!g_ball || !g_paddle)
		return;
	if (stuckClock < 0) {
		stuckClock = STUCK_FRAMES;
		stuckX     = g_ball->x;
		stuckY     = g_ball->y;
	}
	if (fanRunning || g_ball->IsHeld()) {
		stuckStrikes = 0;
		return;
	}
	if (--stuckClock > 0)
		return;
	stuckClock = STUCK_FRAMES;
	if (std::hypot(g_ball->x - stuckX, g_ball->y - stuckY) >= STUCK_DISTANCE) {
		stuckStrikes = 0;
		stuckX       = g_ball->x;
		stuckY       = g_ball->y;
	} else if (++stuckStrikes >= STUCK_STRIKES) {
		g_paddle->ResetBall();
	}
}

void CSidebar::RunDrums()
{
	panel->score.Run(g_play.levelScore);
	panel->money.Run(g_play.money);
	panel->animalsSaved.Run(g_play.animalsSaved);
	panel->animalsToRescue.Run(g_play.animalsToRescue);
}

void CSidebar::Place()
{
	panel->lives.Step(g_play.lives);
	panel->fan.Step(fanCharge, timers[TIMER_FANS] > 0);
	panel->portraitDoor.PlaceParts();
	panel->discDoor.PlaceParts();
	panel->portraits.Step();
	panel->discs.Step();
	StepTimerEnds();
	if (GetMultiplier() > 1)
		panel->scoreGlow->Show();
	else
		panel->scoreGlow->Hide();
	panel->combo.Step();
	panel->trophySign.Step();
}

void CSidebar::StepTimerEnds()
{
	int shown = panel->discs.index;
	if (shown >= 0 && timers[shown] == 0 && powerupQueue.empty()) {
		if (panel->discDoor.IsFullyOpen())
			panel->discDoor.AskToClose(false);
		else if (panel->discDoor.MayChange())
			panel->discs.HideDisc();
	}
	if (!g_ball || !g_paddle)
		return;
	for (int timer = 0; timer < POWERUP_TIMERS; timer++) {
		if (timers[timer] == 1)
			EndPowerup(timer);
	}
}

// The ball keeps a skin while the other skin's timer goes on.
void CSidebar::EndPowerup(int timer)
{
	switch (timer) {
	case TIMER_BULLDOZER:
		if (timers[TIMER_GRAVITY] <= 1)
			g_ball->SetSkinNormal();
		break;
	case TIMER_GRAVITY:
		if (timers[TIMER_BULLDOZER] <= 1)
			g_ball->SetSkinNormal();
		break;
	case TIMER_WIDE:
		g_paddle->EndWide();
		break;
	case TIMER_SHRINK:
		g_paddle->EndFlat();
		break;
	case TIMER_FAST:
		g_ball->SlowDown();
		break;
	case TIMER_SLOW:
		g_ball->SpeedUp();
		break;
	case TIMER_STICKY:
		g_paddle->EndSticky();
		break;
	default: // nothing of theirs outlives the timer
		break;
	}
}

void CSidebar::SetUnlimitedFans()
{
	timers[TIMER_FANS] = UNLIMITED_FANS;
}

void CSidebar::ClearBarrierTimer()
{
	timers[TIMER_BARRIER] = 0;
}

void CSidebar::ClearDestructoTimer()
{
	timers[TIMER_DESTRUCTO] = 0;
}
