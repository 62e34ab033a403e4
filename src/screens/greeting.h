// The greeting of a level: nine letters that wave, then fly off, one after the other.
#pragma once

const int GREETING_LETTERS = 9;

class CBobber;
class CSprite;

// Counts the frames since the level began. The level runner opens play when the letters begin to
// leave, and shows the go sign at GO_AT.
class CGreeting
{
public:
	static const int LEAVE_AT = 46; // frames until the first letter leaves
	static const int GO_AT    = 65; // frames until the go sign and the timer

	CGreeting();
	~CGreeting();

	void Begin(); // from the first frame again
	void Step();  // once a frame while running

	bool running = true;
	int count    = 0; // frames since it began

private:
	void LayOut();
	void StepLetter(int i);

	int baseY = 0;
	CSprite* letters[GREETING_LETTERS]; // owned
	CBobber* bobbers[GREETING_LETTERS]; // owned
};
