// A counter of the side panel: rows of digits that roll to their value.
#pragma once

class CSprite;

// Shows its value in twentieths of a step, so that the units roll smoothly. Owned by the panel.
class CScoreDrum
{
public:
	static constexpr int MOST_DIGITS = 7;
	static const int TWENTIETHS      = 20; // of a step, and the height of a digit in pixels

	// strip is a picture of digits below each other; the leftmost digit stands at x, y.
	CScoreDrum(const char* strip, int newDigits, int x, int y);
	~CScoreDrum();
	CScoreDrum(const CScoreDrum&)            = delete;
	CScoreDrum& operator=(const CScoreDrum&) = delete;

	void Run(int value);                       // one frame toward the value
	void SetShown(int newShown);               // at once; twentieths
	static int StripRow(int shown, int place); // y in the strip; place 0 is the units

	int digits;
	int shown = 0;                 // twentieths
	int speed = 0;                 // twentieths per frame
	CSprite* sprites[MOST_DIGITS]; // owned, from the left
};
