// The list of levels: number, name, routine.
#include "level/level_catalogue.h"

#include "level/levels.h"

// clang-format off
static const LevelEntry s_levels[] = {
	// number, name,             routine
	{ 1,       "First meadow",   BuildLevel001 },
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
