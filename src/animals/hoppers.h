// The species that move in hops: rabbit, its two cousins, and frog.
#pragma once

#include "animals/animal.h"

// A hop is a walk in leaps; being bumped is a hop too. The sounds go with its pictures.
class CHopper : public CElementAnimal
{
public:
	CHopper();
	void Update() override;

protected:
	int jumpPicture = 1, landingPicture = 2; // of the hop, where its two sounds start

private:
	CSound* jump;    // owned as all sounds of an animal
	CSound* landing; // the same
};

#define HOPPING_SPECIES(className)                                                                 \
	class className : public CHopper                                                               \
	{                                                                                              \
	public:                                                                                        \
		className(int centreX, int centreY, bool left);                                            \
		const char* ClassName() const override { return #className; }                              \
	}

HOPPING_SPECIES(CJackrabbit);
HOPPING_SPECIES(CRabbit);
HOPPING_SPECIES(CSnowshoeHare);

#undef HOPPING_SPECIES
