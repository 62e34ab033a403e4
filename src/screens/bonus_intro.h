// The title card of a bonus level: what it asks for, and how the bonus is won.
#pragma once

#include "screens/screen.h"

class CCard;
class CGuiButton;

class CControllerBonusIntro : public CScreen
{
public:
	explicit CControllerBonusIntro(int newLevel); // 1 to 182, a bonus level
	~CControllerBonusIntro() override;

	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerBonusIntro"; }

private:
	void Build() override;
	void TearDown() override;
	void OnOtherKey(bool released, int key) override;
	void DrawFrame();
	void DrawTexts();
	void DrawStampede();
	void DrawHarvest();
	void DrawEggs();

	int level;
	CCard* card        = nullptr; // owned
	CGuiButton* button = nullptr; // owned
};
