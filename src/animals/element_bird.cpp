// The flight of a bird that has states of its own in place of an action list.
#include "animals/element_bird.h"

void CElementBird::BeginFlight()
{
	state = FLAP_UP;
	wait.Restart();
	TakeOff();
}

bool CElementBird::HeadsUp() const
{
	return state == FLAP_UP || state == GLIDE_UP;
}

void CElementBird::HeadUp(bool up)
{
	if (state == FLAP_UP || state == FLAP_DOWN)
		state = up ? FLAP_UP : FLAP_DOWN;
	else if (state == GLIDE_UP || state == GLIDE_DOWN)
		state = up ? GLIDE_UP : GLIDE_DOWN;
}

void CElementBird::FaceLandingSpot()
{
	facingLeft = landX <= x;
	HeadUp(landY <= y);
}

void CElementBird::EndFlight()
{
	RebuildBody(true);
	state = 0;
}

void CElementBird::ChangeBeat()
{
	switch (state) {
	case FLAP_UP:
		state = GLIDE_UP;
		break;
	case FLAP_DOWN:
		state = GLIDE_DOWN;
		break;
	case GLIDE_UP:
		state = FLAP_UP;
		break;
	case GLIDE_DOWN:
		state = FLAP_DOWN;
		break;
	default:
		break;
	}
}
