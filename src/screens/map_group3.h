// The close-up of the eastern islands.
#pragma once

#include "screens/map_group.h"

// Levels 118 to 182, the last ones.
class CControllerMapGroup3 : public CControllerMapGroup
{
public:
	CControllerMapGroup3();
	~CControllerMapGroup3() override;

	void BuildScreen(bool firstTime) override;
	const char* Name() const override { return "CControllerMapGroup3"; }
};
