// A player: keeps the paddle under the ball, aims at what is left, lets the ball go.
#pragma once

class CElement;

// Plays by the same means as a person: it looks at the field and moves the mouse. It draws no
// random number of the game's, so that a run with it repeats.
class CBot
{
public:
	void Reset();
	// What to do before the coming frame. Returns true when there is a running level to play.
	bool Think();

	int mouseX      = 400;   // where the pointer should be, pixels of the window
	bool buttonDown = false; // the left button

private:
	void ThinkHeld();
	void ThinkFlight();
	CElement* ChooseTarget() const;
	float LandingX() const;
	float BumperOffsetFor(float fromX, const CElement* target) const;
	void DrivePaddleTo(float anchor);
	float AnchorForPrize(bool& found) const;

	int frames      = 0; // since Reset
	int heldFrames  = 0; // the ball has sat on the paddle for so long
	int turn        = 0; // changes with each bounce, so that no aim repeats for ever
	bool wasFalling = false;
};
