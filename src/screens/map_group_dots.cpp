// The close-up of a group of islands: its dots, and which of them is selected.
#include "screens/map_group.h"

#include "media/sprite.h"

static const int NEXT_DOT_DELAY = 14; // frames: the level just played shrinks away first

CGuiButtonMapDot* CControllerMapGroup::DotOfLevel(int number) const
{
	for (CGuiButtonMapDot* dot : dots)
		if (dot->id == FIRST_DOT_ID + number - 1)
			return dot;
	return nullptr;
}

int CControllerMapGroup::SelectedLevel() const
{
	for (const CGuiButtonMapDot* dot : dots)
		if (dot->IsSelected())
			return dot->id - FIRST_DOT_ID + 1;
	return 0;
}

void CControllerMapGroup::SelectLevel(int number)
{
	CGuiButtonMapDot* dot = DotOfLevel(number);
	if (dot && !dot->disabled)
		dot->Select();
}

void CControllerMapGroup::BuildDots(bool growIn)
{
	int built = 0;
	for (int level = FirstLevel(group); level <= LastLevel(group); level++)
		if (HasDot(*g_gameData, level))
			dots.push_back(NewDot(level, growIn, built++));
	if (!levelJustLeft && chosenLevel)
		SelectLevel(chosenLevel);
}

// The level just finished shrinks away, and the next one grows in as the choice. A branch that has
// opened fills in along its path.
CGuiButtonMapDot* CControllerMapGroup::NewDot(int level, bool growIn, int built)
{
	const DotKind kind       = KindOfDot(*g_gameData, level);
	const SideBranch* branch = BranchOfLevel(level);
	const bool isNext        = levelJustLeft && level == lastFinishedIndex + 2;
	DotState state           = StateOfDot(*g_gameData, level);
	DotAnimation start       = DOT_IDLE;
	int delay                = 0;
	if (growIn) {
		start = DOT_GROW;
		delay = built;
	} else if (levelJustLeft && level == lastFinishedIndex + 1 && state == DOT_COMPLETED) {
		start = DOT_SHRINK;
		state = startedAs < DOT_COMPLETED ? DOT_INCOMPLETE : startedAs;
	} else if (branch && IsBranchNew(*g_gameData, *branch)) {
		start = isNext ? DOT_GROW_SELECTED : DOT_GROW;
		delay = level - branch->first;
	} else if (isNext && state >= DOT_COMPLETED) {
		start = DOT_GROW_SELECTED;
		delay = NEXT_DOT_DELAY;
	}
	const DotPlace place = PlaceOfDot(level);
	return new CGuiButtonMapDot(place.x, place.y, FIRST_DOT_ID + level - 1, this, kind, state,
	                            start, delay, false);
}

void CControllerMapGroup::HideDotsUnder(const CSprite* picture)
{
	for (CGuiButtonMapDot* dot : dots)
		if (dot->current->Overlaps(picture))
			dot->HideWidget();
}

// A new map chooses for the player once the dot has grown in.
void CControllerMapGroup::SelectWhenGrown()
{
	if (g_selectedMapDot >= 0)
		return;
	CGuiButtonMapDot* dot = DotOfLevel(LevelToPlay(*g_gameData, group));
	if (dot && !dot->disabled && dot->animation <= DOT_ROLLOVER)
		dot->Select();
}
