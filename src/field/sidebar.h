// The panel at the right of the field, and the play's counters and power-up clocks.
#pragma once

#include "field/element.h"

#include <deque>

class CBobber;
class CSound;

const int POWERUP_TIMERS = 16;
const int LIVES_AT_START = 4;
const int UNTIL_USED_UP  = 1000000; // frames: a timer that ends otherwise

enum PowerupTimer {
	TIMER_DOUBLE,
	TIMER_TRIPLE,
	TIMER_QUADRUPLE,
	TIMER_BARRIER,
	TIMER_BULLDOZER,
	TIMER_DESTRUCTO,
	TIMER_FAST,
	TIMER_GRAVITY,
	TIMER_GROW,
	TIMER_WIDE,
	TIMER_LIFE,
	TIMER_RAIN,
	TIMER_SHRINK,
	TIMER_SLOW,
	TIMER_STICKY,
	TIMER_FANS,
};

// Counters of the play that survive from level to level within a run. The profile's file stores
// money, lives and the spare counter from here.
struct PlayCounters {
	int lives           = LIVES_AT_START; // balls left besides the one in play
	bool gameOver       = false;
	int readyTimer      = -1; // frames left of the lost-ball message
	int extraLifeTimer  = -1; // frames left of the extra-life message
	int levelScore      = 0;
	int money           = 0;
	int animalsSaved    = 0;
	int animalsToRescue = 0;
	int spareCounter    = 0;
};

extern PlayCounters g_play;

// Sets the score and tests the three score trophies.
void SetPlayScore(int score);

// Draws the panel and runs the rules that have no better home: the lost ball, the stuck ball, the
// sixteen power-up timers. One a level, made by the level runner; the counters are in g_play.
class CSidebar : public CElementNoMove
{
public:
	CSidebar();
	~CSidebar() override;

	void Place() override;
	void Update() override;
	const char* ClassName() const override { return "CSidebar"; }

	// Scores. All show a flyaway where they say.
	int AddScore(int points); // times the multiplier; returns the amount
	void OnCrateBroken(int atX, int atY);
	void OnFenceBroken(int atX, int atY);
	void OnPointTaken(int atX, int atY);
	void OnSaucerDown(int atX, int atY);
	void OnAlienScore();
	void OnAnimalScore(int weight);
	void OnCollect(int kind); // something went into the ball, or a coin was taken
	void OnPowerupCaught(int kind);
	int GetMultiplier() const;

	void ClearCombo() { comboCount = 0; }
	void SetFanHeld(bool on) { fanHeld = on; } // the right button
	void SetUnlimitedFans();
	void SetBonusLevel(bool on) { bonusLevel = on; } // a lost ball costs no life
	void ClearBarrierTimer();
	void ClearDestructoTimer();
	bool IsFastRunning() const { return timers[TIMER_FAST] > 0; }
	bool IsSlowRunning() const { return timers[TIMER_SLOW] > 0; }
	void ShowTrophySign();
	void GiveLivesBack(); // for a continued game
	void GiveExtraLife(); // one more, with its message

	int timers[POWERUP_TIMERS] = {}; // frames left, 0 when off
	int comboCount             = 0;  // animals since the last touch of paddle or barrier
	bool fanHeld               = false;
	bool fanRunning            = false;
	int fanCharge              = 1000; // 0 to 1000
	bool bonusLevel            = false;
	bool alienCaught           = false; // read and cleared by the level runner
	std::deque<int> portraitQueue;      // portrait numbers waiting for the door
	std::deque<int> powerupQueue;       // timer indices waiting for the door

	int portraitHold = 0, powerupHold = 0; // frames that what shows still stays
	bool firstFrame = true;
	int stuckClock = -1, stuckStrikes = 0; // the clock in frames, -1 before the first sample
	float stuckX = 0, stuckY = 0;          // the ball at the last sample

	struct Panel; // sprites, doors, drums and signs
	Panel* panel; // owned

private:
	void StepPortraits();
	void StepDiscs();
	void StepFan();
	void StartFan();
	void StopFan();
	void CheckBallLost();
	void LoseBall();
	void CheckBallAbove();
	void CheckBallStuck();
	void RunDrums();
	void StepTimerEnds();
	void EndPowerup(int timer);
	void OnCombo();
	void ScoreAt(int points, int atX, int atY);
};

extern CSidebar* g_sidebar; // null outside a level

// Portrait number of a kind of animal or egg, -1 for what has none.
int PortraitOfKind(int kind);
