// What all hopping species have in common.
#include "art/animals/hoppers.h"

Species HopperSpecies(const char* prefix, float width, Hopper (*shape)())
{
	Species s;
	s.prefix = prefix;
	s.width  = width;
	s.build  = [shape](Model& model, const View& view, const Pose& pose) {
        AddHopper(model, shape(), view, pose);
	};
	return s;
}

Poses Hop(Heading heading)
{
	Poses list(HOP_KEYS);
	for (int i = 0; i < HOP_KEYS; i++) {
		list[i].hop     = i / (float)HOP_KEYS;
		list[i].heading = heading;
	}
	return list;
}
