// The list of levels: number, name, routine.
#pragma once

class CControllerGame;

const int FIRST_LEVEL = 1;
const int LAST_LEVEL  = 182;

// A level is code: plain constructor calls, in the order of the element list.
typedef void (*LevelRoutine)(CControllerGame* game);

struct LevelEntry {
	int number;
	const char* name;
	LevelRoutine build;
};

// Builds the level's elements on an empty field. A number without a routine builds nothing.
void BuildLevel(int number, CControllerGame* game);
bool HasLevel(int number);
const char* LevelName(int number); // empty for a number without a routine
