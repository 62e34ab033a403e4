// The species that call in one of two ways when the ball is too small: cow, moose and pig.
#pragma once

#include "animals/animal.h"

// Before each touch a coin decides which of the two calls the bump would have.
class CTwoVoiced : public CElementAnimal
{
public:
	bool OnBallHit() override;

protected:
	void LoadVoices(const char* first, const char* second); // in place of LoadCall

private:
	CSound* voices[2]; // owned as all sounds of an animal
};

#define TWO_VOICED_SPECIES(className)                                                              \
	class className : public CTwoVoiced                                                            \
	{                                                                                              \
	public:                                                                                        \
		className(int centreX, int centreY, bool left);                                            \
		const char* ClassName() const override { return #className; }                              \
	}

TWO_VOICED_SPECIES(CCow);
TWO_VOICED_SPECIES(CMoose);
TWO_VOICED_SPECIES(CPig);

#undef TWO_VOICED_SPECIES
