// The close-up of the southern islands.
#pragma once

#include "screens/map_group.h"

// Levels 62 to 117, between the two others.
class CControllerMapGroup2 : public CControllerMapGroup
{
public:
	CControllerMapGroup2();
	~CControllerMapGroup2() override;

	void BuildScreen(bool firstTime) override;
	const char* Name() const override { return "CControllerMapGroup2"; }
};
