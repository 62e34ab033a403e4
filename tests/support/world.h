// The program's services as start-up makes them, for tests that need pictures and a field.
#pragma once

#include "frame/clock.h"
#include "support/temp_folder.h"

#include <memory>

class CCursor;
class CDisplay;
class CGameData;
class CInput;
class CRenderManager;

// Dummy video, a virtual clock, a save folder of its own, and the forge's data folder
// (QUORBLET_DATA in the environment, else the build's own) as working directory.
class CWorld
{
public:
	CWorld();
	~CWorld();

	CTempFolder home;
	CVirtualClock clock;
	std::unique_ptr<CGameData> data;
	std::unique_ptr<CInput> input;
	std::unique_ptr<CDisplay> display;
	std::unique_ptr<CRenderManager> render;
	std::unique_ptr<CCursor> cursor;

private:
	CClock* clockBefore;
};
