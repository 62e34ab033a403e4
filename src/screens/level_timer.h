// The clock of a level with a time limit, and the sign that shows when the time is up.
#pragma once

class CBobber;
class CSprite;

// Drops in from above when a level sets it, runs once the greeting has gone and the ball has been
// let go, and shows minutes and seconds.
class CLevelTimer
{
public:
	CLevelTimer();
	~CLevelTimer();

	void Reset(); // hidden, for a level without a limit
	void Set(int seconds, bool newHeld);
	void Run() { running = true; }   // the go sign has come
	void Release() { held = false; } // the ball has been let go
	void Step(bool levelOver);       // once a frame
	bool IsVisible() const;
	bool IsUp() const { return IsVisible() && timeLeft < 1; }
	int SecondsLeft() const;

	int timeLeft = 0;     // frames
	bool held    = false; // stands still until the ball is let go

private:
	void CountDown();
	void SlideIn();
	void ShowDigits();
	void StepTimeUp();

	bool sliding = false, running = false;
	float y = 0, slideSpeed = 0; // pixels, pixels per frame
	CSprite* frame;              // owned, as are all below
	CSprite* colon;
	CSprite* digits[3][10]; // minutes, tens, ones; a sprite a value
	CSprite* timeUp;
	CBobber* timeUpWave = nullptr;
};
