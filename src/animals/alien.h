// Alien: falls out of its saucer, runs, hides and shoots until it is stunned and taken.
#pragma once

#include "animals/animal.h"

// The ball has to touch it twice: the first touch stuns it, whatever the ball's size; while it is
// stunned a ball that is big enough takes it. An arrow calls for that second touch.
class CAlien : public CElementAnimal
{
public:
	CAlien(int centreX, int centreY, bool newBoss); // a boss stuns the paddle for longer

	void Update() override;
	bool OnBallHit() override;
	void RebuildBody() override; // none in the fall, flatter while it is stunned
	void UpdateRescueHint() override;
	const char* ClassName() const override { return "CAlien"; }

	void Laugh();
	void StandAtOnce(); // without the fall

	static constexpr int LANDING_FRAMES = 30; // in which the ball passes through it

	bool stunnedOnce   = false; // the ball can take it now
	int landDelay      = LANDING_FRAMES;
	int crouchCooldown = 0; // frames before it may hide again
	bool boss;

private:
	void LandFrame();
	bool MayCrouch() const;
	void Shoot();

	AnimalAction* run;
	AnimalAction* crouch;
	AnimalAction* fire;
	AnimalAction* laugh;
	CSound* captureSound; // owned as all sounds of an animal
	CSound* groundSound;
	CSound* laughSound;
};
