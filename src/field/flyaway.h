// The rising number that shows a score or a sum of money.
#pragma once

#include "field/element.h"

#include <string>

class CBobber;

// Plays its digits once, from the left, and then just stays hidden until ClearField.
class CFlyaway : public CElement
{
public:
	static const int MOST_DIGITS = 8;
	static const int AT_BALL     = -1; // for x and y: at the ball, or (0, 0) without one

	CFlyaway(int value, bool dollar, bool onPaddle, int atX, int atY, bool newOverSidebar);
	~CFlyaway() override;

	void Place() override {}
	void Update() override;
	const char* ClassName() const override { return "CFlyaway"; }

	int number;
	bool overSidebar;
	int digits = 0;                    // the dollar sign counts
	int age    = 0;                    // frames
	int startX = 0;                    // of the leftmost digit
	CSprite* sprites[MOST_DIGITS + 1]; // owned, from the left
	CBobber* bobber;                   // owned

private:
	void AddSprite(const std::string& stem);
	void LoadDigits(bool dollar);
	void MoveDigit(int i, int bobX);
};
