// Monkey: sits, looks about, runs, climbs trees and throws tantrums.
#pragma once

#include "animals/tree_climber.h"
#include "animals/wait.h"

// A machine of its own in place of an action list. It climbs from any state on the ground, but
// after a fall only when it has finished a run; of the base it uses the trees and the body.
class CMonkey : public CElementTreeClimber
{
public:
	CMonkey(int centreX, int centreY, bool left);
	CMonkey(CTree* tree, bool left); // starts in the crown

	void Place() override;
	void Update() override;
	bool OnBallHit() override;
	int OnBump() override; // a tantrum
	void ShakeOut() override;
	const char* ClassName() const override { return "CMonkey"; }

	enum State { SIT, TANTRUM, RUN, LOOK, FALL, LANDING, CLIMB, POP_UP };
	enum Pictures {
		SITTING,
		THROWING_FIT,
		RUNNING,
		LOOKING_FROM_LEFT, // while it faces left: a pair, one look to each side
		LOOKING_FROM_RIGHT,
		FALLING,
		HITTING_GROUND,
		CLIMBING,
		POPPING_UP,
		PICTURES
	};

	State state = SIT;
	Wait wait; // of the state

private:
	void Build();
	void Enter(State newState, Pictures pictures);
	void Enter(State newState, CSprite* sprite);
	void SitFrame();
	void TryToRun(bool left);
	void TantrumFrame();
	void RunFrame();
	void LookFrame();
	void FallFrame();
	void LandFrame();
	void ClimbFrame();
	void TakeSeatInCrown();
	void LookForTree();
	void Screech();
	CSprite* LookSprite(bool leftward) const;

	CSprite* sprites[PICTURES][2]; // by side: right, left
	CSound* screeches[2];
	bool lookingBack = false; // the look now plays backward
};
