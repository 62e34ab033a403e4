// The campaign as the map shows it: the groups of islands, and what each level's dot is.
#include "level/campaign_map.h"

#include "state/game_data.h"

#include <algorithm>
#include <span>

// clang-format off
static const SideBranch s_branches[] = {
	{ 12, 13, 17 }, { 29, 30, 34 }, { 46, 47, 51 },
	{ 67, 68, 74 }, { 106, 107, 114 },
	{ 123, 124, 131 }, { 152, 153, 160 },
};

// By index, level - 1.
static const int s_bonusDots[] = {
	3, 7, 11, 14, 20, 25, 28, 31, 37, 42, 45, 48, 54, 58,
	63, 66, 69, 72, 76, 79, 86, 91, 95, 101, 105, 108, 111, 116,
	119, 122, 125, 128, 133, 136, 143, 147, 151, 154, 157, 162, 165, 172, 175, 178,
};
static const int s_starDots[]  = { 11, 22, 28, 45, 59, 66, 82, 99, 105, 122, 139, 151, 169, 181 };
static const int s_alienDots[] = { 22, 59, 82, 99, 139, 169, 181 };
// clang-format on

static const int s_firstLevels[]   = {1, 1, 62, 118, LEVEL_COUNT + 1}; // by group
static const int ISLAND_OF_GROUP_B = 3;
static const int ISLAND_OF_GROUP_C = 5;

static bool Holds(std::span<const int> list, int i)
{
	return std::find(list.begin(), list.end(), i) != list.end();
}

int FirstLevel(IslandGroup group)
{
	return s_firstLevels[group];
}

int LastLevel(IslandGroup group)
{
	return s_firstLevels[group + 1] - 1;
}

IslandGroup GroupOfLevel(int level)
{
	if (level < s_firstLevels[GROUP_B])
		return GROUP_A;
	return level < s_firstLevels[GROUP_C] ? GROUP_B : GROUP_C;
}

DotPlace PlaceOfDot(int level)
{
	return DOT_PLACES[level - 1];
}

const SideBranch* BranchOfLevel(int level)
{
	for (const SideBranch& branch : s_branches)
		if (level >= branch.first && level <= branch.last)
			return &branch;
	return nullptr;
}

const SideBranch* BranchBefore(int level)
{
	return BranchOfLevel(level) ? nullptr : BranchOfLevel(level - 1);
}

int SideLevelsBefore(int level)
{
	int count = 0;
	for (const SideBranch& branch : s_branches)
		if (branch.last < level)
			count += branch.last - branch.first + 1;
	return count;
}

bool IsGroupOpen(const CGameData& data, IslandGroup group)
{
	switch (group) {
	case GROUP_B:
		return data.IsIslandOpen(ISLAND_OF_GROUP_B);
	case GROUP_C:
		return data.IsIslandOpen(ISLAND_OF_GROUP_C);
	default:
		return group == GROUP_A;
	}
}

bool HasDot(const CGameData& data, int level)
{
	const SideBranch* branch = BranchOfLevel(level);
	return !branch || data.IsLevelDoneEver(branch->gate - 1);
}

// A star marks a level of note until it is done; then it shows what it is.
DotKind KindOfDot(const CGameData& data, int level)
{
	const int i        = level - 1;
	const bool done    = data.IsLevelDoneEver(i);
	const DotKind kind = BranchOfLevel(level) ? DOT_SIDE : DOT_REGULAR;
	if (!done && Holds(s_starDots, i))
		return DOT_STAR;
	if (done && Holds(s_alienDots, i))
		return DOT_ALIEN;
	return Holds(s_bonusDots, i) ? DOT_BONUS : kind;
}

DotState StateOfDot(const CGameData& data, int level)
{
	const int i = level - 1;
	if (data.IsLevelDoneEver(i))
		return data.IsLevelDoneThisRun(i) ? DOT_COMPLETED : DOT_INCOMPLETE;
	if (i == 0 && !data.IsLevelDoneEver(1))
		return DOT_INCOMPLETE;
	if (data.IsLevelDoneEver(i - 1))
		return DOT_INCOMPLETE;
	const SideBranch* passed = BranchBefore(level);
	if (passed && data.IsLevelDoneEver(passed->gate - 1))
		return DOT_INCOMPLETE;
	return DOT_LOCKED;
}

bool IsBranchNew(const CGameData& data, const SideBranch& branch)
{
	return data.IsLevelDoneEver(branch.gate - 1) && !data.IsLevelDoneEver(branch.first - 1);
}

int NextLevelOfRun(const CGameData& data)
{
	int last = -1;
	for (int i = 0; i < LEVEL_COUNT; i++)
		if (data.IsLevelDoneThisRun(i) && !data.IsLevelDoneThisRun(i + 1))
			last = i;
	return last + 2;
}

static bool MayBePlayed(const CGameData& data, int level)
{
	return HasDot(data, level) && StateOfDot(data, level) == DOT_INCOMPLETE;
}

int LevelToPlay(const CGameData& data, IslandGroup group)
{
	const int next = NextLevelOfRun(data);
	if (next <= LEVEL_COUNT && GroupOfLevel(next) == group && MayBePlayed(data, next))
		return next;
	for (int level = FirstLevel(group); level <= LastLevel(group); level++)
		if (MayBePlayed(data, level))
			return level;
	return FirstLevel(group);
}
