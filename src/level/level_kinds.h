// Which level follows which rules.
#pragma once

enum LevelKind {
	KIND_REGULAR,
	KIND_ALIEN, // regular, with a saucer
	KIND_DEMOLITION,
	KIND_STAMPEDE,
	KIND_SPEEDBALL,
	KIND_COIN,
	KIND_DODGEBALL,
	KIND_ORDER,
	KIND_HARVEST,
	KIND_PINBALL,
	KIND_TIGHT_SPOT,
	KIND_EGG,
};

LevelKind KindOfLevel(int number); // any number; regular outside 1 to 182
bool IsBonusKind(LevelKind kind);
const char* NameOfKind(LevelKind kind); // lower case words
