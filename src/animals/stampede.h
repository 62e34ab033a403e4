// An animal of a herd that runs across the field.
#pragma once

#include "animals/animal.h"

// Only runs: it has no actions, turns for nothing, and no thing is in its way. The ball takes it
// or bounces off it. What has left the field on the far side stays in the lists, alive, and counts
// as not rescued.
class CElementStampede : public CElementAnimal
{
public:
	// One of the species that have a row in the table; the centre in pixels, also outside the
	// field; pixels per frame, negative to the left.
	CElementStampede(int newSpecies, int centreX, int centreY, float speed);
	~CElementStampede() override;

	void Place() override;
	void Update() override;
	bool OnBallHit() override;
	void UpdateRescueHint() override {} // hints are not for it
	const char* ClassName() const override { return "CElementStampede"; }

	// Every animal is taken or has run off. True for a field without a herd.
	static bool StampedeFinished();
	static std::vector<CElementStampede*> StampedeList;
	static int stampedeSpecies; // of the animal made last, for the tally

	int herdSpecies;
	CSprite* runSprite; // owned as all sprites of an animal

private:
	void LayOutline();
	bool HasRunOff() const;
};
