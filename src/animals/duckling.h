// Duckling: follows its duck.
#pragma once

#include "animals/animal.h"

class CDuck;

// Walks toward its duck, nearly all the time. Once the duck is caught it goes on to where she was.
class CDuckling : public CElementAnimal
{
public:
	CDuckling(int centreX, int centreY, CDuck* duck); // duck not owned; null: it roams

	const char* ClassName() const override { return "CDuckling"; }

private:
	void Follow(CDuck* duck); // from now on, and facing it
};
