// A map to walk about in: a root above it, progress made to order, keys and the pointer.
#pragma once

#include "media/fake_controller.h"
#include "screens/map_group.h"
#include "support/field_test.h"

#include <SDL.h>
#include <memory>

class CControllerMap;

class MapTest : public FieldTest
{
protected:
	void SetUp() override;
	void TearDown() override;

	void Finish(int first, int last); // levels, in this run and ever; opens the islands too
	void OpenMap(int goToCurrentGroup);
	CControllerMapGroup* OpenGroup(IslandGroup group); // from the overview
	void Frames(int count = 1);                        // a level stands still in them
	void Key(SDLKey key);                              // released, and a frame
	void Point(int x, int y);
	void Click(); // pressed and released where the pointer stands
	std::string Screen() const { return g_currentController->Name(); }
	CControllerMapGroup* Group() const; // the current screen; null when it is another
	void AnswerDialog(int button);      // 0 the first
	void EndLevel(int lastFinished);    // of the level runner that is current
	void ExpectLevel(int started);      // the level runner is current
	void ExpectDialog(int kind);

	CFakeController root;
	std::unique_ptr<CControllerMap> map;
};
