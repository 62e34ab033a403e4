// A field for animals: sprites that play, walls around, and an animal with any table.
#include "animals/animal_test_support.h"

#include "frame/random.h"
#include "media/render_manager.h"
#include "media/sprite.h"

void AnimalTest::StepSprites()
{
	for (CSprite* sprite : g_render->sprites)
		sprite->Step();
}

void AnimalTest::Run(int frames)
{
	for (int i = 0; i < frames; i++) {
		FieldTick();
		StepSprites();
		g_render->dirtyRects.clear();
	}
}

CElement* AnimalTest::WallIn(float top)
{
	CElement* scenery = new CTestScenery;
	AddObstaclePoint(scenery, 0, 600);
	AddObstacleLine(scenery, 0, 600, 0, top);
	AddObstacleLine(scenery, 0, top, 693, top);
	AddObstacleLine(scenery, 693, top, 693, 600);
	return scenery;
}

CElement* AnimalTest::ScatterPoints(int count)
{
	CElement* scenery = new CTestScenery;
	for (int i = 0; i < count; i++) {
		float pointX = RandomRange(0, 693);
		float pointY = RandomRange(40, 480);
		AddObstaclePoint(scenery, pointX, pointY);
	}
	return scenery;
}

CTestAnimal::CTestAnimal(const SpeciesTable& itsTable, int centreX, int centreY, bool left)
{
	species       = 35;
	bodyRadius    = 10;
	weight        = 3;
	requiredStage = 5;
	speedX        = 2;
	speedY        = 1;
	mayTurn       = true;
	BuildActions(itsTable);
	PlaceAt(centreX, centreY, left);
}

AnimalAction* ActionNamed(const CElementAnimal* animal, const std::string& name)
{
	for (AnimalAction* action : animal->actions) {
		if (action->name == name)
			return action;
	}
	ADD_FAILURE() << "no action " << name;
	return nullptr;
}
