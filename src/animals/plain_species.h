// The species that do nothing of their own: a class each, since levels name them.
#pragma once

#include "animals/animal.h"

// Actions, outline and numbers are all that such a species is; they lie in the file of its name.
#define PLAIN_SPECIES(className)                                                                   \
	class className : public CElementAnimal                                                        \
	{                                                                                              \
	public:                                                                                        \
		className(int centreX, int centreY, bool left);                                            \
		const char* ClassName() const override { return #className; }                              \
	}

PLAIN_SPECIES(CBighorn);
PLAIN_SPECIES(CBot);
PLAIN_SPECIES(CCat);
PLAIN_SPECIES(CCoyote);
PLAIN_SPECIES(CDeer);
PLAIN_SPECIES(CDonkey);
PLAIN_SPECIES(CElephant);
PLAIN_SPECIES(CFox);
PLAIN_SPECIES(CGoat);
PLAIN_SPECIES(CGoose);
PLAIN_SPECIES(CHippo);
PLAIN_SPECIES(CHyena);
PLAIN_SPECIES(CKangarooJoey);
PLAIN_SPECIES(CLion);
PLAIN_SPECIES(CLizard);
PLAIN_SPECIES(CMouse);
PLAIN_SPECIES(COstrich);
PLAIN_SPECIES(CPenguin);
PLAIN_SPECIES(CRhino);
PLAIN_SPECIES(CRoadrunner);
PLAIN_SPECIES(CSeal);
PLAIN_SPECIES(CSnowTiger);
PLAIN_SPECIES(CSwan);
PLAIN_SPECIES(CTiger);
PLAIN_SPECIES(CTortoise);
PLAIN_SPECIES(CUnicorn);
PLAIN_SPECIES(CWalrus);
PLAIN_SPECIES(CWarthog);
PLAIN_SPECIES(CWolf);
PLAIN_SPECIES(CZebra);

#undef PLAIN_SPECIES
