// The triangle of a bent limb.
#include "art/animals/limbs.h"

static const float STRETCH = .999f; // a limb is never quite straight

Vec3 KneeOf(Vec3 joint, Vec3 end, float reach, Vec3 bend)
{
	float distance = std::min(Length(end - joint), reach * STRETCH);
	Vec3 along     = Normalize(end - joint);
	float out      = std::sqrt(std::max(0.f, (reach * reach - distance * distance) * .25f));
	Vec3 aside     = Normalize(bend - along * Dot(bend, along));
	return joint + along * (distance * .5f) + aside * out;
}
