// The splash pictures, and the root of the chain of controllers.
#pragma once

#include "frame/controller.h"

class CControllerMain;
class CSprite;

// Fades the splash pictures in one after the other, then pushes the main menu. It has no parent:
// when it ends the program ends.
class CControllerIntro : public CController
{
public:
	CControllerIntro();
	~CControllerIntro() override;

	void Enter() override;
	void Update() override;
	void OnKey(bool released, int key) override;
	void OnMouseMove(int x, int y) override;
	void OnMouseButton(bool left, bool right, bool released) override;
	const char* Name() const override { return "CControllerIntro"; }

private:
	void FreeSprites();
	void BlinkEyes(unsigned int t);
	bool PassSplash(CSprite* picture, unsigned int from, unsigned int next);
	void Finish(); // on to the main menu
	void Skip();

	CSprite* backdrop; // owned, as are all below but the one on top at the end
	CSprite* splash;   // null where the file does not load, as are second and third
	CSprite* eyes;
	CSprite* second;
	CSprite* third;
	CControllerMain* mainMenu = nullptr; // owned
	bool started              = false;   // the first fade-in has ended
	bool finished             = false;   // the main menu has come and gone
	bool handedOn             = false;   // the splash on top belongs to the main menu
	unsigned int startTicks   = 0;
};

extern CSprite* g_splashOnTop; // the splash last faded in; the main menu fades it out and frees it
