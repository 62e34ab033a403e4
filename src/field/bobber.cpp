// A small oscillator for what hovers, bobs or pulses, on the field and on screens.
#include "field/bobber.h"

#include <cmath>
#include <cstdlib>

CBobber::CBobber(float newCentre, int newHalfSwing, float newCurve, float newAmplitude, int start)
    : centre(newCentre), halfSwing(newHalfSwing), curve(newCurve), amplitude(newAmplitude)
{
	int rest = start % halfSwing;
	switch (start / halfSwing % 4) {
	case 1:
		phase     = halfSwing - rest;
		direction = -1;
		break;
	case 2:
		phase     = -rest;
		direction = -1;
		break;
	case 3:
		phase     = rest - halfSwing;
		direction = 1;
		break;
	default:
		phase     = rest;
		direction = 1;
		break;
	}
}

void CBobber::Step()
{
	phase += direction;
	if (phase >= halfSwing)
		direction = -1;
	else if (phase <= -halfSwing)
		direction = 1;

	float part = static_cast<float>(std::abs(phase)) / static_cast<float>(halfSwing);
	offset     = (1 - std::pow(part, curve)) * amplitude;
	if (direction < 0)
		offset = -offset;
}

int CBobber::Value() const
{
	return static_cast<int>(offset + centre);
}

int CBobber::StepValue()
{
	Step();
	return Value();
}
