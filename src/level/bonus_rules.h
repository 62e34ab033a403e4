// What ends a level of each kind, what its bonus counts, and what the tally is told.
#pragma once

class CControllerGame;
struct ChildRequest;

// True once one of the conditions holds that end the running level.
bool LevelHasEnded(const CControllerGame& game);

// What the bonus counts against, taken when the level has just been built.
int BonusStartCount(const CControllerGame& game);

// Type and values for the tally. A bonus level without a type is fatal: an error of its routine.
void FillTally(const CControllerGame& game, ChildRequest& request);

// Crates and fence sections that stand.
int ObstaclesStanding();
