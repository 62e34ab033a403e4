// A small oscillator for what hovers, bobs or pulses, on the field and on screens.
#pragma once

// Swings about a centre: slow at the ends for a high curve. One step a frame.
class CBobber
{
public:
	// halfSwing in steps; start is a phase in steps, so that several bobbers need not move alike.
	CBobber(float newCentre, int newHalfSwing, float newCurve, float newAmplitude, int start);

	void Step();
	int Value() const; // centre plus offset, cut toward zero
	int StepValue();   // Step, then Value

	float centre;
	int phase;
	int halfSwing;
	float curve, amplitude;
	int direction; // 1 or -1
	float offset = 0;
};
