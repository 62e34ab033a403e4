// The screens that interrupt a level: the one place that knows which of them exist.
#pragma once

class CController;

enum GameChild {
	CHILD_NONE,
	CHILD_PAUSE,
	CHILD_TROPHY_TALLY,
	CHILD_TALLY,
	CHILD_END_GAME,
	CHILD_BONUS_CARD,
	CHILD_DIALOG,
	CHILD_HINT,
	CHILD_STORY,
	CHILD_QUIZ,
	CHILD_KINDS,
};

// What a screen is opened with; each kind reads its own fields.
struct ChildRequest {
	GameChild kind     = CHILD_NONE;
	int level          = 0; // bonus card
	int story          = 0; // story: kind of the page
	int value          = 0; // story: what it carries; trophy tally: gallery number; dialog: kind
	bool gameWon       = false; // end of game
	int tallyType      = 0;     // tally: type and its four values
	int tallyValues[4] = {};
};

// What a screen has left behind.
struct ChildAnswer {
	bool replay = false; // tally: play the level again
	bool goOn   = false; // end of game: continue
	bool leave  = false; // story: leave the level
	int answer  = 1;     // dialog: 0 is the first button
};

// Null for a kind whose screen the game does not have: the level runner then goes straight on.
CController* NewGameChild(const ChildRequest& request);
bool HasGameChild(GameChild kind);
ChildAnswer ReadGameChild(GameChild kind, const CController* child);
