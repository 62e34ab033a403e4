// Flying saucer: drifts over the field and fires at the paddle until the ball has worn it down.
#pragma once

#include "animals/animal.h"

class CBobber;

// No ball takes it. Each hit of a ball that is big enough is one stage of damage, each ray of the
// paddle three; with the sixth it blows up and its pilot falls out, the alien.
class CUFO : public CElementAnimal
{
public:
	static constexpr int STAGES = 6;    // of damage that have pictures; the next is the end
	static constexpr int DEPTH  = 1200; // drawing depth of its hindmost part in the air

	CUFO(int centreX, int centreY, bool newBoss); // a boss charges faster and stuns for longer
	~CUFO() override;

	void Place() override;
	void Update() override;
	bool OnBallHit() override;
	void RebuildBody() override; // a ring along the hull
	void UpdateRescueHint() override;
	const char* ClassName() const override { return "CUFO"; }

	void Damage();                     // one stage, for the present ball
	void OnBlast(int atX, int radius); // the paddle's ray at x
	void Laugh();                      // the pilot does
	static void BlastAll(int atX, int radius);
	static std::vector<CUFO*> UfoList; // live instances

	int damage     = 0;           // 0 to STAGES
	int steerTimer = 0;           // frames
	int fireTimer  = 0;           // frames; at 0 it begins to charge, far below 0 it fires
	float accelX = 0, accelY = 0; // pixels per frame per frame
	bool boss;

	// sprites, owned as all of an animal; the hull now on screen is the current sprite
	CSprite* hullSprites[STAGES];
	CSprite* rimSprites[STAGES];
	CSprite* lightsSprite;
	CSprite* domeSprite;
	CSprite* shadowSprite;
	CSprite* explosionSprite;
	CSprite* pilotSprite; // one of those that follow
	CSprite* pilotSit;
	CSprite* pilotStunned;
	CSprite* pilotMoveLeft[2]; // leaning over, and back
	CSprite* pilotMoveRight[2];
	CSprite* pilotFire;
	CSprite* pilotFireBack;
	CSprite* pilotLaugh;
	CSprite* antennaSprite; // one of those that follow
	CSprite* antennaIdle;
	CSprite* antennaCharge;
	CSprite* antennaVibrate;
	CSprite* antennaFire;

private:
	// ufo_parts.cpp
	void LoadParts();
	CSprite* LoadPart(int depth, const char* stem, int first, int last, int ticks, bool loops);
	void LoadStages();
	void LoadPilot();
	void LayOut();
	void ShowStage();
	void HideParts();
	// ufo.cpp
	void Steer();
	void Drift();
	void StepGun();
	void Fire();
	void StepPilot();
	void LeanPilot();
	bool PilotIsBusy() const;
	void TakeDamage(int stages);
	void Explode();

	CSprite* rimSprite;  // one of rimSprites
	CBobber* bob;        // owned; of the pilot
	CSound* chargeSound; // owned as all sounds of an animal
	CSound* explodeSound;
	CSound* laughSound;
	CSound* crumpleSound;
};
