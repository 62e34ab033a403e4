// The flight of a bird that has states of its own in place of an action list.
#pragma once

#include "animals/bird_page.h"
#include "animals/wait.h"

// Flies as every animal does, but whether it rises or sinks is told by its state: it flaps or
// glides, up or down. What it does on a perch or on the ground is the species'.
class CElementBird : public CElementAnimal
{
public:
	enum AirState { FLAP_UP = 100, FLAP_DOWN, GLIDE_UP, GLIDE_DOWN };

	void BeginFlight() override;
	void FaceLandingSpot() override;
	bool HeadsUp() const override;
	void HeadUp(bool up) override;
	void EndFlight() override;
	void RebuildBody() override { RebuildBody(true); }
	virtual void RebuildBody(bool always) = 0; // otherwise only when its facing has changed

	int state = 0; // AirState in the air, 0 at rest; the others are the species' own
	Wait wait;     // of the state

protected:
	bool IsAloft() const { return state >= FLAP_UP && state <= GLIDE_DOWN; }
	void ChangeBeat(); // from flapping to gliding or back
};
