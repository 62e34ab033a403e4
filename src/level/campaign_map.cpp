// The campaign as the map shows it: the groups of islands, and what each level's dot is.
#include "level/campaign_map.h"

#include "state/game_data.h"

#include <algorithm>
#include <span>

// clang-format off
static const DotPlace s_dotPlaces[LEVEL_COUNT] = {
	{153, 427}, {168, 438}, {186, 438}, {201, 429}, {194, 412}, {192, 396}, {180, 384},
	{167, 373}, {163, 357}, {151, 345}, {133, 341}, {114, 343}, {99, 356}, {86, 370},
	{70, 379}, {53, 382}, {36, 379}, {107, 327}, {278, 290}, {297, 291}, {309, 303},
	{327, 304}, {342, 296}, {347, 281}, {353, 266}, {368, 255}, {386, 257}, {404, 254},
	{406, 239}, {392, 230}, {377, 223}, {360, 220}, {343, 220}, {327, 223}, {419, 229},
	{435, 225}, {453, 223}, {473, 227}, {492, 232}, {511, 233}, {620, 345}, {607, 355},
	{589, 360}, {571, 362}, {561, 376}, {568, 392}, {587, 390}, {603, 398}, {614, 414},
	{611, 434}, {595, 448}, {572, 408}, {562, 423}, {543, 427}, {523, 428}, {503, 427},
	{482, 430}, {464, 440}, {451, 455}, {433, 463}, {413, 466}, {120, 290}, {136, 289},
	{152, 294}, {161, 307}, {156, 321}, {145, 334}, {158, 342}, {173, 346}, {189, 348},
	{205, 346}, {219, 338}, {232, 327}, {242, 315}, {136, 348}, {138, 364}, {145, 378},
	{162, 382}, {179, 382}, {196, 384}, {214, 387}, {231, 386}, {247, 383}, {264, 383},
	{278, 390}, {288, 403}, {286, 419}, {274, 431}, {273, 447}, {286, 459}, {612, 388},
	{617, 373}, {612, 356}, {595, 352}, {579, 359}, {565, 369}, {549, 363}, {549, 347},
	{559, 333}, {572, 320}, {570, 304}, {555, 296}, {538, 298}, {522, 294}, {513, 281},
	{515, 265}, {498, 265}, {482, 270}, {477, 284}, {488, 295}, {488, 311}, {473, 319},
	{456, 318}, {440, 324}, {526, 252}, {543, 247}, {560, 250}, {153, 398}, {168, 385},
	{175, 368}, {166, 353}, {149, 346}, {140, 331}, {126, 322}, {109, 318}, {105, 302},
	{119, 290}, {138, 286}, {152, 273}, {167, 263}, {185, 261}, {152, 317}, {171, 311},
	{190, 307}, {205, 295}, {226, 290}, {245, 290}, {265, 292}, {286, 287}, {292, 271},
	{279, 259}, {260, 259}, {245, 253}, {248, 237}, {264, 228}, {284, 227}, {528, 307},
	{512, 311}, {504, 326}, {518, 336}, {535, 343}, {539, 360}, {558, 351}, {578, 352},
	{595, 360}, {604, 374}, {601, 391}, {585, 399}, {567, 396}, {559, 381}, {527, 374},
	{508, 378}, {489, 375}, {470, 370}, {450, 368}, {431, 369}, {413, 374}, {397, 383},
	{385, 395}, {376, 410}, {379, 427}, {392, 439}, {411, 441}, {432, 439}, {452, 438},
	{473, 445}, {494, 447}, {514, 445}, {535, 449}, {553, 457}, {571, 450}, {571, 433},
};

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
	return s_dotPlaces[level - 1];
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
