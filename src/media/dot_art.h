// The pictures of a dot of the map.
#pragma once

class CSprite;

enum DotKind { DOT_REGULAR, DOT_BONUS, DOT_ALIEN, DOT_SIDE, DOT_STAR };
enum DotState { DOT_LOCKED, DOT_LOCKED_GHOSTED, DOT_COMPLETED, DOT_INCOMPLETE };

// The pictures of one kind in one state. A locked dot has none for being selected.
class CDotArt
{
public:
	CDotArt(int x, int y, DotKind kind, DotState state); // all hidden
	~CDotArt();
	CDotArt(const CDotArt&)            = delete;
	CDotArt& operator=(const CDotArt&) = delete;

	CSprite* plain; // owned, as are the others
	CSprite* rollover;
	CSprite* shrink;
	CSprite* grow;
	CSprite* selected     = nullptr; // null for a locked dot
	CSprite* selectedGrow = nullptr;
};
