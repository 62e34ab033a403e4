// Levels as the player knows them: side branches are lettered and do not advance the count.
#include "level/campaign_map.h"
#include "state/game_data.h"

#include <cstdio>

std::string CGameData::LevelLabel(int level) const
{
	if (level == -1)
		level = currentLevel;
	if (level < 1)
		level = 1;
	const SideBranch* branch = BranchOfLevel(level);
	const int number         = branch ? branch->gate : level;
	const int count          = number - SideLevelsBefore(number);
	if (!branch)
		return std::to_string(count);
	char text[24];
	std::snprintf(text, sizeof text, "%i-%c", count, 'A' + level - branch->first);
	return text;
}
