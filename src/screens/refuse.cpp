// The sound of an action that is not to be had.
#include "screens/refuse.h"

#include "sound/sound.h"
#include "sound/sound_manager.h"

void Refuse()
{
	if (g_actionFailedSound)
		g_actionFailedSound->Play();
}

void RefuseMissing()
{
	Refuse();
}
