// Reads the sound container and draws each effect.
#include "tools/sheet_sounds.h"

int DrawSoundSheet(int, char**)
{
	return 2;
}
