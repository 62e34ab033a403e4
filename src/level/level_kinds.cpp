// Which level follows which rules.
#include "level/level_kinds.h"

#include <span>

// clang-format off
static const int s_alien[]      = { 23, 60, 83, 100, 140, 170, 182 };
static const int s_demolition[] = { 4, 29, 64, 120, 148, 173 };
static const int s_stampede[]   = { 8, 38, 77, 96, 134, 155 };
static const int s_speedball[]  = { 12, 46, 70, 102, 144, 166 };
static const int s_coin[]       = { 15, 49, 152 };
static const int s_dodgeball[]  = { 21, 32, 123, 163 };
static const int s_order[]      = { 26, 59, 87, 109, 129, 179 };
static const int s_harvest[]    = { 43, 80, 112 };
static const int s_pinball[]    = { 67, 92, 117 };
static const int s_tightSpot[]  = { 55, 106, 126, 176 };
static const int s_egg[]        = { 73, 137, 158 };

static const struct {
	LevelKind kind;
	const char* name;
	std::span<const int> levels;
} s_kinds[] = {
	{ KIND_ALIEN,      "alien",      s_alien },
	{ KIND_DEMOLITION, "demolition", s_demolition },
	{ KIND_STAMPEDE,   "stampede",   s_stampede },
	{ KIND_SPEEDBALL,  "speedball",  s_speedball },
	{ KIND_COIN,       "coin",       s_coin },
	{ KIND_DODGEBALL,  "dodgeball",  s_dodgeball },
	{ KIND_ORDER,      "order",      s_order },
	{ KIND_HARVEST,    "harvest",    s_harvest },
	{ KIND_PINBALL,    "pinball",    s_pinball },
	{ KIND_TIGHT_SPOT, "tight spot", s_tightSpot },
	{ KIND_EGG,        "egg",        s_egg },
};
// clang-format on

LevelKind KindOfLevel(int number)
{
	for (const auto& row : s_kinds)
		for (int level : row.levels)
			if (level == number)
				return row.kind;
	return KIND_REGULAR;
}

bool IsBonusKind(LevelKind kind)
{
	return kind != KIND_REGULAR && kind != KIND_ALIEN;
}

const char* NameOfKind(LevelKind kind)
{
	for (const auto& row : s_kinds)
		if (row.kind == kind)
			return row.name;
	return "regular";
}
