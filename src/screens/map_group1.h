// The close-up of the western islands.
#pragma once

#include "screens/map_group.h"

#include "field/bobber.h"

// Levels 1 to 61. A player who has not finished level 1 is told by a box and a bouncing arrow what
// to press.
class CControllerMapGroup1 : public CControllerMapGroup
{
public:
	CControllerMapGroup1();
	~CControllerMapGroup1() override;

	void BuildScreen(bool firstTime) override;
	void ClearScreen(bool all) override;
	void StepHelpArrow() override;
	const char* Name() const override { return "CControllerMapGroup1"; }

	CSprite* helpArrow = nullptr; // of the pictures; null without help
	CSprite* helpBox   = nullptr; // likewise

private:
	void BuildHelp();

	CBobber helpBob;
};
