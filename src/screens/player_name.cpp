// A player's name as it can be written on the screen.
#include "screens/player_name.h"

#include "media/display.h"
#include "media/font.h"

std::string ShownName(const std::string& name)
{
	std::string shown = name;
	for (char& character : shown)
		if (character != ' ' && !g_display->HasImage(GlyphFile(character)))
			character = '?';
	return shown;
}
