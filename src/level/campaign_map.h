// The campaign as the map shows it: the groups of islands, and what each level's dot is.
#pragma once

#include "level/dot_places.h"
#include "media/dot_art.h"

class CGameData;

enum IslandGroup { GROUP_NONE, GROUP_A, GROUP_B, GROUP_C };

// Levels that a player may pass by. They appear once the gate has been finished; the level behind
// the branch opens with the gate too.
struct SideBranch {
	int gate, first, last;
};

// Levels here are 1 to LEVEL_COUNT.
int FirstLevel(IslandGroup group);
int LastLevel(IslandGroup group);
IslandGroup GroupOfLevel(int level); // below 1 the first group, past the end the last
DotPlace PlaceOfDot(int level);
const SideBranch* BranchOfLevel(int level); // null on the main line
const SideBranch* BranchBefore(int level);  // that ends right before the level, or null
int SideLevelsBefore(int level);            // of all branches that end before it

// What the player's progress makes of it.
bool IsGroupOpen(const CGameData& data, IslandGroup group);
bool HasDot(const CGameData& data, int level); // false for a side level whose gate is not finished
DotKind KindOfDot(const CGameData& data, int level);
DotState StateOfDot(const CGameData& data, int level);
bool IsBranchNew(const CGameData& data, const SideBranch& branch); // open, and not yet entered
int NextLevelOfRun(const CGameData& data); // behind the last unbroken stretch; may be past the end
// The level that a player would want in this group: the run's next one if it lies there, else the
// first that may be played, else the group's first.
int LevelToPlay(const CGameData& data, IslandGroup group);
