// The climbers that are plain tables: koala, raccoon and squirrel.
#pragma once

#include "animals/tree_climber.h"

#define CLIMBING_SPECIES(className)                                                                \
	class className : public CElementTreeClimber                                                   \
	{                                                                                              \
	public:                                                                                        \
		className(int centreX, int centreY, bool left); /* on the ground */                        \
		className(CTree* tree, bool left);              /* in its crown */                         \
		const char* ClassName() const override { return #className; }                              \
                                                                                                   \
	private:                                                                                       \
		void Build();                                                                              \
	}

CLIMBING_SPECIES(CKoala);
CLIMBING_SPECIES(CRaccoon);
CLIMBING_SPECIES(CSquirrel);

#undef CLIMBING_SPECIES
