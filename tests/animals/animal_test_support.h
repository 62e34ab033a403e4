// A field for animals: sprites that play, walls around, and an animal with any table.
#pragma once

#include "animals/animal.h"
#include "animals/species.h"
#include "support/field_test.h"

class AnimalTest : public FieldTest
{
protected:
	// Ticks of the field with the sprites stepped in between, as in play but without painting.
	void Run(int frames = 1);
	// A closed outline at the upper edge and both sides, owned by a scenery element.
	CElement* WallIn(float top = 40);
	// Single points scattered over the field, all owned by one scenery element.
	CElement* ScatterPoints(int count);
	static void StepSprites();
};

// Stands for whatever owns an outline and is no animal.
class CTestScenery : public CElementNoMove
{
public:
	void Place() override {}
	void Update() override {}
	const char* ClassName() const override { return "CTestScenery"; }
};

// An animal of the table it is given; radius 10, stage 5, speed 2 and 1.
class CTestAnimal : public CElementAnimal
{
public:
	CTestAnimal(const SpeciesTable& itsTable, int centreX, int centreY, bool left = true);
	const char* ClassName() const override { return "CTestAnimal"; }
	void OnLanded() override { landings++; }

	using CElementAnimal::FlyAsPerchingBird;
	using CElementAnimal::PlaceOn;
	int landings = 0;
};

// The row's action by its name in the table.
AnimalAction* ActionNamed(const CElementAnimal* animal, const std::string& name);
