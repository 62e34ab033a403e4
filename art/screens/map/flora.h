// Which growth belongs to which country.
#pragma once

#include "art/screens/map/growth.h"
#include "art/screens/map/isles.h"

// What grows in a country, common things several times; and how likely a free place is taken, 0..1.
struct Flora {
	std::vector<Growth> kinds;
	float density;
};
const Flora& FloraOf(Land land);
