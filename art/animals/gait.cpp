// The step of a walking foot.
#include "art/animals/gait.h"

#include "art/core/vec.h"

static const float STANCE = .6f; // part of a stride that a foot stays down

Step StepAt(float phase)
{
	float t = phase - std::floor(phase);
	if (t < STANCE)
		return {1 - 2 * t / STANCE, 0};
	float u = (t - STANCE) / (1 - STANCE);
	return {-1 + 2 * Smoothstep(0, 1, u), std::sin(u * PI)};
}
