// Draws the voice of the species that have two.
#include "animals/two_voiced.h"

#include "frame/random.h"
#include "sound/sound.h"

void CTwoVoiced::LoadVoices(const char* first, const char* second)
{
	voices[0] = OwnSound(new CSound(first));
	voices[1] = OwnSound(new CSound(second));
}

bool CTwoVoiced::OnBallHit()
{
	bumpAction->sounds[0]  = voices[Coin()];
	bumpAction->soundDelay = 0;
	return TryCapture();
}
