// The front door of the game.
#pragma once

#include "frame/controller.h"

class CControllerGame;
class CGuiButton;
class CSprite;

// One picture and one button, Play, which starts the first level that is not done.
class CControllerMain : public CController
{
public:
	CControllerMain();
	~CControllerMain() override;

	void Enter() override;
	void Update() override;
	void OnKey(bool released, int key) override;
	void OnMouseMove(int x, int y) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	void OnGuiEvent(int id, int value) override;
	const char* Name() const override { return "CControllerMain"; }

	void StartLevel(int number); // as a click on its dot would

private:
	enum { BUTTON_PLAY };
	void Build();
	void TearDown();

	bool built             = false;
	CSprite* backdrop      = nullptr; // owned
	CGuiButton* playButton = nullptr; // owned
	CControllerGame* game  = nullptr; // owned
};
