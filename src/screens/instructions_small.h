// The hint page before a level.
#pragma once

#include "screens/screen.h"

class CCard;
class CGuiButton;

// Mouse and keys in one small picture. Any key closes it.
class CControllerInstructionsSmall : public CScreen
{
public:
	CControllerInstructionsSmall();
	~CControllerInstructionsSmall() override;

	void OnKey(bool released, int key) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerInstructionsSmall"; }

private:
	void Build() override;
	void TearDown() override;

	CCard* card      = nullptr; // owned
	CGuiButton* okay = nullptr; // owned
};
