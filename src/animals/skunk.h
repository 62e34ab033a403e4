// Skunk: sprays when it is touched, and runs.
#pragma once

#include "animals/animal.h"

class CSprite;

// A touch makes it spray a moment later and run on the way it faces. The cloud is only a picture:
// it touches nothing. On a dodgeball level the first touch is an upset.
class CSkunk : public CElementAnimal
{
public:
	CSkunk(int centreX, int centreY, bool left);

	void Update() override;
	bool OnBallHit() override;
	int OnBump() override;
	const char* ClassName() const override { return "CSkunk"; }

	int sprayTimer = -1; // frames to the spray, -1: none is coming

private:
	void ArmSpray();
	void RunSpray();

	AnimalAction* lastAction = nullptr; // at the end of the last update
	CSprite* clouds[2];                 // right, left; owned as all sprites of an animal
	CSprite* cloud;                     // one of them: the last that was armed
	CSound* spray;                      // the same
};
