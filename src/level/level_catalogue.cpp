// The list of levels: number, name, routine.
#include "level/level_catalogue.h"

#include "level/levels.h"

// clang-format off
static const LevelEntry s_levels[] = {
	// number, name,                  routine
	{ 1,       "First meadow",        BuildLevel001 },
	{ 2,       "Bot by the barn",     BuildLevel002 },
	{ 3,       "Cats and cowpens",    BuildLevel003 },
	{ 4,       "Barrel yard",         BuildLevel004 },
	{ 5,       "Bluebird rails",      BuildLevel005 },
	{ 6,       "Last snow",           BuildLevel006 },
	{ 7,       "Frog pond",           BuildLevel007 },
	{ 8,       "Monkey run",          BuildLevel008 },
	{ 9,       "Sleepers at sunset",  BuildLevel009 },
	{ 10,      "Paddocks at dusk",    BuildLevel010 },
	{ 11,      "Woods by night",      BuildLevel011 },
	{ 12,      "Crate storm",         BuildLevel012 },
	{ 15,      "Coin fountain",       BuildLevel015 },
	{ 21,      "Bird sanctuary",      BuildLevel021 },
	{ 23,      "First saucer",        BuildLevel023 },
	{ 26,      "Fourfold lock",       BuildLevel026 },
	{ 43,      "Night harvest",       BuildLevel043 },
	{ 55,      "Between the stones",  BuildLevel055 },
	{ 67,      "Pinball orchard",     BuildLevel067 },
	{ 73,      "Hill hen house",      BuildLevel073 },
};
// clang-format on

static const LevelEntry* Find(int number)
{
	for (const LevelEntry& entry : s_levels)
		if (entry.number == number)
			return &entry;
	return nullptr;
}

void BuildLevel(int number, CControllerGame* game)
{
	if (const LevelEntry* entry = Find(number))
		entry->build(game);
}

bool HasLevel(int number)
{
	return Find(number) != nullptr;
}

const char* LevelName(int number)
{
	const LevelEntry* entry = Find(number);
	return entry ? entry->name : "";
}
